#include "kestrane/surfaces/NeedlePlot2DAlgorithm.h"

#include "kestrane/colors/detail/TruncatedToCount.h"
#include "kestrane/surfaces/detail/CellGeometry.h"
#include "kestrane/surfaces/detail/LargestSample.h"

#include <QMutexLocker>

#include <utility>
#include <vector>

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

// What there is of a column of cells from the top down to some row.
struct Column
{
    double sum = 0.0;
    QVector<std::size_t> sums; // At the points of the needle, whose colours are left open.
    Needle needle;

    void add(double value, double x, double y)
    {
        const double previous = sum;
        sum += value;
        if (sum == previous)
            return;
        sums.append(ui::detail::truncatedToCount(sum));
        needle.append({x, y, QColor()});
    }
};

// Makes needles segment by segment. The largest sum lasts from one to the next.
class NeedleMaker
{
public:
    explicit NeedleMaker(const ColorRamp& ramp)
        : m_ramp(ramp)
    {}

    // All columns grow at once, row by row, since samples mostly lie in memory in this order. A
    // column's colours need its own total and those before it, and so come last.
    void appendNeedles(const Segment& segment, const GeometryCacheEntry& geometry,
                       QVector<Needle>& needles)
    {
        const QList<detail::Geometry>& edges = geometry.yGeometries;
        if (edges.isEmpty())
            return;
        std::vector<Column> columns(static_cast<std::size_t>(geometry.xGeometries.size()));
        for (int top = edges.size() - 1; top >= 0; --top)
            addRow(segment, geometry, top > 0 ? edges.at(top - 1) : geometry.firstY, edges.at(top),
                   columns);
        needles.reserve(needles.size() + geometry.xGeometries.size());
        for (Column& column : columns) {
            finish(column);
            needles.append(std::move(column.needle));
        }
    }

private:
    static void addRow(const Segment& segment, const GeometryCacheEntry& geometry,
                       const detail::Geometry& lower, const detail::Geometry& upper,
                       std::vector<Column>& columns)
    {
        const double y = (upper.position + lower.position) * 0.5;
        backend::GridPosition<double> position(segment);
        position.move(0, geometry.firstX.index);
        position.move(1, lower.index);
        detail::Geometry left = geometry.firstX;
        auto column = columns.begin();
        for (const detail::Geometry& right : geometry.xGeometries) {
            const long long width = right.index - left.index;
            column->add(detail::largestSample(position, {width, upper.index - lower.index}),
                        (left.position + right.position) * 0.5, y);
            position.move(0, width);
            left = right;
            ++column;
        }
    }

    void finish(Column& column)
    {
        if (column.sum > m_maxSum)
            m_maxSum = column.sum;
        Needle& needle = column.needle;
        for (int k = 0; k < needle.size(); ++k)
            needle[k].color = m_ramp.at(static_cast<double>(column.sums.at(k)) / m_maxSum);
        if (!needle.isEmpty())
            needle.append({needle.last().x, 0.0, QColor(needle.last().color)});
    }

    const ColorRamp m_ramp;
    double m_maxSum = 0.0;
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
