#include "hosts/charting/CrossingLabels.h"

#include "hosts/charting/LabelPlacer.h"
#include "hosts/charting/PolylineClipper.h"

#include <algorithm>
#include <optional>

namespace hosts::charting {

namespace {

constexpr int nearSteps = 6; // Half heights of a label, up and down.

class CrossingWork
{
public:
    CrossingWork(const Chart& chart, const ChartLayout& layout, const TextMeasure& measure)
        : m_chart(chart)
        , m_layout(layout)
        , m_measure(measure)
        , m_taken(layout.plot)
        , m_lines(layout.plot)
    {
        for (const Crossing& crossing : chart.crossings)
            m_taken.take(markOf(crossing));
        for (const TickMark& cursor : chart.texts.cursors)
            m_lines.take(QRectF(layout.xAt(cursor.place) - 0.5, layout.plot.top(), 1.0,
                                layout.plot.height()));
    }

    PlacedText place(const Crossing& crossing)
    {
        const QSizeF size = QSizeF(m_measure.width(crossing.label, TextMeasure::Style::Text),
                                   m_measure.height(TextMeasure::Style::Text)) +
                            crossingPadding * 2.0;
        std::optional<QRectF> found = placeNear(crossing, size);
        if (!found)
            found = placeAnywhere(crossing, size);
        if (!found)
            return {};
        m_taken.take(*found);
        return {crossing.label,
                found->adjusted(crossingPadding.width(), crossingPadding.height(),
                                -crossingPadding.width(), -crossingPadding.height())};
    }

private:
    QRectF markOf(const Crossing& crossing) const
    {
        const QPointF radius(crossingRadius, crossingRadius);
        const QPointF centre = m_layout.at(crossing.place);
        return {centre - radius, centre + radius};
    }

    // In order of distance: as high as the mark, then half a height higher, half a height lower,
    // ... and each time to the right, to the left, in the middle.
    QRectF candidate(const Crossing& crossing, const QSizeF& size, int step, int side) const
    {
        const QRectF mark = markOf(crossing);
        const double lefts[] = {mark.right(), mark.left() - size.width(),
                                mark.center().x() - size.width() / 2.0};
        const double shift = (step % 2 == 0 ? step / 2 : -(step + 1) / 2) * size.height() / 2.0;
        return {QPointF(lefts[side], mark.center().y() - size.height() / 2.0 + shift), size};
    }

    template<typename IsFit>
    std::optional<QRectF> firstOf(const Crossing& crossing, const QSizeF& size, int steps,
                                  const IsFit& isFit) const
    {
        for (int step = 0; step <= steps; ++step) {
            for (const int side : {0, 1, 2}) {
                const QRectF place = candidate(crossing, size, step, side);
                if (m_taken.isFree(place, QSizeF(1.0, 1.0)) && isFit(place))
                    return place;
            }
        }
        return std::nullopt;
    }

    std::optional<QRectF> placeNear(const Crossing& crossing, const QSizeF& size) const
    {
        const double reach = size.height() * (nearSteps / 2.0 + 1.0);
        const QRectF around = markOf(crossing).adjusted(-size.width(), -reach, size.width(), reach);
        const QVector<QVector<QPointF>> curves = curvesIn(around & m_layout.plot);
        return firstOf(crossing, size, 2 * nearSteps, [&](const QRectF& place) {
            return m_lines.isFree(place, QSizeF()) &&
                   std::all_of(curves.cbegin(), curves.cend(), [&](const auto& curve) {
                       return clipPolyline(curve, place).isEmpty();
                   });
        });
    }

    std::optional<QRectF> placeAnywhere(const Crossing& crossing, const QSizeF& size) const
    {
        const int steps = int(4.0 * m_layout.plot.height() / size.height());
        return firstOf(crossing, size, steps, [](const QRectF&) { return true; });
    }

    QVector<QVector<QPointF>> curvesIn(const QRectF& area) const
    {
        QVector<QVector<QPointF>> pieces;
        for (const Curve& curve : m_chart.curves) {
            for (QVector<QPointF> points : curve.polylines) {
                std::transform(points.cbegin(), points.cend(), points.begin(),
                               [&](const QPointF& p) { return m_layout.at(m_chart.placeOf(p)); });
                pieces += clipPolyline(points, area);
            }
        }
        return pieces;
    }

    const Chart& m_chart;
    const ChartLayout& m_layout;
    const TextMeasure& m_measure;
    LabelPlacer m_taken;
    LabelPlacer m_lines;
};

} // namespace

QVector<PlacedText> placeCrossings(const Chart& chart, const ChartLayout& layout,
                                   const TextMeasure& measure)
{
    CrossingWork work(chart, layout, measure);
    QVector<PlacedText> labels;
    for (const Crossing& crossing : chart.crossings)
        labels.append(work.place(crossing));
    return labels;
}

} // namespace hosts::charting
