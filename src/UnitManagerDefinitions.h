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

    /// @name Identifiers of unit types (`getUnitTypeUrl...`) and of units of them (`getUnitUrl...`)
    /// @{
    static const QString& getUnitTypeUrlResistance();
    static const QString& getUnitTypeUrlAbsoluteTemperature();
    static const QString& getUnitTypeUrlPressure();
    static const QString& getUnitUrlPressureBar();
    static const QString& getUnitUrlPressureHectoPascal();
    static const QString& getUnitUrlPressureMilliBar();
    static const QString& getUnitTypeUrlRatio();
    static const QString& getUnitUrlRatioPercentage();
    static const QString& getUnitUrlRatioPartsPerMillion();
    static const QString& getUnitTypeUrlMixingRatio();
    static const QString& getUnitUrlMixingRatioGramPerKiloGram();
    static const QString& getUnitTypeUrlRelativeHumidity();
    static const QString& getUnitUrlRelativeHumidityRelHumidity();
    static const QString& getUnitTypeUrlAbsoluteHumidity();
    static const QString& getUnitUrlAbsoluteHumidityGramPerCubicMeter();
    static const QString& getUnitTypeUrlVoltage();
    static const QString& getUnitTypeUrlTime();
    static const QString& getUnitUrlTimeSeconds();
    static const QString& getUnitTypeUrlSpecificEnthalpy();
    static const QString& getUnitUrlSpecificEnthalpyKiloJoulePerKiloGram();
    /// @}

    /// Special number of decimal places: the user interface positions the decimal separator itself.
    static int getUiDecimalsAutoComma();
};
