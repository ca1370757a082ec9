#include "BehaviourTable.h"

#include <limits>
#include <vector>

#include "Array2dDataTypeWrapper.h"
#include "BehaviourDocuments.h"
#include "RecordedCalls.h"
#include "UnitConversion/ValueConverterArbitraryTable.h"

namespace {

using namespace BehaviourDocuments;
using RecordedCalls::exactBits;

/// An array with its own implementation of the dimensions, as another library could have, that records the
/// queries.
class RecordingArray : public Array2dDataTypeWrapper
{
public:
    RecordingArray(const QList<QVariant>& data, const QList<QVariant>& unitTypes, int dimensionCount)
        : Array2dDataTypeWrapper(data, unitTypes), m_dimensionCount(dimensionCount)
    {}

    QVector<unsigned int> getDimensions() const override
    {
        RecordedCalls::add(QStringLiteral("getDimensions"));
        const QStringList before = RecordedCalls::takeCalls();
        QVector<unsigned int> dimensions = Array2dDataTypeWrapper::getDimensions();
        RecordedCalls::takeCalls();
        for (const QString& call : before)
            RecordedCalls::add(call);
        dimensions.resize(m_dimensionCount);
        return dimensions;
    }

private:
    int m_dimensionCount;
};

/// Part of one row.
struct Range
{
    unsigned int row;
    unsigned int firstColumn;
    unsigned int columnCount;
};

QList<Range> ranges()
{
    const unsigned int largest = std::numeric_limits<unsigned int>::max();
    return {{0, 0, 7}, {1, 0, 7}, {0, 1, 2}, {1, 6, 1},       {0, 3, 0},      {0, 7, 0},
            {0, 0, 8}, {2, 0, 1}, {0, 8, 0}, {0, largest, 1}, {0, 2, largest}};
}

QList<QVariant> columnTypes()
{
    QList<QVariant> types;
    for (const char* type : {"Pressure", "Pressure", "", "Pressure/Bar", "Unknown", "Ratio", "Pressure"})
        types.append(UnitNames{QString::fromLatin1(type), QString()}.fullType());
    return types;
}

QList<QVariant> numbers()
{
    return {1.5, 2, 3.5, 4.5, 5.5, 6.5, 7.5};
}

QList<QVariant> mixedCells()
{
    const QList<NamedValue> values = fewValues();
    return {1.5,        values.at(1).value, values.at(2).value, QStringLiteral("abc"), values.at(3).value,
            QVariant(), QStringLiteral("7")};
}

RecordingArray makeArray(int dimensionCount)
{
    return {{QVariant(numbers()), QVariant(mixedCells())}, columnTypes(), dimensionCount};
}

QString arrayText(Array2dDataTypeWrapper& array)
{
    const QStringList calls = RecordedCalls::takeCalls();
    const QString text = exactBits(QVariant(array.getData()));
    RecordedCalls::takeCalls();
    for (const QString& call : calls)
        RecordedCalls::add(call);
    return text;
}

BehaviourRows cellRows(const NamedManager& manager, const Range& range, const QString& unit,
                       int dimensionCount)
{
    const UnitManager* const units = &manager.manager;
    const QString suffix = QStringLiteral(" (%1) row %2, columns %3+%4, \"%5\", %6 dimensions")
                               .arg(manager.name)
                               .arg(range.row)
                               .arg(range.firstColumn)
                               .arg(range.columnCount)
                               .arg(unit)
                               .arg(dimensionCount);
    BehaviourRows rows;
    rows.append({QLatin1String("array.getValueArray") + suffix, [=] {
                     const RecordingArray array = makeArray(dimensionCount);
                     RecordedCalls::takeCalls();
                     return exactBits(QVariant(
                         units->getValueArray(array, range.row, range.firstColumn, range.columnCount, unit)));
                 }});
    for (const QList<QVariant>& values : {numbers(), mixedCells()}) {
        const QString kind = values == numbers() ? QStringLiteral(" numbers") : QStringLiteral(" mixed");
        rows.append({QLatin1String("array.setValueArray") + kind + suffix, [=] {
                         RecordingArray array = makeArray(dimensionCount);
                         RecordedCalls::takeCalls();
                         const bool isWritten = units->setValueArray(array, range.row, range.firstColumn,
                                                                     range.columnCount, values, unit);
                         return QString::number(isWritten) + QLatin1Char(' ') + arrayText(array);
                     }});
    }
    rows.append({QLatin1String("array.getUnitText") + suffix, [=] {
                     const RecordingArray array = makeArray(dimensionCount);
                     RecordedCalls::takeCalls();
                     return units
                         ->getUnitText(array, QStringLiteral("en"), range.firstColumn, range.columnCount,
                                       unit)
                         .join(QLatin1Char('|'));
                 }});
    return rows;
}

std::vector<double> samples()
{
    std::vector<double> list;
    for (const NamedValue& value : values()) {
        if (value.value.userType() == QMetaType::Double)
            list.push_back(value.value.toDouble());
    }
    return list;
}

QString numbersText(const std::vector<double>& list)
{
    QVariantList values;
    for (const double number : list)
        values.append(number);
    return exactBits(QVariant(values));
}

/// Conversions of many numbers at once, and with a conversion that is found once.
BehaviourRows numberRows(const NamedManager& manager, const UnitNames& names)
{
    const UnitManager* const units = &manager.manager;
    const QString suffix = QStringLiteral(" (%1) %2").arg(manager.name, names.text());
    return {{QLatin1String("numbers.fromBaseUnit") + suffix,
             [=] {
                 std::vector<double> list = samples();
                 units->fromBaseUnitArray(list.data(), list.data(), list.size(), names.fullType(),
                                          names.unit);
                 return numbersText(list);
             }},
            {QLatin1String("numbers.toBaseUnit") + suffix,
             [=] {
                 std::vector<double> list = samples();
                 units->toBaseUnitArray(list.data(), list.data(), list.size(), names.fullType(), names.unit);
                 return numbersText(list);
             }},
            {QLatin1String("getConversion") + suffix, [=] {
                 ValueConversionWrapper conversion;
                 units->getConversion(names.fullType(), names.unit, conversion);
                 return QStringLiteral("%1 %2 %3")
                     .arg(QString::number(conversion.isValid()), exactBits(conversion.convertValue(1.5)),
                          exactBits(conversion.invertValue(1.5)));
             }}};
}

/// A converter that gives access to its table.
class TableConverter : public ValueConverterArbitraryTable
{
public:
    TableConverter() : ValueConverterArbitraryTable(BaseClassSharedPointer()) {}

