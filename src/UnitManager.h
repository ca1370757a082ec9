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

/// The entry point: loads the unit document and the default-unit document, converts values between a unit and
/// the base unit of its unit type, and provides units, decimal places and labels.
///
/// Values are stored in base units and shown in the requested unit. An empty `unit` always means the default
/// unit of the unit type. If a fixed unit (unit type, "/", unit) is passed as the unit type, nothing is
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
/// Copies are cheap and share converters and labels. Loading needs exclusive access; const operations may run
/// concurrently with each other while nothing is loaded. Nothing throws: failures are reported by the result,
/// and warnings give the reason.
class UNITMANAGER_EXPORT UnitManager
{
public:
    /// Creates an empty, invalid manager.
    UnitManager();
    virtual ~UnitManager();

    /// Loads the unit document and the default-unit document from their texts. Each is loaded regardless of
    /// the other's result.
    ///
    /// @return whether both were loaded. An empty default-unit text is allowed and means that there are no
    /// default units.
    bool initByJsonString(const QString& conversionJson, const QString& defaultUnitJson);
    /// Loads both documents from files; see initByJsonString().
    bool initByJsonFile(const QString& conversionPath, const QString& defaultUnitPath);
    /// Loads the unit document from a file and removes all default units.
    bool initByJsonFile(const QString& conversionPath);

    /// Replaces units and labels by those of a unit document. The old ones are removed even on failure.
    ///
    /// @return false, with a warning, for a text that does not parse; false without a warning for an empty
    /// text and for a document without a unit type or without a label.
    bool updateUnitConversionByJsonString(const QString& json);
    /// Replaces units and labels by those of a file; see updateUnitConversionByJsonString(). @return false
    /// also for an empty path.
    bool updateUnitConversionByJsonFile(const QString& path);
    /// Replaces the default units. The old ones are removed even on failure; an empty text removes them and
    /// returns true.
    bool updateDefaultUnitsByJsonString(const QString& json);
    /// Replaces the default units by those of a file; see updateDefaultUnitsByJsonString(). An empty path
    /// removes them and returns true.
    bool updateDefaultUnitsByJsonFile(const QString& path);
    /// Whether units and labels are loaded. Default units are not required.
    bool isValid() const;
    /// Same as isValid().
    operator bool() const;

    /// The unit types, with their prefix, in no particular order.
    QStringList getListofUnitTypes() const;
    /// The units of a unit type, in no particular order; empty for an unknown unit type. Nothing is logged.
    QStringList getListofUnits(const QString& unitType) const;
    /// The same units as they are listed in a user interface: by display position, then by name; those
    /// without a position last, by name.
    QStringList getUnitsInDisplayOrder(const QString& unitType) const;
    /// The name of the default unit; empty for an unknown unit type, with a warning unless it is the
    /// unit-less type.
    QString getDefaultUnit(const QString& unitType) const;
    /// The base unit as a fixed unit; empty, with a warning, for an unknown unit type.
    QString getBaseUnit(const QString& unitType) const;
    /// Whether @p unitType has exactly one "/" more than the unit-type prefix. Nothing else is checked.
    bool isFixedUnitType(const QString& unitType) const;
    /// Splits a fixed unit at its last "/". @return false, with both outputs unchanged and a warning, when
    /// @p fixedUnit is not a fixed unit.
    bool extractUnitTypeAndUnit(const QString& fixedUnit, QString& unitType, QString& unit) const;
    /// The label of a unit; empty, with a warning, for an unknown unit type or unit.
    ///
    /// @param unitType unit type with its prefix, or a fixed unit
    /// @param language language of the text; if it is missing, another language is used
    /// @param unit name of a unit; empty for the default unit
    QString getUnitText(const QString& unitType, const QString& language, const QString& unit) const;
    /// The label, in all languages, of a fixed unit or of the base unit of a unit type; invalid when there is
    /// none.
    QVariant getUnitTextJsonMap(const QString& key) const;
    /// Identifier of the text that labels a value without a unit.
    QString getNoUnitLabelTextId() const;

