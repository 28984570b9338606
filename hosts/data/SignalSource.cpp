#include "hosts/data/SignalSource.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <thread>
#include <vector>

namespace hosts::data {

namespace {

constexpr double pi = 3.14159265358979323846;
constexpr auto period = std::chrono::microseconds(16667);
constexpr long long mostAtOnce = 65536;

// -1 to 1, of the index alone.
double noiseAt(long long index)
{
    auto bits = static_cast<std::uint64_t>(index) * 0x9e3779b97f4a7c15u;
    bits = (bits ^ (bits >> 32)) * 0xd6e8feb86659fd93u;
    return static_cast<double>(bits >> 11) * 0x1p-52 - 1.0;
}

} // namespace

SignalSource::SignalSource(double rate)
    : m_rate(rate)
{}

SignalSource::~SignalSource()
{
    stop();
}

double SignalSource::valueAt(long long index) const
{
    const double time = static_cast<double>(index) / m_rate;
    const double beat = std::sin(2.0 * pi * 1.7 * time) * std::sin(2.0 * pi * 0.23 * time);
    const double sinceSpike = std::fmod(time, 2.9) * 60.0;
    return beat + 0.03 * noiseAt(index) + 1.5 * std::exp(-sinceSpike);
}

void SignalSource::run()
{
    const auto recording =
        std::make_shared<LiveRecording>(QStringList{QStringLiteral("signal")}, 0.0, 1.0 / m_rate);
    setRecording(recording);
    const auto begin = std::chrono::steady_clock::now();
    std::vector<double> values;
    for (auto due = begin; !mustStop(); due += period) {
        std::this_thread::sleep_until(due);
        const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - begin;
        const auto end = static_cast<long long>(elapsed.count() * m_rate);
        for (long long index = recording->rows(); index < end && !mustStop();) {
            values.clear();
            for (const long long last = std::min(end, index + mostAtOnce); index < last; ++index)
                values.push_back(valueAt(index));
            recording->append(values.data(), values.size());
        }
    }
}

} // namespace hosts::data
