#include "Documents.h"

QString Documents::units(int hectoPascalPerBar)
{
    return QStringLiteral(R"json({
        "Pressure": {
            "Bar": { "@displayPosition": 0, "DecimalPlaces": 3,
                     "Polynomial": [[0], [1]], "InversePolynomial": [[0], [1]], "UnitLabel": "bar" },
            "HectoPascal": { "@displayPosition": 1, "DecimalPlaces": 1,
                             "Polynomial": [[0], [%1]], "InversePolynomial": [[0], [1]], "UnitLabel": "hPa" }
        }
    })json")
        .arg(hectoPascalPerBar);
}

QString Documents::defaultUnits(const QString& unit)
{
    return QStringLiteral(R"json({ "Pressure": { "@type": "Selection", "@value": "%1" } })json").arg(unit);
}

QString Documents::dependencies(const QString& key)
{
    return QStringLiteral(R"json({ "PressureUnit": ["%1"] })json").arg(key);
}

QString Documents::broken()
{
    return QStringLiteral("{ broken");
}

SourceName Sources::none()
{
    return {};
}

SourceName Sources::units()
{
    return {QStringLiteral("DeviceManager"), QStringLiteral("UnitManagerConfiguration"),
            QStringLiteral("UnitManager/UnitType")};
}

SourceName Sources::dependencies()
{
    return {QStringLiteral("DeviceManager"), QStringLiteral("DependencyConfiguration"),
            QStringLiteral("UnitManager/Dependency")};
}

SourceName Sources::defaultUnits()
{
    return {QStringLiteral("DeviceManager"), QStringLiteral("DefaultUnitConfiguration"),
            QStringLiteral("UnitManager/DefaultUnit")};
}

SourceName Sources::remoteDefaultUnits()
{
    return {QStringLiteral("DefaultUnitManager"), QStringLiteral("DefaultUnitConfiguration"),
            QStringLiteral("UnitManager/DefaultUnit")};
}

SourceName Sources::otherDefaultUnits()
{
    return {QStringLiteral("DeviceManager"), QStringLiteral("OtherConfiguration"),
            QStringLiteral("UnitManager/OtherDefaultUnit")};
}
