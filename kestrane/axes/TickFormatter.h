#ifndef KESTRANE_AXES_TICKFORMATTER_H
#define KESTRANE_AXES_TICKFORMATTER_H

#include "kestrane/axes/Axis.h"
#include "kestrane/backend/ValueFormatter.h"
#include "kestrane/library/Export.h"

#include <QList>
#include <QString>

namespace pelorin {
namespace ui {
namespace chart {

/// Turns a tick into the lines of its label, absolute or relative to a reference value, in the
/// unit of a quantity and the language of the application.
///
/// Threads: one thread at a time, since a relative label changes the options for a moment. A
/// change of the application's language in another thread arrives in the object's own thread.
///
/// As a ValueFormatter it starts with 4 significant digits: where ticks are near to each other far
/// from zero, setSignificantDigits() has to give it more.
///
/// @code
/// TickFormatter formatter;
/// formatter.setLocale(QLocale::c());
/// formatter.setQuantity("time");
/// LinearAxis axis(0.0001);
/// formatter.formatTick(axis.majorTicks().first(), 0.0).first().toStdString(); // = +1 ms
/// @endcode
///
/// @ingroup axes
class KESTRANE_EXPORT TickFormatter : public utilities::ValueFormatter
{
    Q_OBJECT
    Q_PROPERTY(QString quantity READ quantity WRITE setQuantity NOTIFY quantityChanged)
    Q_PROPERTY(
        QString sizeTemplate READ sizeTemplate WRITE setSizeTemplate NOTIFY sizeTemplateChanged)

public:
    /// A formatter without a quantity, in the present language of the TranslationManager, which
    /// it follows from now on.
    explicit TickFormatter(QObject* parent = nullptr);
    ~TickFormatter() override;

    /// One line for the tick's logical position, then one for each of its secondary positions.
    /// @param referenceValue NaN for absolute labels; otherwise each line shows the signed
    ///        distance from this logical value
    /// Signals are unblocked when a relative label is done, also if they were blocked before.
    /// @throws std::bad_alloc, with the options as they were
    virtual QList<QString> formatTick(const Axis::Tick& tick, double referenceValue);

    /// The name of the present quantity.
    QString quantity() const;

    /// A text of the host's, for example the widest label that it wants to make room for. It is
    /// kept and not read here.
    QString sizeTemplate() const;

Q_SIGNALS:
    void quantityChanged(QString quantity);
    void sizeTemplateChanged(QString sizeTemplate);

    /// Labels are to be made anew: a setting that affects their text has changed.
    void formatterChanged();

public Q_SLOTS:
    /// Sets the quantity that the QuantityManager knows under this name; an unknown name is not
    /// detected here.
    void setQuantity(const QString& quantity);

    void setSizeTemplate(const QString& sizeTemplate);

private:
    void setLanguage(const QString& name);
    void followLanguage();

    QString m_sizeTemplate;
    QString m_language; // Null unless the locale has yet to become this one.
};

} // namespace chart
} // namespace ui
} // namespace pelorin

#endif
