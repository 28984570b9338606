#include "kestrane/backend/Quantity.h"

namespace pelorin {
namespace variables {

bool Quantity::Unit::operator==(const Unit& other) const
{
    return symbol == other.symbol && takesPrefix == other.takesPrefix && scale == other.scale &&
           offset == other.offset && system == other.system;
}

Quantity::Quantity() = default;

Quantity::Quantity(const QString& name, const QVector<Unit>& units)
    : m_name(name)
    , m_units(units)
{}

Quantity::Quantity(const Quantity& other) = default;

Quantity& Quantity::operator=(const Quantity& other) = default;

Quantity::~Quantity() = default;

Quantity::operator QString() const
{
    return m_name;
}

const QVector<Quantity::Unit>& Quantity::units() const
{
    return m_units;
}

bool Quantity::operator==(const Quantity& other) const
{
    return m_name == other.m_name && m_units == other.m_units;
}

bool Quantity::operator!=(const Quantity& other) const
{
    return !(*this == other);
}

} // namespace variables
} // namespace pelorin
