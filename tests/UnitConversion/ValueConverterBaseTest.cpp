#include "UnitConversion/ValueConverterBase.h"

#include <QtTest/QTest>

#include <limits>
#include <type_traits>

#include "LogCapture.h"
#include "Row.h"
#include "TableText.h"
#include "TestProgram.h"
#include "VirtualSlot.h"

namespace {

using Table = ValueConverterBase::ConversionTable;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

static_assert(std::is_abstract_v<ValueConverterBase> && std::has_virtual_destructor_v<ValueConverterBase>);
static_assert(std::is_copy_constructible_v<Table> && !std::is_polymorphic_v<Table>);
static_assert(std::is_same_v<decltype(&ValueConverterBase::loadTable),
                             bool (ValueConverterBase::*)(const QList<QVariant>&, Table&)>);

class Converter : public ValueConverterBase
{
public:
    double convertValue(double x) const override
    {
        return x;
    }
    double invertValue(double x) const override
    {
        return x;
    }
    /// Would be called through the base class if its function were virtual.
    unsigned int getDecimalPlaces() const
    {
        return 99;
    }
};

QVariant tableRow(const QVariantList& values)
{
    return values;
}

} // namespace

Q_DECLARE_METATYPE(ValueConverterBase::ConversionTable)

class ValueConverterBaseTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void virtualFunctionsFollowTheDestructor();
    void decimalPlacesStartAtZeroAndAreNotVirtual();
    void loadsTable_data();
    void loadsTable();
    void appendsAndStartsTheLimitsAnew();
    void leavesTheTableAloneWithoutRows();
};

// Device programs call through the virtual table.
void ValueConverterBaseTest::virtualFunctionsFollowTheDestructor()
{
    QCOMPARE(virtualSlot(&ValueConverterBase::convertValue), std::size_t(2));
    QCOMPARE(virtualSlot(&ValueConverterBase::invertValue), std::size_t(3));
}

void ValueConverterBaseTest::decimalPlacesStartAtZeroAndAreNotVirtual()
{
    const Converter converter;
    const ValueConverterBase& base = converter;
    QCOMPARE(base.getDecimalPlaces(), 0U);
    QCOMPARE(converter.getDecimalPlaces(), 99U);
}

void ValueConverterBaseTest::loadsTable_data()
{
    QTest::addColumn<QVariantList>("data");
    QTest::addColumn<Table>("expected");

    row("one point", QVariantList{tableRow({7, 8})}, Table{{{7, 8}}, {7, 8}, {7, 8}});
    row("the first of equal largest x stays",
        QVariantList{tableRow({1, 10}), tableRow({3, 30}), tableRow({3, 31}), tableRow({0, 0})},
        Table{{{1, 10}, {3, 30}, {3, 31}, {0, 0}}, {3, 30}, {0, 0}});
    row("the first of equal smallest x stays",
        QVariantList{tableRow({2, 5}), tableRow({0, 1}), tableRow({0, 2})},
        Table{{{2, 5}, {0, 1}, {0, 2}}, {2, 5}, {0, 1}});
    row("a zero does not replace a zero of the other sign",
        QVariantList{tableRow({-0.0, 1}), tableRow({0.0, 2})},
        Table{{{-0.0, 1}, {0.0, 2}}, {-0.0, 1}, {-0.0, 1}});
    row("negative x", QVariantList{tableRow({-1, 1}), tableRow({-5, 2}), tableRow({-3, 3})},
        Table{{{-1, 1}, {-5, 2}, {-3, 3}}, {-1, 1}, {-5, 2}});
    row("infinite x", QVariantList{tableRow({0, 3}), tableRow({infinity, 1}), tableRow({-infinity, 2})},
        Table{{{0, 3}, {infinity, 1}, {-infinity, 2}}, {infinity, 1}, {-infinity, 2}});
    row("x that is not a number, first, is never replaced",
        QVariantList{tableRow({notANumber, 1}), tableRow({4, 2})},
        Table{{{notANumber, 1}, {4, 2}}, {notANumber, 1}, {notANumber, 1}});
    row("x that is not a number, later, never replaces",
        QVariantList{tableRow({4, 2}), tableRow({notANumber, 1})},
        Table{{{4, 2}, {notANumber, 1}}, {4, 2}, {4, 2}});
    row("one column", QVariantList{tableRow({4}), tableRow({5})}, Table{{{0, 4}, {0, 5}}, {0, 4}, {0, 4}});
    row("bare numbers are one column", QVariantList{4, 5}, Table{{{0, 4}, {0, 5}}, {0, 4}, {0, 4}});
    row("three columns", QVariantList{tableRow({1, 2, 3}), tableRow({4, 5, 6})},
        Table{{{0, 1}, {0, 4}}, {0, 1}, {0, 1}});
    row("rows without columns", QVariantList{tableRow({}), tableRow({})},
        Table{{{0, 0}, {0, 0}}, {0, 0}, {0, 0}});
    row("the second value of a short row is missing", QVariantList{tableRow({1, 2}), tableRow({3})},
        Table{{{1, 2}, {3, 0}}, {3, 0}, {1, 2}});
    row("a longer later row makes two columns", QVariantList{tableRow({1}), tableRow({2, 3})},
        Table{{{1, 0}, {2, 3}}, {2, 3}, {1, 0}});
    row("a longer later row makes three columns", QVariantList{tableRow({1, 2}), tableRow({3, 4, 5})},
        Table{{{0, 1}, {0, 3}}, {0, 1}, {0, 1}});
    row("texts", QVariantList{tableRow({"1", "2.5"}), tableRow({"x", true})},
        Table{{{1, 2.5}, {0, 1}}, {1, 2.5}, {0, 1}});
}

void ValueConverterBaseTest::loadsTable()
{
    QFETCH(QVariantList, data);
    QFETCH(Table, expected);
    LogCapture log;
    Table table;
    QVERIFY(Converter().loadTable(data, table));
    QCOMPARE(tableTexts(table), tableTexts(expected));
    QCOMPARE(log.takeTexts(), QStringList());
}

void ValueConverterBaseTest::appendsAndStartsTheLimitsAnew()
{
    Table table;
    Converter converter;
    QVERIFY(converter.loadTable({tableRow({-100, 1}), tableRow({100, 2})}, table));
    QVERIFY(converter.loadTable({tableRow({5, 3}), tableRow({6, 4})}, table));
    QCOMPARE(tableTexts(table), tableTexts({{{-100, 1}, {100, 2}, {5, 3}, {6, 4}}, {6, 4}, {5, 3}}));
}

void ValueConverterBaseTest::leavesTheTableAloneWithoutRows()
{
    LogCapture log;
    const Table before{{{1, 2}}, {3, 4}, {5, 6}};
    Table table = before;
    QVERIFY(!Converter().loadTable({}, table));
    QCOMPARE(tableTexts(table), tableTexts(before));
    QCOMPARE(log.takeTexts(), QStringList());
}

static const TestClass<ValueConverterBaseTest> testClass;
#include "ValueConverterBaseTest.moc"
