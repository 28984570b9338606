#include "hosts/kestrane-viewer/LiveFeed.h"

#include "hosts/data/LineSource.h"
#include "hosts/data/SignalSource.h"

#include <QLocale>

#include <algorithm>
#include <exception>
#include <utility>

namespace hosts::viewer {

namespace {

constexpr int frameInterval = 16; // Milliseconds: 60 snapshots in a second at most.

std::unique_ptr<data::LiveSource> sourceOf(const ViewerOptions& options)
{
    if (options.live == QLatin1String("signal"))
        return std::make_unique<data::SignalSource>(options.rate);
    return std::make_unique<data::LineSource>(options.live, options.chart.read);
}

bool hasSamples(const std::vector<data::Series>& series)
{
    return std::any_of(series.begin(), series.end(),
                       [](const data::Series& one) { return !one.snapshot.segments.empty(); });
}

} // namespace

LiveFeed::LiveFeed(const ViewerOptions& options, ChartWidget& chart, Show show)
    : m_options(options)
    , m_chart(chart)
    , m_show(std::move(show))
    , m_source(sourceOf(options))
{
    connect(&m_timer, &QTimer::timeout, this, &LiveFeed::poll);
    connect(&chart, &ChartWidget::moved, this, [this](bool x, bool y) {
        m_followsY = m_followsY && !y;
        if (x)
            setFollowing(false);
    });
    connect(&chart, &ChartWidget::fitted, this, [this] { m_followsY = true; });
    m_source->start();
    m_timer.start(frameInterval);
}

LiveFeed::~LiveFeed() = default;

void LiveFeed::setFollowing(bool isFollowing)
{
    if (isFollowing == m_isFollowing)
        return;
    m_isFollowing = isFollowing;
    m_followsY = m_followsY || isFollowing;
    if (isFollowing)
        follow();
    Q_EMIT followingChanged(isFollowing);
}

void LiveFeed::poll()
{
    try {
        takeNews();
    } catch (const std::exception& error) { // The chart stays as it is.
        m_timer.stop();
        Q_EMIT progressed(QString::fromUtf8(error.what()));
    }
}

// The end is asked for first: what came before it is in the recording then.
void LiveFeed::takeNews()
{
    const bool hasEnded = m_source->hasEnded();
    const auto recording = m_source->recording();
    if (recording)
        update(*recording);
    if (!hasEnded) {
        if (!m_rows)
            Q_EMIT progressed(tr("Waiting for data"));
        return;
    }
    m_timer.stop();
    const QString failure = m_source->failure();
    Q_EMIT progressed(failure.isEmpty()
                          ? tr("No more data after %1 rows").arg(QLocale().toString(m_rows))
                          : failure);
}

void LiveFeed::follow()
{
    ChartModel* const model = m_chart.model();
    if (!model || m_chart.isDragging())
        return;
    try {
        model->scrollToLast();
        if (m_followsY)
            model->keepInSight();
    } catch (const std::exception& error) {
        Q_EMIT progressed(QString::fromUtf8(error.what()));
    }
}

void LiveFeed::update(const data::LiveRecording& recording)
{
    const long long rows = recording.rows();
    if (rows == m_rows)
        return;
    std::vector<data::Series> series = recording.series();
    if (!hasSamples(series))
        return;
    if (!m_chart.model()) {
        chart::Recordings recordings;
        recordings.series = std::move(series);
        m_show(std::make_unique<ChartModel>(m_options.chart, std::move(recordings)));
        m_chart.model()->showLast(m_options.seconds);
    } else {
        m_chart.model()->setSeries(std::move(series));
    }
    m_rows = rows;
    if (m_isFollowing)
        follow();
    m_chart.refresh();
    Q_EMIT progressed(tr("Live: %1 rows").arg(QLocale().toString(m_rows)));
}

} // namespace hosts::viewer