    /// Stores the number of decimal places with which values of @p unit are shown. For a fixed unit as
    /// @p unitType, its own number is stored and @p unit is ignored.
    ///
    /// @return false, with @p decimalPlaces unchanged, when the unit is not known. An unknown unit type and a
    /// missing default unit log a warning.
    bool getDecimalPlacesForUnit(const QString& unitType, const QString& unit,
                                 unsigned int& decimalPlaces) const;
    /// Rounds to a number of digits after the decimal point.
    ///
    /// @return a double; 0.0, with a warning, for a value that is not a number. Never invalid.
    QVariant roundDouble(const QVariant& value, unsigned int decimalPlaces) const;

    /// Converts from the base unit to @p unit and rounds to that unit's decimal places.
    ///
    /// @return a double; @p value unchanged when unit or decimal places are not known; 0.0 for a value that
    /// is not a number but whose unit is known. Warnings give the reason.
    QVariant fromBaseUnit(const QVariant& value, const QString& unitType, const QString& unit) const;
    /// Converts from @p unit to the base unit and rounds the result to the decimal places of @p unit, not of
    /// the base unit: a value entered in a coarse unit is stored coarsely. For the result see fromBaseUnit().
    QVariant toBaseUnit(const QVariant& value, const QString& unitType, const QString& unit) const;
    /// Converts from the base unit to @p unit without rounding. @return @p value unchanged when it cannot be
    /// converted; a warning gives the reason, except for an empty unit type.
    QVariant fromBaseUnitRaw(const QVariant& value, const QString& unitType, const QString& unit) const;
    /// Converts from @p unit to the base unit without rounding. @return @p value unchanged when it cannot be
    /// converted; a warning gives the reason, except for an empty unit type.
    QVariant toBaseUnitRaw(const QVariant& value, const QString& unitType, const QString& unit) const;
    /// Looks up the conversion of a unit once, to convert many values with it: `convertValue()` of the stored
    /// handle gives the result of fromBaseUnitRaw() for a number, and `invertValue()` that of
    /// toBaseUnitRaw(). Callers must not pass the no-input marker to the handle.
    ///
    /// The handle is independent of this manager: later loads do not change it, and it may outlive the
    /// manager.
    ///
    /// @param unitType unit type with its prefix, or a fixed unit
    /// @param unit name of a unit; empty for the default unit
    /// @param conversion receives the handle. It has no converter, and returns every number unchanged, when
    /// there is nothing to convert (a fixed unit, "NoUnit", an empty unit type without a unit) and after a
    /// failure.
    /// @return false, with a warning, for an unknown unit or unit type; false without a warning for a unit
    /// without a unit type; otherwise true, also when there is nothing to convert.
    bool getConversion(const QString& unitType, const QString& unit,
                       ValueConversionWrapper& conversion) const;

    /// Converts an array of numbers from the base unit to a unit, without rounding. Each result is bit by bit
    /// that of fromBaseUnitRaw(). The unit is looked up, and a failure logged, once for the whole array.
    ///
    /// @param values @p count numbers in the base unit; no-input markers stay unchanged
    /// @param results room for @p count numbers; may be equal to @p values, but must not overlap it otherwise
    /// @param count number of values; may be 0
    /// @param unitType unit type with its prefix; for a fixed unit the values stay unchanged
    /// @param unit name of a unit; empty for the default unit
    /// @return whether the conversion is known, see getConversion(). If not, @p results receives @p values
    /// unchanged.
    bool fromBaseUnitArray(const double* values, double* results, std::size_t count, const QString& unitType,
                           const QString& unit) const;
    /// Converts an array of numbers from a unit to the base unit, without rounding. Each result is bit by bit
    /// that of toBaseUnitRaw(). For parameters and result see the pointer overload of fromBaseUnitArray(),
    /// with the units exchanged.
    bool toBaseUnitArray(const double* values, double* results, std::size_t count, const QString& unitType,
                         const QString& unit) const;
    /// Converts an array of numbers in place from the base unit to a unit, without rounding.
    ///
    /// @param values numbers in the base unit, replaced by numbers in @p unit; no-input markers stay
    /// unchanged. Copies that share the data are not modified.
    /// @param unitType unit type with its prefix; for a fixed unit the values stay unchanged
    /// @param unit name of a unit; empty for the default unit
    /// @return whether the conversion is known, see getConversion(). If not, @p values is unchanged.
    bool fromBaseUnitArray(QVector<double>& values, const QString& unitType, const QString& unit) const;
    /// Converts an array of numbers in place from a unit to the base unit, without rounding. For parameters
    /// and result see the in-place overload of fromBaseUnitArray(), with the units exchanged.
    bool toBaseUnitArray(QVector<double>& values, const QString& unitType, const QString& unit) const;
    /// Converts from the base unit to @p unit without rounding, see fromBaseUnitRaw(). @return invalid for an
    /// invalid value.
    QVariant getValue(const QVariant& value, const QString& unitType, const QString& unit) const;

