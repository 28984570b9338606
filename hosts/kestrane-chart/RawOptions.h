#ifndef HOSTS_KESTRANE_CHART_RAWOPTIONS_H
#define HOSTS_KESTRANE_CHART_RAWOPTIONS_H

#include "hosts/kestrane-chart/SurfaceOptions.h"

#include <optional>
#include <string>
#include <vector>

namespace hosts::chart {

class OptionParser;

/// The options as they stand on the command line, before they are checked and put in order.
struct RawOptions
{
    /// Tells @p parser of the options of a chart, to be stored in this object.
    void addTo(OptionParser& parser);

    /// Tells it of those for a picture in a file too.
    void addPictureTo(OptionParser& parser);

    /// What the help of a program says of charts.
    static const char* guide();

    std::vector<std::string> inputs;
    std::string output;
    std::vector<std::string> columns;
    std::vector<int> channels;
    std::string timeColumn;
    std::vector<std::string> legend;
    std::vector<double> cursors;
    std::string title;
    std::string show = "values";
    std::string plot = "line";
    std::string xKind = "linear";
    std::string yKind = "linear";
    std::string look = "light";
    std::string size = "1000x600";
    std::string xCaption, yCaption, xQuantity, yQuantity, xUnit, yUnit;
    std::optional<double> start, step, from, to, bottom, top, xReference, yReference, xJoint,
        yJoint;
    double dpi = 96.0;
    double symbols = 8.0;
    bool noLegend = false;
    RawSurfaceOptions surface;
};

} // namespace hosts::chart

#endif
