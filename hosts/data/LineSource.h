#ifndef HOSTS_DATA_LINESOURCE_H
#define HOSTS_DATA_LINESOURCE_H

#include "hosts/data/LiveSource.h"
#include "hosts/data/ReadOptions.h"

#include <QString>

#include <string>

namespace hosts::data {

/// Rows of a table as they are written: by a file that grows, or by what writes to the standard
/// input. The first two lines tell the columns, as those of a whole file do. Rows lie at equal
/// distances, at the start and step of the options; a cell without a number is a gap.
class LineSource : public LiveSource
{
public:
    /// @param path "-" for the standard input
    LineSource(const QString& path, const ReadOptions& options);
    ~LineSource() override;

protected:
    void run() override;

private:
    class Input;
    class Rows;

    bool readHead(Input& input, std::string& bytes) const;

    const QString m_path;
    const ReadOptions m_options;
};

} // namespace hosts::data

#endif
