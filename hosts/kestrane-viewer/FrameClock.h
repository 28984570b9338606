#ifndef HOSTS_KESTRANE_VIEWER_FRAMECLOCK_H
#define HOSTS_KESTRANE_VIEWER_FRAMECLOCK_H

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

class QWidget;

namespace hosts::viewer {

/// Lets a widget be painted once in a refresh of its screen at most, however often something
/// changes. What comes in between is drawn with the next frame.
class FrameClock : public QObject
{
    Q_OBJECT

public:
    explicit FrameClock(QWidget* widget);

    /// Asks for a frame as soon as one is due.
    void request();

    /// A frame is being painted.
    void began() { m_sinceFrame.start(); }

private:
    int refreshInterval() const;

    QWidget* m_widget;
    QTimer m_timer;
    QElapsedTimer m_sinceFrame;
};

} // namespace hosts::viewer

#endif
