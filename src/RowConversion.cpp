#include "RowConversion.h"

#include "UnitConversion/NoInputMarker.h"
#include "UnitManagerCore.h"

RowConversion::RowConversion(const UnitManagerCore& core, const QString& unit, ConversionDirection direction)
    : m_core(core), m_unit(unit), m_direction(direction)
{}

bool RowConversion::convert(QVariant& cell, const QString& unitType)
{
    if (unitType.isEmpty() || NoInputMarker::isSet(cell))
        return true;
    // A failed conversion is not reused, so that it is reported for each cell.
    if (!m_found.isReusable || unitType != m_unitType) {
        m_found = m_core.find(unitType, m_unit, m_direction);
        m_unitType = unitType;
    }
    return m_found.convert(cell);
}
