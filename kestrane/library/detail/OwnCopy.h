#ifndef KESTRANE_LIBRARY_DETAIL_OWNCOPY_H
#define KESTRANE_LIBRARY_DETAIL_OWNCOPY_H

namespace pelorin {
namespace ui {
namespace chart {
namespace detail {

/// The same elements in memory of their own. Throws std::bad_alloc where there is none, which a
/// list of Qt 6.4 does when it is appended to, but not when it detaches or is made from a range.
template<typename List>
List ownCopy(const List& list)
{
    List copy;
    copy.reserve(list.size());
    for (const auto& element : list)
        copy.append(element);
    return copy;
}

} // namespace detail
} // namespace chart
} // namespace ui
} // namespace pelorin

#endif
