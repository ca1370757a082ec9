#include "UnitConversion/ValueConverterArbitraryTable.h"

#include "UnitConversion/ConverterConfiguration.h"

ValueConverterArbitraryTable::ValueConverterArbitraryTable(const BaseClassSharedPointer& node)
{
    const QList<QVariant> forward = ConverterConfiguration::readList(QStringLiteral("Table"), node);
    const QList<QVariant> inverse = ConverterConfiguration::readList(QStringLiteral("InverseTable"), node);
    resetTable(forward, inverse);
}

ValueConverterArbitraryTable::~ValueConverterArbitraryTable() = default;

bool ValueConverterArbitraryTable::resetTable(const QList<QVariant>& data, const QList<QVariant>& inverseData)
{
    if (!loadTable(data, table))
        return false;
    if (inverseData.isEmpty())
        inverseTable.entries.clear();
    else
        loadTable(inverseData, inverseTable);
    return true;
}

double ValueConverterArbitraryTable::convertValue(double x) const
{
    return x;
}

double ValueConverterArbitraryTable::invertValue(double x) const
{
    return x;
}
