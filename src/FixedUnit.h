#pragma once

#include <QtCore/QString>

/// Fixed units: unit types that name a unit directly, as in "UnitManager/UnitType/Pressure/Bar". The only
/// place that composes and splits the identifiers of unit types and units.
namespace FixedUnit {

/// The identifier of a unit type: the unit-type prefix followed by @p name, its key in the documents.
QString unitTypeNamed(const QString& name);

/// The fixed unit for @p unit of a unit type: both, separated by "/".
QString join(const QString& unitType, const QString& unit);

/// Whether @p unitType has exactly one "/" more than the unit-type prefix. Nothing else is checked.
bool isFixedUnit(const QString& unitType);

/// Same result as isFixedUnit() for the unit-type prefix followed by @p name, but faster.
bool isFixedUnitName(const QString& name);

/// The part of a fixed unit before its last "/".
QString unitTypeOf(const QString& fixedUnit);

/// The part of a fixed unit after its last "/"; the whole text when it has none.
QString unitOf(const QString& fixedUnit);

/// Both parts of a fixed unit, for look-ups. They refer to the characters of the fixed unit: nothing is
/// copied or allocated. The fixed unit must outlive this object, and this object must outlive the parts and
/// their copies.
class Parts
{
public:
    /// Splits @p fixedUnit at its last "/".
    explicit Parts(const QString& fixedUnit);
    Parts(const Parts&) = delete;
    Parts& operator=(const Parts&) = delete;

    /// Whether there is a "/" to split at.
    bool areValid() const;

    /// The part before the last "/".
    const QString& unitType() const
    {
        return m_unitType;
    }
    /// The part after the last "/".
    const QString& unit() const
    {
        return m_unit;
    }

private:
    const int m_separator;
    QStringData m_unitTypeHeader;
    QStringData m_unitHeader;
    const QString m_unitType;
    const QString m_unit;
};

} // namespace FixedUnit
