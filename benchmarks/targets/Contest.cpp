#include "benchmarks/targets/Contest.h"

#include <algorithm>
#include <chrono>

namespace targets {

namespace {

double secondsOfCall(const Contestant& contestant)
{
    contestant.prepare();
    const auto begin = std::chrono::steady_clock::now();
    for (int i = 0; i < contestant.calls; ++i)
        contestant.call();
    const std::chrono::duration<double> time = std::chrono::steady_clock::now() - begin;
    return time.count() / contestant.calls;
}

} // namespace

std::vector<double> medianSeconds(const std::vector<Contestant>& contestants, int repetitions)
{
    std::vector<std::vector<double>> seconds(contestants.size());
    // A first turn does not count.
    for (int repetition = -1; repetition < repetitions; ++repetition) {
        for (std::size_t i = 0; i < contestants.size(); ++i) {
            const double time = secondsOfCall(contestants[i]);
            if (repetition >= 0)
                seconds[i].push_back(time);
        }
    }
    std::vector<double> medians;
    for (std::vector<double>& own : seconds) {
        const auto middle = own.begin() + static_cast<std::ptrdiff_t>(own.size() / 2);
        std::nth_element(own.begin(), middle, own.end());
        medians.push_back(*middle);
    }
    return medians;
}

} // namespace targets
