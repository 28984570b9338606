#include "hosts/charting/SurfaceImage.h"

#include <algorithm>
#include <cmath>
#include <new>

namespace hosts::charting {

using pelorin::ui::chart::Histogram2DPlotAlgorithm;
using pelorin::ui::chart::NeedlePlot2DAlgorithm;

namespace {

int pixelAt(double position, double pixelSize, int end)
{
    const double pixel = position / pixelSize;
    return pixel > 0.0 ? int(std::lround(std::min(pixel, double(end)))) : 0;
}

double leastDistance(const SurfaceImage::Needles& needles)
{
    QVector<double> places;
    for (const auto& needle : needles) {
        if (!needle.isEmpty())
            places.append(needle.first().x);
    }
    std::sort(places.begin(), places.end());
    double least = 1.0;
    for (int i = 1; i < places.size(); ++i)
        least = std::min(least, places[i] - places[i - 1]);
    return least;
}

} // namespace

SurfaceImage::SurfaceImage(const QSize& size, double xPixelSize, double yPixelSize)
    : m_image(size, QImage::Format_ARGB32_Premultiplied)
    , m_xPixelSize(xPixelSize)
    , m_yPixelSize(yPixelSize)
{
    if (m_image.isNull())
        throw std::bad_alloc();
    m_image.fill(Qt::transparent);
}

void SurfaceImage::paint(const Segments& segments)
{
    for (const auto& segment : segments) {
        auto color = segment.colors.begin();
        for (std::size_t y = 1; y < segment.yEdges.size() && color != segment.colors.end(); ++y) {
            for (std::size_t x = 1; x < segment.xEdges.size(); ++x, ++color)
                fill(column(segment.xEdges[x - 1]), column(segment.xEdges[x]),
                     row(segment.yEdges[y - 1]), row(segment.yEdges[y]), *color);
        }
    }
}

void SurfaceImage::paint(const Needles& needles, int widest)
{
    const double room = 0.6 * leastDistance(needles) / m_xPixelSize;
    const int width = std::clamp(int(room), 1, widest);
    for (const auto& needle : needles) {
        for (int i = 1; i < needle.size(); ++i) {
            const int left = int(
                std::floor(std::clamp(needle[i].x / m_xPixelSize, -1e6, 1e6) - width / 2.0 + 0.5));
            const int right = std::clamp(left + width, 0, m_image.width());
            fill(std::clamp(left, 0, right), right, row(needle[i].y), row(needle[i - 1].y),
                 needle[i - 1].color);
        }
    }
}

int SurfaceImage::column(double position) const
{
    return pixelAt(position, m_xPixelSize, m_image.width());
}

int SurfaceImage::row(double position) const
{
    return pixelAt(position, m_yPixelSize, m_image.height());
}

void SurfaceImage::fill(int left, int right, int bottom, int top, const QColor& color)
{
    const QRgb pixel = qPremultiply(color.rgba());
    if (qAlpha(pixel) == 0)
        return;
    for (int y = m_image.height() - top; y < m_image.height() - bottom; ++y) {
        auto* const line = reinterpret_cast<QRgb*>(m_image.scanLine(y));
        std::fill(line + left, line + std::max(left, right), pixel);
    }
}

} // namespace hosts::charting
