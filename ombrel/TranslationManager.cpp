#include "kestrane/backend/TranslationManager.h"

#include <QLocale>
#include <QMutexLocker>

namespace pelorin {
namespace utilities {

namespace {

QString knownName(const QString& name)
{
    return QLocale(name).language() == QLocale::C ? QStringLiteral("C") : name;
}

} // namespace

TranslationManager::TranslationManager(QObject* parent)
    : QObject(parent)
    , m_locale(knownName(QLocale::system().name()))
{}

TranslationManager::~TranslationManager() = default;

QString TranslationManager::locale() const
{
    const QMutexLocker locker(&m_mutex);
    return m_locale;
}

void TranslationManager::setLocale(const QString& locale)
{
    const QString name = knownName(locale);
    {
        const QMutexLocker locker(&m_mutex);
        if (name == m_locale)
            return;
        m_locale = name;
    }
    Q_EMIT localeChanged(name);
}

template<>
TranslationManager& Singleton<TranslationManager>::instance()
{
    static auto* const manager = new TranslationManager;
    return *manager;
}

} // namespace utilities
} // namespace pelorin
