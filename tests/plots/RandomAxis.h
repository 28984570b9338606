#ifndef TESTS_PLOTS_RANDOMAXIS_H
#define TESTS_PLOTS_RANDOMAXIS_H

#include "kestrane/axes/Axis.h"

#include "tests/support/Dice.h"

#include <QSharedPointer>

namespace tests {

/// An axis of any kind, a host's own included: with holes, or with an end at which it throws.
QSharedPointer<const pelorin::ui::chart::Axis> randomAxis(Dice& dice);

} // namespace tests

#endif
