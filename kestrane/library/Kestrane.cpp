#include "kestrane/library/Kestrane.h"

#include "kestrane/axes/Axis.h"
#include "kestrane/colors/ColorMap.h"

#include <QByteArray>
#include <QMetaObject>
#include <QMetaType>

#include <boost/shared_ptr.hpp>

using pelorin::ui::ColorMap;
using pelorin::ui::chart::Axis;

namespace {

// The meta-type id of T, 0 until it is known. Atomic since a user that comes while another
// registers may end up here too.
template<typename T>
std::atomic<int> _metaTypeId{0};

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
template<typename T>
int idOf(const QByteArray& normalizedName, const QMetaObject* metaObject)
{
    using Functions = QtMetaTypePrivate::QMetaTypeFunctionHelper<T>;

    const auto flags = QMetaType::TypeFlags(QtPrivate::QMetaTypeTypeFlags<T>::Flags) |
                       QMetaType::WasDeclaredAsMetaType;
    return QMetaType::registerNormalizedType(normalizedName, Functions::Destruct,
                                             Functions::Construct, int(sizeof(T)), flags,
                                             metaObject);
}
#else
// A type brings its functions and its meta-object along.
template<typename T>
int idOf(const QByteArray& normalizedName, const QMetaObject*)
{
    return qRegisterNormalizedMetaType<T>(normalizedName);
}
#endif

template<typename T>
void registerMetaType(const QByteArray& normalizedName, const QMetaObject* metaObject)
{
    if (_metaTypeId<T> == 0)
        _metaTypeId<T> = idOf<T>(normalizedName, metaObject);
}

} // namespace

std::atomic<unsigned int> Kestrane::_initCount{0};

void Kestrane::initialize()
{
    if (_initCount.fetch_add(1) == 0)
        registerMetaTypes();
}

void Kestrane::deinitialize()
{
    _initCount.fetch_sub(1);
}

void Kestrane::registerMetaTypes()
{
    registerMetaType<Axis::ScaleMode>(QByteArray(Axis::staticMetaObject.className()) +
                                          "::" + "ScaleMode",
                                      &Axis::staticMetaObject);
    registerMetaType<boost::shared_ptr<const Axis::ScrollScaleState>>(
        QMetaObject::normalizedType(
            "boost::shared_ptr<const pelorin::ui::chart::Axis::ScrollScaleState>"),
        nullptr);
    registerMetaType<ColorMap>(QMetaObject::normalizedType("pelorin::ui::ColorMap"), nullptr);
}
