// What platform-contract needs from this platform.

#include "ConfigurationAndProcessDataTools.h"
#include "ConfigurationStore.h"
#include "ProcessDataValue.h"
#include "VendorHooks.h"

QVariant VendorHooks::noInputMarker()
{
    return ConfigurationAndProcessDataTools::getNoInputValueIndicator();
}

QSharedPointer<ProcessDataValue> VendorHooks::createProcessData(const QString& unitType)
{
    return QSharedPointer<ProcessDataValue>::create(unitType);
}

bool VendorHooks::startSource(const QString& object, const QString& configuration, const QString& text)
{
    ConfigurationStore::instance().setText(object, configuration, text);
    return true;
}

void VendorHooks::announceChange(const QString& object, const QString& configuration)
{
    ConfigurationStore::instance().announce(object, configuration);
}

void VendorHooks::stopSource()
{
    ConfigurationStore::instance().clear();
}
