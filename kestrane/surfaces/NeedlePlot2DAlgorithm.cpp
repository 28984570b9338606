#include "kestrane/surfaces/NeedlePlot2DAlgorithm.h"

#include "kestrane/colors/detail/TruncatedToCount.h"
#include "kestrane/surfaces/detail/CellGeometry.h"
#include "kestrane/surfaces/detail/LargestSample.h"

#include <QMutexLocker>

#include <utility>

namespace pelorin {
namespace ui {
namespace chart {

namespace {

using Needle = QVector<NeedlePlot2DAlgorithm::ColoredPoint>;
using Segment = backend::MultiDimensionalPlotSegment<double, 2>;

class ColorRamp
{
public:
    ColorRamp(const QColor& start, const QColor& end)
        : m_red(start.redF(), end.redF())
        , m_green(start.greenF(), end.greenF())
        , m_blue(start.blueF(), end.blueF())
        , m_alpha(start.alphaF(), end.alphaF())
    {}

    QColor at(double ratio) const
    {
        QColor color = QColor::fromRgbF(m_red.at(ratio), m_green.at(ratio), m_blue.at(ratio), 1.0);
        color.setAlphaF(m_alpha.at(ratio));
        return color;
    }

private:
    struct Component
    {
        Component(double start_, double end)
            : start(start_)
            , difference(end - start_)
        {}

        double at(double ratio) const { return ratio * difference + start; }

        double start;
        double difference;
    };

    Component m_red, m_green, m_blue, m_alpha;
};

// Makes needles column by column. The largest sum lasts from one to the next, over all segments.
class NeedleMaker
{
public:
    explicit NeedleMaker(const ColorRamp& ramp)
        : m_ramp(ramp)
    {}

    void appendNeedles(const Segment& segment, const GeometryCacheEntry& geometry,
                       QVector<Needle>& needles)
    {
        if (geometry.yGeometries.isEmpty())
            return;
        detail::Geometry left = geometry.firstX;
        for (const detail::Geometry& right : geometry.xGeometries) {
            Needle needle = risingPoints(segment, geometry, left, right);
            finish(needle, (left.position + right.position) * 0.5);
            needles.append(std::move(needle));
            left = right;
        }
    }

private:
    // From the top down a point wherever the sum grows; the sums are left for the colours.
    Needle risingPoints(const Segment& segment, const GeometryCacheEntry& geometry,
                        const detail::Geometry& left, const detail::Geometry& right)
    {
        const double middle = (left.position + right.position) * 0.5;
        const QList<detail::Geometry>& edges = geometry.yGeometries;
        Needle needle;
        m_sums.clear();
        double sum = 0.0;
        double previous = 0.0;
        for (int top = edges.size() - 1; top >= 0; --top) {
            const detail::Geometry& upper = edges.at(top);
            const detail::Geometry& lower = top > 0 ? edges.at(top - 1) : geometry.firstY;
            backend::GridPosition<double> position(segment);
            position.move(0, left.index);
            position.move(1, lower.index);
            sum += detail::largestSample(position,
                                         {right.index - left.index, upper.index - lower.index});
            if (sum == previous)
                continue;
            previous = sum;
            if (sum > m_maxSum)
                m_maxSum = sum;
            m_sums.append(ui::detail::truncatedToCount(sum));
            needle.append({middle, (upper.position + lower.position) * 0.5, QColor()});
        }
        return needle;
    }

    // Once the column is complete, its own total counts for its colours.
    void finish(Needle& needle, double middle) const
    {
        if (needle.isEmpty())
            return;
        for (int k = 0; k < needle.size(); ++k)
            needle[k].color = m_ramp.at(static_cast<double>(m_sums.at(k)) / m_maxSum);
        needle.append({middle, 0.0, QColor(needle.last().color)});
    }

    const ColorRamp m_ramp;
    double m_maxSum = 0.0;
    QVector<std::size_t> m_sums; // Of the column at hand.
};

} // namespace

NeedlePlot2DAlgorithm::NeedlePlot2DAlgorithm() = default;

NeedlePlot2DAlgorithm::~NeedlePlot2DAlgorithm() = default;

QVector<Needle> NeedlePlot2DAlgorithm::makeNeedles(const QSharedPointer<const Axis>& xAxis,
                                                   const QSharedPointer<const Axis>& yAxis,
                                                   const QColor& startColor, const QColor& endColor,
                                                   double xPixelSize, double yPixelSize)
{
    QVector<Needle> needles;
    NeedleMaker maker(ColorRamp(startColor, endColor));
    const detail::PixelGrid pixels{xAxis, yAxis, xPixelSize, yPixelSize};
    if (!pixels.isUsable())
        return needles;

    const QMutexLocker locker(&m_mutex);
    int index = 0;
    for (const Segment& segment : m_snapshot) {
        GeometryCacheEntry& entry = detail::cacheEntry(m_geometryCache, index++);
        detail::updateGeometry(entry, segment.metaInfo, segment.shape, pixels);
        maker.appendNeedles(segment, entry, needles);
    }
    return needles;
}

void NeedlePlot2DAlgorithm::clearGeometryCache()
{
    QList<GeometryCacheEntry> old; // Goes after the unlock, and the axes with it.
    const QMutexLocker locker(&m_mutex);
    m_geometryCache.swap(old);
}

} // namespace chart
} // namespace ui
} // namespace pelorin
