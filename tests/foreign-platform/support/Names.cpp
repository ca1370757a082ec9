#include "DeviceManagerDefinitions.h"
#include "PropertyManagerConst.h"

const QString& DeviceManagerDefinitions::getModuleName()
{
    static const QString name("DeviceManager");
    return name;
}

const QString& DeviceManagerDefinitions::getObjectNameUnitManagerConfiguration()
{
    static const QString name("UnitCatalogue");
    return name;
}

const QString& PropertyManagerConst::getUnitTypeNamePrefix()
{
    static const QString prefix("Device/Quantity/");
    return prefix;
}

const QString& PropertyManagerConst::getConfigFileExtension()
{
    static const QString extension("json");
    return extension;
}

const QString& PropertyManagerConst::getDBusPrefix()
{
    static const QString prefix("net.example.device");
    return prefix;
}
