#ifndef KESTRANE_BACKEND_TRANSLATIONMANAGER_H
#define KESTRANE_BACKEND_TRANSLATIONMANAGER_H

#include "kestrane/backend/OmbrelExport.h"
#include "kestrane/backend/Singleton.h"

#include <QMutex>
#include <QObject>
#include <QString>

namespace pelorin {
namespace utilities {

/// Knows the language of the application, by the name of its locale, and tells when it changes.
///
/// Threads: any thread may call any operation. localeChanged() is emitted from the thread that
/// calls setLocale(); listeners in other threads get it queued.
///
/// @code
/// auto& language = utilities::Singleton<utilities::TranslationManager>::instance();
/// const QString before = language.locale();
/// language.setLocale("de_DE"); // Every TickFormatter writes 0,5 from now on.
/// language.setLocale(before);
/// @endcode
///
/// @ingroup backend
class OMBREL_EXPORT TranslationManager : public QObject
{
    Q_OBJECT

public:
    /// Starts with the locale of the system.
    explicit TranslationManager(QObject* parent = nullptr);
    ~TranslationManager() override;

    /// The name of the present locale, such as "de_DE". QLocale takes it as it is.
    QString locale() const;

    /// Changes the language of the application.
    /// @param locale a name that QLocale understands, kept as it is written; any other text means
    ///        what QLocale makes of it, "C"
    void setLocale(const QString& locale);

Q_SIGNALS:
    /// locale() has become another name, @p locale.
    void localeChanged(const QString& locale);

private:
    mutable QMutex m_mutex;
    QString m_locale;
};

/// The language of this application.
template<>
OMBREL_EXPORT TranslationManager& Singleton<TranslationManager>::instance();

} // namespace utilities
} // namespace pelorin

#endif
