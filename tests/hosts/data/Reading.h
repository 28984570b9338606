#ifndef TESTS_HOSTS_DATA_READING_H
#define TESTS_HOSTS_DATA_READING_H

#include "hosts/data/RecordingReader.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <ostream>
#include <string>

namespace hosts::data {

/// What readRecording() makes of small files, in one line of text.
struct Reading
{
    QTemporaryDir directory;

    QString write(const QString& name, const QByteArray& bytes) const
    {
        QFile file(directory.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            throw std::runtime_error("cannot write " + name.toStdString());
        return file.fileName();
    }

    /// Such as "v 0:0.5[1 2] 2:0.5[4]": name, offset, scale and samples of the segments; or the
    /// message of the error, without the directory.
    std::string read(const QByteArray& bytes, const ReadOptions& options = {},
                     const QString& name = QStringLiteral("file")) const
    {
        try {
            QStringList result;
            for (const Series& series : readRecording(write(name, bytes), options))
                result += shown(series);
            return result.join(QStringLiteral(" | ")).toStdString();
        } catch (const ReadError& error) {
            return withoutDirectory(error);
        }
    }

    std::string withoutDirectory(const ReadError& error) const
    {
        return QString::fromUtf8(error.what()).remove(directory.path() + '/').toStdString();
    }

    static QString shown(const Series& series)
    {
        QString text = series.name;
        for (const auto& segment : series.snapshot.segments) {
            QStringList samples;
            for (auto sample = segment.begin; sample != segment.end; ++sample)
                samples += QString::number(*sample, 'g', 10);
            text += QStringLiteral(" %1:%2[%3]")
                        .arg(segment.xInfo.offset, 0, 'g', 10)
                        .arg(segment.xInfo.scale, 0, 'g', 10)
                        .arg(samples.join(' '));
        }
        return text;
    }
};

} // namespace hosts::data

#endif
