#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVector>

#include <optional>

#include "Result.h"
#include "UnitManager.h"

/// A unit type as the user named it.
struct UnitType
{
    /// The name without prefix, "Pressure", or with the unit that it fixes, "Pressure/Bar".
    QString name;
    /// The library's identifier, "UnitManager/UnitType/Pressure".
    QString id;
    /// The one unit that a value of a fixed unit has; empty for a type with a choice of units. The unit-less
    /// type counts as fixed.
    QString fixedUnit;
};

/// The unit manager of two documents, asked by names that a user typed. Lists are sorted, so that output does
/// not change from run to run.
class UnitCatalogue : private UnitManager
{
public:
    /// The catalogue of two documents.
    ///
    /// @return a failure that names the document for one that cannot be read or holds nothing
    static Result<UnitCatalogue> load(const QString& unitsPath, const QString& defaultUnitsPath);

    /// All unit types, by name.
    QVector<UnitType> unitTypes() const;
    /// The type of that name, with or without prefix, with or without "/" and a unit that it fixes.
    ///
    /// @return a failure that lists the names known
    Result<UnitType> unitType(const QString& name) const;

    /// The names of the type's units, the base unit first, the others by name.
    QStringList units(const UnitType& type) const;
    /// The unit of that name; of an empty name the default unit.
    ///
    /// @return a failure that lists the names known
    Result<QString> unit(const UnitType& type, const QString& name) const;

    /// Empty when the type has none.
    QString baseUnit(const UnitType& type) const;
    /// The fixed unit of a type that has one. Empty when there is no default unit.
    QString defaultUnit(const UnitType& type) const;

    /// @return empty for a unit without label
    QString label(const UnitType& type, const QString& unit, const QString& language) const;
    /// @return nothing for a unit whose values are never rounded
    std::optional<unsigned int> decimalPlaces(const UnitType& type, const QString& unit) const;

    /// The value in the unit @p to of a value in the unit @p from, unrounded. Both must be units of the type.
    double convert(double value, const UnitType& type, const QString& from, const QString& to) const;
    /// The library's rounding, half away from zero.
    double rounded(double value, unsigned int decimalPlaces) const;

private:
    UnitCatalogue();
};
