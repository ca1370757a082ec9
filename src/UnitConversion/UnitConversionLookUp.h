#pragma once

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include "UnitConversion/UnitConversionUnitTypeHandler.h"
#include "UnitManagerExport.h"

/// The unit-conversion catalogue: the unit types of a unit document with their units and conversions.
///
/// Unit types are named with their prefix, as in "UnitManager/UnitType/Pressure". Copies share the
/// converters. Const operations may run concurrently with each other, but not with an initialisation.
class UNITMANAGER_EXPORT UnitConversionLookUp
{
public:
    /// Creates an empty catalogue.
    UnitConversionLookUp();
    /// Creates the catalogue of the document @p json; check the result with isValid().
    UnitConversionLookUp(const QString& json);
    virtual ~UnitConversionLookUp();

    /// Replaces the catalogue by the unit types of the document. The old catalogue is removed even on
    /// failure.
    ///
    /// @return false for an empty text, a text that does not parse (a warning contains the whole text) and a
    /// document without unit types.
    bool initByJsonString(const QString& json);

    /// Loads the catalogue from the file @p path; see initByJsonString(). An unreadable file counts as empty.
    bool initByJsonFile(const QString& path);

    /// Empties the catalogue.
    void reset();

    /// Whether there is at least one unit type.
    bool isValid() const;
    /// Same as isValid().
    operator bool() const;

    /// The unit types, with their prefix, in no particular order.
    QList<QString> getListofUnitTypes() const;

    /// @return the units of the unit type; empty for an unknown unit type. Nothing is logged.
    QList<QString> getListofUnits(const QString& unitType) const;

    /// @return the base unit as a fixed unit (unit type, "/", unit); empty, with a warning, for an unknown
    /// unit type.
    QString getBaseUnit(const QString& unitType) const;

    /// Stores the number of decimal places with which values of @p unit are shown.
    ///
    /// @return false, with @p decimalPlaces unchanged, for an unknown unit type (a warning is logged), an
    /// unknown unit and "NoUnit".
    bool getDecimalPlacesForUnit(const QString& unitType, const QString& unit,
                                 unsigned int& decimalPlaces) const;

    /// Converts @p value in place from @p unit to the base unit; the result is a double.
    ///
    /// @return false, with the value unchanged and a warning logged, for an unknown unit type or unit and for
    /// a value that is not a number.
    bool toBaseUnit(QVariant& value, const QString& unitType, const QString& unit) const;

    /// Converts @p value in place from the base unit to @p unit; for the result see toBaseUnit().
    bool fromBaseUnit(QVariant& value, const QString& unitType, const QString& unit) const;

private:
    friend class UnitManagerCore;

    /// Loads a document that has already been parsed; see initByJsonString(). @p root is null if parsing
    /// failed.
    UNITMANAGER_NO_EXPORT bool initByDocument(const BaseClassSharedPointer& root, const QString& json);
    /// The handler of a unit type; null for an unknown or invalid unit type. Nothing is logged.
    UNITMANAGER_NO_EXPORT const UnitConversionUnitTypeHandler* findHandler(const QString& unitType) const;
    /// Looks up the conversion of a unit; logs a warning for an unknown unit type or unit.
    UNITMANAGER_NO_EXPORT FoundConversion find(const QString& unitType, const QString& unit,
                                               ConversionDirection direction) const;
    /// Looks up the conversion of a unit, given the result of findHandler() for its unit type.
    UNITMANAGER_NO_EXPORT static FoundConversion find(const UnitConversionUnitTypeHandler* handler,
                                                      const QString& unitType, const QString& unit,
                                                      ConversionDirection direction);

    QHash<QString, UnitConversionUnitTypeHandler> conversions;
    QList<QString> unitTypes;
};
