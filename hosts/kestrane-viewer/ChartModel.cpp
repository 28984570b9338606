#include "hosts/kestrane-viewer/ChartModel.h"

#include "hosts/kestrane-chart/PictureFile.h"
#include "hosts/kestrane-chart/UsageError.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace hosts::viewer {

using chart::Draw;
using chart::Options;
using chart::Plot;
using charting::AxisView;
using charting::ShownAxis;
using pelorin::backend::PlotSegment;
using pelorin::ui::chart::Axis;

namespace {

bool isSurface(Draw draw)
{
    return draw == Draw::Histogram || draw == Draw::Spectrogram || draw == Draw::Columns;
}

// Cells are made over the whole axes, so that these are all that there is of a surface.
Options withoutRanges(Options options)
{
    options.cursors.clear();
    options.output.clear();
    if (isSurface(options.draw))
        return options;
    for (chart::AxisOptions* axis : {&options.x, &options.y}) {
        axis->from.reset();
        axis->to.reset();
    }
    return options;
}

ShownAxis yAxisOf(const Plot& plot, const ShownAxis& xAxis)
{
    return plot.yAxis(AxisView(xAxis, QString()));
}

long long samplesBetween(const PlotSegment& segment, double from, double to)
{
    const auto index = [&](double x) { return (x - segment.xInfo.offset) / segment.xInfo.scale; };
    const double first = std::max(std::ceil(index(from)), 0.0);
    const double last = std::min(std::floor(index(to)), double(segment.count - 1));
    return last >= first ? static_cast<long long>(last - first) + 1 : 0;
}

} // namespace

ChartModel::ChartModel(const Options& options)
    : ChartModel(options, chart::Recordings::read(options))
{}

ChartModel::ChartModel(const Options& options, chart::Recordings recordings)
    : m_options(withoutRanges(options))
    , m_cursors(options.cursors)
    , m_recordings(std::move(recordings))
    , m_plot(Plot::of(m_recordings, m_options))
    , m_x(m_plot->xAxis(), *options.x.kind)
    , m_y(yAxisOf(*m_plot, m_plot->xAxis()), *options.y.kind)
{
    if (m_cursors.size() > mostCursors)
        throw chart::UsageError(
            QStringLiteral("--cursor: there can be %1 at most").arg(mostCursors));
    if (!isSurface(options.draw))
        showAskedRanges(options);
    tellCurves(m_x);
    tellCurves(m_y);
    drawing(); // Throws here what it would throw in the midst of painting.
}

// Who waits for crossings hears of axes that move as of data that change. A curve may hold an axis,
// so that no axis may hold a curve.
void ChartModel::tellCurves(const MovableAxis& axis)
{
    QObject::connect(axis.shown().axis.data(), &Axis::parametersChanged, &m_listener, [this] {
        for (const auto& curve : crossedCurves())
            curve->axisMoved();
    });
}

void ChartModel::showAskedRanges(const Options& options)
{
    const std::unique_ptr<Plot> asked = Plot::of(m_recordings, options);
    const ShownAxis xAxis = asked->xAxis();
    m_x.show(xAxis);
    m_y.show(yAxisOf(*asked, xAxis));
}

void ChartModel::setView(const View& view)
{
    m_x.restore(view.x);
    m_y.restore(view.y);
}

// The values of all data are looked for only now, which takes its time.
void ChartModel::goHome()
{
    if (!isSurface(m_options.draw))
        m_y.setHome(yAxisOf(*m_plot, m_plot->xAxis()));
    m_x.goHome();
    m_y.goHome();
}

void ChartModel::fitY()
{
    m_y.show(m_plot->yAxis(xView()));
}

void ChartModel::setSeries(std::vector<data::Series> series)
{
    m_recordings.series = std::move(series);
    m_plot->setSeries(m_recordings.series);
    m_x.setHome(m_plot->xAxis());
}

double ChartModel::lastAbscissa() const
{
    return chart::Extent::ofAbscissas(m_recordings.series, chart::Extent::asItIs)->high;
}

