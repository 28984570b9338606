#include "kestrane/plots/XYPlotAlgorithm.h"

#include "kestrane/axes/detail/AxisMap.h"
#include "kestrane/plots/detail/Columns.h"
#include "kestrane/plots/detail/GrowingList.h"

#include <QMutexLocker>

#include <algorithm>
#include <cmath>
#include <vector>

namespace pelorin {
namespace ui {
namespace chart {

namespace {

using Lists = std::pair<QVector<QVector<QPointF>>, QVector<QVector<QPointF>>>;

constexpr double noColumn = -1.0;

// How many points are looked at at a time.
constexpr int batch = 256;

void toPositions(const double* samples, int count, const detail::AxisMap& map, double* positions)
{
    for (int i = 0; i < count; ++i)
        positions[i] = map.positionOf(samples[i]);
}

// Puts the values of the points from one on that stay in the column, and gives the index of the
// first that does not, or has no position.
int putWithin(double columnX, double columnWidth, const double* x, const double* y, int i,
              int count, detail::ColumnValues& values)
{
    const auto stays = [=](int k) {
        return std::fabs(x[k] - columnX) < columnWidth && !std::isnan(y[k]);
    };
    if (!stays(i))
        return i;
    detail::ColumnValues all = values; // The loop keeps these in registers.
    do
        all.put(y[i]);
    while (++i < count && stays(i));
    values = all;
    return i;
}

// One pass over the points of a pair of segments, which come as positions.
class PairWalk
{
public:
    PairWalk(std::ptrdiff_t count, const detail::Thinning& thinning, Lists& lists)
        : m_count(static_cast<double>(count))
        , m_columnWidth(thinning.columnWidth)
        , m_symbolDistance(thinning.columnWidth * thinning.symbolSpacing)
        , m_lists(lists)
    {}

    // At most a batch. NaN in either position splits the line.
    void take(const double* x, const double* y, int count)
    {
        // A column has no more than two points for each of its values.
        detail::makeRoom(m_polyline, 2 * count + 2, m_done, m_count);
        if (m_collecting)
            detail::makeRoom(m_symbols, count, m_done, m_count);
        for (int i = 0; i < count; ++i) {
            if (!m_values.isEmpty && !m_collecting && m_columnX != noColumn) {
                i = putWithin(m_columnX, m_columnWidth, x, y, i, count, m_values);
                if (m_values.min == m_values.max)
                    i = passLonePoints(x, y, i, count);
            }
            if (i < count && !takePoint(x[i], y[i]))
                closeLine();
        }
        m_done += count;
    }

    void closeLine()
    {
        flush();
        if (m_polyline.size() == 1) {
            const QPointF point = m_polyline.first();
            m_polyline.append(QPointF(point.x() + m_columnWidth, point.y()));
        }
        moveToEnd(m_polyline, m_lists.first);
        moveToEnd(m_symbols, m_lists.second);
    }

private:
    // False where the line ends.
    bool takePoint(double x, double y)
    {
        if (std::isnan(x))
            return false;
        selectColumn(x); // Even if there is no y: the column is there for the points to come.
        if (std::isnan(y))
            return false;
        if (m_collecting)
            addSymbol(x, y);
        m_values.put(y);
        return true;
    }

    // Goes on to the first of the points from one on that does not leave the column of the one
    // before it: until then each has a column of its own.
    int passLonePoints(const double* x, const double* y, int i, int count)
    {
        QPointF points[batch];
        int size = 0;
        double columnX = m_columnX, value = m_values.first;
        while (i < count && std::fabs(x[i] - columnX) >= m_columnWidth && x[i] != noColumn &&
               !std::isnan(y[i])) {
            points[size++] = QPointF(columnX, value);
            columnX = x[i];
            value = y[i++];
        }
        if (size == 0)
            return i;
        m_polyline.resize(m_polyline.size() + size);
        std::copy_n(points, size, m_polyline.end() - size);
        m_columnX = columnX;
        m_values.isEmpty = true;
        m_values.put(value);
        return i;
    }

    void selectColumn(double x)
    {
        if (m_columnX == noColumn)
            m_columnX = x;
        if (std::fabs(x - m_columnX) >= m_columnWidth) {
            flush();
            m_columnX = x;
        }
    }

