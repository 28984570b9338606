#include "benchmarks/peers/Peers.h"

namespace benchmarks {

std::vector<Contestant> Peer::reducers(const std::vector<double>&) const
{
    return {};
}

std::vector<Contestant> Peer::splines(const std::vector<double>&) const
{
    return {};
}

std::vector<Contestant> Peer::xyReducers(const std::vector<double>&,
                                         const std::vector<double>&) const
{
    return {};
}

std::vector<Contestant> Peer::colorers(const ColorGrid&) const
{
    return {};
}

std::vector<std::unique_ptr<Peer>> peers()
{
    std::vector<std::unique_ptr<Peer>> found;
#ifdef KESTRANE_PEER_QCUSTOMPLOT
    found.push_back(makeQCustomPlot());
#endif
#ifdef KESTRANE_PEER_QWT
    found.push_back(makeQwt());
#endif
    return found;
}

} // namespace benchmarks
