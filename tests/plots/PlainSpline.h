#ifndef TESTS_PLOTS_PLAINSPLINE_H
#define TESTS_PLOTS_PLAINSPLINE_H

#include "kestrane/backend/Subsampler.h"

#include <cmath>
#include <stdexcept>
#include <utility>
#include <vector>

namespace tests {

/// The spline in two full passes over its samples.
class PlainSpline : public pelorin::algo::Subsampler
{
public:
    explicit PlainSpline(std::vector<double> samples)
        : y(std::move(samples))
        , c(y.size(), 0.0)
    {
        const double K = 0.267949192431123;
        const int n = int(y.size());
        for (int i = 1; i <= n - 2; ++i)
            at(c, i) = ((at(y, i - 1) - 2 * at(y, i)) + at(y, i + 1)) - at(c, i - 1) * K;
        for (int i = n - 2; i >= 1; --i)
            at(c, i) = (at(c, i) - at(c, i + 1)) * K;
    }

    double operator[](const double& index) override
    {
        const double whole = std::floor(index);
        if (!(whole >= 0.0 && whole < double(y.size()) - 1.0))
            throw std::out_of_range("the end of the curve");
        const int i = int(whole);
        const double t = index - i;
        const double a = at(c, i + 1) - at(c, i);
        const double b = at(c, i) * 3.0;
        const double slope = ((at(y, i + 1) - at(y, i)) - at(c, i + 1)) - 2 * at(c, i);
        return ((a * t + b) * t + slope) * t + at(y, i);
    }

    boost::shared_ptr<Subsampler> tail(long long) override { return {}; }

private:
    static double& at(std::vector<double>& values, int i) { return values[std::size_t(i)]; }

    std::vector<double> y, c;
};

} // namespace tests

#endif
