#pragma once

#include <QtCore/QSharedPointer>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

#include "ConfigurationAndProcessDataBase.h"
#include "UnitConversion/DefaultUnitHandler.h"
#include "UnitConversion/UnitConversionLookUp.h"
#include "UnitManagerExport.h"
#include "UnitTextManagement/UnitTextHandler.h"

enum class ConversionDirection;
struct FoundConversion;

/// The whole unit knowledge of one configuration, and the rules that combine it: an empty unit means the unit
/// type's default unit, a fixed unit (unit type, "/", unit) is never converted, and a node carries its unit
/// type in a property.
///
/// A failed load is not rolled back: the old content is gone. Copies are cheap. One thread loads and reads at
/// a time; const operations may run concurrently with each other.
class UNITMANAGER_EXPORT UnitManagerCore
{
public:
    /// Empty and invalid.
    UnitManagerCore();
    virtual ~UnitManagerCore();

    /// Replaces conversions and labels by those of the document; both are loaded whatever the other's result.
    ///
    /// @return whether both were loaded; false for an empty text, which resets both.
    bool updateUnitConversionByJsonString(const QString& json);
    /// The same from a file; an empty path resets both and gives false.
    bool updateUnitConversionByJsonFile(const QString& path);

    /// Replaces the default units by those of the document.
    ///
    /// @return whether there is at least one; true for an empty text, which resets them.
    bool updateDefaultUnitsByJsonString(const QString& json);
    /// The same from a file; an empty path resets them and gives true.
    bool updateDefaultUnitsByJsonFile(const QString& path);

    /// @return the unit types with their prefix, in no particular order.
    QStringList getListofUnitTypes() const;
    /// @return the units of the type; empty for an unknown one. Nothing is logged.
    QStringList getListofUnits(const QString& unitType) const;
    /// @return the default unit's name; empty for an unknown type, with a warning unless it is the unit-less
    /// type.
    QString getDefaultUnit(const QString& unitType) const;
    /// @return the base unit as a fixed unit; empty, with a warning, for an unknown unit type.
    QString getBaseUnit(const QString& unitType) const;

    /// The label of a unit in a language; an empty @p unit means the default unit. Empty when there is none.
    QString getUnitText(const QString& unitType, const QString& language, const QString& unit) const;
    /// The same for the unit type that @p node names.
    QString getUnitText(const QSharedPointer<ConfigurationAndProcessDataBase>& node, const QString& language,
                        const QString& unit) const;
    /// The label, in all languages, of a fixed unit or of a unit type's base unit; invalid when there is
    /// none.
    QVariant getUnitTextJsonMap(const QString& key) const;

    /// Stores the unit type that @p node names. @p unit is never written: a node names a unit by a fixed
    /// unit.
    ///
    /// @return false, with @p unitType untouched, for a null node and one without a text as unit type.
    bool getUnitProperties(const QSharedPointer<ConfigurationAndProcessDataBase>& node, QString& unitType,
                           QString& unit) const;
    /// The same for the child @p key of @p node; false when there is none.
    bool getUnitProperties(const QSharedPointer<ConfigurationAndProcessDataBase>& node, const QString& key,
                           QString& unitType, QString& unit) const;

    /// Whether @p unitType has exactly one "/" more than the unit-type prefix. Nothing else is looked at.
    bool isFixedUnitType(const QString& unitType) const;
    /// Splits a fixed unit at its last "/".
    ///
    /// @return false, with both outputs untouched and a warning logged, when it is none.
    bool extractUnitTypeAndUnit(const QString& fixedUnit, QString& unitType, QString& unit) const;

    /// Converts @p value in place from @p unit to the base unit. An empty unit type with an empty unit and a
    /// fixed unit leave it as it is and succeed.
    ///
    /// @return false, with the value untouched, when the conversion is not known; warnings say why, except
    /// for an empty unit type.
    bool toBaseUnit(QVariant& value, const QString& unitType, const QString& unit) const;
    /// @return @p value converted from the base unit to @p unit; @p value itself when the conversion is not
    /// known.
    QVariant fromBaseUnit(const QVariant& value, const QString& unitType, const QString& unit) const;
    /// toBaseUnit() with the unit type that @p node names.
    bool toBaseUnit(const QSharedPointer<ConfigurationAndProcessDataBase>& node, QVariant& value,
                    const QString& unit) const;
    /// fromBaseUnit() with the unit type that @p node names.
    QVariant fromBaseUnit(const QSharedPointer<ConfigurationAndProcessDataBase>& node, const QVariant& value,
                          const QString& unit) const;

    /// Stores the number of decimal places with which values of a unit are shown; of a fixed unit its own,
    /// whatever @p unit says.
    ///
    /// @return false, with @p decimalPlaces untouched, when the unit is not known.
    bool getDecimalPlacesForUnit(const QString& unitType, const QString& unit,
                                 unsigned int& decimalPlaces) const;

    /// Whether conversions and labels are loaded; default units take no part.
    bool isValid() const;
    operator bool() const;

private:
    friend class RowConversion;
    friend class UnitManager;
    friend class UnitManagerDevice;

    /// Finds the conversion of a unit, an empty one meaning the default unit. Every conversion of this class
    /// and of the unit manager uses it. A failure is logged, except for an empty unit type.
    UNITMANAGER_NO_EXPORT FoundConversion find(const QString& unitType, const QString& unit,
                                               ConversionDirection direction) const;
    /// find() for the unit type that @p node names.
    UNITMANAGER_NO_EXPORT FoundConversion find(const ConfigurationAndProcessDataBase& node,
                                               const QString& unit, ConversionDirection direction) const;
    /// Converts @p value in place and stores the decimal places of the unit that @p unit or a fixed unit
    /// names.
    ///
    /// @return false, with @p decimalPlaces untouched, when that unit is not known.
    UNITMANAGER_NO_EXPORT bool convertForDisplay(QVariant& value, const QString& unitType,
                                                 const QString& unit, ConversionDirection direction,
                                                 unsigned int& decimalPlaces) const;
    /// Converts @p value in place to the base unit of the unit type that @p node names. The no-input marker
    /// stays as it is, even where that unit type or @p unit is not known.
    ///
    /// @return false, with @p value untouched, when it cannot be converted.
    UNITMANAGER_NO_EXPORT bool convertForStorage(const ConfigurationAndProcessDataBase& node, QVariant& value,
                                                 const QString& unit) const;
    UNITMANAGER_NO_EXPORT QString unitOrDefault(const QString& unitType, const QString& unit) const;

    UnitConversionLookUp conversionLookUp;
    DefaultUnitHandler defaultUnits;
    UnitTextHandler unitTexts;
};