    /// Reads the value of the child @p key of @p node, converted from the base unit to @p unit when it is a
    /// number.
    ///
    /// @return invalid for a null node, a missing child or a child without a value. (A null literal as
    /// @p node is ambiguous with the overload above: pass a BaseClassSharedPointer.)
    QVariant getValue(const QString& key, const BaseClassSharedPointer& node, const QString& unit) const;
    /// Writes a value to the child @p key of @p node, converted from @p unit to the base unit. The no-input
    /// marker is written unchanged.
    ///
    /// @return the status of the write: 0 changed, 1 written without change, 2 failure. On a null node, a
    /// missing child or a value that cannot be converted it is 2 and nothing is written.
    int setValueStatus(const QString& key, const BaseClassSharedPointer& node, const QVariant& value,
                       const QString& unit) const;
    /// Writes a value like setValueStatus(). @return whether it was written.
    bool setValue(const QString& key, const BaseClassSharedPointer& node, const QVariant& value,
                  const QString& unit) const;
    /// The label of a unit of the unit type given by the child @p key of @p node; empty for a null node or a
    /// missing child.
    QString getUnitText(const QString& key, const BaseClassSharedPointer& node, const QString& language,
                        const QString& unit) const;

    /// The unit labels of @p columnCount columns from @p firstColumn on; empty text for a column without a
    /// unit type. Empty list when the range is not within the array.
    QStringList getUnitText(const Array2dDataTypeWrapper& array, const QString& language,
                            unsigned int firstColumn, unsigned int columnCount, const QString& unit) const;
    /// The unit label of one column; empty when there is none.
    QString getUnitText(const Array2dDataTypeWrapper& array, const QString& language, unsigned int column,
                        const QString& unit) const;
    /// The cells of a range of one row, each converted from its column's base unit to @p unit. Empty list
    /// when the range is not within the array.
    QList<QVariant> getValueArray(const Array2dDataTypeWrapper& array, unsigned int row,
                                  unsigned int firstColumn, unsigned int columnCount,
                                  const QString& unit) const;
    /// Writes @p values to a range of one row, each converted from @p unit to its column's base unit.
    ///
    /// @param array receives the values
    /// @param row index of the row
    /// @param firstColumn index of the first column of the range
    /// @param columnCount number of columns in the range
    /// @param values at least @p columnCount values; fewer is a programming error
    /// @param unit unit of the values; empty for the default unit of each column's unit type
    /// @return false, with the array unchanged, when the range is not within it or a value cannot be
    /// converted; otherwise the result of the array's write.
    bool setValueArray(Array2dDataTypeWrapper& array, unsigned int row, unsigned int firstColumn,
                       unsigned int columnCount, const QList<QVariant>& values, const QString& unit) const;

protected:
    /// The implementation, for derived managers.
    const UnitManagerCore& unitManagerCore() const;

private:
    UNITMANAGER_NO_EXPORT QVariant convertAndRound(const QVariant& value, const QString& unitType,
                                                   const QString& unit, ConversionDirection direction) const;

    UnitManagerCore m_core;
};
