#ifndef TESTS_SUPPORT_BUILDERS_H
#define TESTS_SUPPORT_BUILDERS_H

#include "kestrane/axes/LinearAxis.h"
#include "kestrane/backend/PlotSnapshot.h"

#include <QPointF>
#include <QSharedPointer>
#include <QVector>

#include <boost/make_shared.hpp>

#include <algorithm>
#include <cmath>
#include <functional>
#include <initializer_list>
#include <utility>
#include <vector>

namespace tests {

using pelorin::ui::chart::Axis;

inline pelorin::backend::PlotSegment segment(const std::vector<double>& samples,
                                             double offset = 0.0, double scale = 1.0,
                                             Axis::ScaleMode xMode = Axis::Linear,
                                             Axis::ScaleMode yMode = Axis::Linear)
{
    return pelorin::backend::PlotSegment(
        boost::make_shared<pelorin::backend::SampleVector>(samples.begin(), samples.end()),
        pelorin::backend::MetaInfo(offset, scale, xMode), yMode);
}

inline pelorin::backend::PlotSnapshot
snapshot(std::initializer_list<pelorin::backend::PlotSegment> segments)
{
    return pelorin::backend::PlotSnapshot(segments);
}

/// An axis from @p from to @p from + @p length.
inline QSharedPointer<const Axis> linearAxis(double length = 1.0, double from = 0.0)
{
    return QSharedPointer<pelorin::ui::chart::LinearAxis>::create(length, from, 0.0, false, 1);
}

/// An axis from 0.0 to 1.0 that lets others do something whenever it is asked for a position.
class HookedAxis : public pelorin::ui::chart::LinearAxis
{
public:
    explicit HookedAxis(std::function<void(double)> hook)
        : LinearAxis(1.0, 0.0, 0.0, false, 1)
        , m_hook(std::move(hook))
    {}

    double transform(ScaleMode mode, double value) const override
    {
        m_hook(value);
        return LinearAxis::transform(mode, value);
    }

private:
    std::function<void(double)> m_hook;
};

/// Points as pairs of doubles: QPointF compares with a tolerance, which would hide wrong digits.
using Points = std::vector<std::pair<double, double>>;

inline std::vector<Points> exact(const QVector<QVector<QPointF>>& lists)
{
    std::vector<Points> result;
    for (const QVector<QPointF>& list : lists) {
        result.emplace_back();
        for (const QPointF& point : list)
            result.back().emplace_back(point.x(), point.y());
    }
    return result;
}

/// Equal, NaN to NaN too; which of two zeros it is doesn't count.
inline bool same(double a, double b)
{
    return a == b || (std::isnan(a) && std::isnan(b));
}

inline bool same(const std::pair<double, double>& a, const std::pair<double, double>& b)
{
    return same(a.first, b.first) && same(a.second, b.second);
}

template<typename T, typename Allocator>
bool same(const std::vector<T, Allocator>& a, const std::vector<T, Allocator>& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](const T& x, const T& y) { return same(x, y); });
}

} // namespace tests

#endif
