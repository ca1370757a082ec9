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

/// The conversions of one unit type: its units, its base unit, their conversions and decimal places.
///
/// Copies share the converters. Const operations may run concurrently with each other.
class UNITMANAGER_EXPORT UnitConversionUnitTypeHandler
{
public:
    /// Creates an invalid handler without units.
    UnitConversionUnitTypeHandler();
    /// Creates the handler of the unit type that @p node describes.
    ///
    /// @param node the unit type's node in the document
    /// @param unitTypeName the unit type's key in the document; used in messages
    UnitConversionUnitTypeHandler(const BaseClassSharedPointer& node, const QString& unitTypeName);
    virtual ~UnitConversionUnitTypeHandler();

    /// Replaces the conversions by those of @p node's children. The list of units, the base unit and the
    /// validity are not reset: a second call adds to the list. A null node only removes the conversions.
    ///
    /// Logs a warning for a null child. Children that are not tree nodes or have no conversion are skipped
    /// silently.
    ///
    /// @return true.
    bool init(const BaseClassSharedPointer& node);

    /// Converts @p value in place from @p unit to the base unit; the result is a double. The value stays
    /// unchanged for "NoUnit", for an empty unit, and if it is the no-input marker and the unit is known;
    /// these count as success.
    ///
    /// @return false, with the value unchanged and warnings logged, for an unknown unit or a value that is
    /// not a number.
    bool toBaseUnit(QVariant& value, const QString& unit) const;

    /// Converts @p value in place from the base unit to @p unit; for the result see toBaseUnit().
    bool fromBaseUnit(QVariant& value, const QString& unit) const;

    /// Stores the number of decimal places with which values of @p unit are shown.
    ///
    /// @return false, with @p decimalPlaces unchanged and nothing logged, for "NoUnit" and an unknown unit.
    bool getDecimalPlacesForUnit(const QString& unit, unsigned int& decimalPlaces) const;

    /// @return @p unitTypeName, "/" and the base unit (which may be empty); "NoUnit" for "NoUnit".
    QString getBaseUnit(const QString& unitTypeName) const;

    /// The units in the order in which they were loaded.
    QList<QString> getUnitList() const;

    /// Whether a node has been read, with or without units.
    bool isValid() const;
    /// Same as isValid().
    operator bool() const;

private:
    friend struct FoundConversion;
    friend class UnitConversionLookUp;
    friend class UnitManagerCore;

    UNITMANAGER_NO_EXPORT void addUnit(const QString& unit, const ConfigurationAndProcessDataBase& node,
                                       const ValueConversionWrapper& wrapper);
    /// Looks up the conversion of @p unit; logs a warning for an unknown unit.
    UNITMANAGER_NO_EXPORT FoundConversion find(const QString& unit, ConversionDirection direction) const;
    /// Logs that @p value is not a number. @return false; true for the conversion of an empty unit.
    UNITMANAGER_NO_EXPORT bool reportInvalidValue(const QVariant& value, const FoundConversion& found) const;

    QHash<QString, ValueConversionWrapper> conversions;
    QList<QString> unitList;
    bool valid = false;
    QString unitType;
    QString baseUnit;
};
