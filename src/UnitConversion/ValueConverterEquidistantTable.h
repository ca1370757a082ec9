#pragma once

#include <QtCore/QList>
#include <QtCore/QVariant>

#include "ConfigurationAndProcessDataBase.h"
#include "UnitConversion/ValueConverterBase.h"
#include "UnitManagerExport.h"

/// Holds tables of ordinates at equidistant abscissae. The tables are loaded but not used: both directions
/// return the argument unchanged, and there are no decimal places.
class UNITMANAGER_EXPORT ValueConverterEquidistantTable : public ValueConverterBase
{
public:
    /// Reads "Table", "InverseTable", "DistanceBaseTable" and "DistanceBaseInverseTable" from a unit's node,
    /// and the ordinate limits only if "OrdinateMin" is present. Nothing is logged.
    ValueConverterEquidistantTable(const BaseClassSharedPointer& node);
    ~ValueConverterEquidistantTable() override;

    /// Loads both tables with their abscissa distances.
    ///
    /// @return false when the forward table has no row; both distances are then 0 and the inverse table is
    /// unchanged.
    bool resetTable(const QList<QVariant>& data, const double& dataDistance,
                    const QList<QVariant>& inverseData, const double& inverseDataDistance);

    /// Loads both tables like the overload without limits, then overwrites the abscissae of the boundary
    /// entries of both tables: the minimum is stored in the max entry and the maximum in the min entry.
    ///
    /// @return false, with no boundary entry overwritten, when the forward table has no row.
    bool resetTable(const QList<QVariant>& data, const double& dataDistance, const double& ordinateMin,
                    double ordinateMax, const QList<QVariant>& inverseData, const double& inverseDataDistance,
                    const double& ordinateMinInversion, const double& ordinateMaxInversion);

    double convertValue(double x) const override;
    double invertValue(double x) const override;

protected:
    ConversionTable table;        ///< from the base unit; only ordinates
    double distance = 0.0;        ///< between two abscissae of the table
    ConversionTable inverseTable; ///< to the base unit; only ordinates
    double inverseDistance = 0.0; ///< between two abscissae of the inverse table
};
