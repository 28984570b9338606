#include "hosts/data/Spectrum.h"

#include "hosts/data/StretchTransform.h"

#include <boost/make_shared.hpp>

#include <algorithm>
#include <cmath>
#include <functional>
#include <stdexcept>
#include <vector>

namespace hosts::data {

using pelorin::backend::MetaInfo;
using pelorin::backend::PlotSegment;
using pelorin::backend::PlotSnapshot;
using pelorin::backend::SampleVector;

namespace {

constexpr long long shortestRun = 4;
constexpr long long longestStretch = 65536;

// Of stretches that overlap by half, the powers averaged.
boost::shared_ptr<SampleVector> averageAmplitudes(const PlotSegment& run, StretchTransform& stretch)
{
    const long long length = stretch.length();
    std::vector<double> powers(std::size_t(length / 2));
    double count = 0.0;
    for (long long first = 0; first + length <= run.count; first += length / 2, ++count) {
        const std::vector<double>& some = stretch.powers(run.begin + first);
        std::transform(powers.begin(), powers.end(), some.begin(), powers.begin(), std::plus<>());
    }
    const auto amplitudes = boost::make_shared<SampleVector>();
    for (const double power : powers)
        amplitudes->push_back(stretch.unit() * std::sqrt(power / count));
    return amplitudes;
}

PlotSegment spectrumOf(const PlotSegment& run)
{
    const long long length = StretchTransform::fastLength(std::min(run.count, longestStretch));
    StretchTransform stretch(length, StretchTransform::unitFor(run));
    const double step = 1.0 / (double(length) * run.xInfo.scale);
    return PlotSegment(averageAmplitudes(run, stretch), MetaInfo(step, step));
}

} // namespace

Series spectrumOf(const Series& series)
{
    const auto& segments = series.snapshot.segments;
    const auto longest = std::max_element(
        segments.begin(), segments.end(),
        [](const PlotSegment& a, const PlotSegment& b) { return a.count < b.count; });
    if (longest == segments.end() || longest->count < shortestRun)
        throw std::runtime_error(series.name.toStdString() +
                                 ": a spectrum needs four samples in a row");
    return {series.name, PlotSnapshot({spectrumOf(*longest)})};
}

} // namespace hosts::data
