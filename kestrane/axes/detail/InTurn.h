#ifndef KESTRANE_AXES_DETAIL_INTURN_H
#define KESTRANE_AXES_DETAIL_INTURN_H

#include <QPointer>

#include <exception>

namespace pelorin {
namespace ui {
namespace chart {
namespace detail {

/// Runs steps that emit signals of @p sender, one after the other. A listener may delete the
/// sender; the steps that are left are then left out. What a listener throws waits until all steps
/// are done, so that the sender is left whole; of several the first one counts.
template<typename... Steps>
void inTurn(QObject* sender, const Steps&... steps)
{
    const QPointer<QObject> guard(sender);
    std::exception_ptr thrown;
    const auto runIfAlive = [&](const auto& step) {
        try {
            if (guard)
                step();
        } catch (...) {
            if (!thrown)
                thrown = std::current_exception();
        }
    };
    (runIfAlive(steps), ...);
    if (thrown)
        std::rethrow_exception(thrown);
}

} // namespace detail
} // namespace chart
} // namespace ui
} // namespace pelorin

#endif
