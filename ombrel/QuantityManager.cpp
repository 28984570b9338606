#include "kestrane/backend/QuantityManager.h"

#include <QMutexLocker>

namespace pelorin {
namespace variables {

namespace {

using Unit = Quantity::Unit;

constexpr double pi = 3.14159265358979323846;
constexpr double metresPerFoot = 0.3048;
constexpr double metresPerMile = 1609.344;
constexpr double standardGravity = 9.80665; // m/s²
constexpr double kilogramsPerPound = 0.45359237;
constexpr double pascalsPerPsi = 6894.757293168361;
constexpr double wattsPerHorsepower = 745.6998715822702;

Unit metric(const char* symbol, double scale = 1.0)
{
    return {QString::fromUtf8(symbol), true, scale, 0.0, QStringLiteral("SI")};
}

Unit plain(const char* symbol, double scale = 1.0, double offset = 0.0)
{
    return {QString::fromUtf8(symbol), false, scale, offset, QString()};
}

Unit american(const char* symbol, double scale, double offset = 0.0)
{
    return {QString::fromUtf8(symbol), false, scale, offset, QStringLiteral("US")};
}

QVector<Quantity> mechanics()
{
    return {
        Quantity("time", {metric("s"), plain("min", 1 / 60.0), plain("h", 1 / 3600.0)}),
        Quantity("frequency", {metric("Hz"), plain("1/min", 60.0)}),
        Quantity("length", {metric("m"), american("ft", 1 / metresPerFoot),
                            american("in", 12 / metresPerFoot)}),
        Quantity("velocity",
                 {metric("m/s"), plain("km/h", 3.6), american("mph", 3600 / metresPerMile)}),
        Quantity("acceleration", {metric("m/s²"), plain("g₀", 1 / standardGravity)}),
        Quantity("angle", {metric("rad"), plain("°", 180 / pi)}),
        Quantity("mass", {metric("g", 1000.0), american("lb", 1 / kilogramsPerPound)}),
        Quantity("force",
                 {metric("N"), american("lbf", 1 / (kilogramsPerPound * standardGravity))}),
        Quantity("pressure",
                 {metric("Pa"), plain("bar", 1e-5), american("psi", 1 / pascalsPerPsi)}),
        Quantity("energy", {metric("J"), {QStringLiteral("Wh"), true, 1 / 3600.0, 0.0, QString()}}),
        Quantity("power", {metric("W"), american("hp", 1 / wattsPerHorsepower)}),
        Quantity("temperature",
                 {metric("K"), plain("°C", 1.0, -273.15), american("°F", 1.8, -459.67)}),
    };
}

QVector<Quantity> electricity()
{
    return {
        Quantity("voltage", {metric("V")}),
        Quantity("current", {metric("A")}),
        Quantity("resistance", {metric("Ω")}),
        Quantity("charge", {metric("C"), {QStringLiteral("Ah"), true, 1 / 3600.0, 0.0, QString()}}),
    };
}

QVector<Quantity> numbers()
{
    return {
        Quantity("count"),
        Quantity("level", {plain("dB")}),
        Quantity("ratio", {plain("%", 100.0), plain("ppm", 1e6)}),
    };
}

} // namespace

QuantityManager::QuantityManager()
{
    for (const Quantity& quantity : mechanics() + electricity() + numbers())
        m_quantities.insert(quantity, quantity);
}

QuantityManager::~QuantityManager() = default;

Quantity QuantityManager::quantity(const QString& name) const
{
    const QMutexLocker locker(&m_mutex);
    return m_quantities.value(name, Quantity(name));
}

void QuantityManager::add(const Quantity& quantity)
{
    const QMutexLocker locker(&m_mutex);
    m_quantities.insert(quantity, quantity);
}

QStringList QuantityManager::names() const
{
    const QMutexLocker locker(&m_mutex);
    return m_quantities.keys();
}

} // namespace variables

namespace utilities {

template<>
variables::QuantityManager& Singleton<variables::QuantityManager>::instance()
{
    static auto* const manager = new variables::QuantityManager;
    return *manager;
}

} // namespace utilities
} // namespace pelorin
