#include "PropertyManagerConst.h"

const QString& PropertyManagerConst::getUnitTypeNamePrefix()
{
    static const QString name = QStringLiteral("UnitManager/UnitType/");
    return name;
}

const QString& PropertyManagerConst::getConfigFileExtension()
{
    static const QString name = QStringLiteral("json");
    return name;
}

const QString& PropertyManagerConst::getDBusPrefix()
{
    static const QString name = QStringLiteral("org.measuringdevice");
    return name;
}
