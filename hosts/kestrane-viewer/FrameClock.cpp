#include "hosts/kestrane-viewer/FrameClock.h"

#include <QScreen>
#include <QWidget>
#include <QWindow>

#include <algorithm>
#include <cmath>

namespace hosts::viewer {

FrameClock::FrameClock(QWidget* widget)
    : m_widget(widget)
{
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, widget, qOverload<>(&QWidget::update));
}

void FrameClock::request()
{
    if (m_timer.isActive())
        return;
    const int elapsed =
        m_sinceFrame.isValid() ? int(std::min<qint64>(m_sinceFrame.elapsed(), 1000)) : 1000;
    m_timer.start(std::max(refreshInterval() - elapsed, 0));
}

int FrameClock::refreshInterval() const
{
    constexpr double usualRate = 60.0;
    const QWindow* const window = m_widget->window()->windowHandle();
    const double rate = window && window->screen() ? window->screen()->refreshRate() : usualRate;
    return int(std::ceil(1000.0 / (rate > 1.0 ? rate : usualRate)));
}

} // namespace hosts::viewer
