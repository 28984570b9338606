#include "hosts/kestrane-chart/ColumnPlot.h"

#include "hosts/charting/ColorScheme.h"
#include "hosts/charting/Decimal.h"
#include "hosts/charting/SurfaceImage.h"
#include "hosts/kestrane-chart/WorkError.h"

#include <kestrane/backend/MultiDimensionalPlotSnapshot.h>
#include <kestrane/surfaces/NeedlePlot2DAlgorithm.h>

#include <boost/make_shared.hpp>

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace hosts::chart {

using charting::AxisView;
using charting::ColorBar;
using charting::ColorScheme;
using data::Grid;
using pelorin::backend::MetaInfo;
using pelorin::backend::MultiDimensionalPlotSegment;
using pelorin::backend::MultiDimensionalPlotSnapshot;
using pelorin::ui::chart::NeedlePlot2DAlgorithm;

namespace {

constexpr double largestCount = 1e9; // So finely are sums told apart.
constexpr double widest = 12.0;      // A stick, in logical pixels.
constexpr int fields = 64;

double largestSum(const std::vector<Grid>& grids)
{
    double largest = 0.0;
    for (const Grid& grid : grids) {
        for (long long i = 0; i < grid.shape[0]; ++i) {
            double sum = 0.0;
            for (long long j = 0; j < grid.shape[1]; ++j)
                sum += grid.at(i, j) > 0.0 ? grid.at(i, j) : 0.0;
            largest = std::max(largest, sum);
        }
    }
    return largest;
}

// Not up to the light end of a scheme, which fades into a light ground and mixes to grey.
std::pair<QColor, QColor> endsOf(const QString& colors)
{
    const ColorScheme scheme = ColorScheme::named(colors);
    return {scheme.at(scheme.isDiverging() ? 0.0 : 0.1),
            scheme.at(scheme.isDiverging() ? 1.0 : 0.65)};
}

} // namespace

ColumnPlot::ColumnPlot(const Recordings& recordings, const Options& options)
    : SurfacePlot(recordings, options)
    , m_largest(largestSum(data().grids))
{
    if (!(m_largest > 0.0 && std::isfinite(m_largest)))
        throw WorkError(m_largest > 0.0
                            ? QStringLiteral("the values are too large to add up")
                            : QStringLiteral("no value is above 0, so there are no columns"));
}

ColorBar ColumnPlot::colorBar() const
{
    const auto [start, end] = endsOf(options().surface.colors);
    ColorBar bar;
    for (int i = 0; i < fields; ++i) {
        const double share = i / (fields - 1.0);
        const auto mix = [share](double from, double to) { return from + share * (to - from); };
        bar.colors.append(QColor::fromRgbF(mix(start.redF(), end.redF()),
                                           mix(start.greenF(), end.greenF()),
                                           mix(start.blueF(), end.blueF())));
    }
    const double step = charting::roundedUp(m_largest / wantedColorLabels());
    for (int i = 0; i * step <= m_largest; ++i)
        bar.marks.append({i * step / m_largest, true, {QString::number(i * step, 'g', 6)}});
    bar.caption = data().areEvents ? QStringLiteral("Count from the top down")
                                   : QStringLiteral("Sum from the top down");
    return bar;
}

// A needle's colours go by the largest sum so far, and the first of all makes it the largest of
// all.
Grid ColumnPlot::reference(const AxisView& x, const AxisView& y) const
{
    const auto halves = [](const AxisView& axis) {
        return MetaInfo(axis.from(), (axis.to() - axis.from()) / 2.0);
    };
    Grid grid({halves(x), halves(y)}, {2, 2});
    grid.at(0, 0) = m_largest;
    return grid;
}

QImage ColumnPlot::surface(const AxisView& x, const AxisView& y, const QSize& pixels) const
{
    const double xPixelSize = pixelSize(x, pixels.width());
    const double yPixelSize = pixelSize(y, pixels.height());
    std::vector<Grid> grids = {reference(x, y)};
    grids.insert(grids.end(), data().grids.begin(), data().grids.end());
    std::vector<MultiDimensionalPlotSegment<double, 2>> segments;
    for (const Grid& grid : grids) {
        const auto samples = boost::make_shared<double[]>(grid.values.size());
        std::transform(grid.values.begin(), grid.values.end(), samples.get(),
                       [&](double value) { return value / m_largest * largestCount; });
        segments.emplace_back(samples, grid.metaInfo, grid.shape);
    }
    const std::pair<QColor, QColor> ends = endsOf(options().surface.colors);
    const auto needlesOf = [&](auto first, auto last) {
        NeedlePlot2DAlgorithm algorithm;
        algorithm.setSnapshot(MultiDimensionalPlotSnapshot<double, 2>({first, last}));
        return algorithm.makeNeedles(x.axis(), y.axis(), ends.first, ends.second, xPixelSize,
                                     yPixelSize);
    };
    const int references = int(needlesOf(segments.begin(), segments.begin() + 1).size());
    charting::SurfaceImage image(pixels, xPixelSize, yPixelSize);
    image.paint(needlesOf(segments.begin(), segments.end()).mid(references),
                std::max(1, int(widest * options().deviceScale())));
    return image.image();
}

} // namespace hosts::chart
