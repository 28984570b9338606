#ifndef HOSTS_KESTRANE_CHART_WORKERROR_H
#define HOSTS_KESTRANE_CHART_WORKERROR_H

#include <QString>

#include <stdexcept>

namespace hosts::chart {

/// What was asked for cannot be done with these data or on this disk; the message is one line.
class WorkError : public std::runtime_error
{
public:
    explicit WorkError(const QString& message)
        : std::runtime_error(message.toStdString())
    {}
};

} // namespace hosts::chart

#endif
