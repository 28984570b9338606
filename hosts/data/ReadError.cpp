#include "hosts/data/ReadError.h"

#include <algorithm>

namespace hosts::data {

namespace {

constexpr int LongestQuotation = 40;

bool isBreakingLines(QChar c)
{
    const bool isHalfOfPair = c.isSurrogate();
    const bool isSeparator =
        c.category() == QChar::Separator_Line || c.category() == QChar::Separator_Paragraph;
    return isSeparator || !(c.isPrint() || isHalfOfPair);
}

std::string printable(QString text)
{
    std::replace_if(text.begin(), text.end(), isBreakingLines, QLatin1Char('?'));
    return text.toStdString();
}

} // namespace

ReadError::ReadError(const QString& path, const QString& problem)
    : std::runtime_error(printable(path + QLatin1String(": ") + problem))
{}

ReadError::ReadError(const QString& path, long long line, const QString& problem)
    : ReadError(path + QStringLiteral(", line %1").arg(line), problem)
{}

QString quoted(const QString& text)
{
    const QString shown =
        text.size() > LongestQuotation ? text.left(LongestQuotation) + QLatin1String("...") : text;
    return QLatin1Char('"') + shown + QLatin1Char('"');
}

} // namespace hosts::data
