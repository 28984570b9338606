#ifndef HOSTS_KESTRANE_CHART_SURFACEDATA_H
#define HOSTS_KESTRANE_CHART_SURFACEDATA_H

#include "hosts/charting/ColorScale.h"
#include "hosts/charting/ShownAxis.h"
#include "hosts/data/Grid.h"
#include "hosts/kestrane-chart/Options.h"
#include "hosts/kestrane-chart/Recordings.h"

#include <QString>

#include <vector>

namespace hosts::chart {

/// What plots of cells and columns draw: values over x and y, and axes for them.
struct SurfaceData
{
    /// A matrix as it is; of two columns how often they have which values together, of one column
    /// the same for values and slopes; of a sound or for a spectrogram how its spectrum goes.
    /// Events are counted over the whole axes, so that these come first.
    ///
    /// @throws WorkError if there is not what the plot needs, or it does not fit the axes
    static SurfaceData of(const Recordings& recordings, const Options& options,
                          int wantedXDivisions, int wantedYDivisions);

    /// The values that get a colour on a scale.
    charting::ColorScale::Values values(SurfaceOptions::Scale scale) const;

    std::vector<data::Grid> grids;
    charting::ShownAxis x;
    charting::ShownAxis y;
    QString xName; ///< As far as the data tell.
    QString yName;
    QString valueName;
    bool areEvents = false;
};

} // namespace hosts::chart

#endif
