#ifndef HOSTS_KESTRANE_CHART_RECORDINGS_H
#define HOSTS_KESTRANE_CHART_RECORDINGS_H

#include "hosts/data/Grid.h"
#include "hosts/data/Series.h"
#include "hosts/kestrane-chart/Options.h"

#include <optional>
#include <vector>

namespace hosts::chart {

/// The data to draw.
struct Recordings
{
    /// Reads what @p options ask for, and makes slopes or spectra of it if they say so.
    ///
    /// Plots of cells and columns take a table without a choice of columns as a matrix if it has
    /// more than two.
    ///
    /// @throws data::ReadError, std::runtime_error if there is no slope or spectrum
    static Recordings read(const Options& options);

    std::vector<data::Series> series;
    std::optional<data::Grid> matrix; ///< In place of series.
    bool isSound = false;             ///< The first one is no table.
};

} // namespace hosts::chart

#endif
