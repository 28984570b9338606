#include "tests/surfaces/PlainSurface.h"

#include <cmath>

namespace tests {

using namespace pelorin::ui::chart;

namespace {

std::size_t toCount(double value)
{
    return value >= 0x1p64 ? ~std::size_t(0) : std::size_t(value);
}

template<typename Edge, typename T>
T largest(const Grid<T>& grid, const Edge& left, const Edge& right, const Edge& lower,
          const Edge& upper)
{
    T value = 0;
    for (long long i1 = lower.index; i1 < upper.index; ++i1) {
        for (long long i0 = left.index; i0 < right.index; ++i0) {
            const T sample =
                grid.base[grid.originOffset + grid.strides[0] * i0 + grid.strides[1] * i1];
            if (sample > value)
                value = sample;
        }
    }
    return value;
}

} // namespace

void PlainSurface::cut(std::vector<Edge>& edges, const MetaInfo& metaInfo, long long limit,
                       const Axis& axis, double pixelSize)
{
    const auto positionOf = [&](long long i) {
        return axis.transform(metaInfo.scaleMode, double(i) * metaInfo.scale + metaInfo.offset);
    };
    const auto snapped = [&](double p) { return std::floor(p / pixelSize) * pixelSize; };
    edges.resize(1);
    long long j = 0;
    if (std::isnan(positionOf(0))) {
        for (j = 1; j < limit && std::isnan(positionOf(j));)
            ++j;
        if (j >= limit)
            return;
    }
    edges[0] = {snapped(positionOf(j)), j};
    std::vector<Edge> others;
    double edge = edges[0].position + pixelSize;
    long long pending = 1;
    if (j + 1 >= limit)
        return;
    for (long long i = j + 1; i <= limit; ++i) {
        const double p = positionOf(i), s = snapped(p);
        if (!std::isnan(p) && edge - s > pixelSize * 0.1) {
            ++pending;
            continue;
        }
        const bool wasAlone = pending == 1;
        if (!wasAlone)
            others.push_back({edge, i});
        if (wasAlone && !std::isnan(p)) {
            others.push_back({s, i});
            edge = s;
        }
        pending = 1;
        edge += pixelSize;
    }
    edges.insert(edges.end(), others.begin(), others.end());
}

template<typename T>
bool PlainSurface::update(Cells& cells, const Grid<T>& grid, const SurfaceRequest& request)
{
    const SurfaceRequest& old = cells.madeFor;
    if (cells.x.size() > 1 && cells.y.size() > 1 && old.xPixelSize == request.xPixelSize &&
        old.yPixelSize == request.yPixelSize && !(*old.xAxis != *request.xAxis) &&
        !(*old.yAxis != *request.yAxis) && cells.shape == grid.shape &&
        cells.metaInfo == grid.metaInfo)
        return false;
    cells.madeFor = request;
    cells.shape = grid.shape;
    cells.metaInfo = grid.metaInfo;
    cells.x.resize(1);
    cells.y.resize(1);
    cut(cells.x, grid.metaInfo[0], grid.shape[0], *request.xAxis, request.xPixelSize);
    cut(cells.y, grid.metaInfo[1], grid.shape[1], *request.yAxis, request.yPixelSize);
    return true;
}

template<typename T>
std::vector<PlainSurface::Histo>
PlainSurface::colorArrays(const Grids<T>& grids, const SurfaceRequest& request,
                          const pelorin::ui::ColorMap& map, int mode, bool& changed)
{
    std::vector<Histo> result;
    changed = request.xPixelSize == 0.0 || request.yPixelSize == 0.0;
    if (changed)
        return result;
    for (const Grid<T>& grid : grids) {
        if (m_cells.size() <= result.size())
            m_cells.emplace_back();
        Cells cells = m_cells[result.size()]; // Kept only if no axis throws.
        changed = update(cells, grid, request) || changed;
        m_cells[result.size()] = cells;
        Histo out;
        for (const Edge& edge : cells.x)
            out.xEdges.push_back(edge.position);
        for (const Edge& edge : cells.y)
            out.yEdges.push_back(edge.position);
        for (std::size_t y = 1; y < cells.y.size(); ++y) {
            for (std::size_t x = 1; x < cells.x.size(); ++x) {
                const T value =
                    largest(grid, cells.x[x - 1], cells.x[x], cells.y[y - 1], cells.y[y]);
                if (mode == 1 || mode == 2)
                    out.counts.push_back(mode == 1 ? double(value) : std::log10(double(value)));
                out.colors.push_back(map.mapToColor(toCount(double(value))));
                out.maxCount = std::max(out.maxCount, double(value));
            }
        }
        result.push_back(out);
    }
    return result;
}

std::vector<PlainSurface::Needle> PlainSurface::needles(const Grids<double>& grids,
                                                        const SurfaceRequest& request,
                                                        const QColor& start, const QColor& end)
{
    std::vector<Needle> result;
    if (request.xPixelSize == 0.0 || request.yPixelSize == 0.0)
        return result;
    double maxSum = 0.0;
    for (const Grid<double>& grid : grids) {
        const auto n = std::size_t(&grid - grids.begin());
        if (m_cells.size() <= n)
            m_cells.emplace_back();
        Cells& cells = m_cells[n];
        update(cells, grid, request);
        for (std::size_t x = 1; x < cells.x.size() && cells.y.size() > 1; ++x) {
            const Edge &left = cells.x[x - 1], &right = cells.x[x];
            const double middle = (left.position + right.position) * 0.5;
            Needle needle;
            std::vector<std::size_t> sums;
            double sum = 0.0, previous = 0.0;
            for (std::size_t y = cells.y.size() - 1; y > 0; --y) {
                const Edge &lower = cells.y[y - 1], &upper = cells.y[y];
                sum += largest(grid, left, right, lower, upper);
                if (sum != 0.0 && sum != previous) {
                    previous = sum;
                    maxSum = std::max(maxSum, sum);
                    sums.push_back(toCount(sum));
                    needle.push_back({middle, (upper.position + lower.position) * 0.5, {}});
                }
            }
            QColor color;
            for (std::size_t k = 0; k < sums.size(); ++k) {
                const double ratio = double(sums[k]) / maxSum;
                const auto mix = [&](double a, double b) { return ratio * (b - a) + a; };
                color = QColor::fromRgbF(mix(start.redF(), end.redF()),
                                         mix(start.greenF(), end.greenF()),
                                         mix(start.blueF(), end.blueF()), 1.0);
                color.setAlphaF(mix(start.alphaF(), end.alphaF()));
                needle[k].color = color;
            }
            if (!needle.empty())
                needle.push_back({middle, 0.0, color});
            result.push_back(needle);
        }
    }
    return result;
}

template std::vector<PlainSurface::Histo> PlainSurface::colorArrays(const Grids<double>&,
                                                                    const SurfaceRequest&,
                                                                    const pelorin::ui::ColorMap&,
                                                                    int, bool&);
template std::vector<PlainSurface::Histo> PlainSurface::colorArrays(const Grids<unsigned int>&,
                                                                    const SurfaceRequest&,
                                                                    const pelorin::ui::ColorMap&,
                                                                    int, bool&);

} // namespace tests
