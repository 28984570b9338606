#ifndef TESTS_SUPPORT_QTVERSIONS_H
#define TESTS_SUPPORT_QTVERSIONS_H

#include <QByteArray>
#include <QMetaType>
#include <QVariant>

namespace tests {

/// The meta-type of this name, or QMetaType::UnknownType.
inline int metaTypeId(const char* name)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return QMetaType::type(name);
#else
    return QMetaType::fromName(name).id();
#endif
}

/// A copy of a value of that type, a default-made one for null.
inline QVariant variantOf(int type, const void* value)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return QVariant(type, value);
#else
    return QVariant(QMetaType(type), value);
#endif
}

} // namespace tests

#endif
