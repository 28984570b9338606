#include "benchmarks/peers/Checks.h"
#include "benchmarks/peers/Peers.h"

#include <QPolygonF>

#include <qwt_color_map.h>
#include <qwt_curve_fitter.h>
#include <qwt_matrix_raster_data.h>
#include <qwt_plot_spectrogram.h>
#include <qwt_point_data.h>
#include <qwt_point_mapper.h>
#include <qwt_scale_map.h>
#include <qwt_series_data.h>

#include <algorithm>
#include <iterator>
#include <memory>

namespace benchmarks {

namespace {

const std::string program = "Qwt " QWT_VERSION_STR;

// Samples at their indexes, without a copy and without their x in memory.
class SampleSeries : public QwtSeriesData<QPointF>
{
public:
    explicit SampleSeries(const std::vector<double>& samples)
        : m_samples(samples)
    {}

    size_t size() const override { return m_samples.size(); }
    QPointF sample(size_t k) const override
    {
        return QPointF(static_cast<double>(k), m_samples[k]);
    }
    QRectF boundingRect() const override { return {}; } // Nobody asks.

private:
    const std::vector<double>& m_samples;
};

std::unique_ptr<QwtSeriesData<QPointF>> seriesOf(const std::vector<double>& samples)
{
    return std::make_unique<SampleSeries>(samples);
}

std::unique_ptr<QwtSeriesData<QPointF>> seriesOf(const std::vector<double>& x,
                                                 const std::vector<double>& y)
{
    return std::make_unique<QwtCPointerData>(x.data(), y.data(), x.size());
}

QwtScaleMap scaleMap(double from, double to, double fromPixel, double toPixel)
{
    QwtScaleMap map;
    map.setScaleInterval(from, to);
    map.setPaintInterval(fromPixel, toPixel);
    return map;
}

struct Canvas
{
    explicit Canvas(const View& view)
        : xMap(scaleMap(view.left, view.right, 0.0, canvasWidth))
        , yMap(scaleMap(view.bottom, view.top, canvasHeight, 0.0))
    {}

    QwtScaleMap xMap;
    QwtScaleMap yMap;
};

// What a curve makes of its series before it paints. Mapping whole series would mostly wait for
// fresh memory, hence pieces; each begins where the one before ended, as a line wants it.
class Mapping
{
public:
    template<typename... Data>
    explicit Mapping(const Data&... data)
        : m_series(seriesOf(data...))
        , m_canvas(viewOf(data...))
    {
        m_mapper.setFlag(QwtPointMapper::WeedOutPoints);
    }

    template<typename Take>
    void forEachPiece(const Take& take) const
    {
        constexpr int length = 10000;
        const int last = static_cast<int>(m_series->size()) - 1;
        for (int from = 0; from < last; from += length)
            take(m_mapper.toPolygon(m_canvas.xMap, m_canvas.yMap, m_series.get(), from,
                                    std::min(from + length, last)));
    }

private:
    std::unique_ptr<QwtSeriesData<QPointF>> m_series;
    Canvas m_canvas;
    QwtPointMapper m_mapper;
};

template<typename... Data>
Contestant reducer(const Data&... data)
{
    const auto mapping = std::make_shared<Mapping>(data...);
    return {program + " point mapper",
            "keeps all but repeated pixels; points rounded to pixels; in pieces, then dropped",
            [mapping] { mapping->forEachPiece([](const QPolygon&) {}); },
            [mapping, &data...] {
                QVector<QPointF> line;
                mapping->forEachPiece([&line](const QPolygon& piece) {
                    std::copy(piece.begin(), piece.end(), std::back_inserter(line));
                });
                return faultOfLine(line, Rounding::ToPixels, data...);
            }};
}

// What a fitted curve makes of its series before it paints.
class FittedCurve
{
public:
    explicit FittedCurve(const std::vector<double>& samples)
        : m_series(samples)
        , m_last(static_cast<int>(samples.size()) - 1)
        , m_canvas(viewOf(samples))
    {
        m_fitter.setFitMode(QwtSplineCurveFitter::Spline);
        m_fitter.setSplineSize(canvasWidth);
    }

