#ifndef HOSTS_KESTRANE_VIEWER_LIVEFEED_H
#define HOSTS_KESTRANE_VIEWER_LIVEFEED_H

#include "hosts/data/LiveSource.h"
#include "hosts/kestrane-viewer/ChartWidget.h"
#include "hosts/kestrane-viewer/ViewerOptions.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>

namespace hosts::viewer {

/// Brings what a source measures into a chart: the newest snapshot whenever the window has time for
/// a frame. The source does not wait for that, and what came meanwhile is in the next snapshot.
class LiveFeed : public QObject
{
    Q_OBJECT

public:
    /// What takes the first chart, and gives it to the widget.
    using Show = std::function<void(std::unique_ptr<ChartModel>)>;

    LiveFeed(const ViewerOptions& options, ChartWidget& chart, Show show);
    ~LiveFeed() override;

    /// Whether the chart keeps the newest samples in view.
    bool isFollowing() const { return m_isFollowing; }
    void setFollowing(bool isFollowing);

    const data::LiveSource& source() const { return *m_source; }

Q_SIGNALS:
    void followingChanged(bool isFollowing);
    void progressed(const QString& message);

private:
    void poll();
    void takeNews();
    void follow();
    void update(const data::LiveRecording& recording);

    ViewerOptions m_options;
    ChartWidget& m_chart;
    Show m_show;
    std::unique_ptr<data::LiveSource> m_source;
    QTimer m_timer;
    long long m_rows = 0; // Shown so far.
    bool m_isFollowing = true;
    bool m_followsY = true;
};

} // namespace hosts::viewer

#endif
