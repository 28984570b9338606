#include "benchmarks/targets/Peers.h"

#include <algorithm>

namespace targets {

void addPeers(Table& table, const std::string& what, const Contestant& own, double target,
              const Question& question)
{
    std::vector<Contestant> contestants = {own};
    for (const auto& peer : benchmarks::peers()) {
        for (benchmarks::Contestant& answer : question(*peer)) {
            const std::string fault = answer.fault();
            if (!fault.empty()) {
                table.addFault(what, answer.name + ": " + fault);
                continue;
            }
            table.addRemark(answer.name, answer.remark);
            // Once before it counts, so that each finds its own samples where they fit in a cache.
            contestants.push_back({answer.name, answer.call, answer.call});
        }
    }
    if (contestants.size() == 1)
        return;
    const auto seconds = medianSeconds(contestants);
    const auto best = std::min_element(seconds.begin() + 1, seconds.end()) - seconds.begin();
    for (std::size_t i = 1; i < seconds.size(); ++i)
        table.addRatio(what, seconds[0], contestants[i].name, seconds[i],
                       static_cast<std::ptrdiff_t>(i) == best ? target : 0.0);
}

} // namespace targets
