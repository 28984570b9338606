#include "hosts/kestrane-chart/Plot.h"

#include "hosts/kestrane-chart/ColumnPlot.h"
#include "hosts/kestrane-chart/HistogramPlot.h"
#include "hosts/kestrane-chart/LinePlot.h"
#include "hosts/kestrane-chart/NeedlePlot.h"
#include "hosts/kestrane-chart/XYPlot.h"

#include <algorithm>

namespace hosts::chart {

using charting::AxisView;
using data::Series;

namespace {

constexpr int pixelsPerXDivision = 100;
constexpr int pixelsPerYDivision = 60;

int divisionsIn(int length, int pixelsPerDivision)
{
    return std::clamp(length / pixelsPerDivision, 2, 30);
}

} // namespace

std::unique_ptr<Plot> Plot::of(const Recordings& recordings, const Options& options)
{
    const std::vector<Series>& series = recordings.series;
    switch (options.draw) {
    case Draw::Needles:
        return std::make_unique<NeedlePlot>(series, options);
    case Draw::XY:
        return std::make_unique<XYPlot>(series, options);
    case Draw::Histogram:
    case Draw::Spectrogram:
        return std::make_unique<HistogramPlot>(recordings, options);
    case Draw::Columns:
        return std::make_unique<ColumnPlot>(recordings, options);
    case Draw::Lines:
        break;
    }
    return std::make_unique<LinePlot>(series, options);
}

Plot::Plot(const std::vector<Series>& series, const Options& options)
    : m_series(series)
    , m_options(options)
{}

QVector<charting::Crossing> Plot::crossings(const AxisView&, const AxisView&) const
{
    return {};
}

QStringList Plot::names() const
{
    QStringList names;
    for (const Series& one : m_series)
        names.append(one.name);
    return names;
}

int Plot::wantedXDivisions() const
{
    return divisionsIn(m_options.size.width(), pixelsPerXDivision);
}

int Plot::wantedYDivisions() const
{
    return divisionsIn(m_options.size.height(), pixelsPerYDivision);
}

double Plot::columnWidth(const AxisView& x, double plotWidth) const
{
    return x.visible() / (plotWidth * m_options.deviceScale());
}

double Plot::symbolSpacing() const
{
    return m_options.symbolSpacing * m_options.deviceScale();
}

} // namespace hosts::chart
