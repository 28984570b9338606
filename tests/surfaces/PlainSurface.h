#ifndef TESTS_SURFACES_PLAINSURFACE_H
#define TESTS_SURFACES_PLAINSURFACE_H

#include "kestrane/colors/ColorMap.h"
#include "kestrane/surfaces/Histogram2DPlotAlgorithm.h"
#include "kestrane/surfaces/NeedlePlot2DAlgorithm.h"

#include "tests/surfaces/Grids.h"

#include <QColor>

#include <utility>
#include <vector>

namespace tests {

struct SurfaceRequest
{
    QSharedPointer<const pelorin::ui::chart::Axis> xAxis, yAxis;
    double xPixelSize = 0.0, yPixelSize = 0.0;
};

/// The rules of the surface plots, written down as plainly as they can be told: the judge of both.
/// Each plot has one of its own, since cells last from call to call.
class PlainSurface
{
public:
    using Histo = pelorin::ui::chart::Histogram2DPlotAlgorithm::HistoSegment;
    using Edge = pelorin::ui::chart::GeometryBasedPlotAlgorithm::Geometry;
    using Needle = std::vector<pelorin::ui::chart::NeedlePlot2DAlgorithm::ColoredPoint>;

    template<typename T>
    std::vector<Histo> colorArrays(const Grids<T>& grids, const SurfaceRequest& request,
                                   const pelorin::ui::ColorMap& map, int mode, bool& changed);

    std::vector<Needle> needles(const Grids<double>& grids, const SurfaceRequest& request,
                                const QColor& start, const QColor& end);

    /// Leaves the edges of a dimension's cells; the first of @p edges stays where nothing has a
    /// position.
    static void cut(std::vector<Edge>& edges, const MetaInfo& metaInfo, long long limit,
                    const pelorin::ui::chart::Axis& axis, double pixelSize);

    void clear() { m_cells.clear(); }

private:
    struct Cells
    {
        std::vector<Edge> x{{0.0, 0}}, y{{0.0, 0}}; // The first one included.
        SurfaceRequest madeFor;
        std::array<MetaInfo, 2> metaInfo;
        Indices shape{0, 0};
    };

    template<typename T>
    static bool update(Cells& cells, const Grid<T>& grid, const SurfaceRequest& request);

    std::vector<Cells> m_cells;
};

} // namespace tests

#endif
