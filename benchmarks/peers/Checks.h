#ifndef BENCHMARKS_PEERS_CHECKS_H
#define BENCHMARKS_PEERS_CHECKS_H

#include "benchmarks/peers/Peers.h"

#include <QPointF>
#include <QVector>

#include <functional>
#include <string>
#include <vector>

namespace benchmarks {

/// What of the data is in view: all of it; and where on the canvas: y upwards, pixel 0 at the top.
struct View
{
    double left, right, bottom, top;

    double pixelX(double x) const { return (x - left) / (right - left) * canvasWidth; }
    double pixelY(double y) const { return (top - y) / (top - bottom) * canvasHeight; }
};

View viewOf(const std::vector<double>& x, const std::vector<double>& y);
/// Samples, each at its index; to the right there is room for one more, so that columns share them
/// evenly.
View viewOf(const std::vector<double>& samples);

/// 0, 1, 2 ...
std::vector<double> indexesOf(const std::vector<double>& samples);

/// Whether the points of a peer's line are rounded to whole pixels, the nearest.
enum class Rounding { None, ToPixels };

/// Plain walks, to compare a peer's answer with; each says the first fault, or nothing.
/// @{

/// A column of the line has to show the least and the largest y of the points in it. A point that
/// lies on the border of two columns may be in either.
std::string faultOfLine(const QVector<QPointF>& line, Rounding rounding,
                        const std::vector<double>& x, const std::vector<double>& y);
std::string faultOfLine(const QVector<QPointF>& line, Rounding rounding,
                        const std::vector<double>& samples);

/// The natural cubic spline, at canvasWidth points, evenly from the first sample to the last.
std::string faultOfSpline(const QVector<QPointF>& curve, const std::vector<double>& samples);

/// The color that each value has got, looking at every @p step-th column and row.
std::string faultOfColors(const ColorGrid& grid, int step,
                          const std::function<QRgb(int column, int row)>& colorOf);

/// @}

} // namespace benchmarks

#endif
