#pragma once

#include <QtCore/QString>

#include "UnitManagerExport.h"

/// The fixed identifiers of the library: module name, keys of the unit document, unit types and units that
/// applications name in code.
///
/// Unit types read "UnitManager/UnitType/" and a type name; units read their unit type's identifier, "/" and
/// a unit name (fixed units). Every text is built on first use and lives until the process ends; the getters
/// may be called from any thread.
class UNITMANAGER_EXPORT UnitManagerDefinitions
{
public:
    /// Nothing to construct: all identifiers are static.
    UnitManagerDefinitions() = default;
    virtual ~UnitManagerDefinitions();

    /// The library's name.
    static const QString& getModuleName();
    /// Key below a unit type that is no unit and is passed over.
    static const QString& getUnitTypeText();
    /// Key of the unit-less type, and of the unit that converts nothing.
    static const QString& getUnitTypeNoUnit();
    /// The unit-less type's identifier.
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

    /// Number of decimal places by which a user interface is told to place the decimal comma itself.
    static int getUiDecimalsAutoComma();
};
