#include "hosts/kestrane-chart/PictureFile.h"

#include "hosts/kestrane-chart/UsageError.h"
#include "hosts/kestrane-chart/WorkError.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImage>
#include <QPageSize>
#include <QPdfWriter>
#include <QSaveFile>
#include <QSvgGenerator>

#include <cmath>
#include <new>

namespace hosts::chart {

namespace {

constexpr double logicalDpi = 96.0;
constexpr int pdfDpi = 1200; // Fineness of the coordinates; nothing else depends on it.

void run(QPaintDevice& device, double scale, const std::function<void(QPainter&)>& paint,
         const QString& path)
{
    QPainter painter;
    if (!painter.begin(&device))
        throw WorkError(QStringLiteral("%1: the picture cannot be drawn").arg(path));
    painter.scale(scale, scale);
    paint(painter);
    painter.end();
}

// A disk that gets full takes some of the bytes, and says why when it is to take the rest. A buffer
// would keep that to itself, so the file must have none.
bool writeAll(QIODevice& file, const QByteArray& bytes)
{
    qint64 written = 0;
    while (written < bytes.size()) {
        const qint64 part = file.write(bytes.constData() + written, bytes.size() - written);
        if (part <= 0)
            return false;
        written += part;
    }
    return true;
}

} // namespace

PictureFile::Format PictureFile::formatOf(const QString& path)
{
    const QString ending = QFileInfo(path).suffix().toLower();
    if (ending == QLatin1String("png"))
        return Format::Png;
    if (ending == QLatin1String("svg"))
        return Format::Svg;
    if (ending == QLatin1String("pdf"))
        return Format::Pdf;
    throw UsageError(QStringLiteral("%1: the name must end in .png, .svg or .pdf").arg(path));
}

PictureFile::PictureFile(const QString& path, const QSize& size, double dpi, const QString& title)
    : m_path(path)
    , m_format(formatOf(path))
    , m_size(size)
    , m_dpi(dpi)
    , m_title(title)
{
    const QFileInfo file(path);
    if (!QFileInfo(file.path()).isDir())
        throw WorkError(QStringLiteral("%1: there is no such folder").arg(file.path()));
    if (file.exists() && !file.isFile())
        throw WorkError(QStringLiteral("%1: is there and is no file").arg(path));
}

void PictureFile::write(const Paint& paint) const
{
    const QByteArray picture = bytes(paint);
    QSaveFile file(m_path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || !writeAll(file, picture) ||
        !file.commit())
        throw WorkError(
            QStringLiteral("%1: cannot be written: %2").arg(m_path, file.errorString()));
}

QByteArray PictureFile::bytes(const Paint& paint) const
{
    switch (m_format) {
    case Format::Png:
        return png(paint);
    case Format::Svg:
        return svg(paint);
    case Format::Pdf:
        break;
    }
    return pdf(paint);
}

QByteArray PictureFile::png(const Paint& paint) const
{
    const double scale = m_dpi / logicalDpi;
    const auto pixels = [&](int length) { return int(std::lround(length * scale)); };
    QImage image(pixels(m_size.width()), pixels(m_size.height()), QImage::Format_RGB32);
    if (image.isNull())
        throw std::bad_alloc();
    const int dotsPerMetre = int(std::lround(m_dpi / 0.0254));
    image.setDotsPerMeterX(dotsPerMetre);
    image.setDotsPerMeterY(dotsPerMetre);
    if (!m_title.isEmpty())
        image.setText(QStringLiteral("Title"), m_title);
    run(
        image, scale, [&](QPainter& painter) { paint(painter, scale); }, m_path);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!buffer.open(QIODevice::WriteOnly) || !image.save(&buffer, "PNG"))
        throw WorkError(QStringLiteral("%1: the picture cannot be encoded").arg(m_path));
    return bytes;
}

QByteArray PictureFile::svg(const Paint& paint) const
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setResolution(int(logicalDpi));
    generator.setSize(m_size);
    generator.setViewBox(QRect(QPoint(0, 0), m_size));
    generator.setTitle(m_title.toHtmlEscaped()); // It is written as it is.
    run(
        generator, 1.0, [&](QPainter& painter) { paint(painter, 0.0); }, m_path);
    return bytes;
}

QByteArray PictureFile::pdf(const Paint& paint) const
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    const QSizeF points = QSizeF(m_size) * (72.0 / logicalDpi);
    writer.setPageSize(QPageSize(points, QPageSize::Point, QString(), QPageSize::ExactMatch));
    writer.setPageMargins(QMarginsF());
    writer.setResolution(pdfDpi);
    writer.setTitle(m_title);
    writer.setCreator(QStringLiteral("kestrane-chart"));
    run(
        writer, pdfDpi / logicalDpi, [&](QPainter& painter) { paint(painter, 0.0); }, m_path);
    return bytes;
}

} // namespace hosts::chart
