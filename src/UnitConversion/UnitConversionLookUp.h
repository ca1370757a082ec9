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
    /// An empty catalogue.
    UnitConversionLookUp();
    /// A catalogue of the document @p json; test with isValid().
    UnitConversionLookUp(const QString& json);
    virtual ~UnitConversionLookUp();

    /// Replaces the catalogue by the unit types of the document. The old one is gone also when this fails.
    ///
    /// @return false for an empty text, a text that does not parse (a warning carries the whole text) and a
    /// document without unit types.
    bool initByJsonString(const QString& json);

    /// initByJsonString() with the text of the file @p path; an unreadable file counts as empty.
    bool initByJsonFile(const QString& path);

    /// Empties the catalogue.
    void reset();

    /// Whether there is at least one unit type.
    bool isValid() const;
    operator bool() const;

    QList<QString> getListofUnitTypes() const;

    /// @return the units of the type; empty for an unknown one. Nothing is logged.
    QList<QString> getListofUnits(const QString& unitType) const;

    /// @return the base unit as a fixed unit (unit type, "/", unit); empty, with a warning, for an unknown
    /// unit type.
    QString getBaseUnit(const QString& unitType) const;

    /// Stores the number of decimal places with which values of @p unit are shown.
    ///
    /// @return false, with @p decimalPlaces untouched, for an unknown unit type (a warning is logged), an
    /// unknown unit and "NoUnit".
    bool getDecimalPlacesForUnit(const QString& unitType, const QString& unit,
                                 unsigned int& decimalPlaces) const;

    /// Converts @p value in place from @p unit to the base unit; the result is a double.
    ///
    /// @return false, with the value untouched and a warning logged, for an unknown unit type or unit and for
    /// a value that is no number.
    bool toBaseUnit(QVariant& value, const QString& unitType, const QString& unit) const;

    /// Converts @p value in place from the base unit to @p unit; everything else as for toBaseUnit().
    bool fromBaseUnit(QVariant& value, const QString& unitType, const QString& unit) const;

private:
    friend class UnitManagerCore;

    /// initByJsonString() for a text that has been parsed already; @p root is null where that failed.
    UNITMANAGER_NO_EXPORT bool initByDocument(const BaseClassSharedPointer& root, const QString& json);
    /// The handler of a unit type; null, with nothing logged, for an unknown or invalid one.
    UNITMANAGER_NO_EXPORT const UnitConversionUnitTypeHandler* findHandler(const QString& unitType) const;
    /// Finds the conversion of a unit; logs a warning for an unknown unit type or unit.
    UNITMANAGER_NO_EXPORT FoundConversion find(const QString& unitType, const QString& unit,
                                               ConversionDirection direction) const;
    /// find() with the result of findHandler() for the unit type.
    UNITMANAGER_NO_EXPORT static FoundConversion find(const UnitConversionUnitTypeHandler* handler,
                                                      const QString& unitType, const QString& unit,
                                                      ConversionDirection direction);

    QHash<QString, UnitConversionUnitTypeHandler> conversions;
    QList<QString> unitTypes;
};
