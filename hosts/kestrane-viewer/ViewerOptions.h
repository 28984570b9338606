#ifndef HOSTS_KESTRANE_VIEWER_VIEWEROPTIONS_H
#define HOSTS_KESTRANE_VIEWER_VIEWEROPTIONS_H

#include "hosts/kestrane-chart/Options.h"

#include <optional>

namespace hosts::viewer {

/// The whole command line.
struct ViewerOptions
{
    /// Reads it.
    /// @return nothing if it asked for the help or the version, which are printed then
    /// @throws chart::UsageError
    static std::optional<ViewerOptions> read(int argc, char** argv);

    chart::Options chart;  ///< Without inputs if there is nothing to open yet.
    QString live;          ///< "signal", a file, "-" for the standard input; empty for none.
    double seconds = 10.0; ///< Of live data, to be kept in view; in the unit of x.
    double rate = 20000.0; ///< Samples of the signal in a second.
    bool asksForLook = false;
    bool asksForSize = false;
};

} // namespace hosts::viewer

#endif
