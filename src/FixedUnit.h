#pragma once

#include <QtCore/QString>

/// Fixed units: unit types that name a unit directly, as in "UnitManager/UnitType/Pressure/Bar".
namespace FixedUnit {

/// Whether @p unitType has exactly one "/" more than the unit-type prefix. Nothing else is looked at.
bool isFixedUnit(const QString& unitType);

/// isFixedUnit() of the unit-type prefix followed by @p name, which is cheaper to tell.
bool isFixedUnitBehindPrefix(const QString& name);

/// What stands before the last "/" of a fixed unit.
QString unitTypeOf(const QString& fixedUnit);

/// What stands behind the last "/" of a fixed unit.
QString unitOf(const QString& fixedUnit);

} // namespace FixedUnit
