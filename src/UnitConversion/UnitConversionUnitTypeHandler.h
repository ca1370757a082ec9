#pragma once

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include "ConfigurationAndProcessDataBase.h"
#include "UnitConversion/ValueConversionWrapper.h"
#include "UnitManagerExport.h"

enum class ConversionDirection;
struct FoundConversion;

/// Everything known about the conversions of one unit type: its units, its base unit, their conversions and
/// decimal places.
///
/// Copies share the converters. Const operations may run concurrently with each other.
class UNITMANAGER_EXPORT UnitConversionUnitTypeHandler
{
public:
    /// An invalid handler that knows no unit.
    UnitConversionUnitTypeHandler();
    /// A handler of the unit type's node @p node.
    ///
    /// @param unitTypeName the unit type's key in the document, named in messages
    UnitConversionUnitTypeHandler(const BaseClassSharedPointer& node, const QString& unitTypeName);
    virtual ~UnitConversionUnitTypeHandler();

    /// Replaces the conversions by those of @p node's children. The list of units, the base unit and the
    /// validity are not reset: a second call adds to the list. A null node only removes the conversions.
    ///
    /// Logs a warning for a null child. Children that are no tree nodes or have no conversion are passed over
    /// silently.
    ///
    /// @return true.
    bool init(const BaseClassSharedPointer& node);

    /// Converts @p value in place from @p unit to the base unit; the result is a double. "NoUnit", an empty
    /// unit and the no-input marker of a known unit leave the value as it is and succeed.
    ///
    /// @return false, with the value untouched and warnings logged, for an unknown unit or a value that is no
    /// number.
    bool toBaseUnit(QVariant& value, const QString& unit) const;

    /// Converts @p value in place from the base unit to @p unit; everything else as for toBaseUnit().
    bool fromBaseUnit(QVariant& value, const QString& unit) const;

    /// Stores the number of decimal places with which values of @p unit are shown.
    ///
    /// @return false, with @p decimalPlaces untouched and nothing logged, for "NoUnit" and an unknown unit.
    bool getDecimalPlacesForUnit(const QString& unit, unsigned int& decimalPlaces) const;

    /// @return @p unitTypeName, "/" and the base unit (which may be empty); "NoUnit" for "NoUnit".
    QString getBaseUnit(const QString& unitTypeName) const;

    /// The units in the order in which they were accepted.
    QList<QString> getUnitList() const;

    /// Whether a node has been read, with or without units.
    bool isValid() const;
    operator bool() const;

private:
    friend struct FoundConversion;
    friend class UnitConversionLookUp;
    friend class UnitManagerCore;

    UNITMANAGER_NO_EXPORT void addUnit(const QString& unit, const ConfigurationAndProcessDataBase& node,
                                       const ValueConversionWrapper& wrapper);
    /// Finds the conversion of @p unit; logs a warning for an unknown one.
    UNITMANAGER_NO_EXPORT FoundConversion find(const QString& unit, ConversionDirection direction) const;
    /// Logs that @p value is not a number. @return false, but true for the conversion of an empty unit.
    UNITMANAGER_NO_EXPORT bool reportInvalidValue(const QVariant& value, const FoundConversion& found) const;

    QHash<QString, ValueConversionWrapper> conversions;
    QList<QString> unitList;
    bool valid = false;
    QString unitType;
    QString baseUnit;
};
