#ifndef HOSTS_DATA_SIGNALSOURCE_H
#define HOSTS_DATA_SIGNALSOURCE_H

#include "hosts/data/LiveSource.h"

namespace hosts::data {

/// A made-up measurement: a beat with some noise, and a short spike every now and then. It delivers
/// 60 times a second what has become due.
class SignalSource : public LiveSource
{
public:
    /// @param rate samples in a second
    explicit SignalSource(double rate);
    ~SignalSource() override;

    /// Sample @p index, whenever it is measured.
    double valueAt(long long index) const;

protected:
    void run() override;

private:
    const double m_rate;
};

} // namespace hosts::data

#endif
