#include "hosts/kestrane-chart/ProgressBar.h"

#include <cmath>
#include <cstdio>

#include <unistd.h>

namespace hosts::chart {

namespace {

constexpr int width = 30;
constexpr qint64 patience = 300; // Milliseconds before it appears.

} // namespace

ProgressBar::ProgressBar(const QString& what)
    : m_what(what)
    , m_isTerminal(isatty(STDERR_FILENO) != 0)
{
    m_time.start();
}

ProgressBar::~ProgressBar()
{
    if (m_shown >= 0)
        std::fputs("\r\033[K", stderr);
}

void ProgressBar::show(double fraction)
{
    const int percent = int(std::lround(fraction * 100.0));
    if (!m_isTerminal || percent == m_shown || m_time.elapsed() < patience)
        return;
    m_shown = percent;
    const QString bar = QString(width * percent / 100, QLatin1Char('#')).leftJustified(width);
    const QString line =
        QStringLiteral("\r[%1] %2 % %3\033[K").arg(bar).arg(percent, 3).arg(m_what);
    std::fputs(line.toUtf8().constData(), stderr);
}

} // namespace hosts::chart
