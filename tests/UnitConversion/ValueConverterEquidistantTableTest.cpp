#include "UnitConversion/ValueConverterEquidistantTable.h"

#include <QtTest/QTest>

#include <limits>

#include "LogCapture.h"
#include "RecordingNode.h"
#include "Row.h"
#include "TableText.h"
#include "TestProgram.h"
#include "VirtualSlot.h"

namespace {

using List = QList<QVariant>;
using Base = ValueConverterEquidistantTable;

// Only the largest ordinate is passed by value.
constexpr bool (Base::*resetWithLimits)(const List&, const double&, const double&, double, const List&,
                                        const double&, const double&, const double&) = &Base::resetTable;
constexpr bool (Base::*resetWithoutLimits)(const List&, const double&, const List&,
                                           const double&) = &Base::resetTable;
static_assert(std::is_base_of_v<ValueConverterBase, Base>);
static_assert(std::is_convertible_v<BaseClassSharedPointer, ValueConverterEquidistantTable>);

/// Gives access to the state of the converter, which is part of the interface for derived classes.
class Converter : public ValueConverterEquidistantTable
{
public:
    explicit Converter(const QString& json) : ValueConverterEquidistantTable(nodeFromJson(json)) {}

    QStringList state() const
    {
        return QStringList(tableTexts(table))
               << exactText(distance) << tableTexts(inverseTable) << exactText(inverseDistance);
    }
};

using Table = ValueConverterBase::ConversionTable;

QStringList state(const Table& table, double distance, const Table& inverseTable, double inverseDistance)
{
    return QStringList(tableTexts(table))
           << exactText(distance) << tableTexts(inverseTable) << exactText(inverseDistance);
}

const char* const withoutLimits = R"({"Table": [[4], [5]], "DistanceBaseTable": 0.5,
    "InverseTable": [[6], [7]], "DistanceBaseInverseTable": 0.25})";
const char* const withLimits = R"({"Table": [[4], [5]], "DistanceBaseTable": 0.5,
    "InverseTable": [[6], [7]], "DistanceBaseInverseTable": 0.25, "OrdinateMin": -1, "OrdinateMax": 9,
    "OrdinateMinInversion": -2, "OrdinateMaxInversion": 8})";

const Table noRows;
const Table forward{{{0, 4}, {0, 5}}, {0, 4}, {0, 4}};
const Table inverse{{{0, 6}, {0, 7}}, {0, 6}, {0, 6}};
const Table limitedForward{{{0, 4}, {0, 5}}, {-1, 4}, {9, 4}};
const Table limitedInverse{{{0, 6}, {0, 7}}, {-2, 6}, {8, 6}};

} // namespace

class ValueConverterEquidistantTableTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsConfiguration_data();
    void readsConfiguration();
    void readsLimitsOnlyAfterTheMinimum_data();
    void readsLimitsOnlyAfterTheMinimum();
    void returnsTheArgument_data();
    void returnsTheArgument();
    void resetWithoutForwardRowsKeepsTheInverse();
    void resetWithLimitsButWithoutForwardRowsSwapsNothing();
    void resetAppendsForwardRows();
    void resetWithoutInverseRemovesItsRowsOnly();
    void resetWithLimitsSwapsThoseOfBothTables();
    void keepsTheSlotsOfTheBase();
};

