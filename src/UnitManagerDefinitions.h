#pragma once

#include <QtCore/QString>

#include "UnitManagerExport.h"

/// The fixed identifiers of the library: module name, keys of the unit document, unit types and units that
/// applications name in code.
///
/// The identifier of a unit type is "UnitManager/UnitType/" and a type name. The identifier of a unit (a
/// fixed unit) is the identifier of its unit type, "/" and a unit name. Every text is built on first use and
/// lives until the process ends; the getters may be called from any thread.
class UNITMANAGER_EXPORT UnitManagerDefinitions
{
public:
    /// Has no effect: all identifiers are static.
    UnitManagerDefinitions() = default;
    virtual ~UnitManagerDefinitions();

    /// The library's name.
    static const QString& getModuleName();
    /// Key below a unit type that is not a unit and is skipped.
    static const QString& getUnitTypeText();
    /// Key of the unit-less type, and of the unit without a conversion.
    static const QString& getUnitTypeNoUnit();
    /// Identifier of the unit-less type.
    static const QString& getUnitTypeUrlNoUnit();
    /// Key of a unit's label.
    static const QString& getUnitLabelUrl();

    /// @name Identifiers of unit types, getUnitTypeUrl..., and of units of them, getUnitUrl...
    /// @{

    /// "UnitManager/UnitType/Resistance"
    static const QString& getUnitTypeUrlResistance();
    /// "UnitManager/UnitType/AbsoluteTemperature"
    static const QString& getUnitTypeUrlAbsoluteTemperature();
    /// "UnitManager/UnitType/Pressure"
    static const QString& getUnitTypeUrlPressure();
    /// "UnitManager/UnitType/Pressure/Bar"
    static const QString& getUnitUrlPressureBar();
    /// "UnitManager/UnitType/Pressure/HectoPascal"
    static const QString& getUnitUrlPressureHectoPascal();
    /// "UnitManager/UnitType/Pressure/MilliBar"
    static const QString& getUnitUrlPressureMilliBar();
    /// "UnitManager/UnitType/Ratio"
    static const QString& getUnitTypeUrlRatio();
    /// "UnitManager/UnitType/Ratio/Percentage"
    static const QString& getUnitUrlRatioPercentage();
    /// "UnitManager/UnitType/Ratio/PartsPerMillion"
    static const QString& getUnitUrlRatioPartsPerMillion();
    /// "UnitManager/UnitType/MixingRatio"
    static const QString& getUnitTypeUrlMixingRatio();
    /// "UnitManager/UnitType/MixingRatio/GramPerKiloGram"
    static const QString& getUnitUrlMixingRatioGramPerKiloGram();
    /// "UnitManager/UnitType/RelativeHumidity"
    static const QString& getUnitTypeUrlRelativeHumidity();
    /// "UnitManager/UnitType/RelativeHumidity/RelHumidity"
    static const QString& getUnitUrlRelativeHumidityRelHumidity();
    /// "UnitManager/UnitType/AbsoluteHumidity"
    static const QString& getUnitTypeUrlAbsoluteHumidity();
    /// "UnitManager/UnitType/AbsoluteHumidity/GramPerCubicMeter"
    static const QString& getUnitUrlAbsoluteHumidityGramPerCubicMeter();
    /// "UnitManager/UnitType/Voltage"
    static const QString& getUnitTypeUrlVoltage();
    /// "UnitManager/UnitType/Time"
    static const QString& getUnitTypeUrlTime();
    /// "UnitManager/UnitType/Time/Seconds"
    static const QString& getUnitUrlTimeSeconds();
    /// "UnitManager/UnitType/SpecificEnthalpy"
    static const QString& getUnitTypeUrlSpecificEnthalpy();
    /// "UnitManager/UnitType/SpecificEnthalpy/KiloJoulePerKiloGram"
    static const QString& getUnitUrlSpecificEnthalpyKiloJoulePerKiloGram();
    /// @}

    /// Special number of decimal places: the user interface positions the decimal separator itself.
    static int getUiDecimalsAutoComma();
};
