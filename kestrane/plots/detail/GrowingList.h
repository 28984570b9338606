#ifndef KESTRANE_PLOTS_DETAIL_GROWINGLIST_H
#define KESTRANE_PLOTS_DETAIL_GROWINGLIST_H

#include "kestrane/library/detail/FreshMemory.h"
#include "kestrane/library/detail/OwnCopy.h"

#include <QVector>

#include <algorithm>
#include <limits>
#include <utility>

namespace pelorin {
namespace ui {
namespace chart {
namespace detail {

/// Makes room for @p more elements in a list that is filled in @p count steps, of which @p done
/// have been taken. If it has to grow, then for the steps to come too, as far as those before tell
/// what they bring: fresh memory is dear, and copying takes it twice.
template<typename T>
void makeRoom(QVector<T>& list, int more, double done, double count)
{
    constexpr double most = std::numeric_limits<int>::max() / 2 / sizeof(T);
    if (list.capacity() - list.size() >= more || list.size() >= most / 2)
        return; // Near the end of what a list can hold it grows as lists do.
    constexpr double reserve = 1.0 / 16;
    // The first few steps tell little. The last ones may bring more than all before.
    const double growth = std::clamp(count / done * (1.0 + reserve), 1.5, 64.0);
    const int expected = static_cast<int>(std::min(double(list.size()) * growth, most));

    QVector<T> roomy;
    roomy.reserve(std::max<int>(list.size(), expected) + more);
    preferLargePages(roomy.data(), static_cast<std::size_t>(roomy.capacity()) * sizeof(T));
    for (T& element : list)
        roomy.append(std::move(element));
    list.swap(roomy);
}

/// Moves the elements to a list of their own in as little memory as makes sense, the list itself
/// or a copy. What is left is empty.
template<typename T>
QVector<T> takeAll(QVector<T>& list)
{
    if (list.size() > list.capacity() / 2)
        return std::exchange(list, {});
    const QVector<T> result = ownCopy(list);
    list.clear();
    return result;
}

} // namespace detail
} // namespace chart
} // namespace ui
} // namespace pelorin

#endif
