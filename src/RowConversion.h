#pragma once

#include <QtCore/QString>
#include <QtCore/QVariant>

#include "UnitConversion/FoundConversion.h"

class UnitManagerCore;

/// Converts the cells of one row, cell by cell. Neighbouring columns often have the same unit type: what was
/// found for one column serves the next ones.
///
/// Lives for the duration of one operation on a core that stays as it is, and refers to what it is given.
class RowConversion
{
public:
    RowConversion(const UnitManagerCore& core, const QString& unit, ConversionDirection direction);

    /// Converts @p cell in place. A column without unit type and the no-input marker leave it as it is and
    /// succeed.
    ///
    /// @return false, with @p cell untouched and warnings logged, when it cannot be converted.
    bool convert(QVariant& cell, const QString& unitType);

private:
    const UnitManagerCore& m_core;
    const QString& m_unit;
    const ConversionDirection m_direction;
    QString m_unitType;
    FoundConversion m_found;
};
