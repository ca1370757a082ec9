#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>
#include <QtCore/QVector>

#include <cstddef>

#include "ConfigurationAndProcessDataBase.h"
#include "UnitManagerCore.h"
#include "UnitManagerExport.h"

class Array2dDataTypeWrapper;
enum class ConversionDirection;

/// The entry point: loads the unit and default-unit documents, converts values between a unit and the base
/// unit of its unit type, and knows units, decimal places and labels.
///
/// Values are stored in base units and shown in the requested unit. Everywhere an empty `unit` means the unit
/// type's default unit, and a fixed unit (unit type, "/", unit) given as unit type means that nothing is
/// converted. The plain conversions round to the unit's decimal places; node, array and raw operations never
/// round. A value that carries the no-input marker is never converted.
///
/// @code
/// UnitManager units;
/// if (!units.initByJsonFile("units.json", "default-units.json"))
///     return 1;
/// const QString& pressure = UnitManagerDefinitions::getUnitTypeUrlPressure();
/// units.fromBaseUnit(1.01325, pressure, "HectoPascal"); // 1013.3, for one decimal place
/// @endcode
///
/// Copies are cheap and share converters and labels. One thread loads and reads at a time; const operations
/// may run concurrently with each other while nothing is loaded. Nothing throws; failures are results, and
/// warnings say why.
class UNITMANAGER_EXPORT UnitManager
{
public:
    /// Empty and invalid.
    UnitManager();
    virtual ~UnitManager();

    /// Loads both documents from their texts; both are loaded whatever the other's result.
    ///
    /// @return whether both were loaded. An empty default-unit text is allowed and means no default units.
    bool initByJsonString(const QString& conversionJson, const QString& defaultUnitJson);
    /// The same from files.
    bool initByJsonFile(const QString& conversionPath, const QString& defaultUnitPath);
    /// Loads the unit document and drops all default units.
    bool initByJsonFile(const QString& conversionPath);

    /// Replaces units and labels. They are gone also when this fails.
    ///
    /// @return false, with a warning, for a text that does not parse; false without one for an empty text and
    /// for a document without a unit type or without a label.
    bool updateUnitConversionByJsonString(const QString& json);
    /// The same from a file; false for an empty path.
    bool updateUnitConversionByJsonFile(const QString& path);
    /// Replaces the default units. They are gone also when this fails; an empty text drops them and gives
    /// true.
    bool updateDefaultUnitsByJsonString(const QString& json);
    /// The same from a file; an empty path drops them and gives true.
    bool updateDefaultUnitsByJsonFile(const QString& path);

    /// The unit types with their prefix, in no particular order.
    QStringList getListofUnitTypes() const;
    /// The units of a type, in no particular order; empty for an unknown one. Nothing is logged.
    QStringList getListofUnits(const QString& unitType) const;
    /// The default unit's name; empty for an unknown type, with a warning unless it is the unit-less type.
    QString getDefaultUnit(const QString& unitType) const;
    /// The base unit as a fixed unit; empty, with a warning, for an unknown unit type.
    QString getBaseUnit(const QString& unitType) const;
    /// Whether @p unitType has exactly one "/" more than the unit-type prefix. Nothing else is looked at.
    bool isFixedUnitType(const QString& unitType) const;
    /// Splits a fixed unit at its last "/"; false, with both outputs untouched and a warning, when it is
    /// none.
    bool extractUnitTypeAndUnit(const QString& fixedUnit, QString& unitType, QString& unit) const;
    /// The label of a unit; empty, with a warning, for an unknown unit type or unit.
    ///
    /// @param language language of the text; a missing one falls back to another
    QString getUnitText(const QString& unitType, const QString& language, const QString& unit) const;
    /// The label, in all languages, of a fixed unit or of a unit type's base unit; invalid when there is
    /// none.
    QVariant getUnitTextJsonMap(const QString& key) const;
    /// Whether units and labels are loaded; default units take no part.
    bool isValid() const;
    operator bool() const;
    /// Identifier of the text that labels a value without unit.
    QString getNoUnitLabelTextId() const;

