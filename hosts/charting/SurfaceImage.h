#ifndef HOSTS_CHARTING_SURFACEIMAGE_H
#define HOSTS_CHARTING_SURFACEIMAGE_H

#include <kestrane/surfaces/Histogram2DPlotAlgorithm.h>
#include <kestrane/surfaces/NeedlePlot2DAlgorithm.h>

#include <QImage>
#include <QRectF>
#include <QSize>
#include <QVector>

namespace hosts::charting {

/// Two-dimensional data as pixels of a plot, its upper left one first. Every pixel has one colour
/// whole or none, so that there are no seams between cells. In a class of its own as painters
/// smooth the edges of rectangles, and vector formats would have to list as many.
class SurfaceImage
{
public:
    using Segments = QVector<pelorin::ui::chart::Histogram2DPlotAlgorithm::HistoSegment>;
    using Needles = QVector<QVector<pelorin::ui::chart::NeedlePlot2DAlgorithm::ColoredPoint>>;

    /// @param size in pixels
    /// @param xPixelSize,yPixelSize of a pixel in axis space
    SurfaceImage(const QSize& size, double xPixelSize, double yPixelSize);

    void paint(const Segments& segments);

    /// Sticks of the width of three fifths of the distance of two at the least, where that is more
    /// than a pixel. From a point down to the next one they have the colour of the upper one.
    /// @param widest in pixels
    void paint(const Needles& needles, int widest);

    const QImage& image() const { return m_image; }

private:
    int column(double position) const;
    int row(double position) const;
    void fill(int left, int right, int bottom, int top, const QColor& color);

    QImage m_image;
    double m_xPixelSize;
    double m_yPixelSize;
};

} // namespace hosts::charting

#endif
