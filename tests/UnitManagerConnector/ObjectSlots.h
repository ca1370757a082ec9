#pragma once

#include <QtCore/QByteArrayList>
#include <QtCore/QMetaMethod>
#include <QtCore/QObject>

#include <cstddef>

#include "VirtualSlot.h"

/// The position of a class's first virtual function after those of QObject in the virtual table.
inline std::size_t firstSlotAfterObject()
{
    struct Object : QObject
    {
        using QObject::disconnectNotify;
    };
    return virtualSlot(&Object::disconnectNotify) + 1;
}

/// The signatures of a class's own meta-methods of one kind, in the order of its meta-object.
inline QByteArrayList ownMethods(const QMetaObject& metaObject, QMetaMethod::MethodType kind)
{
    QByteArrayList signatures;
    for (int index = metaObject.methodOffset(); index < metaObject.methodCount(); ++index) {
        if (metaObject.method(index).methodType() == kind)
            signatures.append(metaObject.method(index).methodSignature());
    }
    return signatures;
}