    QString load(const QList<QVariant>& data)
    {
        const bool isLoaded = loadTable(data, table);
        QStringList points;
        for (const ConversionTableEntry& entry : qAsConst(table.entries))
            points.append(exactBits(entry.x) + QLatin1Char('/') + exactBits(entry.y));
        return QString::number(isLoaded) + QLatin1Char(' ') + points.join(QLatin1Char(' '));
    }
};

BehaviourRows tableRows()
{
    const QVariantList point = {1.5, 2.5};
    const QVariantList triple = {1.5, 2.5, 3.5};
    const QList<QVariantList> tables = {{},
                                        {QVariant(point), QVariant(point)},
                                        {0.5, 100.5},
                                        {QVariant(triple), 7.5, QVariant(QVariantList())}};
    BehaviourRows rows;
    for (const QVariantList& table : tables) {
        rows.append({QStringLiteral("loadTable ") + exactBits(QVariant(table)), [=] {
                         TableConverter converter;
                         RecordedCalls::takeCalls();
                         return converter.load(table);
                     }});
    }
    return rows;
}

} // namespace

BehaviourRows arrayRows()
{
    BehaviourRows rows = tableRows();
    for (const char* unit : {"HectoPascal", "", "Cubit"}) {
        for (const Range& range : ranges())
            rows.append(cellRows(managers().first(), range, QString::fromLatin1(unit), 2));
    }
    for (const int dimensionCount : {0, 1, 3})
        rows.append(cellRows(managers().first(), {0, 0, 2}, QString(), dimensionCount));
    for (const NamedManager& manager : managers()) {
        rows.append(cellRows(manager, {0, 0, 7}, QString(), 2));
        for (const UnitNames& names : unitNames())
            rows.append(numberRows(manager, names));
    }
    return rows;
}