void ValueConverterEquidistantTableTest::readsConfiguration_data()
{
    QTest::addColumn<QString>("json");
    QTest::addColumn<QStringList>("expected");

    row("nothing configured", "{}", state(noRows, 0, noRows, 0));
    row("both tables", withoutLimits, state(forward, 0.5, inverse, 0.25));
    row("limits are stored swapped", withLimits, state(limitedForward, 0.5, limitedInverse, 0.25));
    row("forward table only", R"({"Table": [4, 5], "DistanceBaseTable": 0.5})",
        state(forward, 0.5, noRows, 0));
    row("the inverse distance goes with the inverse table",
        R"({"Table": [4, 5], "DistanceBaseTable": 0.5, "DistanceBaseInverseTable": 3})",
        state(forward, 0.5, noRows, 0));
    row("inverse table only",
        R"({"InverseTable": [6, 7], "DistanceBaseTable": 0.5, "DistanceBaseInverseTable": 0.25})",
        state(noRows, 0, noRows, 0));
    row("limits without forward table",
        R"({"InverseTable": [6, 7], "DistanceBaseTable": 0.5, "OrdinateMin": -1, "OrdinateMax": 9,
               "OrdinateMinInversion": -2, "OrdinateMaxInversion": 8})",
        state(noRows, 0, noRows, 0));
    row("largest ordinate without smallest",
        R"({"Table": [4, 5], "OrdinateMax": 9, "OrdinateMinInversion": -2, "OrdinateMaxInversion": 8})",
        state(forward, 0, noRows, 0));
    row("limits of a missing inverse table",
        R"({"Table": [4, 5], "OrdinateMin": -1, "OrdinateMax": 9, "OrdinateMinInversion": -2,
               "OrdinateMaxInversion": 8})",
        state(limitedForward, 0, {{}, {-2, 0}, {8, 0}}, 0));
    row("smallest ordinate alone", R"({"Table": [4, 5], "OrdinateMin": -1})",
        state({{{0, 4}, {0, 5}}, {-1, 4}, {0, 4}}, 0, noRows, 0));
    row("any text counts as smallest ordinate",
        R"({"Table": [4, 5], "OrdinateMin": "abc", "OrdinateMax": "9"})",
        state({{{0, 4}, {0, 5}}, {0, 4}, {9, 4}}, 0, noRows, 0));
    row("a list is not a smallest ordinate", R"({"Table": [4, 5], "OrdinateMin": [-1], "OrdinateMax": 9})",
        state(forward, 0, noRows, 0));
    row("a null node is not a smallest ordinate",
        R"({"Table": [4, 5], "OrdinateMin": null, "OrdinateMax": 9})", state(forward, 0, noRows, 0));
    row("numbers in texts", R"({"Table": ["4", "5"], "DistanceBaseTable": "0.5", "InverseTable": ["6", "7"],
               "DistanceBaseInverseTable": "0.25"})",
        state(forward, 0.5, inverse, 0.25));
    row("values of other types",
        R"({"Table": "x", "DistanceBaseTable": [1], "InverseTable": 3, "DistanceBaseInverseTable": [1]})",
        state(noRows, 0, noRows, 0));
    row("a distance that is a list", R"({"Table": [4, 5], "DistanceBaseTable": [0.5]})",
        state(forward, 0, noRows, 0));
    row("two columns", R"({"Table": [[1, 4], [2, 5]], "InverseTable": [[3, 6], [1, 7]]})",
        state({{{1, 4}, {2, 5}}, {2, 5}, {1, 4}}, 0, {{{3, 6}, {1, 7}}, {3, 6}, {1, 7}}, 0));
}

void ValueConverterEquidistantTableTest::readsConfiguration()
{
    QFETCH(QString, json);
    LogCapture log;
    QTEST(Converter(json).state(), "expected");
    QCOMPARE(log.takeTexts(), QStringList());
}

void ValueConverterEquidistantTableTest::readsLimitsOnlyAfterTheMinimum_data()
{
    QTest::addColumn<QString>("json");
    QTest::addColumn<bool>("limitsRead");

    row("nothing configured", "{}", false);
    row("no smallest ordinate", R"({"Table": [4], "OrdinateMax": 9, "DecimalPlaces": 3})", false);
    row("smallest ordinate is a list", R"({"OrdinateMin": [1], "OrdinateMax": 9})", false);
    row("smallest ordinate", R"({"OrdinateMin": 1, "DecimalPlaces": 3})", true);
    row("smallest ordinate is a text", R"({"OrdinateMin": "abc"})", true);
}

// Calls and their order are visible to the node classes of other libraries.
void ValueConverterEquidistantTableTest::readsLimitsOnlyAfterTheMinimum()
{
    QFETCH(QString, json);
    QFETCH(bool, limitsRead);
    QStringList expected{"unit.getChild(Table)", "unit.getChild(InverseTable)",
                         "unit.getChild(DistanceBaseTable)", "unit.getChild(DistanceBaseInverseTable)",
                         "unit.getChild(OrdinateMin)"};
    if (limitsRead)
        expected << "unit.getChild(OrdinateMax)"
                 << "unit.getChild(OrdinateMinInversion)"
                 << "unit.getChild(OrdinateMaxInversion)";

    const auto calls = RecordingNode::Calls::create();
    const auto node = recordingNodeFromJson(json, QStringLiteral("unit"), calls);
    const ValueConverterEquidistantTable converter(node);
    QCOMPARE(takeCallsOf(QStringLiteral("unit"), calls), expected);
}

