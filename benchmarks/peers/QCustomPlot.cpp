// QCustomPlot's header uses Qt's keywords, which this project does without.
#undef QT_NO_KEYWORDS

#include "benchmarks/peers/Checks.h"
#include "benchmarks/peers/Peers.h"

#include <QApplication>

#include <qcustomplot.h>

#include <algorithm>
#include <memory>

namespace benchmarks {

namespace {

const std::string program = "QCustomPlot " QCUSTOMPLOT_VERSION_STR;

// A plot is a widget, and there is no widget without an application, though none is ever shown.
void startApplication()
{
    if (QCoreApplication::instance())
        return;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static char name[] = "peers";
    static char* arguments[] = {name, nullptr};
    static int count = 1;
    static QApplication application(count, arguments);
}

// A plottable on a plot that has the canvas where View has it.
template<typename Plottable>
std::shared_ptr<Plottable> onCanvas(const View& view)
{
    startApplication();
    const auto plot = std::make_shared<QCustomPlot>();
    QCPAxisRect* const rect = plot->axisRect();
    rect->setAutoMargins(QCP::msNone);
    rect->setMargins(QMargins());
    // Heights count from the last row of pixels, not from below it.
    rect->setOuterRect(QRect(0, 1, canvasWidth, canvasHeight));
    plot->xAxis->setRange(view.left, view.right);
    plot->yAxis->setRange(view.bottom, view.top);
    return {plot, new Plottable(plot->xAxis, plot->yAxis)}; // The plot deletes it.
}

// The lines are what draw() reduces the data to before it paints.
struct Graph : QCPGraph
{
    using QCPGraph::QCPGraph;

    void setPoints(const std::vector<double>& x, const std::vector<double>& y)
    {
        QVector<QCPGraphData> points(static_cast<int>(x.size()));
        std::transform(x.begin(), x.end(), y.begin(), points.begin(),
                       [](double key, double value) { return QCPGraphData(key, value); });
        data()->set(points, true);
    }
    void setPoints(const std::vector<double>& samples) { setPoints(indexesOf(samples), samples); }

    const QVector<QPointF>& line()
    {
        getLines(&m_line, QCPDataRange(0, dataCount()));
        return m_line;
    }

private:
    QVector<QPointF> m_line; // Kept, since fresh memory costs more than the work.
};

struct Curve : QCPCurve
{
    using QCPCurve::QCPCurve;

    void setPoints(const std::vector<double>& x, const std::vector<double>& y)
    {
        QVector<QCPCurveData> points(static_cast<int>(x.size()));
        double t = 0.0;
        std::transform(x.begin(), x.end(), y.begin(), points.begin(),
                       [&t](double key, double value) { return QCPCurveData(t++, key, value); });
        data()->set(points, true);
    }

    const QVector<QPointF>& line()
    {
        getCurveLines(&m_line, QCPDataRange(0, dataCount()), pen().widthF());
        return m_line;
    }

private:
    QVector<QPointF> m_line; // Kept, as that of a graph.
};

// Level k of the gradient is class k, but for the last level, which only the upper limit has.
// Colors come out exact at stops that are multiples of a step, which is how the gradient places its
// levels.
QCPColorGradient gradientOf(const std::vector<QRgb>& colors)
{
    const int classes = static_cast<int>(colors.size());
    QCPColorGradient gradient;
    gradient.setLevelCount(classes + 1);
    QMap<double, QColor> stops;
    for (int k = 0; k < classes; ++k)
        stops[k * (1.0 / classes)] = colors[static_cast<std::size_t>(k)];
    stops[1.0] = colors.back();
    gradient.setColorStops(stops);
    return gradient;
}

// The image is what draw() makes of changed data before it paints.
struct Map : QCPColorMap
{
    using QCPColorMap::QCPColorMap;

    void setValues(const ColorGrid& grid)
    {
        data()->setSize(grid.side, grid.side);
        auto value = grid.values.begin();
        for (int row = 0; row < grid.side; ++row) {
            for (int column = 0; column < grid.side; ++column)
                data()->setCell(column, row, *value++);
        }
        setGradient(gradientOf(grid.colors));
        setDataRange(QCPRange(grid.lower, grid.upper));
    }

    const QImage& image()
    {
        updateMapImage();
        return mMapImage;
    }
};

template<typename Plottable, typename... Data>
Contestant reducer(const std::string& name, const std::string& remark, const Data&... data)
{
    const auto plottable = onCanvas<Plottable>(viewOf(data...));
    plottable->setPoints(data...);
    return {
        name, remark, [plottable] { plottable->line(); },
        [plottable, &data...] { return faultOfLine(plottable->line(), Rounding::None, data...); }};
}

class QCustomPlotPeer : public Peer
{
public:
    std::vector<Contestant> reducers(const std::vector<double>& samples) const override
    {
        return {
            reducer<Graph>(program + " graph", "straight lines between sparse samples", samples)};
    }

    std::vector<Contestant> xyReducers(const std::vector<double>& x,
                                       const std::vector<double>& y) const override
    {
        std::vector<Contestant> found;
        if (std::is_sorted(x.begin(), x.end()))
            found.push_back(reducer<Graph>(program + " graph", "x must ascend", x, y));
        found.push_back(reducer<Curve>(program + " curve", "keeps all points in view", x, y));
        return found;
    }

    std::vector<Contestant> colorers(const ColorGrid& grid) const override
    {
        const auto map = onCanvas<Map>({0.0, double(grid.side), 0.0, double(grid.side)});
        map->setValues(grid);
        return {{program + " color map",
                 "colors every value, takes no maxima: painting scales the image down",
                 [map] { map->image(); },
                 [map, grid] {
                     const QImage& image = map->image();
                     return faultOfColors(grid, 1, [&](int column, int row) {
                         return image.pixel(column, grid.side - 1 - row);
                     });
                 }}};
    }
};

} // namespace

std::unique_ptr<Peer> makeQCustomPlot()
{
    return std::make_unique<QCustomPlotPeer>();
}

} // namespace benchmarks
