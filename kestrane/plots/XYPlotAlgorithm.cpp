#include "kestrane/plots/XYPlotAlgorithm.h"

#include "kestrane/axes/detail/AxisMap.h"
#include "kestrane/plots/detail/Columns.h"

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

// One pass over the points of a pair of segments. The maps are AxisMap or AskedAxis.
template<typename Map>
class PairWalk
{
public:
    PairWalk(const Map& xMap, const Map& yMap, const detail::Thinning& thinning, Lists& lists)
        : m_xMap(xMap)
        , m_yMap(yMap)
        , m_columnWidth(thinning.columnWidth)
        , m_symbolDistance(thinning.columnWidth * thinning.symbolSpacing)
        , m_lists(lists)
    {}

    void run(const double* x, const double* y, std::ptrdiff_t count)
    {
        for (std::ptrdiff_t i = 0; i < count; ++i) {
            if (!takePoint(x[i], y[i]))
                closeLine();
        }
        closeLine();
    }

private:
    // False where the line ends.
    bool takePoint(double xSample, double ySample)
    {
        const double x = m_xMap.positionOf(xSample);
        if (std::isnan(x))
            return false;
        selectColumn(x); // Even if there is no y: the column is there for the points to come.
        const double y = m_yMap.positionOf(ySample);
        if (std::isnan(y))
            return false;
        if (m_collecting)
            addSymbol(x, y);
        m_values.put(y);
        return true;
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

    static void moveToEnd(QVector<QPointF>& points, QVector<QVector<QPointF>>& lists)
    {
        if (!points.isEmpty())
            lists.append(std::exchange(points, {}));
    }

    const Map m_xMap;
    const Map m_yMap;
    const double m_columnWidth;
    const double m_symbolDistance;
    Lists& m_lists;

    // These two live from one line to the next.
    double m_columnX = noColumn;
    bool m_collecting = true;

    QVector<QPointF> m_polyline;
    QVector<QPointF> m_symbols;
    detail::ColumnValues m_values;
};

void plot(const backend::PlotSegment& x, const backend::PlotSegment& y, const Axis& xAxis,
          const Axis& yAxis, const detail::Thinning& thinning, Lists& lists)
{
    const std::ptrdiff_t count = std::min(x.end - x.begin, y.end - y.begin);
    if (count <= 0)
        return;
    const auto xMap = detail::AxisMap::of(xAxis, x.yScaleMode);
    const auto yMap = detail::AxisMap::of(yAxis, y.yScaleMode);
    if (xMap && yMap)
        PairWalk(*xMap, *yMap, thinning, lists).run(&*x.begin, &*y.begin, count);
    else
        PairWalk(detail::AskedAxis{xAxis, x.yScaleMode}, detail::AskedAxis{yAxis, y.yScaleMode},
                 thinning, lists)
            .run(&*x.begin, &*y.begin, count);
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
