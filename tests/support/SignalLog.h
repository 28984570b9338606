#ifndef TESTS_SUPPORT_SIGNALLOG_H
#define TESTS_SUPPORT_SIGNALLOG_H

#include "tests/support/QtPrinters.h"

#include <QObject>
#include <QStringList>

namespace tests {

/// Listens to every signal of an object and writes them down in the order of their emission, as
/// "name(arguments)"; a pointer to the object itself is written as "self".
class SignalLog : public QObject
{
public:
    explicit SignalLog(QObject* sender);

    /// What has been heard since the last call, separated by blanks.
    QString take();

    int qt_metacall(QMetaObject::Call call, int id, void** arguments) override;

private:
    QString written(const QMetaMethod& signal, void** arguments) const;

    QObject* m_sender;
    QStringList m_heard;
};

} // namespace tests

#endif
