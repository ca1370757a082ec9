#pragma once

#include <QtCore/QList>
#include <QtCore/QVariant>

#include "ConfigurationAndProcessDataBase.h"
#include "UnitConversion/ValueConverterBase.h"
#include "UnitManagerExport.h"

/// Holds tables of ordinates at a fixed distance of the abscissa. The tables are loaded and kept; values are
/// not converted by them: both directions give the argument itself, and there are no decimal places.
class UNITMANAGER_EXPORT ValueConverterEquidistantTable : public ValueConverterBase
{
public:
    /// Reads "Table", "InverseTable", "DistanceBaseTable", "DistanceBaseInverseTable" and, only if
    /// "OrdinateMin" is given, the ordinate limits from a unit's node. Nothing is reported.
    ValueConverterEquidistantTable(const BaseClassSharedPointer& node);
    ~ValueConverterEquidistantTable() override;

    /// Loads both tables with their abscissa distances.
    ///
    /// @return false when the forward table has no row: both distances are then 0 and the inverse table
    /// stays.
    bool resetTable(const QList<QVariant>& data, const double& dataDistance,
                    const QList<QVariant>& inverseData, const double& inverseDataDistance);

    /// The same, and overwrites the abscissae of the boundary entries: the minimum goes into the entry called
    /// max and the maximum into the one called min, in both tables.
    ///
    /// @return false, with no boundary entry overwritten, when the forward table has no row.
    bool resetTable(const QList<QVariant>& data, const double& dataDistance, const double& ordinateMin,
                    double ordinateMax, const QList<QVariant>& inverseData, const double& inverseDataDistance,
                    const double& ordinateMinInversion, const double& ordinateMaxInversion);

    double convertValue(double x) const override;
    double invertValue(double x) const override;

protected:
    ConversionTable table;
    double distance = 0.0;
    ConversionTable inverseTable;
    double inverseDistance = 0.0;
};
