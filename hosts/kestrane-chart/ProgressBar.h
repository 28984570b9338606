#ifndef HOSTS_KESTRANE_CHART_PROGRESSBAR_H
#define HOSTS_KESTRANE_CHART_PROGRESSBAR_H

#include <QElapsedTimer>
#include <QString>

namespace hosts::chart {

/// A line on the terminal that shows how far a long job is. Silent when the errors don't go to a
/// terminal and while the job is short; gone without a trace when destroyed.
class ProgressBar
{
public:
    explicit ProgressBar(const QString& what);
    ~ProgressBar();
    ProgressBar(const ProgressBar&) = delete;
    ProgressBar& operator=(const ProgressBar&) = delete;

    /// @param fraction what is done, 0.0 to 1.0
    void show(double fraction);

private:
    QString m_what;
    QElapsedTimer m_time;
    bool m_isTerminal;
    int m_shown = -1; // Per cent, or nothing yet.
};

} // namespace hosts::chart

#endif
