#ifndef BENCHMARKS_SURFACEWORKLOAD_H
#define BENCHMARKS_SURFACEWORKLOAD_H

#include <kestrane/surfaces/Histogram2DPlotAlgorithm.h>

#include <benchmark/benchmark.h>
#include <boost/make_shared.hpp>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <limits>
#include <random>
#include <utility>
#include <vector>

namespace benchmarks {

/// Of a canvas that is as wide and high as both axes.
constexpr double pixelSize = 1.0 / 1000;

/// What a grid of samples and its colours are like.
struct SurfaceWorkload
{
    long long side;
    int classes = 10;
    bool isDenseAlongY = false;
    unsigned percentNaN = 0; // Zeros, where samples are whole numbers.
};

/// Counts of two Gaussian peaks on a floor of noise, side times side of them over the whole axes;
/// all of them less than 1024.
template<typename T>
pelorin::backend::MultiDimensionalPlotSnapshot<T, 2> grid(const SurfaceWorkload& workload)
{
    const long long side = workload.side;
    const auto samples = boost::make_shared<T[]>(static_cast<std::size_t>(side * side));
    std::mt19937_64 random(1);
    for (long long k = 0; k < side * side; ++k) {
        const double x = static_cast<double>(k % side) / static_cast<double>(side);
        const double y = static_cast<double>(k / side) / static_cast<double>(side);
        const double peaks = std::exp(-50.0 * ((x - 0.3) * (x - 0.3) + (y - 0.4) * (y - 0.4))) +
                             std::exp(-200.0 * ((x - 0.7) * (x - 0.7) + (y - 0.6) * (y - 0.6)));
        samples[k] = static_cast<T>(1000.0 * peaks + static_cast<double>(random() % 16));
        if (random() % 100 < workload.percentNaN)
            samples[k] = std::numeric_limits<T>::quiet_NaN();
    }
    const pelorin::backend::MetaInfo info(0.0, 1.0 / static_cast<double>(side));
    std::array<long long, 2> strides{1, side};
    if (workload.isDenseAlongY)
        std::swap(strides[0], strides[1]);
    return pelorin::backend::MultiDimensionalPlotSnapshot<T, 2>(
        {pelorin::backend::MultiDimensionalPlotSegment<T, 2>(samples, {info, info}, {side, side},
                                                             strides)});
}

/// Few classes twice as wide each time, or many of equal width.
inline pelorin::ui::ColorMap colorMap(int classes)
{
    pelorin::ui::ColorMap map;
    auto builder = map.build();
    for (int k = 0; k < classes; ++k)
        builder.appendEntry(QColor::fromHsv(240 - 240 * k / classes, 255, 255),
                            classes <= 10 ? std::size_t(1) << k : std::size_t(4 * k + 1));
    return map;
}

namespace detail {

template<typename T, int width>
void writePlainCells(const T* samples, long long side, const std::vector<QColor>& colors,
                     std::vector<QColor>& cells)
{
    std::vector<T> line(static_cast<std::size_t>(side));
    T* __restrict const largest = line.data();
    QColor* cell = cells.data();
    for (long long y = 0; y + width <= side; y += width, samples += width * side) {
        for (long long x = 0; x < side; ++x) {
            T value = 0;
            for (int row = 0; row < width; ++row)
                value = samples[row * side + x] > value ? samples[row * side + x] : value;
            largest[x] = value;
        }
        for (long long x = 0; x + width <= side; x += width) {
            T value = largest[x];
            for (int column = 1; column < width; ++column)
                value = std::max(value, largest[x + column]);
            std::memcpy(static_cast<void*>(cell++), &colors[static_cast<unsigned>(value)],
                        sizeof(QColor));
        }
    }
}

} // namespace detail

/// The yardstick: what writes a colour for each cell with no more than a look at each sample, into
/// memory at hand. It may know that cells are squares of some width and counts whole and small.
template<typename T>
class PlainCells
{
public:
    PlainCells(const SurfaceWorkload& workload, const T* samples, const pelorin::ui::ColorMap& map)
        : m_side(workload.side)
        , m_samples(samples)
    {
        for (std::size_t count = 0; count < 1024; ++count)
            m_colors.push_back(map.mapToColor(count));
        const auto side = static_cast<std::size_t>(std::min(workload.side, 1000LL));
        m_cells.resize(side * side);
    }

    void write()
    {
        const auto write = m_side == 4000   ? detail::writePlainCells<T, 4>
                           : m_side == 2000 ? detail::writePlainCells<T, 2>
                                            : detail::writePlainCells<T, 1>;
        write(m_samples, m_side, m_colors, m_cells);
        benchmark::DoNotOptimize(m_cells.data());
    }

    /// In the order of the memory.
    const std::vector<QColor>& cells() const { return m_cells; }

private:
    const long long m_side;
    const T* const m_samples;
    std::vector<QColor> m_colors;
    std::vector<QColor> m_cells;
};

/// Of a result cell by cell and of cells in the order of the memory.
inline bool areSame(const pelorin::ui::chart::Histogram2DPlotAlgorithm::HistoSegment& segment,
                    bool isDenseAlongY, const std::vector<QColor>& cells)
{
    const std::size_t width = segment.xEdges.size() - 1;
    const std::size_t height = segment.yEdges.size() - 1;
    for (std::size_t k = 0; k < cells.size() && segment.colors.size() == cells.size(); ++k) {
        if (segment.colors[k] != cells[isDenseAlongY ? k % width * height + k / width : k])
            return false;
    }
    return segment.colors.size() == cells.size();
}

} // namespace benchmarks

#endif
