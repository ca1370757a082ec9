#include "DeviceManagerDefinitions.h"

const QString& DeviceManagerDefinitions::getModuleName()
{
    static const QString name = QStringLiteral("DeviceManager");
    return name;
}

const QString& DeviceManagerDefinitions::getObjectNameUnitManagerConfiguration()
{
    static const QString name = QStringLiteral("UnitManagerConfiguration");
    return name;
}
