#include "hosts/kestrane-chart/HistogramPlot.h"

#include "hosts/charting/SurfaceImage.h"

#include <kestrane/backend/MultiDimensionalPlotSnapshot.h>
#include <kestrane/surfaces/Histogram2DPlotAlgorithm.h>

#include <boost/make_shared.hpp>

#include <algorithm>
#include <utility>

namespace hosts::chart {

using charting::AxisView;
using charting::ColorScale;
using charting::ColorScheme;
using data::Grid;
using pelorin::backend::MultiDimensionalPlotSnapshot;
using pelorin::ui::chart::Histogram2DPlotAlgorithm;

namespace {

constexpr int usualLogClasses = 16;
constexpr int usualLinearClasses = 40;

ColorScale scaleFor(const SurfaceData& data, const SurfaceOptions& options)
{
    using Scale = SurfaceOptions::Scale;
    const ColorScheme scheme = ColorScheme::named(options.colors);
    const Scale kind = options.scale.value_or(data.areEvents ? Scale::Logarithmic : Scale::Linear);
    const bool isLog = kind == Scale::Logarithmic;
    const ColorScale::Values values =
        data.values(options.thresholds.isEmpty() ? kind : Scale::Linear);
    const int classes = options.classes.value_or(isLog ? usualLogClasses : usualLinearClasses);
    if (!options.thresholds.isEmpty())
        return ColorScale::given(scheme, values, options.thresholds);
    return isLog ? ColorScale::logarithmic(scheme, values, classes)
                 : ColorScale::linear(scheme, values, classes);
}

template<typename T>
MultiDimensionalPlotSnapshot<T, 2> snapshotOf(const std::vector<Grid>& grids,
                                              const ColorScale& scale)
{
    std::vector<pelorin::backend::MultiDimensionalPlotSegment<T, 2>> segments;
    for (const Grid& grid : grids) {
        const auto samples = boost::make_shared<T[]>(grid.values.size());
        std::transform(grid.values.begin(), grid.values.end(), samples.get(),
                       [&](double value) { return T(scale.countOf(value)); });
        segments.emplace_back(samples, grid.metaInfo, grid.shape);
    }
    return MultiDimensionalPlotSnapshot<T, 2>(std::move(segments));
}

} // namespace

HistogramPlot::HistogramPlot(const Recordings& recordings, const Options& options)
    : SurfacePlot(recordings, options)
    , m_scale(scaleFor(data(), options.surface))
{}

charting::ColorBar HistogramPlot::colorBar() const
{
    charting::ColorBar bar = m_scale.bar(wantedColorLabels());
    bar.caption = data().valueName;
    return bar;
}

QImage HistogramPlot::surface(const AxisView& x, const AxisView& y, const QSize& pixels) const
{
    const double xPixelSize = pixelSize(x, pixels.width());
    const double yPixelSize = pixelSize(y, pixels.height());
    Histogram2DPlotAlgorithm algorithm;
    if (m_scale.keepsCounts())
        algorithm.setSnapshot(snapshotOf<unsigned int>(data().grids, m_scale));
    else
        algorithm.setSnapshot(snapshotOf<double>(data().grids, m_scale));
    charting::SurfaceImage image(pixels, xPixelSize, yPixelSize);
    image.paint(
        algorithm.makeColorArrays(x.axis(), y.axis(), m_scale.map(), xPixelSize, yPixelSize));
    return image.image();
}

} // namespace hosts::chart
