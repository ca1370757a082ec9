#pragma once

#include <QtCore/QList>
#include <QtCore/QVariant>
#include <QtCore/QVector>

#include "UnitManagerExport.h"

/// Converts a number between one unit and the base unit of its unit type.
///
/// The factory creates converters from a unit's configuration node. They are immutable afterwards, so several
/// threads may read them concurrently.
class UNITMANAGER_EXPORT ValueConverterBase
{
public:
    /// One row of a conversion table.
    struct ConversionTableEntry
    {
        double x = 0.0; ///< abscissa, the value to convert
        double y = 0.0; ///< ordinate, the converted value
    };

    /// Rows in input order, with the rows of the largest and the smallest x (the first such row on ties).
    struct ConversionTable
    {
        QVector<ConversionTableEntry> entries; ///< the rows
        ConversionTableEntry maxEntry;         ///< the row of the largest x
        ConversionTableEntry minEntry;         ///< the row of the smallest x
    };

    ValueConverterBase() = default;
    virtual ~ValueConverterBase();

    /// @param x value in the base unit
    /// @return the value in the converter's unit.
    virtual double convertValue(double x) const = 0;

    /// @param x value in the converter's unit
    /// @return the value in the base unit.
    virtual double invertValue(double x) const = 0;

    /// Number of decimal places with which values of the unit are shown; 0 unless configured.
    unsigned int getDecimalPlaces() const
    {
        return decimalPlaces;
    }

    /// Appends the rows of @p data to @p table. A row of two columns is (x, y). For any other row the first
    /// value is y, and x is 0.
    ///
    /// @return false, with the table unchanged, when there is no row.
    bool loadTable(const QList<QVariant>& data, ConversionTable& table);

protected:
    unsigned int decimalPlaces = 0; ///< see getDecimalPlaces()
};
