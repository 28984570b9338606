#include "tests/support/SignalLog.h"

#include "tests/support/QtVersions.h"

#include <QMetaMethod>

#include <utility>

namespace tests {

// A slot of this object exists for each signal of the sender only as a number: behind the methods
// of QObject, in the order of the sender's methods. qt_metacall() below takes the calls.
SignalLog::SignalLog(QObject* sender)
    : m_sender(sender)
{
    const QMetaObject* meta = sender->metaObject();
    for (int i = 0; i < meta->methodCount(); ++i) {
        if (meta->method(i).methodType() == QMetaMethod::Signal &&
            meta->method(i).enclosingMetaObject() != &QObject::staticMetaObject)
            QMetaObject::connect(sender, i, this, QObject::staticMetaObject.methodCount() + i,
                                 Qt::DirectConnection);
    }
}

QString SignalLog::take()
{
    return std::exchange(m_heard, QStringList()).join(' ');
}

int SignalLog::qt_metacall(QMetaObject::Call call, int id, void** arguments)
{
    id = QObject::qt_metacall(call, id, arguments);
    if (id >= 0 && call == QMetaObject::InvokeMetaMethod) {
        m_heard << written(m_sender->metaObject()->method(id), arguments);
        return -1;
    }
    return id;
}

QString SignalLog::written(const QMetaMethod& signal, void** arguments) const
{
    QStringList values;
    for (int i = 0; i < signal.parameterCount(); ++i) {
        const void* value = arguments[i + 1];
        if (signal.parameterTypes().at(i).endsWith('*'))
            values << (*static_cast<QObject* const*>(value) == m_sender ? "self" : "other");
        else
            values << variantOf(signal.parameterType(i), value).toString();
    }
    return QString::fromLatin1(signal.name()) + '(' + values.join(",") + ')';
}

} // namespace tests
