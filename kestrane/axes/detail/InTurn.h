#ifndef KESTRANE_AXES_DETAIL_INTURN_H
#define KESTRANE_AXES_DETAIL_INTURN_H

#include <QPointer>

namespace pelorin {
namespace ui {
namespace chart {
namespace detail {

/// Runs steps that emit signals of @p sender, one after the other. A listener may delete the
/// sender; the steps that are left are then left out.
template<typename... Steps>
void inTurn(QObject* sender, const Steps&... steps)
{
    const QPointer<QObject> guard(sender);
    const auto runIfAlive = [&guard](const auto& step) {
        if (guard)
            step();
    };
    (runIfAlive(steps), ...);
}

} // namespace detail
} // namespace chart
} // namespace ui
} // namespace pelorin

#endif