    QPolygonF line() const
    {
        return m_fitter.fitCurve(
            m_mapper.toPolygonF(m_canvas.xMap, m_canvas.yMap, &m_series, 0, m_last));
    }

private:
    SampleSeries m_series;
    int m_last;
    Canvas m_canvas;
    QwtPointMapper m_mapper;
    QwtSplineCurveFitter m_fitter;
};

// The index of a class is its number, found without a search.
class ClassMap : public QwtColorMap
{
public:
    explicit ClassMap(const ColorGrid& grid)
        : QwtColorMap(Indexed)
        , m_colors(grid.colors.begin(), grid.colors.end())
        , m_lower(grid.lower)
        , m_classesPerValue(m_colors.size() / (grid.upper - grid.lower))
        , m_last(m_colors.size() - 1.0)
    {}

    QRgb rgb(const QwtInterval& interval, double value) const override
    {
        return m_colors[colorIndex(interval, value)];
    }
    unsigned char colorIndex(const QwtInterval&, double value) const override
    {
        const double position = (value - m_lower) * m_classesPerValue;
        return static_cast<unsigned char>(std::clamp(position, 0.0, m_last));
    }
    QVector<QRgb> colorTable(const QwtInterval&) const override { return m_colors; }

private:
    QVector<QRgb> m_colors;
    double m_lower;
    double m_classesPerValue;
    double m_last;
};

// The image is what draw() makes of the values before it paints.
class Spectrogram : public QwtPlotSpectrogram
{
public:
    explicit Spectrogram(const ColorGrid& grid)
        : m_pixels(std::min(grid.side, canvasWidth))
        , m_map(scaleMap(0.5, grid.side + 0.5, 0.0, m_pixels))
        , m_area(0.0, 0.0, grid.side, grid.side)
    {
        auto values = std::make_unique<QwtMatrixRasterData>();
        values->setValueMatrix({grid.values.begin(), grid.values.end()}, grid.side);
        values->setInterval(Qt::XAxis, QwtInterval(0.0, grid.side));
        values->setInterval(Qt::YAxis, QwtInterval(0.0, grid.side));
        values->setInterval(Qt::ZAxis, QwtInterval(grid.lower, grid.upper));
        setData(values.release());
        setColorMap(new ClassMap(grid));
        setRenderThreadCount(1);
    }

    QImage image() const { return renderImage(m_map, m_map, m_area, QSize(m_pixels, m_pixels)); }

private:
    int m_pixels; // Of the image; painting stretches fewer values than there is room for.
    // Pixels ask for values at their left upper corner, which half a value more keeps off borders.
    QwtScaleMap m_map;
    QRectF m_area;
};

class QwtPeer : public Peer
{
public:
    std::vector<Contestant> reducers(const std::vector<double>& samples) const override
    {
        return {reducer(samples)};
    }

    std::vector<Contestant> xyReducers(const std::vector<double>& x,
                                       const std::vector<double>& y) const override
    {
        return {reducer(x, y)};
    }

    std::vector<Contestant> splines(const std::vector<double>& samples) const override
    {
        const auto curve = std::make_shared<FittedCurve>(samples);
        return {{program + " spline curve fitter", "natural spline, one point a column",
                 [curve] { curve->line(); },
                 [curve, &samples] { return faultOfSpline(curve->line(), samples); }}};
    }

    std::vector<Contestant> colorers(const ColorGrid& grid) const override
    {
        const auto spectrogram = std::make_shared<Spectrogram>(grid);
        return {{program + " spectrogram", "takes the nearest value, no maxima; indexed colors",
                 [spectrogram] { spectrogram->image(); },
                 [spectrogram, grid] {
                     const QImage image = spectrogram->image();
                     const int step = std::max(1, grid.side / canvasWidth);
                     return faultOfColors(grid, step, [&](int column, int row) {
                         return image.pixel(column / step, row / step);
                     });
                 }}};
    }
};

} // namespace

std::unique_ptr<Peer> makeQwt()
{
    return std::make_unique<QwtPeer>();
}

} // namespace benchmarks
