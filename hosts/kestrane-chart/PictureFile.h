#ifndef HOSTS_KESTRANE_CHART_PICTUREFILE_H
#define HOSTS_KESTRANE_CHART_PICTUREFILE_H

#include <QByteArray>
#include <QPainter>
#include <QSize>
#include <QString>

#include <functional>

namespace hosts::chart {

/// The file that a picture goes to. It appears whole or not at all.
class PictureFile
{
public:
    enum class Format { Png, Svg, Pdf };

    /// Draws with a painter whose unit is a logical pixel.
    /// @param deviceScale device pixels in one, 0.0 where there are none
    using Paint = std::function<void(QPainter& painter, double deviceScale)>;

    /// The format that the ending of @p path stands for.
    /// @throws UsageError if it is none that can be written
    static Format formatOf(const QString& path);

    /// @throws UsageError as formatOf(), WorkError if there is no folder for @p path
    PictureFile(const QString& path, const QSize& size, double dpi, const QString& title);

    /// @throws WorkError if the picture cannot be drawn or the file not be written
    void write(const Paint& paint) const;

private:
    QByteArray png(const Paint& paint) const;
    QByteArray svg(const Paint& paint) const;
    QByteArray pdf(const Paint& paint) const;
    QByteArray bytes(const Paint& paint) const;

    QString m_path;
    Format m_format;
    QSize m_size;
    double m_dpi;
    QString m_title;
};

} // namespace hosts::chart

#endif
