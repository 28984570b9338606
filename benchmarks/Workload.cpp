#include "benchmarks/Workload.h"

#include <kestrane/axes/LinearAxis.h>

#include <benchmark/benchmark.h>
#include <boost/make_shared.hpp>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <limits>
#include <random>

namespace benchmarks {

using pelorin::backend::MetaInfo;
using pelorin::backend::PlotSegment;
using pelorin::backend::PlotSnapshot;
using pelorin::backend::SampleVector;

boost::shared_ptr<SampleVector> samples(long long count)
{
    static boost::shared_ptr<SampleVector> last;
    if (!last || static_cast<long long>(last->size()) != count) {
        last = boost::make_shared<SampleVector>(static_cast<std::size_t>(count));
        std::mt19937_64 random(1);
        std::uniform_real_distribution<double> noise(-0.1, 0.1);
        double phase = 0.0;
        for (double& sample : *last) {
            sample = 0.5 + 0.4 * std::sin(phase) + noise(random);
            phase += 1e-3;
        }
    }
    return last;
}

PlotSnapshot snapshot(long long count)
{
    return PlotSnapshot({PlotSegment(samples(count), MetaInfo(0.0, 1.0))});
}

QSharedPointer<const pelorin::ui::chart::Axis> linearAxis(double length, double from)
{
    return QSharedPointer<pelorin::ui::chart::LinearAxis>::create(length / 10, from);
}

double secondsOfPlainPass(const SampleVector& samples)
{
    double best = std::numeric_limits<double>::max();
    for (int i = 0; i < 7; ++i) {
        const auto begin = std::chrono::steady_clock::now();
        // Four sums, since one would wait for its own last addition and not for the memory.
        double sums[4] = {};
        const std::size_t end = samples.size() / 4 * 4;
        for (std::size_t k = 0; k < end; k += 4) {
            for (std::size_t lane = 0; lane < 4; ++lane)
                sums[lane] += samples[k + lane];
        }
        benchmark::DoNotOptimize(sums);
        const std::chrono::duration<double> time = std::chrono::steady_clock::now() - begin;
        best = std::min(best, time.count());
    }
    return best;
}

} // namespace benchmarks