    // The distance is signed: a step backwards is too close, however far.
    void addSymbol(double x, double y)
    {
        if (!m_symbols.isEmpty() && m_symbolDistance > x - m_symbols.last().x()) {
            m_symbols.clear();
            m_collecting = false;
        } else {
            m_symbols.append(QPointF(x, y));
        }
    }

    void flush()
    {
        if (!m_values.isEmpty)
            m_values.appendTo(m_polyline, m_columnX);
        m_values.isEmpty = true;
    }

    static void moveToEnd(QVector<QPointF>& points, QVector<QVector<QPointF>>& lists)
    {
        if (!points.isEmpty())
            lists.append(detail::takeAll(points));
    }

    const double m_count;
    const double m_columnWidth;
    const double m_symbolDistance;
    Lists& m_lists;
    double m_done = 0.0;

    // These two live from one line to the next.
    double m_columnX = noColumn;
    bool m_collecting = true;

    QVector<QPointF> m_polyline;
    QVector<QPointF> m_symbols;
    detail::ColumnValues m_values;
};

void plot(const backend::PlotSegment& xSegment, const backend::PlotSegment& ySegment,
          const Axis& xAxis, const Axis& yAxis, const detail::Thinning& thinning, Lists& lists)
{
    const std::ptrdiff_t count =
        std::min(xSegment.end - xSegment.begin, ySegment.end - ySegment.begin);
    if (count <= 0)
        return;
    const double* const xSamples = &*xSegment.begin;
    const double* const ySamples = &*ySegment.begin;
    const auto xMap = detail::AxisMap::of(xAxis, xSegment.yScaleMode);
    const auto yMap = detail::AxisMap::of(yAxis, ySegment.yScaleMode);
    const detail::AskedAxis askedX{xAxis, xSegment.yScaleMode}, askedY{yAxis, ySegment.yScaleMode};

    PairWalk walk(count, thinning, lists);
    double x[batch], y[batch];
    for (std::ptrdiff_t done = 0; done < count; done += batch) {
        const int size = static_cast<int>(std::min<std::ptrdiff_t>(batch, count - done));
        if (xMap && yMap) {
            toPositions(xSamples + done, size, *xMap, x);
            toPositions(ySamples + done, size, *yMap, y);
        } else {
            for (int i = 0; i < size; ++i) {
                x[i] = askedX.positionOf(xSamples[done + i]);
                // An axis is not asked for what plays no part.
                y[i] = std::isnan(x[i]) ? x[i] : askedY.positionOf(ySamples[done + i]);
            }
        }
        walk.take(x, y, size);
    }
    walk.closeLine();
}

} // namespace

XYPlotAlgorithm::XYPlotAlgorithm() = default;

XYPlotAlgorithm::~XYPlotAlgorithm() = default;

void XYPlotAlgorithm::setSnapshot(backend::PlotSnapshot x, backend::PlotSnapshot y)
{
    const QMutexLocker locker(&m_mutex);
    m_empty = x.empty() || y.empty();
    m_xSnapshot = std::move(x);
    m_ySnapshot = std::move(y);
}

std::pair<QVector<QVector<QPointF>>, QVector<QVector<QPointF>>>
XYPlotAlgorithm::createSegments(const QSharedPointer<const Axis>& xAxis,
                                const QSharedPointer<const Axis>& yAxis, double columnWidth,
                                double symbolSpacing)
{
    Lists lists;
    if (!xAxis || !yAxis || m_empty || columnWidth <= 0.0)
        return lists;

    const QMutexLocker locker(&m_mutex);
    const std::vector<backend::PlotSegment> xSegments = m_xSnapshot.segments;
    const std::vector<backend::PlotSegment> ySegments = m_ySnapshot.segments;
    for (std::size_t i = 0; i < xSegments.size() && i < ySegments.size(); ++i)
        plot(xSegments[i], ySegments[i], *xAxis, *yAxis, {columnWidth, symbolSpacing}, lists);
    return lists;
}

} // namespace chart
} // namespace ui
} // namespace pelorin
