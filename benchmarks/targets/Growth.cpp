// How does the cost of a sample plot grow with the number of samples?
#include "benchmarks/Workload.h"
#include "benchmarks/targets/Questions.h"
#include "benchmarks/targets/SampleRedraw.h"

#include "benchmarks/peers/Peers.h"

#include <cstdio>

namespace targets {

void printGrowth()
{
    const auto peers = benchmarks::peers();
    std::printf("Samples,first redraw,redraw,pass over the samples");
    for (const auto& peer : peers)
        std::printf(",%s", peer->reducers({0.0, 1.0}).at(0).name.c_str());
    std::printf("\n");
    // A peer would need as much memory again, and more, for the last ones.
    constexpr long long mostForPeers = 10000000;
    for (long long decade = 1000; decade <= 100000000; decade *= 10) {
        for (const long long count : {decade, 3 * decade}) {
            if (count > 100000000)
                break;
            const Samples samples = benchmarks::samples(count);
            SampleRedraw first(count), repeated(count);
            repeated.renew(samples);
            std::vector<Contestant> contestants = {onceNew(first, samples), again(repeated),
                                                   pass(samples)};
            std::vector<double> copy;
            if (count <= mostForPeers) {
                copy.assign(samples->begin(), samples->end());
                for (const auto& peer : peers) {
                    const auto answer = peer->reducers(copy).at(0);
                    contestants.push_back({answer.name, answer.call});
                }
            }
            std::printf("%lld", count);
            for (const double seconds : medianSeconds(contestants))
                std::printf(",%.4g", seconds);
            for (std::size_t i = contestants.size(); i < 3 + peers.size(); ++i)
                std::printf(",");
            std::printf("\n");
            std::fflush(stdout);
        }
    }
}

} // namespace targets
