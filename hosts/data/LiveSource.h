#ifndef HOSTS_DATA_LIVESOURCE_H
#define HOSTS_DATA_LIVESOURCE_H

#include "hosts/data/LiveRecording.h"

#include <QString>

#include <atomic>
#include <memory>
#include <mutex>
#include <thread>

namespace hosts::data {

/// Measures on a thread of its own, from start() until it dies or there is nothing more to come.
class LiveSource
{
public:
    LiveSource() = default;
    virtual ~LiveSource();
    LiveSource(const LiveSource&) = delete;
    LiveSource& operator=(const LiveSource&) = delete;

    void start();

    /// What has been measured so far; null as long as the source does not know its columns. Any
    /// thread.
    std::shared_ptr<const LiveRecording> recording() const;

    /// Whether no more samples will come.
    bool hasEnded() const { return m_hasEnded; }

    /// Why they don't, if there is a reason; one line.
    QString failure() const;

protected:
    /// The work of the thread, until mustStop().
    virtual void run() = 0;

    bool mustStop() const { return m_mustStop; }
    void setRecording(std::shared_ptr<const LiveRecording> recording);

    /// Ends the thread. Each class that has a run() calls it in its destructor.
    void stop();

private:
    void runToEnd();

    std::thread m_thread;
    std::atomic<bool> m_mustStop{false};
    std::atomic<bool> m_hasEnded{false};
    mutable std::mutex m_mutex;
    std::shared_ptr<const LiveRecording> m_recording;
    QString m_failure;
};

} // namespace hosts::data

#endif
