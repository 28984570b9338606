#include "hosts/data/LineSource.h"

#include "hosts/data/CellNumber.h"
#include "hosts/data/ColumnChoice.h"
#include "hosts/data/CsvHead.h"
#include "hosts/data/CsvParser.h"
#include "hosts/data/CsvSink.h"
#include "hosts/data/ReadError.h"

#include <QFile>

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cmath>
#include <cstring>
#include <limits>
#include <string_view>
#include <thread>
#include <vector>

namespace hosts::data {

namespace {

constexpr int waitInMilliseconds = 20;
constexpr std::size_t mostAtOnce = 1 << 18;

std::vector<int> columnsWithNumbers(const CsvHead& head, const ColumnChoice& choice)
{
    if (choice.isAskedFor)
        return choice.values;
    std::vector<int> columns;
    for (const int column : choice.values) {
        const std::vector<std::string> cells = head.cells(column);
        if (std::any_of(cells.begin(), cells.end(), [&](const std::string& cell) {
                return !std::isnan(cellNumber(cell, head.decimalPoint));
            }))
            columns.push_back(column);
    }
    return columns.empty() ? choice.values : columns;
}

} // namespace

// Bytes that come when they like.
class LineSource::Input
{
public:
    explicit Input(const QString& path)
        : m_path(path)
        , m_file(path == QLatin1String("-") ? STDIN_FILENO
                                            : ::open(QFile::encodeName(path), O_RDONLY | O_CLOEXEC))
    {
        if (m_file < 0)
            fail();
        struct stat about;
        m_grows = fstat(m_file, &about) == 0 && S_ISREG(about.st_mode);
    }

    ~Input()
    {
        if (m_file != STDIN_FILENO)
            ::close(m_file);
    }

    Input(const Input&) = delete;
    Input& operator=(const Input&) = delete;

    /// Appends what there is to @p bytes, after a short wait if there is nothing.
    /// @return false when nothing more will come
    bool read(std::string& bytes)
    {
        pollfd ready{m_file, POLLIN, 0};
        if (!m_grows && poll(&ready, 1, waitInMilliseconds) == 0)
            return true;
        const std::size_t before = bytes.size();
        bytes.resize(before + mostAtOnce);
        const ssize_t count = ::read(m_file, &bytes[before], mostAtOnce);
        bytes.resize(before + static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
        if (count < 0 && errno != EINTR && errno != EAGAIN)
            fail();
        if (count == 0 && m_grows)
            waitForMore();
        return count != 0 || m_grows;
    }

private:
    // Who begins the file anew writes another recording.
    void waitForMore() const
    {
        struct stat about;
        if (fstat(m_file, &about) == 0 && about.st_size < lseek(m_file, 0, SEEK_CUR))
            throw ReadError(m_path, QStringLiteral("the file has become shorter"));
        std::this_thread::sleep_for(std::chrono::milliseconds(waitInMilliseconds));
    }

    [[noreturn]] void fail() const
    {
        throw ReadError(m_path, QString::fromLocal8Bit(std::strerror(errno)));
    }

    const QString m_path;
    const int m_file;
    bool m_grows = false;
};

// The rows of some columns, which go into a recording by the lot.
class LineSource::Rows : public CsvSink
{
public:
    Rows(const CsvHead& head, const std::vector<int>& columns)
        : m_decimalPoint(head.decimalPoint)
        , m_isAtNames(head.hasNames)
        , m_slots(static_cast<std::size_t>(head.names.size()), -1)
        , m_row(columns.size(), gap)
    {
        for (std::size_t k = 0; k < columns.size(); ++k)
            m_slots[static_cast<std::size_t>(columns[k])] = static_cast<int>(k);
    }

    void cell(std::string_view text) override
    {
        const std::size_t index = m_cell++;
        if (!m_isAtNames && index < m_slots.size() && m_slots[index] >= 0)
            m_row[static_cast<std::size_t>(m_slots[index])] = cellNumber(text, m_decimalPoint);
    }

    void endRow(long long) override
    {
        m_cell = 0;
        if (!m_isAtNames)
            m_values.insert(m_values.end(), m_row.begin(), m_row.end());
        m_isAtNames = false;
        std::fill(m_row.begin(), m_row.end(), gap);
    }

    void moveTo(LiveRecording& recording)
    {
        recording.append(m_values.data(), m_values.size() / m_row.size());
        m_values.clear();
    }

private:
    static constexpr double gap = std::numeric_limits<double>::quiet_NaN();

    const char m_decimalPoint;
    bool m_isAtNames;
    std::vector<int> m_slots; // For each column of the table its place in a row, or -1.
    std::vector<double> m_row;
    std::vector<double> m_values;
    std::size_t m_cell = 0;
};

LineSource::LineSource(const QString& path, const ReadOptions& options)
    : m_path(path)
    , m_options(options)
{}

LineSource::~LineSource()
{
    stop();
}

void LineSource::run()
{
    Input input(m_path);
    std::string bytes;
    if (!readHead(input, bytes))
        return;
    const std::size_t lines = bytes.rfind('\n') + 1;
    const CsvHead head = readCsvHead(m_path, {bytes.data(), lines}, true);
    const std::vector<int> columns =
        columnsWithNumbers(head, chooseColumns(m_path, head, m_options));
    QStringList names;
    for (const int column : columns)
        names.append(head.names[column]);
    const auto recording = std::make_shared<LiveRecording>(names, m_options.start.value_or(0.0),
                                                           m_options.step.value_or(1.0));
    Rows rows(head, columns);
    CsvParser parser(m_path, head.separator, head.line, rows);
    bytes.erase(0, static_cast<std::size_t>(head.begin));
    setRecording(recording);
    bool goesOn = true;
    while (goesOn && !mustStop()) {
        parser.feed(bytes);
        rows.moveTo(*recording);
        bytes.clear();
        goesOn = input.read(bytes);
    }
    if (!goesOn) {
        parser.finish();
        rows.moveTo(*recording);
    }
}

// Two lines, one of which may be names; or all that there is.
bool LineSource::readHead(Input& input, std::string& bytes) const
{
    constexpr std::size_t longestHead = 1 << 20;
    while (std::count(bytes.begin(), bytes.end(), '\n') < 2) {
        if (mustStop())
            return false;
        if (bytes.size() > longestHead)
            throw ReadError(m_path, QStringLiteral("there are no lines"));
        if (!input.read(bytes)) {
            bytes += '\n';
            break;
        }
    }
    return true;
}

} // namespace hosts::data
