// What platform-contract needs from this platform.

#include "ProcessDataValue.h"
#include "VendorHooks.h"

QVariant VendorHooks::noInputMarker()
{
    return {};
}

QSharedPointer<ProcessDataValue> VendorHooks::createProcessData(const QString& /*unitType*/)
{
    return QSharedPointer<ProcessDataValue>::create();
}

bool VendorHooks::startSource(const QString& /*object*/, const QString& /*configuration*/,
                              const QString& /*text*/)
{
    return false;
}

void VendorHooks::announceChange(const QString& /*object*/, const QString& /*configuration*/) {}

void VendorHooks::stopSource() {}
