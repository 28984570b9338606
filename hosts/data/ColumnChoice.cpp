#include "hosts/data/ColumnChoice.h"

#include "hosts/data/CellNumber.h"
#include "hosts/data/ReadError.h"
#include "hosts/data/TimeGrid.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace hosts::data {

namespace {

constexpr std::size_t LeastRegularRows = 3;
constexpr int MostNamesListed = 12;

QString listOf(const QStringList& names)
{
    QStringList shown;
    for (const QString& name : names.mid(0, MostNamesListed))
        shown += quoted(name);
    const auto left = names.size() - shown.size();
    return shown.join(QLatin1String(", ")) +
           (left > 0 ? QStringLiteral(" and %1 more").arg(left) : QString());
}

std::vector<int> columnsCalled(const QString& name, const QStringList& names,
                               Qt::CaseSensitivity sensitivity)
{
    std::vector<int> result;
    for (int column = 0; column < names.size(); ++column) {
        if (names[column].compare(name, sensitivity) == 0)
            result.push_back(column);
    }
    return result;
}

int findColumn(const QString& path, const QString& wanted, const QStringList& names)
{
    std::vector<int> columns = columnsCalled(wanted, names, Qt::CaseSensitive);
    if (columns.empty())
        columns = columnsCalled(wanted, names, Qt::CaseInsensitive);
    if (columns.size() > 1)
        throw ReadError(path, QStringLiteral("%1 columns are called %2; give the number of one")
                                  .arg(columns.size())
                                  .arg(quoted(wanted)));
    if (columns.size() == 1)
        return columns.front();
    bool isNumber = false;
    const int number = wanted.toInt(&isNumber);
    if (isNumber && number >= 1 && number <= names.size())
        return number - 1;
    throw ReadError(path, QStringLiteral("no column %1; there are %2: %3")
                              .arg(quoted(wanted))
                              .arg(names.size())
                              .arg(listOf(names)));
}

bool isCalledLikeATime(const QString& name)
{
    // A capital T is more often a temperature.
    static const QRegularExpression pattern(
        QStringLiteral("^(t|(?i:time|times|timestamp|elapsed|seconds?|secs?))([\\W_].*)?$"));
    return pattern.match(name).hasMatch();
}

bool isRegular(const CsvHead& head, int column)
{
    const std::vector<std::string> cells = head.cells(column);
    TimeGrid grid(cells, head.decimalPoint);
    const bool isAllRegular = std::all_of(cells.begin(), cells.end(), [&](const std::string& cell) {
        const double time = cellNumber(cell, head.decimalPoint);
        return !std::isnan(time) && grid.put(time, cell) == TimeGrid::Regular;
    });
    return cells.size() >= LeastRegularRows && isAllRegular && grid.grid().jumps.empty();
}

std::optional<int> chooseTime(const QString& path, const CsvHead& head, const QString& wanted)
{
    if (wanted == QLatin1String("none"))
        return std::nullopt;
    if (!wanted.isEmpty())
        return findColumn(path, wanted, head.names);
    const bool isTime =
        head.names.size() > 1 && (isCalledLikeATime(head.names[0]) || isRegular(head, 0));
    return isTime ? std::optional<int>(0) : std::nullopt;
}

} // namespace

ColumnChoice chooseColumns(const QString& path, const CsvHead& head, const ReadOptions& options)
{
    ColumnChoice choice;
    choice.time = chooseTime(path, head, options.timeColumn);
    choice.isAskedFor = !options.columns.isEmpty();
    for (const QString& wanted : options.columns) {
        const int column = findColumn(path, wanted, head.names);
        if (std::find(choice.values.begin(), choice.values.end(), column) == choice.values.end())
            choice.values.push_back(column);
    }
    for (int column = 0; !choice.isAskedFor && column < head.names.size(); ++column) {
        if (column != choice.time)
            choice.values.push_back(column);
    }
    return choice;
}

} // namespace hosts::data
