#ifndef KESTRANE_BACKEND_QUANTITY_H
#define KESTRANE_BACKEND_QUANTITY_H

#include "kestrane/backend/OmbrelExport.h"

#include <QMetaType>
#include <QString>
#include <QVector>

namespace pelorin {
namespace variables {

/// A physical quantity: its name and the units in which people write its values. A value class.
///
/// The values themselves are always in the coherent SI unit (a mass in kilograms, an angle in
/// radians, a ratio as a plain number), whatever unit is chosen to write them.
///
/// @code
/// using namespace variables;
/// // A symbol, whether it takes prefixes, a factor, an offset, a system.
/// const Quantity length("length", {{"m", true, 1.0, 0.0, "SI"},
///                                  {"in", false, 1 / 0.0254, 0.0, "US"}});
/// length.units()[1].symbol.toStdString(); // = in
/// @endcode
///
/// @ingroup backend
class OMBREL_EXPORT Quantity
{
public:
    /// One way to write a value: as the number value * scale + offset with a symbol behind it.
    /// A difference of two values is written as the number difference * scale.
    ///
    /// Kilograms are the unit "g" with a scale of 1000, since the prefix belongs to the text.
    struct OMBREL_EXPORT Unit
    {
        /// Compares all fields, the doubles exactly.
        bool operator==(const Unit& other) const;

        QString symbol;
        bool takesPrefix = false; ///< Whether "k", "m" and so on may stand before the symbol.
        double scale = 1.0;
        double offset = 0.0;
        /// The system of units that it belongs to, such as "US"; empty for none in particular.
        QString system;
    };

    /// The quantity of plain numbers: the empty name and no unit.
    Quantity();

    /// @param name what tells it from other quantities
    /// @param units the usual one first; none for plain numbers
    explicit Quantity(const QString& name, const QVector<Unit>& units = QVector<Unit>());

    Quantity(const Quantity& other);
    Quantity& operator=(const Quantity& other);
    ~Quantity();

    /// The name.
    operator QString() const;

    /// The units to choose from, the usual one first.
    const QVector<Unit>& units() const;

    /// Compares the names and the units.
    bool operator==(const Quantity& other) const;
    bool operator!=(const Quantity& other) const;

private:
    QString m_name;
    QVector<Unit> m_units;
};

} // namespace variables
} // namespace pelorin

Q_DECLARE_METATYPE(pelorin::variables::Quantity)

#endif
