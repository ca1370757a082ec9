#include "UnitManagerDefinitions.h"

#include "FixedUnit.h"

UnitManagerDefinitions::~UnitManagerDefinitions() = default;

const QString& UnitManagerDefinitions::getModuleName()
{
    static const QString identifier = QStringLiteral("UnitManager");
    return identifier;
}

const QString& UnitManagerDefinitions::getUnitTypeText()
{
    static const QString identifier = QStringLiteral("Text");
    return identifier;
}

const QString& UnitManagerDefinitions::getUnitTypeNoUnit()
{
    static const QString identifier = QStringLiteral("NoUnit");
    return identifier;
}

const QString& UnitManagerDefinitions::getUnitTypeUrlNoUnit()
{
    static const QString identifier = QStringLiteral("UnitManager/UnitType/NoUnit");
    return identifier;
}

const QString& UnitManagerDefinitions::getUnitLabelUrl()
{
    static const QString identifier = QStringLiteral("UnitLabel");
    return identifier;
}

const QString& UnitManagerDefinitions::getUnitTypeUrlResistance()
{
    static const QString identifier = QStringLiteral("UnitManager/UnitType/Resistance");
    return identifier;
}

const QString& UnitManagerDefinitions::getUnitTypeUrlAbsoluteTemperature()
{
    static const QString identifier = QStringLiteral("UnitManager/UnitType/AbsoluteTemperature");
    return identifier;
}

const QString& UnitManagerDefinitions::getUnitTypeUrlPressure()
{
    static const QString identifier = QStringLiteral("UnitManager/UnitType/Pressure");
    return identifier;
}

const QString& UnitManagerDefinitions::getUnitUrlPressureBar()
{
    static const QString identifier = FixedUnit::join(getUnitTypeUrlPressure(), QStringLiteral("Bar"));
    return identifier;
}

const QString& UnitManagerDefinitions::getUnitUrlPressureHectoPascal()
{
    static const QString identifier =
        FixedUnit::join(getUnitTypeUrlPressure(), QStringLiteral("HectoPascal"));
    return identifier;
}

const QString& UnitManagerDefinitions::getUnitUrlPressureMilliBar()
{
    static const QString identifier = FixedUnit::join(getUnitTypeUrlPressure(), QStringLiteral("MilliBar"));
    return identifier;
}

const QString& UnitManagerDefinitions::getUnitTypeUrlRatio()
{
    static const QString identifier = QStringLiteral("UnitManager/UnitType/Ratio");
    return identifier;
}

const QString& UnitManagerDefinitions::getUnitUrlRatioPercentage()
{
    static const QString identifier = FixedUnit::join(getUnitTypeUrlRatio(), QStringLiteral("Percentage"));
    return identifier;
}

const QString& UnitManagerDefinitions::getUnitUrlRatioPartsPerMillion()
{
    static const QString identifier =
        FixedUnit::join(getUnitTypeUrlRatio(), QStringLiteral("PartsPerMillion"));
    return identifier;
}

const QString& UnitManagerDefinitions::getUnitTypeUrlMixingRatio()
{
    static const QString identifier = QStringLiteral("UnitManager/UnitType/MixingRatio");
    return identifier;
}

const QString& UnitManagerDefinitions::getUnitUrlMixingRatioGramPerKiloGram()
{
    static const QString identifier =
        FixedUnit::join(getUnitTypeUrlMixingRatio(), QStringLiteral("GramPerKiloGram"));
    return identifier;
}

const QString& UnitManagerDefinitions::getUnitTypeUrlRelativeHumidity()
{
    static const QString identifier = QStringLiteral("UnitManager/UnitType/RelativeHumidity");
    return identifier;
}

const QString& UnitManagerDefinitions::getUnitUrlRelativeHumidityRelHumidity()
{
    static const QString identifier =
        FixedUnit::join(getUnitTypeUrlRelativeHumidity(), QStringLiteral("RelHumidity"));
    return identifier;
}

const QString& UnitManagerDefinitions::getUnitTypeUrlAbsoluteHumidity()
{
    static const QString identifier = QStringLiteral("UnitManager/UnitType/AbsoluteHumidity");
    return identifier;
}

const QString& UnitManagerDefinitions::getUnitUrlAbsoluteHumidityGramPerCubicMeter()
{
    static const QString identifier =
        FixedUnit::join(getUnitTypeUrlAbsoluteHumidity(), QStringLiteral("GramPerCubicMeter"));
    return identifier;
}

const QString& UnitManagerDefinitions::getUnitTypeUrlVoltage()
{
    static const QString identifier = QStringLiteral("UnitManager/UnitType/Voltage");
    return identifier;
}

const QString& UnitManagerDefinitions::getUnitTypeUrlTime()
{
    static const QString identifier = QStringLiteral("UnitManager/UnitType/Time");
    return identifier;
}

const QString& UnitManagerDefinitions::getUnitUrlTimeSeconds()
{
    static const QString identifier = FixedUnit::join(getUnitTypeUrlTime(), QStringLiteral("Seconds"));
    return identifier;
}

const QString& UnitManagerDefinitions::getUnitTypeUrlSpecificEnthalpy()
{
    static const QString identifier = QStringLiteral("UnitManager/UnitType/SpecificEnthalpy");
    return identifier;
}

const QString& UnitManagerDefinitions::getUnitUrlSpecificEnthalpyKiloJoulePerKiloGram()
{
    static const QString identifier =
        FixedUnit::join(getUnitTypeUrlSpecificEnthalpy(), QStringLiteral("KiloJoulePerKiloGram"));
    return identifier;
}

int UnitManagerDefinitions::getUiDecimalsAutoComma()
{
    return -1;
}
