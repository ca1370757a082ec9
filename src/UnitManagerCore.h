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

/// All unit data of one configuration, and the rules that combine it: an empty unit means the default unit of
/// the unit type, a fixed unit (unit type, "/", unit) is never converted, and a node stores its unit type in
/// a property.
///
/// A failed load is not rolled back: the old content is lost. Copies are cheap. Loading needs exclusive
/// access; const operations may run concurrently with each other.
class UNITMANAGER_EXPORT UnitManagerCore
{
public:
    /// Creates an empty, invalid object.
    UnitManagerCore();
    virtual ~UnitManagerCore();

    /// Replaces conversions and labels by those of the document. Each is loaded regardless of the other's
    /// result.
    ///
    /// @return whether both were loaded; false for an empty text, which resets both.
    bool updateUnitConversionByJsonString(const QString& json);
    /// Replaces conversions and labels by those of a file; see updateUnitConversionByJsonString(). An empty
    /// path resets both and returns false.
    bool updateUnitConversionByJsonFile(const QString& path);

    /// Replaces the default units by those of the document.
    ///
    /// @return whether there is at least one; true for an empty text, which resets them.
    bool updateDefaultUnitsByJsonString(const QString& json);
    /// Replaces the default units by those of a file; see updateDefaultUnitsByJsonString(). An empty path
    /// resets them and returns true.
    bool updateDefaultUnitsByJsonFile(const QString& path);

    /// @return the unit types, with their prefix, in no particular order.
    QStringList getListofUnitTypes() const;
    /// @return the units of the unit type; empty for an unknown unit type. Nothing is logged.
    QStringList getListofUnits(const QString& unitType) const;
    /// @return the units of the unit type by display position, then by name; those without a position last,
    /// by name. Empty for an unknown unit type. Nothing is logged.
    QStringList getUnitsInDisplayOrder(const QString& unitType) const;
    /// @return the name of the default unit; empty for an unknown unit type, with a warning unless it is the
    /// unit-less type.
    QString getDefaultUnit(const QString& unitType) const;
    /// @return the base unit as a fixed unit; empty, with a warning, for an unknown unit type.
    QString getBaseUnit(const QString& unitType) const;

    /// The label of a unit in a language; an empty @p unit means the default unit. Empty when there is no
    /// label.
    QString getUnitText(const QString& unitType, const QString& language, const QString& unit) const;
    /// The label of a unit of the unit type stored in @p node; see the overload with a unit type.
    QString getUnitText(const QSharedPointer<ConfigurationAndProcessDataBase>& node, const QString& language,
                        const QString& unit) const;
    /// The label, in all languages, of a fixed unit or of the base unit of a unit type; invalid when there is
    /// none.
    QVariant getUnitTextJsonMap(const QString& key) const;

    /// Stores the unit type of @p node in @p unitType. @p unit is never written: a node that names a unit
    /// does so by a fixed unit.
    ///
    /// @return false, with @p unitType unchanged, for a null node and a node whose unit type is missing or
    /// not a text.
    bool getUnitProperties(const QSharedPointer<ConfigurationAndProcessDataBase>& node, QString& unitType,
                           QString& unit) const;
    /// Stores the unit type of the child @p key of @p node; see the overload without a key. @return false
    /// also when there is no such child.
    bool getUnitProperties(const QSharedPointer<ConfigurationAndProcessDataBase>& node, const QString& key,
                           QString& unitType, QString& unit) const;

    /// Whether @p unitType has exactly one "/" more than the unit-type prefix. Nothing else is checked.
    bool isFixedUnitType(const QString& unitType) const;
    /// Splits a fixed unit at its last "/".
    ///
    /// @return false, with both outputs unchanged and a warning logged, when @p fixedUnit is not a fixed
    /// unit.
    bool extractUnitTypeAndUnit(const QString& fixedUnit, QString& unitType, QString& unit) const;

    /// Converts @p value in place from @p unit to the base unit. It stays unchanged for a fixed unit and for
    /// an empty unit type with an empty unit; both count as success.
    ///
    /// @return false, with the value unchanged, when the conversion is not known; warnings give the reason,
    /// except for an empty unit type.
    bool toBaseUnit(QVariant& value, const QString& unitType, const QString& unit) const;
    /// @return @p value converted from the base unit to @p unit; @p value unchanged when the conversion is
    /// not known.
    QVariant fromBaseUnit(const QVariant& value, const QString& unitType, const QString& unit) const;
    /// Converts @p value in place with the unit type stored in @p node; see the overload with a unit type.
    bool toBaseUnit(const QSharedPointer<ConfigurationAndProcessDataBase>& node, QVariant& value,
                    const QString& unit) const;
    /// Converts @p value with the unit type stored in @p node; see the overload with a unit type.
    QVariant fromBaseUnit(const QSharedPointer<ConfigurationAndProcessDataBase>& node, const QVariant& value,
                          const QString& unit) const;

    /// Stores the number of decimal places with which values of @p unit are shown. For a fixed unit as
    /// @p unitType, its own number is stored and @p unit is ignored.
    ///
    /// @return false, with @p decimalPlaces unchanged, when the unit is not known.
    bool getDecimalPlacesForUnit(const QString& unitType, const QString& unit,
                                 unsigned int& decimalPlaces) const;

    /// Whether conversions and labels are loaded. Default units are not required.
    bool isValid() const;
    /// Same as isValid().
    operator bool() const;

private:
    friend class RowConversion;
    friend class UnitManager;
    friend class UnitManagerDevice;

    /// Looks up the conversion of a unit; an empty unit means the default unit. Every conversion of this
    /// class and of UnitManager uses it. Logs a failure, except for an empty unit type.
    UNITMANAGER_NO_EXPORT FoundConversion find(const QString& unitType, const QString& unit,
                                               ConversionDirection direction) const;
    /// Looks up the conversion for the unit type stored in @p node; see the overload with a unit type.
    UNITMANAGER_NO_EXPORT FoundConversion find(const ConfigurationAndProcessDataBase& node,
                                               const QString& unit, ConversionDirection direction) const;
    /// Converts @p value in place and stores the decimal places of the unit that @p unit or a fixed unit
    /// names.
    ///
    /// @return false, with @p decimalPlaces unchanged, when that unit is not known.
    UNITMANAGER_NO_EXPORT bool convertForDisplay(QVariant& value, const QString& unitType,
                                                 const QString& unit, ConversionDirection direction,
                                                 unsigned int& decimalPlaces) const;
    /// Converts @p value in place to the base unit of the unit type stored in @p node. The no-input marker
    /// stays unchanged, even if that unit type or @p unit is not known.
    ///
    /// @return false, with @p value unchanged, when it cannot be converted.
    UNITMANAGER_NO_EXPORT bool convertForStorage(const ConfigurationAndProcessDataBase& node, QVariant& value,
                                                 const QString& unit) const;
    UNITMANAGER_NO_EXPORT QString unitOrDefault(const QString& unitType, const QString& unit) const;

    UnitConversionLookUp m_conversionLookUp;
    DefaultUnitHandler m_defaultUnits;
    UnitTextHandler m_unitTexts;
};
