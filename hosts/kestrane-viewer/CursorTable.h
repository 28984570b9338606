#ifndef HOSTS_KESTRANE_VIEWER_CURSORTABLE_H
#define HOSTS_KESTRANE_VIEWER_CURSORTABLE_H

#include "hosts/kestrane-viewer/ChartModel.h"

#include <kestrane/backend/Registration.h>

#include <QTableWidget>
#include <QTimer>

#include <vector>

namespace hosts::viewer {

/// What the curves of a chart have at its cursors: a row for x and one for each curve, a column for
/// each cursor, and then one for each difference from the first cursor.
///
/// It follows the curves by their callbacks, which come on the thread of the window here.
class CursorTable : public QTableWidget
{
    Q_OBJECT

public:
    explicit CursorTable(QWidget* parent = nullptr);

    /// Follows another chart; null for none. It has to outlive this or the next call.
    void follow(ChartModel* model);

    QSize sizeHint() const override
    {
        return viewportSizeHint() + 2 * QSize(frameWidth(), frameWidth());
    }
    QSize minimumSizeHint() const override { return {100, 60}; }

    /// Reads all anew before the next event.
    void refreshSoon() { m_timer.start(); }

private:
    void refresh();
    void setHeaders(const QStringList& curves, int cursors);
    void setValues(int row, const std::vector<QVector<double>>& values,
                   const charting::AxisView& labels, const charting::AxisView& distances,
                   double share);
    void setText(int row, int column, const QString& text);

    ChartModel* m_model = nullptr;
    std::vector<pelorin::utilities::Registration> m_registrations;
    QTimer m_timer;
};

} // namespace hosts::viewer

#endif
