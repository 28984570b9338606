#include "benchmarks/peers/Checks.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <sstream>

namespace benchmarks {

namespace {

// Peers order their operations as they like; a millionth of a pixel is beyond what rounding errors
// of doubles come to, and nobody sees it.
constexpr double tolerance = 1e-6;

struct Extremes
{
    double least = std::numeric_limits<double>::infinity();
    double largest = -std::numeric_limits<double>::infinity();

    void add(double y)
    {
        least = std::min(least, y);
        largest = std::max(largest, y);
    }
    bool isEmpty() const { return least > largest; }
};

// The last column holds what lies on the right border of the canvas.
using Columns = std::vector<Extremes>;

Extremes& columnAt(Columns& columns, double x)
{
    return columns[static_cast<std::size_t>(std::clamp(x, 0.0, double(canvasWidth)))];
}

template<typename... Parts>
std::string sentence(const Parts&... parts)
{
    std::ostringstream out;
    (out << ... << parts);
    return out.str();
}

// Pixels run down: the least here is what is drawn highest.
std::string faultOfColumns(const Columns& drawn, const Columns& sure, const Columns& possible,
                           double slack)
{
    for (std::size_t k = 0; k < drawn.size(); ++k) {
        if (sure[k].isEmpty())
            continue;
        if (drawn[k].isEmpty())
            return sentence("column ", k, " is empty");
        if (drawn[k].least > sure[k].least + slack || drawn[k].largest < sure[k].largest - slack)
            return sentence("column ", k, " misses a peak");
        if (drawn[k].least < possible[k].least - slack ||
            drawn[k].largest > possible[k].largest + slack)
            return sentence("column ", k, " shows more than there is");
    }
    return {};
}

// Second derivatives of the natural spline through samples at 0, 1, 2 ...: the tridiagonal system
// M[k-1] + 4 M[k] + M[k+1] = 6 (y[k-1] - 2 y[k] + y[k+1]), with 0 at both ends.
std::vector<double> secondDerivatives(const std::vector<double>& y)
{
    std::vector<double> upper(y.size(), 0.0), moments(y.size(), 0.0);
    for (std::size_t k = 1; k + 1 < y.size(); ++k) {
        const double pivot = 4.0 - upper[k - 1];
        upper[k] = 1.0 / pivot;
        moments[k] = (6.0 * (y[k - 1] - 2.0 * y[k] + y[k + 1]) - moments[k - 1]) / pivot;
    }
    moments.back() = 0.0;
    for (std::size_t k = y.size() - 1; k-- > 0;)
        moments[k] -= upper[k] * moments[k + 1];
    return moments;
}

double splineAt(const std::vector<double>& y, const std::vector<double>& moments, double x)
{
    const std::size_t k = std::min(static_cast<std::size_t>(x), y.size() - 2);
    const double right = x - static_cast<double>(k), left = 1.0 - right;
    return left * y[k] + right * y[k + 1] +
           ((left * left * left - left) * moments[k] +
            (right * right * right - right) * moments[k + 1]) /
               6.0;
}

std::string faultOfLine(const QVector<QPointF>& line, Rounding rounding, const View& view,
                        const std::vector<double>& x, const std::vector<double>& y)
{
    const bool rounded = rounding == Rounding::ToPixels;
    Columns drawn(canvasWidth + 1), sure(canvasWidth + 1), possible(canvasWidth + 1);
    for (const QPointF& point : line)
        columnAt(drawn, point.x()).add(point.y());
    for (std::size_t k = 0; k < x.size(); ++k) {
        const double pixelX = view.pixelX(x[k]) + (rounded ? 0.5 : 0.0);
        const double pixelY = view.pixelY(y[k]);
        Extremes& before = columnAt(possible, pixelX - tolerance);
        Extremes& behind = columnAt(possible, pixelX + tolerance);
        before.add(pixelY);
        behind.add(pixelY);
        if (&before == &behind)
            columnAt(sure, pixelX).add(pixelY);
    }
    return faultOfColumns(drawn, sure, possible, (rounded ? 0.5 : 0.0) + tolerance);
}

} // namespace

View viewOf(const std::vector<double>& x, const std::vector<double>& y)
{
    const auto [left, right] = std::minmax_element(x.begin(), x.end());
    const auto [bottom, top] = std::minmax_element(y.begin(), y.end());
    return {*left, *right, *bottom, *top};
}

View viewOf(const std::vector<double>& samples)
{
    const auto [least, largest] = std::minmax_element(samples.begin(), samples.end());
    return {0.0, static_cast<double>(samples.size()), *least, *largest};
}

std::vector<double> indexesOf(const std::vector<double>& samples)
{
    std::vector<double> indexes(samples.size());
    std::iota(indexes.begin(), indexes.end(), 0.0);
    return indexes;
}

std::string faultOfLine(const QVector<QPointF>& line, Rounding rounding,
                        const std::vector<double>& x, const std::vector<double>& y)
{
    return faultOfLine(line, rounding, viewOf(x, y), x, y);
}

std::string faultOfLine(const QVector<QPointF>& line, Rounding rounding,
                        const std::vector<double>& samples)
{
    return faultOfLine(line, rounding, viewOf(samples), indexesOf(samples), samples);
}

std::string faultOfSpline(const QVector<QPointF>& curve, const std::vector<double>& samples)
{
    if (curve.size() != canvasWidth)
        return sentence(curve.size(), " points");
    const View view = viewOf(samples);
    const std::vector<double> moments = secondDerivatives(samples);
    const double step = static_cast<double>(samples.size() - 1) / (canvasWidth - 1);
    for (int k = 0; k < curve.size(); ++k) {
        const double x = std::min(k * step, static_cast<double>(samples.size() - 1));
        if (std::abs(curve[k].x() - view.pixelX(x)) > tolerance ||
            std::abs(curve[k].y() - view.pixelY(splineAt(samples, moments, x))) > tolerance)
            return sentence("point ", k, " lies off the curve");
    }
    return {};
}

std::string faultOfColors(const ColorGrid& grid, int step,
                          const std::function<QRgb(int column, int row)>& colorOf)
{
    const double classes = static_cast<double>(grid.colors.size());
    const auto expected = [&](double position) {
        return grid.colors[static_cast<std::size_t>(std::clamp(position, 0.0, classes - 1.0))];
    };
    for (int row = 0; row < grid.side; row += step) {
        for (int column = 0; column < grid.side; column += step) {
            const double value = grid.values[static_cast<std::size_t>(row * grid.side + column)];
            const double position = (value - grid.lower) / (grid.upper - grid.lower) * classes;
            const QRgb color = colorOf(column, row);
            if (color != expected(position - tolerance) && color != expected(position + tolerance))
                return sentence("column ", column, " and row ", row, " have a wrong color");
        }
    }
    return {};
}

} // namespace benchmarks
