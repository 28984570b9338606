#include "hosts/data/RecordingFile.h"

#include "hosts/data/AudioReader.h"
#include "hosts/data/CsvParser.h"

#include <QFileInfo>

#include <algorithm>

namespace hosts::data {

namespace {

constexpr qint64 ChunkSize = qint64(1) << 18;

std::string_view viewOf(const QByteArray& bytes)
{
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

void checkFile(const QString& path)
{
    const QFileInfo info(path);
    if (!info.exists())
        throw ReadError(path, QStringLiteral("there is no such file"));
    if (info.isDir())
        throw ReadError(path, QStringLiteral("is a directory, not a file"));
    if (!info.isFile())
        throw ReadError(path, QStringLiteral("is a device or a pipe, not a regular file"));
    if (info.size() == 0)
        throw ReadError(path, QStringLiteral("is empty"));
}

} // namespace

RecordingFile::RecordingFile(const QString& path)
    : m_file(path)
{
    checkFile(path);
    if (!m_file.open(QIODevice::ReadOnly))
        throw ReadError(path, m_file.errorString());
}

bool RecordingFile::isSound()
{
    return isAudio(path(), m_file.peek(AudioMagicSize));
}

QByteArray RecordingFile::readChunk()
{
    const QByteArray chunk = m_file.read(ChunkSize);
    if (chunk.isEmpty() && m_file.error() != QFileDevice::NoError)
        throw ReadError(path(), m_file.errorString());
    return chunk;
}

CsvHead RecordingFile::tableHead()
{
    const QByteArray beginning = readChunk();
    return readCsvHead(path(), viewOf(beginning), beginning.size() == m_file.size());
}

void RecordingFile::readTable(const CsvHead& head, CsvSink& sink, const Progress& progress)
{
    CsvParser parser(path(), head.separator, head.line, sink);
    m_file.seek(head.begin);
    for (QByteArray chunk = readChunk(); !chunk.isEmpty(); chunk = readChunk()) {
        parser.feed(viewOf(chunk));
        const double size = static_cast<double>(std::max(m_file.size(), m_file.pos()));
        progress(static_cast<double>(m_file.pos()) / size);
    }
    parser.finish();
}

} // namespace hosts::data
