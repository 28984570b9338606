#include "hosts/data/LiveSource.h"

#include <exception>
#include <new>
#include <utility>

namespace hosts::data {

LiveSource::~LiveSource()
{
    stop();
}

void LiveSource::start()
{
    m_thread = std::thread([this] { runToEnd(); });
}

std::shared_ptr<const LiveRecording> LiveSource::recording() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_recording;
}

QString LiveSource::failure() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_failure;
}

void LiveSource::setRecording(std::shared_ptr<const LiveRecording> recording)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_recording = std::move(recording);
}

void LiveSource::stop()
{
    m_mustStop = true;
    if (m_thread.joinable())
        m_thread.join();
}

void LiveSource::runToEnd()
{
    QString failure;
    try {
        run();
    } catch (const std::bad_alloc&) {
        failure = QStringLiteral("not enough memory for more samples");
    } catch (const std::exception& error) {
        failure = QString::fromUtf8(error.what());
    }
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_failure = failure;
    m_hasEnded = true;
}

} // namespace hosts::data
