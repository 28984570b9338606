#include "hosts/kestrane-viewer/CursorTable.h"

#include <QHeaderView>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace hosts::viewer {

using charting::AxisView;
using pelorin::ui::chart::Axis;
using pelorin::ui::chart::Intersectable;
using pelorin::ui::chart::Intersection;

namespace {

constexpr double xShare = 1e-6; // As the cursors are labelled in the chart.
constexpr double valueShare = 1e-3;

QString signedText(double difference, const AxisView& labels, double share)
{
    const QString sign = difference < 0.0   ? QStringLiteral("-")
                         : difference > 0.0 ? QStringLiteral("+")
                                            : QString();
    return sign + labels.textOf(std::abs(difference), share);
}

} // namespace

CursorTable::CursorTable(QWidget* parent)
    : QTableWidget(parent)
{
    setEditTriggers(NoEditTriggers);
    setSelectionMode(ContiguousSelection);
    setAlternatingRowColors(true);
    setSizeAdjustPolicy(AdjustToContents);
    horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &CursorTable::refresh);
}

void CursorTable::follow(ChartModel* model)
{
    m_registrations.clear();
    m_model = model;
    if (model) {
        for (const auto& curve : model->crossedCurves())
            m_registrations.push_back(
                curve->notifyees().add([this](const Intersectable*) { refreshSoon(); }));
    }
    refreshSoon();
}

void CursorTable::refresh()
{
    const QVector<double> cursors = m_model ? m_model->cursors() : QVector<double>();
    if (cursors.isEmpty()) {
        setRowCount(0);
        setColumnCount(0);
        return;
    }
    const AxisView x = m_model->xView();
    const AxisView y = m_model->yView();
    setHeaders(m_model->curveNames(), cursors.size());
    std::vector<QVector<double>> values;
    for (const double cursor : cursors)
        values.push_back({cursor});
    setValues(0, values, x, m_model->xDistances(), xShare);
    int row = 1;
    for (const auto& curve : m_model->crossedCurves()) {
        values.clear();
        for (const double cursor : cursors) {
            QVector<double> crossed;
            for (const Intersection& crossing :
                 curve->crossings(x, y, x.axis()->transform(Axis::Linear, cursor)))
                crossed.append(crossing.value);
            values.push_back(crossed);
        }
        setValues(row++, values, y, m_model->yDistances(), valueShare);
    }
}

void CursorTable::setHeaders(const QStringList& curves, int cursors)
{
    QStringList columns;
    for (int k = 1; k <= cursors; ++k)
        columns.append(QStringLiteral("Cursor %1").arg(k));
    for (int k = 2; k <= cursors; ++k)
        columns.append(QStringLiteral("%1 − 1").arg(k));
    setRowCount(1 + curves.size());
    setColumnCount(columns.size());
    setVerticalHeaderLabels(QStringList{QStringLiteral("x")} + curves);
    setHorizontalHeaderLabels(columns);
}

// A cursor may cross overlapping segments more than once; their difference would mean nothing.
void CursorTable::setValues(int row, const std::vector<QVector<double>>& values,
                            const AxisView& labels, const AxisView& distances, double share)
{
    const int cursors = int(values.size());
    for (int k = 0; k < cursors; ++k) {
        QStringList texts;
        for (const double value : values[std::size_t(k)])
            texts.append(labels.textOf(value, share));
        setText(row, k, texts.join(QStringLiteral("; ")));
    }
    for (int k = 1; k < cursors; ++k) {
        const QVector<double>& first = values[0];
        const QVector<double>& other = values[std::size_t(k)];
        const bool isClear = first.size() == 1 && other.size() == 1;
        setText(row, cursors - 1 + k,
                isClear ? signedText(other[0] - first[0], distances, share) : QString());
    }
}

void CursorTable::setText(int row, int column, const QString& text)
{
    if (!item(row, column)) {
        setItem(row, column, new QTableWidgetItem);
        item(row, column)->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
    item(row, column)->setText(text);
}

} // namespace hosts::viewer