void ChartModel::showLast(double length)
{
    chart::AxisOptions asked = m_options.x;
    asked.to = lastAbscissa();
    asked.from = *asked.to - length;
    m_x.show(asked.kind->forAbscissas(
        asked, chart::Extent::ofAbscissas(m_recordings.series, asked.kind->measure()),
        m_plot->wantedXDivisions()));
}

void ChartModel::scrollToLast()
{
    m_x.scrollToEnd(lastAbscissa());
}

void ChartModel::keepInSight()
{
    constexpr double leastShare = 0.2;
    const ShownAxis& y = m_y.shown();
    const auto values = chart::Extent::ofValues(m_recordings.series, m_x.shown().from(),
                                                m_x.shown().to(), m_options.y.kind->measure());
    if (!values)
        return;
    const double low = y.axis->transform(Axis::Linear, values->low) / y.visible;
    const double high = y.axis->transform(Axis::Linear, values->high) / y.visible;
    if (!(low >= 0.0 && high <= 1.0 && high - low >= leastShare))
        fitY();
}

bool ChartModel::setCanvas(const QSize& size, double deviceScale)
{
    const double dpi = 96.0 * deviceScale;
    if (m_options.size == size && m_options.dpi == dpi)
        return false;
    m_options.size = size;
    m_options.dpi = dpi;
    return true;
}

chart::Drawing ChartModel::drawing()
{
    const ShownAxis x = m_x.divided(m_plot->wantedXDivisions());
    const ShownAxis y = m_y.divided(m_plot->wantedYDivisions());
    m_options.cursors.clear();
    std::copy_if(m_cursors.cbegin(), m_cursors.cend(), std::back_inserter(m_options.cursors),
                 [&](double cursor) {
                     const double position = x.axis->transform(Axis::Linear, cursor);
                     return position >= 0.0 && position <= x.visible;
                 });
    return chart::Drawing::of(*m_plot, x, y, m_options);
}

void ChartModel::savePicture(const QString& path)
{
    const chart::PictureFile file(path, m_options.size, m_options.dpi,
                                  m_options.title.simplified());
    m_options.output = path;
    const chart::Drawing picture = drawing();
    m_options.output.clear();
    file.write([&](QPainter& painter, double deviceScale) { picture.paint(painter, deviceScale); });
}

long long ChartModel::samplesInView() const
{
    const bool haveX = m_options.draw == Draw::Lines || m_options.draw == Draw::Needles;
    long long count = 0;
    for (const data::Series& series : m_recordings.series) {
        for (const PlotSegment& segment : series.snapshot.segments)
            count += haveX ? samplesBetween(segment, m_x.shown().from(), m_x.shown().to())
                           : segment.count;
    }
    if (m_recordings.matrix)
        count += m_recordings.matrix->shape[0] * m_recordings.matrix->shape[1];
    return count;
}

const std::vector<std::shared_ptr<chart::SampledCurve>>& ChartModel::crossedCurves() const
{
    static const std::vector<std::shared_ptr<chart::SampledCurve>> none;
    if (m_options.draw != Draw::Lines)
        return none;
    return static_cast<const chart::LinePlot&>(*m_plot).sampledCurves();
}

bool ChartModel::canAddCursor() const
{
    return m_options.draw == Draw::Lines && m_cursors.size() < mostCursors;
}

AxisView ChartModel::xView() const
{
    return {m_x.divided(m_plot->wantedXDivisions()), chart::quantityOf(m_options.x),
            m_options.x.reference};
}

AxisView ChartModel::yView() const
{
    return {m_y.divided(m_plot->wantedYDivisions()), chart::quantityOf(m_options.y),
            m_options.y.reference};
}

AxisView ChartModel::xDistances() const
{
    return {m_x.divided(m_plot->wantedXDivisions()), chart::quantityOf(m_options.x)};
}

AxisView ChartModel::yDistances() const
{
    return {m_y.divided(m_plot->wantedYDivisions()), chart::quantityOf(m_options.y)};
}

} // namespace hosts::viewer
