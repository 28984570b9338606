#include "kestrane/axes/TickFormatter.h"

#include "kestrane/backend/Quantity.h"
#include "kestrane/backend/QuantityManager.h"
#include "kestrane/backend/Singleton.h"
#include "kestrane/backend/TranslationManager.h"

#include <QLocale>
#include <QVariant>

#include <cmath>

namespace pelorin {
namespace ui {
namespace chart {

using utilities::Singleton;
using utilities::TranslationManager;
using utilities::ValueFormatter;
using variables::Quantity;
using variables::QuantityManager;

namespace {

constexpr int digitsOfALabel = 4;
constexpr int rangesWithoutPowers = 3;

TranslationManager& translations()
{
    return Singleton<TranslationManager>::instance();
}

} // namespace

TickFormatter::TickFormatter(QObject* parent)
    : ValueFormatter({}, QLocale(translations().locale()), Quantity(), digitsOfALabel,
                     rangesWithoutPowers, Automatic, Automatic, QString(), QStringLiteral(" "))
    , m_sizeTemplate(QLatin1String(""))
{
    setParent(parent);

    const auto changed = &TickFormatter::formatterChanged;
    connect(this, &ValueFormatter::quantityChanged, this, changed);
    connect(this, &ValueFormatter::localeChanged, this, changed);
    connect(this, &ValueFormatter::optionsChanged, this, changed);
    connect(this, &ValueFormatter::preferredUnitChanged, this, changed);
    connect(this, &ValueFormatter::preferredPrefixChanged, this, changed);
    connect(this, &ValueFormatter::preferredUnitSystemChanged, this, changed);
    connect(this, &ValueFormatter::significantDigitsChanged, this, changed);
    connect(this, &ValueFormatter::limitRangeCountChanged, this, changed);

    connect(
        this, &ValueFormatter::quantityChanged, this,
        [this](const Quantity& quantity) { Q_EMIT quantityChanged(quantity); },
        Qt::DirectConnection);
    connect(&translations(), &TranslationManager::localeChanged, this,
            [this](const QString& name) { setLocale(QLocale(name)); });
}

TickFormatter::~TickFormatter() = default;

QList<QString> TickFormatter::formatTick(const Axis::Tick& tick, double referenceValue)
{
    const auto line = [&](double value) {
        if (std::isnan(referenceValue))
            return format(QVariant(value));

        const auto present = options();
        blockSignals(true);
        setOptions(present | ValueFormatter::AlwaysSign);
        const QString text = format(QVariant(value - referenceValue));
        setOptions(present);
        blockSignals(false);
        return text;
    };

    QList<QString> lines{line(tick.logicalPosition())};
    for (const double value : tick.secondaryLogicalPositions())
        lines.append(line(value));
    return lines;
}

QString TickFormatter::quantity() const
{
    return ValueFormatter::quantity();
}

QString TickFormatter::sizeTemplate() const
{
    return m_sizeTemplate;
}

void TickFormatter::setQuantity(const QString& quantity)
{
    ValueFormatter::setQuantity(Singleton<QuantityManager>::instance().quantity(quantity));
}

void TickFormatter::setSizeTemplate(const QString& sizeTemplate)
{
    if (sizeTemplate == m_sizeTemplate)
        return;
    m_sizeTemplate = sizeTemplate;
    Q_EMIT sizeTemplateChanged(sizeTemplate);
}

} // namespace chart
} // namespace ui
} // namespace pelorin
