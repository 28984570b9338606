#ifndef HOSTS_DATA_RECORDINGFILE_H
#define HOSTS_DATA_RECORDINGFILE_H

#include "hosts/data/CsvHead.h"
#include "hosts/data/CsvSink.h"
#include "hosts/data/RecordingReader.h"

#include <QFile>

namespace hosts::data {

/// A file of measured data, open for reading.
class RecordingFile
{
public:
    /// @throws ReadError if @p path is no regular file, cannot be read or is empty
    explicit RecordingFile(const QString& path);

    QString path() const { return m_file.fileName(); }

    /// Whether it is a sound rather than a table.
    bool isSound();

    /// What the first lines of a table tell.
    /// @throws ReadError when this is no table or has no rows
    CsvHead tableHead();

    /// Passes all rows to @p sink, that of names among them.
    /// @throws ReadError, and what the sink throws
    void readTable(const CsvHead& head, CsvSink& sink, const Progress& progress);

private:
    QByteArray readChunk();

    QFile m_file;
};

} // namespace hosts::data

#endif
