#ifndef KESTRANE_AXES_DETAIL_RANKORDER_H
#define KESTRANE_AXES_DETAIL_RANKORDER_H

#include "kestrane/axes/Axis.h"

#include <QVarLengthArray>

#include <algorithm>
#include <cmath>

namespace pelorin {
namespace ui {
namespace chart {
namespace detail {

/// What the rank of a major tick has on top.
constexpr double majorBonus = 1500.0;

/// Calls visit(index, rank) for each of @p count ticks that stand in ascending order of position,
/// the highest rank first: the ends, the middle, the quarter points and so on, each round from the
/// right. A round has half the weight of the one before, and a rank is from the weight of its round
/// to just under twice that, so that no two are equal.
template<typename Visit>
void visitByRank(int count, const Visit& visit)
{
    double weight = 500.0;
    const auto rank = [&](int index) { visit(index, (double(index) / count + 1.0) * weight); };
    if (count > 1)
        rank(count - 1);
    if (count > 0)
        rank(0);

    struct Stretch
    {
        int first, last;
    };
    QVarLengthArray<Stretch, 128> stretches; // Those with ticks between their ends, round by round.
    const auto halve = [&](int first, int last) {
        if (last - first > 1)
            stretches.append({first, last});
    };
    halve(0, count - 1);
    for (int i = 0; i < stretches.size();) {
        weight /= 2.0;
        for (const int endOfRound = stretches.size(); i < endOfRound; ++i) {
            const Stretch stretch = stretches[i];
            const int mid = stretch.first + (stretch.last - stretch.first) / 2;
            rank(mid);
            halve(mid, stretch.last);
            halve(stretch.first, mid);
        }
    }
}

/// Sorts ticks by rank, highest first. A rank of NaN, which only an axis from outside can bring,
/// sorts last: without that the order would not be one.
inline void sortByRank(QVector<Axis::Tick>& ticks)
{
    std::sort(ticks.begin(), ticks.end(), [](const Axis::Tick& a, const Axis::Tick& b) {
        return a.rank() > b.rank() || (std::isnan(b.rank()) && !std::isnan(a.rank()));
    });
}

} // namespace detail
} // namespace chart
} // namespace ui
} // namespace pelorin

#endif