    /// Stores the number of decimal places with which values of a unit are shown; of a fixed unit its own,
    /// whatever @p unit says.
    ///
    /// @return false, with @p decimalPlaces untouched, when the unit is not known; an unknown unit type and a
    /// missing default unit give a warning.
    bool getDecimalPlacesForUnit(const QString& unitType, const QString& unit,
                                 unsigned int& decimalPlaces) const;
    /// Rounds to a number of digits behind the decimal point.
    ///
    /// @return a double; 0.0, with a warning, for a value that is no number. Never invalid.
    QVariant roundDouble(const QVariant& value, unsigned int decimalPlaces) const;

    /// Converts from the base unit to @p unit and rounds to that unit's decimal places.
    ///
    /// @return a double; @p value as it is where unit and decimal places are not known; 0.0 for a value that
    /// is no number but whose unit is known. Warnings say why.
    QVariant fromBaseUnit(const QVariant& value, const QString& unitType, const QString& unit) const;
    /// Converts from @p unit to the base unit and rounds the result to the decimal places of @p unit, not of
    /// the base unit: a value entered in a coarse unit is stored coarsely. Results as for fromBaseUnit().
    QVariant toBaseUnit(const QVariant& value, const QString& unitType, const QString& unit) const;
    /// fromBaseUnit() without rounding; @p value as it is when it cannot be converted. A warning says why,
    /// except for an empty unit type.
    QVariant fromBaseUnitRaw(const QVariant& value, const QString& unitType, const QString& unit) const;
    /// toBaseUnit() without rounding; @p value as it is when it cannot be converted. A warning says why,
    /// except for an empty unit type.
    QVariant toBaseUnitRaw(const QVariant& value, const QString& unitType, const QString& unit) const;
    /// Finds the conversion of a unit once, to convert many values with it: `convertValue()` of the stored
    /// handle is fromBaseUnitRaw() of a number, and `invertValue()` is toBaseUnitRaw(). Callers must not pass
    /// the no-input marker to the handle.
    ///
    /// The handle is independent of this manager: it stays as it is when something else is loaded, and may
    /// outlive the manager.
    ///
    /// @param unitType unit type with its prefix, or a fixed unit
    /// @param unit name of a unit; empty for the default unit
    /// @param conversion receives the handle. It has no converter, and leaves every number as it is, where
    /// there is nothing to convert (a fixed unit, "NoUnit", an empty unit type without unit) and after a
    /// failure.
    /// @return false for an unknown unit or unit type, with a warning, and for a unit without unit type,
    /// without one; true otherwise, also where there is nothing to convert.
    bool getConversion(const QString& unitType, const QString& unit,
                       ValueConversionWrapper& conversion) const;

