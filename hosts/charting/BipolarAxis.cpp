#include "hosts/charting/BipolarAxis.h"

#include <kestrane/axes/LogAxis.h>
#include <kestrane/axes/MirroredAxis.h>

#include <cmath>

namespace hosts::charting {

using pelorin::ui::chart::AggregateAxis;
using pelorin::ui::chart::LogAxis;
using pelorin::ui::chart::MirroredAxis;

namespace {

constexpr double jointPosition = 0.5;

} // namespace

BipolarAxis::BipolarAxis(double joint, double outer)
    : m_upper(new LogAxis(joint, outer, this))
{
    addAxis(new MirroredAxis(m_upper, this), 0.0, jointPosition);
    addAxis(m_upper, jointPosition, 1.0);
    setAnchor(jointPosition);
}

double BipolarAxis::transform(ScaleMode mode, double value) const
{
    const double plain = mode == Logarithmic ? std::pow(10.0, value) : value;
    if (std::abs(plain) < m_upper->smallest())
        return jointPosition;
    return AggregateAxis::transform(Linear, plain);
}

BipolarAxis* BipolarAxis::clone() const
{
    return new BipolarAxis(m_upper->smallest(), m_upper->largest());
}

} // namespace hosts::charting
