#pragma once

#include <QtCore/QList>
#include <QtCore/QVariant>

#include "ConfigurationAndProcessDataBase.h"
#include "UnitConversion/ValueConverterBase.h"
#include "UnitManagerExport.h"

/// Holds tables of (x, y) points. The tables are loaded but not used: both directions return the argument
/// unchanged, and there are no decimal places.
class UNITMANAGER_EXPORT ValueConverterArbitraryTable : public ValueConverterBase
{
public:
    /// Reads "Table" and "InverseTable" from a unit's node. Nothing is logged.
    ValueConverterArbitraryTable(const BaseClassSharedPointer& node);
    ~ValueConverterArbitraryTable() override;

    /// Loads both tables; an empty inverse list removes the rows of the inverse table.
    ///
    /// @return false, with the inverse table unchanged, when the forward table has no row.
    bool resetTable(const QList<QVariant>& data, const QList<QVariant>& inverseData);

    double convertValue(double x) const override;
    double invertValue(double x) const override;

protected:
    ConversionTable table;        ///< from the base unit
    ConversionTable inverseTable; ///< to the base unit
};
