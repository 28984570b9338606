#include "kestrane/surfaces/Histogram2DPlotAlgorithm.h"

#include "kestrane/colors/detail/ColorLookup.h"
#include "kestrane/library/detail/FreshMemory.h"
#include "kestrane/surfaces/detail/CellGeometry.h"
#include "kestrane/surfaces/detail/CellStrip.h"

#include <QMutexLocker>

#include <boost/iterator/permutation_iterator.hpp>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <memory>
#include <stdexcept>
#include <utility>

namespace pelorin {
namespace ui {
namespace chart {

namespace {

using HistoSegment = Histogram2DPlotAlgorithm::HistoSegment;
using CountMode = Histogram2DPlotAlgorithm::CountMode;

template<typename Vector>
void reserve(Vector& vector, std::size_t size)
{
    if (size > vector.max_size())
        throw std::length_error("vector too long");
    vector.reserve(size);
}

backend::SampleVector edges(const detail::Geometry& first, const QList<detail::Geometry>& others)
{
    backend::SampleVector result;
    reserve(result, static_cast<std::size_t>(others.size()) + 1);
    result.push_back(first.position);
    for (const detail::Geometry& geometry : others)
        result.push_back(geometry.position);
    return result;
}

std::vector<long long> indices(const detail::Geometry& first, const QList<detail::Geometry>& others)
{
    std::vector<long long> result{first.index};
    for (const detail::Geometry& geometry : others)
        result.push_back(geometry.index);
    return result;
}

// The cells of one segment, written to a result row by row.
class CellWriter
{
public:
    CellWriter(const GeometryCacheEntry& geometry, CountMode mode,
               const ui::detail::ColorLookup& lookup, HistoSegment& out)
        : m_xs(indices(geometry.firstX, geometry.xGeometries))
        , m_ys(indices(geometry.firstY, geometry.yGeometries))
        , m_width(m_xs.size() - 1)
        , m_height(m_ys.size() - 1)
        , m_mode(mode)
        , m_lookup(lookup)
        , m_out(out)
    {}

    template<typename T>
    void writeCells(const backend::MultiDimensionalPlotSegment<T, 2>& segment)
    {
        reserveRoom();
        if (m_width == 0 || m_height == 0)
            return;
        const backend::GridPosition<T> origin(segment);
        if (origin.denserDimension() == 0)
            writeCellsAlongX(origin);
        else
            writeCellsAlongY(origin);
        m_out.maxCount = *std::max_element(m_largest.begin(), m_largest.end());
    }

private:
    void reserveRoom()
    {
        reserve(m_out.colors, m_width * m_height);
        detail::preferLargePages(m_out.colors.data(), m_width * m_height * sizeof(QColor));
        if (m_mode != Histogram2DPlotAlgorithm::NoCounts)
            reserve(m_out.counts, m_width * m_height);
        m_classes.resize(m_width);
        m_largest.resize(m_width);
    }

    template<typename T>
    void writeCellsAlongX(const backend::GridPosition<T>& origin)
    {
        detail::CellStrip<T> strip(m_xs);
        std::vector<double> values(m_width);
        for (std::size_t y = 0; y < m_height; ++y) {
            backend::GridPosition<T> row = origin;
            row.move(1, m_ys[y]);
            strip.writeCells(row, m_ys[y + 1] - m_ys[y], values.data(), 1);
            writeRow(values.data());
        }
    }

    // All values before any colour, so that samples are read in the order of the memory here too.
    template<typename T>
    void writeCellsAlongY(const backend::GridPosition<T>& origin)
    {
        detail::CellStrip<T> strip(m_ys);
        // An odd number of lines of the cache, in which powers of two would share their places.
        const std::size_t pitch = ((m_width + 7) / 8 | 1) * 8;
        const std::unique_ptr<double[]> values(new double[pitch * m_height]);
        detail::preferLargePages(values.get(), pitch * m_height * sizeof(double));
        for (std::size_t x = 0; x < m_width; ++x) {
            backend::GridPosition<T> column = origin;
            column.move(0, m_xs[x]);
            strip.writeCells(column, m_xs[x + 1] - m_xs[x], &values[x], pitch);
        }
        for (std::size_t y = 0; y < m_height; ++y)
            writeRow(&values[y * pitch]);
    }

    void writeRow(const double* values)
    {
        m_lookup.classesOf(values, m_width, m_classes.data());
        const auto colors = boost::make_permutation_iterator(m_lookup.colors(), m_classes.cbegin());
        m_out.colors.insert(m_out.colors.end(), colors,
                            colors + static_cast<std::ptrdiff_t>(m_width));
        detail::raise(m_largest.data(), values, static_cast<long long>(m_width), 1);
        if (m_mode == Histogram2DPlotAlgorithm::LinearCounts)
            m_out.counts.insert(m_out.counts.end(), values, values + m_width);
        else if (m_mode == Histogram2DPlotAlgorithm::LogarithmicCounts)
            std::transform(values, values + m_width, std::back_inserter(m_out.counts),
                           [](double value) { return std::log10(value); });
    }

