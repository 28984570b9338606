#include "kestrane/axes/TickFormatter.h"

#include "kestrane/backend/Quantity.h"
#include "kestrane/backend/QuantityManager.h"
#include "kestrane/backend/Singleton.h"
#include "kestrane/backend/TranslationManager.h"

#include <QLocale>
#include <QVariant>

#include <cmath>
#include <new>

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

// Lets a formatter write distances, and nobody hear of that, for as long as it lives.
class DistanceMode
{
public:
    explicit DistanceMode(TickFormatter& formatter)
        : m_formatter(formatter)
        , m_options(formatter.options())
    {
        m_formatter.blockSignals(true);
        m_formatter.setOptions(m_options | ValueFormatter::AlwaysSign);
    }
    DistanceMode(const DistanceMode&) = delete;
    DistanceMode& operator=(const DistanceMode&) = delete;
    ~DistanceMode()
    {
        m_formatter.setOptions(m_options);
        m_formatter.blockSignals(false);
    }

private:
    TickFormatter& m_formatter;
    const ValueFormatter::FormatterOptions m_options;
};

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
    connect(&translations(), &TranslationManager::localeChanged, this, &TickFormatter::setLanguage);
}

TickFormatter::~TickFormatter() = default;

void TickFormatter::setLanguage(const QString& name)
{
    m_language = name;
    try {
        followLanguage();
    } catch (const std::bad_alloc&) {
        // Tried again with the next label: the other listeners have to hear of the language too.
    }
}

void TickFormatter::followLanguage()
{
    if (m_language.isNull())
        return;
    const QLocale locale(m_language);
    m_language = QString();
    setLocale(locale);
}

QList<QString> TickFormatter::formatTick(const Axis::Tick& tick, double referenceValue)
{
    followLanguage();
    const auto line = [&](double value) {
        if (std::isnan(referenceValue))
            return format(QVariant(value));
        const DistanceMode mode(*this);
        return format(QVariant(value - referenceValue));
    };

    QList<QString> lines;
    lines.append(line(tick.logicalPosition()));
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
