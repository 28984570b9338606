#include "kestrane/plots/Intersectable.h"

namespace pelorin {
namespace ui {
namespace chart {

Intersectable::Intersectable() = default;

Intersectable::~Intersectable() = default;

utilities::RegistryList<Intersectable::Notifyee>& Intersectable::notifyees()
{
    return m_notifyees;
}

void Intersectable::fireUpdates() const
{
    m_notifyees.visit([this](const Notifyee& notifyee) { notifyee(this); });
}

} // namespace chart
} // namespace ui
} // namespace pelorin