    const std::vector<long long> m_xs, m_ys; // Indices of samples where cells begin and end.
    const std::size_t m_width, m_height;
    const CountMode m_mode;
    const ui::detail::ColorLookup& m_lookup;
    HistoSegment& m_out;
    std::vector<unsigned> m_classes; // Of a row.
    std::vector<double> m_largest;   // Of each column of cells so far.
};

} // namespace

struct Histogram2DPlotAlgorithm::Request
{
    detail::PixelGrid pixels;
    const ColorMap& colorMap;
    bool* geometryChanged;
};

Histogram2DPlotAlgorithm::Histogram2DPlotAlgorithm() = default;

Histogram2DPlotAlgorithm::~Histogram2DPlotAlgorithm() = default;

QVector<HistoSegment> Histogram2DPlotAlgorithm::makeColorArrays(
    const QSharedPointer<const Axis>& xAxis, const QSharedPointer<const Axis>& yAxis,
    const ColorMap& colorMap, double xPixelSize, double yPixelSize, bool* geometryChanged)
{
    const Request request{{xAxis, yAxis, xPixelSize, yPixelSize}, colorMap, geometryChanged};
    QMutexLocker locker(&m_mutex);
    if (m_snapshot.empty()) {
        const auto snapshot = m_intSnapshot;
        locker.unlock();
        return computeColorArrays(snapshot, request);
    }
    const auto snapshot = m_snapshot;
    locker.unlock();
    return computeColorArrays(snapshot, request);
}

void Histogram2DPlotAlgorithm::clearGeometryCache()
{
    QList<HistoCacheEntry> old; // Goes after the unlock, and the axes with it.
    const QMutexLocker locker(&m_mutex);
    m_geometryCache.swap(old);
}

Histogram2DPlotAlgorithm::CountMode Histogram2DPlotAlgorithm::countMode() const
{
    const QMutexLocker locker(&m_mutex);
    return m_countMode;
}

void Histogram2DPlotAlgorithm::setCountMode(CountMode mode)
{
    const QMutexLocker locker(&m_mutex);
    m_countMode = mode;
}

template<typename T>
QVector<HistoSegment> Histogram2DPlotAlgorithm::computeColorArrays(
    const backend::MultiDimensionalPlotSnapshot<T, 2>& snapshot, const Request& request)
{
    QVector<HistoSegment> result;
    const bool usable = request.pixels.isUsable();
    const bool nothing = !usable || snapshot.begin() == snapshot.end();
    if (request.geometryChanged) {
        *request.geometryChanged = nothing;
        if (usable && nothing)
            clearGeometryCache();
    }
    if (nothing)
        return result;

    const CountMode mode = countMode();
    const ui::detail::ColorLookup lookup(request.colorMap);
    for (const auto& segment : snapshot) {
        const int index = result.size();
        result.append(HistoSegment());
        HistoSegment& out = result.last();
        const GeometryCacheEntry geometry =
            updateCache(index, segment.metaInfo, segment.shape, request, out);
        CellWriter(geometry, mode, lookup, out).writeCells(segment);
    }
    return result;
}

// Works on a copy, so that an axis that throws leaves the cache as it was.
GeometryCacheEntry
Histogram2DPlotAlgorithm::updateCache(int index, const std::array<backend::MetaInfo, 2>& metaInfo,
                                      const std::array<long long, 2>& shape, const Request& request,
                                      HistoSegment& out)
{
    GeometryCacheEntry replaced; // Goes after the unlock, and the axes with it.
    const QMutexLocker locker(&m_mutex);
    HistoCacheEntry& entry = detail::cacheEntry(m_geometryCache, index);
    GeometryCacheEntry& cached = entry;
    GeometryCacheEntry geometry = cached;
    if (detail::updateGeometry(geometry, metaInfo, shape, request.pixels)) {
        if (request.geometryChanged)
            *request.geometryChanged = true;
        backend::SampleVector xEdges = edges(geometry.firstX, geometry.xGeometries);
        backend::SampleVector yEdges = edges(geometry.firstY, geometry.yGeometries);
        entry.xEdges.swap(xEdges);
        entry.yEdges.swap(yEdges);
        replaced = std::exchange(cached, geometry);
    }
    out.xEdges = entry.xEdges;
    out.yEdges = entry.yEdges;
    return geometry;
}

} // namespace chart
} // namespace ui
} // namespace pelorin
