#include "kestrane/plots/XYPlotAlgorithm.h"

#include "kestrane/plots/detail/Columns.h"

#include <QMutexLocker>

#include <cmath>
#include <vector>

namespace pelorin {
namespace ui {
namespace chart {

namespace {

using Lists = std::pair<QVector<QVector<QPointF>>, QVector<QVector<QPointF>>>;

constexpr double noColumn = -1.0;

/// One pass over a pair of segments.
class PairWalk
{
public:
    PairWalk(PointsBasedPlotHelper& helper, const Axis& xAxis, const Axis& yAxis,
             const detail::Thinning& thinning, Lists& lists)
        : m_helper(helper)
        , m_xAxis(xAxis)
        , m_yAxis(yAxis)
        , m_thinning(thinning)
        , m_lists(lists)
    {}

    void run(const backend::PlotSegment& x, const backend::PlotSegment& y)
    {
        backend::SampleIterator xCursor = x.begin;
        backend::SampleIterator yCursor = y.begin;
        for (; yCursor != y.end && xCursor != x.end; ++xCursor, ++yCursor) {
            if (!takePoint(x.yScaleMode, *xCursor, y.yScaleMode, *yCursor))
                closeLine();
        }
        closeLine();
    }

private:
    // False where the line ends.
    bool takePoint(Axis::ScaleMode xMode, double xSample, Axis::ScaleMode yMode, double ySample)
    {
        const double x = m_xAxis.transform(xMode, xSample);
        if (std::isnan(x))
            return false;
        selectColumn(x); // Even if there is no y: the column is there for the points to come.
        const double y = m_yAxis.transform(yMode, ySample);
        if (std::isnan(y))
            return false;
        addSymbol(x, y);
        m_minMax.put(y);
        return true;
    }

    void selectColumn(double x)
    {
        if (m_columnX == noColumn)
            m_columnX = x;
        if (std::fabs(x - m_columnX) >= m_thinning.columnWidth) {
            m_helper.flushMinMax(m_columnX, m_minMax, m_polyline);
            m_columnX = x;
        }
    }

    // The distance is signed: a step backwards is too close, however far.
    void addSymbol(double x, double y)
    {
        if (!m_collecting)
            return;
        if (!m_symbols.isEmpty() &&
            m_thinning.columnWidth * m_thinning.symbolSpacing > x - m_symbols.last().x()) {
            m_symbols.clear();
            m_collecting = false;
        } else {
            m_symbols.append(QPointF(x, y));
        }
    }

    void closeLine()
    {
        m_helper.flushMinMax(m_columnX, m_minMax, m_polyline);
        if (m_polyline.size() == 1) {
            const QPointF point = m_polyline.first();
            m_polyline.append(QPointF(point.x() + m_thinning.columnWidth, point.y()));
        }
        moveToEnd(m_polyline, m_lists.first);
        moveToEnd(m_symbols, m_lists.second);
    }

    static void moveToEnd(QVector<QPointF>& points, QVector<QVector<QPointF>>& lists)
    {
        if (!points.isEmpty())
            lists.append(std::exchange(points, {}));
    }

    PointsBasedPlotHelper& m_helper;
    const Axis& m_xAxis;
    const Axis& m_yAxis;
    const detail::Thinning m_thinning;
    Lists& m_lists;

    // These two live from one line to the next.
    double m_columnX = noColumn;
    bool m_collecting = true;

    QVector<QPointF> m_polyline;
    QVector<QPointF> m_symbols;
    algo::MinMaxAverageAlgorithm m_minMax;
};

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
    for (std::size_t i = 0; i < xSegments.size() && i < ySegments.size(); ++i) {
        PairWalk(*this, *xAxis, *yAxis, {columnWidth, symbolSpacing}, lists)
            .run(xSegments[i], ySegments[i]);
    }
    return lists;
}

} // namespace chart
} // namespace ui
} // namespace pelorin
