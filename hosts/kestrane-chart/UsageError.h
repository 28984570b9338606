#ifndef HOSTS_KESTRANE_CHART_USAGEERROR_H
#define HOSTS_KESTRANE_CHART_USAGEERROR_H

#include <QString>

#include <stdexcept>

namespace hosts::chart {

/// The command line asks for something that there is not; the message is one line.
class UsageError : public std::runtime_error
{
public:
    explicit UsageError(const QString& message)
        : std::runtime_error(message.toStdString())
    {}
};

} // namespace hosts::chart

#endif
