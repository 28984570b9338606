#ifndef BENCHMARKS_PEERS_PEERS_H
#define BENCHMARKS_PEERS_PEERS_H

#include <QRgb>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace benchmarks {

/// The canvas that peers reduce data to, in pixels.
constexpr int canvasWidth = 1000;
constexpr int canvasHeight = 600;

/// One way in which a peer answers a question.
struct Contestant
{
    std::string name;
    /// What it does less or more than was asked.
    std::string remark;
    /// Answers once. What is needed once for any number of redraws is done before; painting is
    /// left out.
    std::function<void()> call;
    /// What is wrong with its answer, beyond the remark; empty if nothing is.
    std::function<std::string()> fault;
};

/// Values to show as colors, side rows of side values each: from lower to upper in equal classes,
/// one a color. The side divides canvasWidth or is a multiple of it.
struct ColorGrid
{
    const std::vector<double>& values;
    int side;
    double lower;
    double upper;
    std::vector<QRgb> colors;
};

/// Another charting library. Each question has any number of contestants, none if the library has
/// no answer. They refer to the vectors they are given, which have to outlive them.
class Peer
{
public:
    virtual ~Peer() = default;

    /// Samples, each at its index, all in view: to a line that shows the extremes of each column.
    virtual std::vector<Contestant> reducers(const std::vector<double>& samples) const;
    /// A smooth curve through a few samples, in canvasWidth points.
    virtual std::vector<Contestant> splines(const std::vector<double>& samples) const;
    /// Points in any order, all in view: to a line that shows the extremes of each column.
    virtual std::vector<Contestant> xyReducers(const std::vector<double>& x,
                                               const std::vector<double>& y) const;
    /// Values to colors on canvasWidth x canvasWidth pixels.
    virtual std::vector<Contestant> colorers(const ColorGrid& grid) const;
};

/// The peers that were installed when this was built.
std::vector<std::unique_ptr<Peer>> peers();

/// Each is defined where its library is installed.
std::unique_ptr<Peer> makeQCustomPlot();
std::unique_ptr<Peer> makeQwt();

} // namespace benchmarks

#endif