    /// Converts an array of numbers from the base unit to a unit, without rounding. Each result is bit by bit
    /// that of fromBaseUnitRaw(); the unit is looked up, and a failure logged, once for the whole array.
    ///
    /// @param values @p count numbers in the base unit; no-input markers stay as they are
    /// @param results room for @p count numbers; may be @p values itself, but must not overlap it otherwise
    /// @param count number of values; may be 0
    /// @param unitType unit type with its prefix, or a fixed unit, whose values stay as they are
    /// @param unit name of a unit; empty for the default unit
    /// @return whether the conversion is known, as for getConversion(). If not, @p results receives @p values
    /// unchanged.
    bool fromBaseUnitArray(const double* values, double* results, std::size_t count, const QString& unitType,
                           const QString& unit) const;
    /// Converts an array of numbers from a unit to the base unit, without rounding; each result is bit by bit
    /// that of toBaseUnitRaw(). Parameters and result as for the form of fromBaseUnitArray() with pointers.
    bool toBaseUnitArray(const double* values, double* results, std::size_t count, const QString& unitType,
                         const QString& unit) const;
    /// Converts an array of numbers in place from the base unit to a unit, without rounding.
    ///
    /// @param values numbers in the base unit, replaced by numbers in @p unit; no-input markers stay as they
    /// are. Copies that share the data keep theirs.
    /// @param unitType unit type with its prefix, or a fixed unit, whose values stay as they are
    /// @param unit name of a unit; empty for the default unit
    /// @return whether the conversion is known, as for getConversion(). If not, @p values is untouched.
    bool fromBaseUnitArray(QVector<double>& values, const QString& unitType, const QString& unit) const;
    /// Converts an array of numbers in place from a unit to the base unit, without rounding. Parameters and
    /// result as for the form of fromBaseUnitArray() in place, with the units exchanged.
    bool toBaseUnitArray(QVector<double>& values, const QString& unitType, const QString& unit) const;
    /// fromBaseUnitRaw(), but invalid for an invalid value.
    QVariant getValue(const QVariant& value, const QString& unitType, const QString& unit) const;

    /// Reads the value of the child @p key of @p node, converted from the base unit to @p unit when it is a
    /// number.
    ///
    /// @return invalid for a null node, a missing child or a child without value. (A null literal as @p node
    /// is ambiguous with the overload above: pass a BaseClassSharedPointer.)
    QVariant getValue(const QString& key, const BaseClassSharedPointer& node, const QString& unit) const;
    /// Writes a value to the child @p key of @p node, converted from @p unit to the base unit. The no-input
    /// marker is written as it is.
    ///
    /// @return the node's status: 0 changed, 1 written without change, 2 failure. 2, with nothing written,
    /// for a null node, a missing child and a value that cannot be converted.
    int setValueStatus(const QString& key, const BaseClassSharedPointer& node, const QVariant& value,
                       const QString& unit) const;
    /// Whether setValueStatus() wrote the value.
    bool setValue(const QString& key, const BaseClassSharedPointer& node, const QVariant& value,
                  const QString& unit) const;
    /// The label of a unit of the unit type that the child @p key of @p node names; empty for a null node or
    /// missing child.
    QString getUnitText(const QString& key, const BaseClassSharedPointer& node, const QString& language,
                        const QString& unit) const;

    /// The unit labels of @p columnCount columns from @p firstColumn on, empty for a column without unit
    /// type. Empty list when the range does not lie within the array.
    QStringList getUnitText(const Array2dDataTypeWrapper& array, const QString& language,
                            unsigned int firstColumn, unsigned int columnCount, const QString& unit) const;
    /// The unit label of one column; empty when there is none.
    QString getUnitText(const Array2dDataTypeWrapper& array, const QString& language, unsigned int column,
                        const QString& unit) const;
    /// The cells of a range of one row, each converted from its column's base unit to @p unit. Empty list
    /// when the range does not lie within the array.
    QList<QVariant> getValueArray(const Array2dDataTypeWrapper& array, unsigned int row,
                                  unsigned int firstColumn, unsigned int columnCount,
                                  const QString& unit) const;
    /// Writes @p values to a range of one row, each converted from @p unit to its column's base unit.
    ///
    /// @param values at least @p columnCount values; fewer is a programming error
    /// @return false, with the array untouched, when the range does not lie within it or a value cannot be
    /// converted; else what the array's write reports.
    bool setValueArray(Array2dDataTypeWrapper& array, unsigned int row, unsigned int firstColumn,
                       unsigned int columnCount, const QList<QVariant>& values, const QString& unit) const;

protected:
    /// What this manager knows, for derived managers.
    const UnitManagerCore& unitManagerCore() const;

private:
    UNITMANAGER_NO_EXPORT QVariant convertAndRound(const QVariant& value, const QString& unitType,
                                                   const QString& unit, ConversionDirection direction) const;

    UnitManagerCore core;
};
