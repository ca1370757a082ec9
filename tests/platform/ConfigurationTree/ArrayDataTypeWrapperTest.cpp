#include "ArrayDataTypeWrapper.h"

#include <QtTest/QTest>

#include <limits>
#include <type_traits>

#include "Row.h"
#include "TestProgram.h"

using Indices = QVector<unsigned int>;

static_assert(std::has_virtual_destructor_v<ArrayDataTypeWrapper>);
static_assert(std::is_copy_constructible_v<ArrayDataTypeWrapper>);

namespace {

const unsigned int highest = std::numeric_limits<unsigned int>::max();

} // namespace

class ArrayDataTypeWrapperTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listIsSeenAsOneDimension();
    void emptyListIsSeenAsOneDimension();
    void unitTypeIsTheFirstEntry();
    void partIsRead_data();
    void partIsRead();
    void allValuesAreReplaced_data();
    void allValuesAreReplaced();
    void partIsReplaced_data();
    void partIsReplaced();
    void resetSelectsOtherData();
};

void ArrayDataTypeWrapperTest::listIsSeenAsOneDimension()
{
    const ArrayDataTypeWrapper array({1, QVariant(QVariantList{2, 3}), QVariant()}, {});

    QCOMPARE(array.getArrayType(), Indices{3});
    QCOMPARE(array.getDimensions(), Indices{3});
    QCOMPARE(array.getValues(), (QVariantList{1, QVariant(QVariantList{2, 3}), QVariant()}));
}

void ArrayDataTypeWrapperTest::emptyListIsSeenAsOneDimension()
{
    const ArrayDataTypeWrapper array({}, {});

    QCOMPARE(array.getArrayType(), Indices{0});
    QCOMPARE(array.getValues(), QVariantList());
    QCOMPARE(array.getValues(0, 1), QVariantList());
}

void ArrayDataTypeWrapperTest::unitTypeIsTheFirstEntry()
{
    QCOMPARE(ArrayDataTypeWrapper({1, 2}, {}).getUnitType(), QString());
    QCOMPARE(ArrayDataTypeWrapper({1, 2}, {"P"}).getUnitType(), QStringLiteral("P"));
    QCOMPARE(ArrayDataTypeWrapper({}, {"P"}).getUnitType(), QStringLiteral("P"));
    QCOMPARE(ArrayDataTypeWrapper({1, 2}, {"", "Q"}).getUnitType(), QString());
}

void ArrayDataTypeWrapperTest::partIsRead_data()
{
    QTest::addColumn<unsigned int>("first");
    QTest::addColumn<unsigned int>("count");
    QTest::addColumn<QVariantList>("values");

    QTest::newRow("all") << 0U << 3U << QVariantList{1, 2, 3};
    QTest::newRow("middle") << 1U << 1U << QVariantList{2};
    QTest::newRow("end") << 1U << 2U << QVariantList{2, 3};
    QTest::newRow("none") << 1U << 0U << QVariantList();
    QTest::newRow("none after the last") << 3U << 0U << QVariantList();
    QTest::newRow("one after the last") << 3U << 1U << QVariantList();
    QTest::newRow("one too many") << 1U << 3U << QVariantList();
    QTest::newRow("end overflows to 0") << highest << 1U << QVariantList();
    QTest::newRow("end overflows to 1") << 2U << highest << QVariantList();
}

void ArrayDataTypeWrapperTest::partIsRead()
{
    QFETCH(unsigned int, first);
    QFETCH(unsigned int, count);
    const ArrayDataTypeWrapper array({1, 2, 3}, {});

    QTEST(array.getValues(first, count), "values");
}

void ArrayDataTypeWrapperTest::allValuesAreReplaced_data()
{
    QTest::addColumn<QVariantList>("values");
    QTest::addColumn<bool>("isWritten");
    QTest::addColumn<QVariantList>("after");

    QTest::newRow("as many") << QVariantList{4, 5} << true << QVariantList{4, 5};
    QTest::newRow("fewer") << QVariantList{4} << false << QVariantList{1, 2};
    QTest::newRow("more") << QVariantList{4, 5, 6} << false << QVariantList{1, 2};
}

void ArrayDataTypeWrapperTest::allValuesAreReplaced()
{
    QFETCH(QVariantList, values);
    ArrayDataTypeWrapper array({1, 2}, {});

    QTEST(array.setValues(values), "isWritten");
    QTEST(array.getValues(), "after");
}

void ArrayDataTypeWrapperTest::partIsReplaced_data()
{
    QTest::addColumn<QVariantList>("values");
    QTest::addColumn<unsigned int>("first");
    QTest::addColumn<unsigned int>("count");
    QTest::addColumn<bool>("isWritten");
    QTest::addColumn<QVariantList>("after");

    const QVariantList before = {1, 2, 3};
    row("middle", QVariantList{7}, 1U, 1U, true, QVariantList{1, 7, 3});
    row("end", QVariantList{7, 8}, 1U, 2U, true, QVariantList{1, 7, 8});
    row("more values than places", QVariantList{7, 8}, 0U, 1U, true, QVariantList{7, 2, 3});
    row("none", QVariantList(), 3U, 0U, true, before);
    row("too few values", QVariantList{7}, 0U, 2U, false, before);
    row("one after the last", QVariantList{7}, 3U, 1U, false, before);
    row("end overflows to 0", QVariantList{7}, highest, 1U, false, before);
    row("end overflows to 2", before, 3U, highest, false, before);
}

void ArrayDataTypeWrapperTest::partIsReplaced()
{
    QFETCH(QVariantList, values);
    QFETCH(unsigned int, first);
    QFETCH(unsigned int, count);
    ArrayDataTypeWrapper array({1, 2, 3}, {});

    QTEST(array.setValues(values, first, count), "isWritten");
    QTEST(array.getValues(), "after");
}

void ArrayDataTypeWrapperTest::resetSelectsOtherData()
{
    ArrayDataTypeWrapper array({1, 2}, {"P"});

    array.reset({4}, {});

    QCOMPARE(array.getDimensions(), Indices{1});
    QCOMPARE(array.getUnitType(), QString());
    QCOMPARE(array.getValues(), QVariantList{4});
}

static const TestClass<ArrayDataTypeWrapperTest> testClass;

#include "ArrayDataTypeWrapperTest.moc"
