#include "UnitConversion/ValueConverterBase.h"

#include "Array2dDataTypeWrapper.h"

ValueConverterBase::~ValueConverterBase() = default;

bool ValueConverterBase::loadTable(const QList<QVariant>& data, ConversionTable& table)
{
    Array2dDataTypeWrapper array(data, {});
    const QVector<unsigned int> dimensions = array.getArrayType();
    const unsigned int rowCount = dimensions.at(0);
    const unsigned int columnCount = dimensions.at(1);
    const bool hasAbscissa = columnCount == 2;

    for (unsigned int row = 0; row < rowCount; ++row) {
        const QList<QVariant> values = array.getRowValues(row);
        const ConversionTableEntry entry =
            hasAbscissa ? ConversionTableEntry{values.value(0).toDouble(), values.value(1).toDouble()}
                        : ConversionTableEntry{0.0, values.value(0).toDouble()};
        table.entries.append(entry);
        if (row == 0 || table.maxEntry.x < entry.x)
            table.maxEntry = entry;
        if (row == 0 || table.minEntry.x > entry.x)
            table.minEntry = entry;
    }
    return rowCount != 0;
}
