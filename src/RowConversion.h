#pragma once

#include <QtCore/QString>
#include <QtCore/QVariant>

#include "UnitConversion/FoundConversion.h"

class UnitManagerCore;

/// Converts the cells of one row, one by one. Neighbouring columns often have the same unit type, so the
/// conversion found for one column is reused for the next ones.
///
/// Lives for the duration of one operation. Refers to the constructor's arguments, which must not change
/// meanwhile.
class RowConversion
{
public:
    /// For the rows of one operation; an empty @p unit means the default unit of each column's unit type.
    RowConversion(const UnitManagerCore& core, const QString& unit, ConversionDirection direction);

    /// Converts @p cell in place. A cell of a column without a unit type and the no-input marker stay
    /// unchanged; both count as success.
    ///
    /// @return false, with @p cell unchanged and warnings logged, when it cannot be converted.
    bool convert(QVariant& cell, const QString& unitType);

private:
    const UnitManagerCore& m_core;
    const QString& m_unit;
    const ConversionDirection m_direction;
    QString m_unitType;
    FoundConversion m_found;
};
