#include "kestrane/surfaces/Histogram2DPlotAlgorithm.h"

#include "kestrane/colors/detail/ColorLookup.h"
#include "kestrane/colors/detail/TruncatedToCount.h"
#include "kestrane/surfaces/detail/CellGeometry.h"
#include "kestrane/surfaces/detail/LargestSample.h"

#include <QMutexLocker>

#include <algorithm>
#include <cmath>
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

std::size_t toCount(unsigned int value)
{
    return value;
}

std::size_t toCount(double value)
{
    return ui::detail::truncatedToCount(value);
}

// The cells of one segment, written to a result one by one.
class CellWriter
{
public:
    CellWriter(const GeometryCacheEntry& geometry, CountMode mode, const ColorMap& colorMap,
               HistoSegment& out)
        : m_geometry(geometry)
        , m_mode(mode)
        , m_lookup(colorMap)
        , m_out(out)
    {}

    template<typename T>
    void writeCells(const backend::MultiDimensionalPlotSegment<T, 2>& segment)
    {
        reserveRoom();
        if (m_geometry.xGeometries.isEmpty())
            return;
        std::vector<T> line;
        backend::GridPosition<T> row(segment);
        row.move(0, m_geometry.firstX.index);
        row.move(1, m_geometry.firstY.index);
        long long y = m_geometry.firstY.index;
        for (const detail::Geometry& next : m_geometry.yGeometries) {
            writeRow(row, next.index - y, line);
            row.move(1, next.index - y);
            y = next.index;
        }
    }

private:
    void reserveRoom()
    {
        const std::size_t cells = static_cast<std::size_t>(m_geometry.xGeometries.size()) *
                                  static_cast<std::size_t>(m_geometry.yGeometries.size());
        reserve(m_out.colors, cells);
        if (m_mode != Histogram2DPlotAlgorithm::NoCounts)
            reserve(m_out.counts, cells);
    }

    template<typename T>
    void writeRow(const backend::GridPosition<T>& position, long long height, std::vector<T>& line)
    {
        if (position.denserDimension() == 0)
            writeRowByLines(position, height, line);
        else
            writeRowByCells(position, height);
    }

    // The samples of a column of the row are put together first, in the order of the memory.
    template<typename T>
    void writeRowByLines(const backend::GridPosition<T>& position, long long height,
                         std::vector<T>& line)
    {
        const long long first = m_geometry.firstX.index;
        const long long width = m_geometry.xGeometries.last().index - first;
        line.assign(static_cast<std::size_t>(std::max(width, 0LL)), 0);
        position.visitRows({width, height}, [&](const T* samples, long long count, long long step) {
            detail::raise(line.data(), samples, count, step);
        });
        const T* const start = line.data() - first;
        long long x = first;
        for (const detail::Geometry& next : m_geometry.xGeometries) {
            T largest = 0;
            for (; x < next.index; ++x)
                largest = detail::greater(start[x], largest);
            write(largest);
        }
    }

    template<typename T>
    void writeRowByCells(backend::GridPosition<T> position, long long height)
    {
        long long x = m_geometry.firstX.index;
        for (const detail::Geometry& next : m_geometry.xGeometries) {
            write(detail::largestSample(position, {next.index - x, height}));
            position.move(0, next.index - x);
            x = next.index;
        }
    }

    template<typename T>
    void write(T value)
    {
        const double count = static_cast<double>(value);
        if (m_mode == Histogram2DPlotAlgorithm::LinearCounts)
            m_out.counts.push_back(count);
        else if (m_mode == Histogram2DPlotAlgorithm::LogarithmicCounts)
            m_out.counts.push_back(std::log10(count));
        m_out.colors.push_back(m_lookup.colorOf(toCount(value)));
        if (count > m_out.maxCount)
            m_out.maxCount = count;
    }

    const GeometryCacheEntry& m_geometry;
    const CountMode m_mode;
    const ui::detail::ColorLookup m_lookup;
    HistoSegment& m_out;
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
    for (const auto& segment : snapshot) {
        const int index = result.size();
        result.append(HistoSegment());
        HistoSegment& out = result.last();
        const GeometryCacheEntry geometry =
            updateCache(index, segment.metaInfo, segment.shape, request, out);
        CellWriter(geometry, mode, request.colorMap, out).writeCells(segment);
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
