#ifndef KESTRANE_BACKEND_QUANTITYMANAGER_H
#define KESTRANE_BACKEND_QUANTITYMANAGER_H

#include "kestrane/backend/OmbrelExport.h"
#include "kestrane/backend/Quantity.h"
#include "kestrane/backend/Singleton.h"

#include <QMap>
#include <QMutex>
#include <QStringList>

namespace pelorin {
namespace variables {

/// The quantities of an application, by name.
///
/// Known from the start, in the unit that comes first: "acceleration" (m/s²), "angle" (rad),
/// "charge" (C), "count" (no unit), "current" (A), "energy" (J), "force" (N), "frequency" (Hz),
/// "length" (m), "level" (dB), "mass" (g, for values in kg), "power" (W), "pressure" (Pa),
/// "ratio" (%, for plain numbers: 1.0 is 100 %), "resistance" (Ω), "temperature" (K), "time" (s),
/// "velocity" (m/s) and "voltage" (V). Many have more units to choose from.
///
/// Threads: any thread may call any operation.
///
/// @code
/// using namespace variables;
/// auto& quantities = utilities::Singleton<QuantityManager>::instance();
/// quantities.add(Quantity("flow", {{"l/s", true, 1.0, 0.0, {}}}));
/// quantities.quantity("flow").units().size(); // = 1
/// @endcode
///
/// @ingroup backend
class OMBREL_EXPORT QuantityManager
{
public:
    QuantityManager();
    QuantityManager(const QuantityManager&) = delete;
    QuantityManager& operator=(const QuantityManager&) = delete;
    ~QuantityManager();

    /// The quantity called @p name; upper and lower case differ. A name that nobody has added
    /// gives a quantity of that name without a unit. O(log n) for n quantities.
    Quantity quantity(const QString& name) const;

    /// Makes @p quantity known by its name, in place of what had that name before. Copies that
    /// were handed out stay as they are.
    void add(const Quantity& quantity);

    /// The names of all known quantities in alphabetical order.
    QStringList names() const;

private:
    mutable QMutex m_mutex;
    QMap<QString, Quantity> m_quantities;
};

} // namespace variables

namespace utilities {

/// The quantities of this application.
template<>
OMBREL_EXPORT variables::QuantityManager& Singleton<variables::QuantityManager>::instance();

} // namespace utilities
} // namespace pelorin

#endif
