#include "UnitConversion/ValueConverterArbitraryTable.h"

#include <QtTest/QTest>

#include <limits>

#include "LogCapture.h"
#include "RecordingNode.h"
#include "Row.h"
#include "TableText.h"
#include "TestProgram.h"
#include "VirtualSlot.h"

namespace {

using Table = ValueConverterBase::ConversionTable;

static_assert(std::is_base_of_v<ValueConverterBase, ValueConverterArbitraryTable>);
static_assert(std::is_convertible_v<BaseClassSharedPointer, ValueConverterArbitraryTable>);
static_assert(
    std::is_same_v<decltype(&ValueConverterArbitraryTable::resetTable),
                   bool (ValueConverterArbitraryTable::*)(const QList<QVariant>&, const QList<QVariant>&)>);

/// Gives access to the state of the converter, which is part of the interface for derived classes.
class Converter : public ValueConverterArbitraryTable
{
public:
    explicit Converter(const QString& json) : ValueConverterArbitraryTable(nodeFromJson(json)) {}

    QStringList state() const
    {
        return tableTexts(table) + tableTexts(inverseTable);
    }
};

QStringList state(const Table& table, const Table& inverseTable)
{
    return tableTexts(table) + tableTexts(inverseTable);
}

QVariant tableRow(double x, double y)
{
    return QVariantList{x, y};
}

const char* const bothTables = R"({"Table": [[0, 0], [10, 100]], "InverseTable": [[100, 10], [0, 0]]})";

const Table noRows;
const Table forward{{{0, 0}, {10, 100}}, {10, 100}, {0, 0}};
const Table inverse{{{100, 10}, {0, 0}}, {100, 10}, {0, 0}};

} // namespace

class ValueConverterArbitraryTableTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsConfiguration_data();
    void readsConfiguration();
    void readsItsTablesInOrderAndNothingElse();
    void returnsTheArgument_data();
    void returnsTheArgument();
    void resetWithoutForwardRowsKeepsTheInverse();
    void resetAppendsRows();
    void resetWithoutInverseRemovesItsRowsOnly();
    void keepsTheSlotsOfTheBase();
};

void ValueConverterArbitraryTableTest::readsConfiguration_data()
{
    QTest::addColumn<QString>("json");
    QTest::addColumn<QStringList>("expected");

    row("nothing configured", "{}", state(noRows, noRows));
    row("both tables", bothTables, state(forward, inverse));
    row("forward table only", R"({"Table": [[0, 0], [10, 100]]})", state(forward, noRows));
    row("inverse table only", R"({"InverseTable": [[100, 10], [0, 0]]})", state(noRows, noRows));
    row("forward table is a text", R"({"Table": "x", "InverseTable": [[100, 10], [0, 0]]})",
        state(noRows, noRows));
    row("inverse table is a number", R"({"Table": [[0, 0], [10, 100]], "InverseTable": 3})",
        state(forward, noRows));
    row("one column", R"({"Table": [[4], [5]]})", state({{{0, 4}, {0, 5}}, {0, 4}, {0, 4}}, noRows));
    row("limits and distances are not read",
        R"({"Table": [[0, 0], [10, 100]], "DistanceBaseTable": 2, "OrdinateMin": -1, "OrdinateMax": 9})",
        state(forward, noRows));
}

void ValueConverterArbitraryTableTest::readsConfiguration()
{
    QFETCH(QString, json);
    LogCapture log;
    QTEST(Converter(json).state(), "expected");
    QCOMPARE(log.takeTexts(), QStringList());
}

// Calls and their order are visible to the node classes of other libraries.
void ValueConverterArbitraryTableTest::readsItsTablesInOrderAndNothingElse()
{
    const auto calls = RecordingNode::Calls::create();
    const auto node = recordingNodeFromJson(R"({"Table": [[0, 0]], "DecimalPlaces": 3, "OrdinateMin": 1})",
                                            QStringLiteral("unit"), calls);
    const ValueConverterArbitraryTable converter(node);
    QCOMPARE(takeCallsOf(QStringLiteral("unit"), calls),
             QStringList({"unit.getChild(Table)", "unit.getChild(InverseTable)"}));
}

void ValueConverterArbitraryTableTest::returnsTheArgument_data()
{
    using Limits = std::numeric_limits<double>;
    QTest::addColumn<double>("x");

    row("zero", 0.0);
    row("negative zero", -0.0);
    row("between two points", 5.0);
    row("below the first point", -100.0);
    row("beyond the last point", 1000.0);
    row("largest number", Limits::max());
    row("smallest number", -Limits::denorm_min());
    row("not a number", Limits::quiet_NaN());
    row("infinity", Limits::infinity());
    row("negative infinity", -Limits::infinity());
}

void ValueConverterArbitraryTableTest::returnsTheArgument()
{
    QFETCH(double, x);
    for (const char* json : {"{}", bothTables, R"({"Table": [[0, 0], [10, 100]], "DecimalPlaces": 3})"}) {
        const Converter converter(json);
        QCOMPARE(exactText(converter.convertValue(x)), exactText(x));
        QCOMPARE(exactText(converter.invertValue(x)), exactText(x));
        QCOMPARE(converter.getDecimalPlaces(), 0U);
    }
}

void ValueConverterArbitraryTableTest::resetWithoutForwardRowsKeepsTheInverse()
{
    Converter converter(bothTables);
    QVERIFY(!converter.resetTable({}, {tableRow(7, 7)}));
    QCOMPARE(converter.state(), state(forward, inverse));
    QVERIFY(!converter.resetTable({}, {}));
    QCOMPARE(converter.state(), state(forward, inverse));
}

void ValueConverterArbitraryTableTest::resetAppendsRows()
{
    Converter converter(bothTables);
    QVERIFY(converter.resetTable({tableRow(1, 2)}, {tableRow(3, 4)}));
    QCOMPARE(converter.state(), state({{{0, 0}, {10, 100}, {1, 2}}, {1, 2}, {1, 2}},
                                      {{{100, 10}, {0, 0}, {3, 4}}, {3, 4}, {3, 4}}));
}

void ValueConverterArbitraryTableTest::resetWithoutInverseRemovesItsRowsOnly()
{
    Converter converter(bothTables);
    QVERIFY(converter.resetTable({tableRow(1, 2)}, {}));
    QCOMPARE(converter.state(),
             state({{{0, 0}, {10, 100}, {1, 2}}, {1, 2}, {1, 2}}, {{}, {100, 10}, {0, 0}}));
}

// Device programs call through the virtual table.
void ValueConverterArbitraryTableTest::keepsTheSlotsOfTheBase()
{
    QCOMPARE(virtualSlot(&ValueConverterArbitraryTable::convertValue), std::size_t(2));
    QCOMPARE(virtualSlot(&ValueConverterArbitraryTable::invertValue), std::size_t(3));
}

static const TestClass<ValueConverterArbitraryTableTest> testClass;
#include "ValueConverterArbitraryTableTest.moc"