void ValueConverterEquidistantTableTest::returnsTheArgument_data()
{
    using Limits = std::numeric_limits<double>;
    QTest::addColumn<double>("x");

    row("zero", 0.0);
    row("negative zero", -0.0);
    row("between two rows", 4.5);
    row("below the smallest ordinate", -100.0);
    row("above the largest ordinate", 100.0);
    row("largest number", Limits::max());
    row("smallest number", -Limits::denorm_min());
    row("not a number", Limits::quiet_NaN());
    row("infinity", Limits::infinity());
    row("negative infinity", -Limits::infinity());
}

void ValueConverterEquidistantTableTest::returnsTheArgument()
{
    QFETCH(double, x);
    for (const char* json : {"{}", withoutLimits, withLimits, R"({"Table": [4], "DecimalPlaces": 3})"}) {
        const Converter converter(json);
        QCOMPARE(exactText(converter.convertValue(x)), exactText(x));
        QCOMPARE(exactText(converter.invertValue(x)), exactText(x));
        QCOMPARE(converter.getDecimalPlaces(), 0U);
    }
}

void ValueConverterEquidistantTableTest::resetWithoutForwardRowsKeepsTheInverse()
{
    Converter converter(withoutLimits);
    QVERIFY(!(converter.*resetWithoutLimits)({}, 2, {100}, 3));
    QCOMPARE(converter.state(), state(forward, 0, inverse, 0));
    QVERIFY(!converter.resetTable({}, 2, {}, 3));
    QCOMPARE(converter.state(), state(forward, 0, inverse, 0));
}

void ValueConverterEquidistantTableTest::resetWithLimitsButWithoutForwardRowsSwapsNothing()
{
    Converter converter(withoutLimits);
    QVERIFY(!(converter.*resetWithLimits)({}, 2, -10, 10, {100}, 3, -20, 20));
    QCOMPARE(converter.state(), state(forward, 0, inverse, 0));
}

void ValueConverterEquidistantTableTest::resetAppendsForwardRows()
{
    Converter converter(withoutLimits);
    QVERIFY(converter.resetTable({14, 15}, 2, {16}, 3));
    QCOMPARE(converter.state(), state({{{0, 4}, {0, 5}, {0, 14}, {0, 15}}, {0, 14}, {0, 14}}, 2,
                                      {{{0, 6}, {0, 7}, {0, 16}}, {0, 16}, {0, 16}}, 3));
}

void ValueConverterEquidistantTableTest::resetWithoutInverseRemovesItsRowsOnly()
{
    Converter converter(withLimits);
    QVERIFY(converter.resetTable({14}, 2, {}, 3));
    QCOMPARE(converter.state(),
             state({{{0, 4}, {0, 5}, {0, 14}}, {0, 14}, {0, 14}}, 2, {{}, {-2, 6}, {8, 6}}, 0));
}

void ValueConverterEquidistantTableTest::resetWithLimitsSwapsThoseOfBothTables()
{
    Converter converter(withoutLimits);
    QVERIFY(converter.resetTable({14}, 2, -10, 10, {}, 3, -20, 20));
    QCOMPARE(converter.state(),
             state({{{0, 4}, {0, 5}, {0, 14}}, {-10, 14}, {10, 14}}, 2, {{}, {-20, 6}, {20, 6}}, 0));
}

// Device programs call through the virtual table.
void ValueConverterEquidistantTableTest::keepsTheSlotsOfTheBase()
{
    QCOMPARE(virtualSlot(&ValueConverterEquidistantTable::convertValue), std::size_t(2));
    QCOMPARE(virtualSlot(&ValueConverterEquidistantTable::invertValue), std::size_t(3));
}

static const TestClass<ValueConverterEquidistantTableTest> testClass;
#include "ValueConverterEquidistantTableTest.moc"
