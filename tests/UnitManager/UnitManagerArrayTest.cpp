#include "UnitManager.h"

#include <QtTest/QTest>

#include <limits>

#include "Array2dDataTypeWrapper.h"
#include "DebugText.h"
#include "ExpectedMessages.h"
#include "LogCapture.h"
#include "Row.h"
#include "TestDocuments.h"
#include "TestProgram.h"

using Dimensions = QVector<unsigned int>;

class UnitManagerArrayTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void ranges_data();
    void ranges();
    void shortUnitTypeListIsRejectedWithoutQueries();
    void getValueArray_data();
    void getValueArray();
    void setValueArray_data();
    void setValueArray();
    void setValueArrayMayGetMoreValues();
    void emptyRangeWritesTheRowBack_data();
    void emptyRangeWritesTheRowBack();
    void rejectedWriteIsReported();
    void getUnitText_data();
    void getUnitText();
    void getUnitTextOfOneColumn_data();
    void getUnitTextOfOneColumn();

private:
    UnitManager m_manager;
};

namespace {

namespace T = TestUnitType;

using Expected::Conversion;
using TestValue::marker;

const unsigned int last = std::numeric_limits<unsigned int>::max();

/// An array with given dimensions, regardless of its data, that counts the queries for them.
class RecordingArray : public Array2dDataTypeWrapper
{
public:
    RecordingArray(const QList<QVariant>& data, const QList<QVariant>& unitTypes,
                   const QVector<unsigned int>& dimensions)
        : Array2dDataTypeWrapper(data, unitTypes), m_dimensions(dimensions)
    {}

    QVector<unsigned int> getDimensions() const override
    {
        ++m_dimensionQueries;
        return m_dimensions;
    }

    int dimensionQueries() const
    {
        return m_dimensionQueries;
    }

private:
    QVector<unsigned int> m_dimensions;
    mutable int m_dimensionQueries = 0;
};

/// Unit types of the five columns: pressure, none, temperature, a fixed unit, an unknown one.
QList<QVariant> columnUnitTypes()
{
    return {T::pressure, QString(), T::temperature, T::pressure + "/Bar", T::unknown};
}

QList<QVariant> rows()
{
    return {QVariantList{1.5, 2.5, 300.15, 3.5, 4}, QVariantList{marker, "abc", marker, "def", marker}};
}

Array2dDataTypeWrapper fiveColumns()
{
    return {rows(), columnUnitTypes()};
}

} // namespace

void UnitManagerArrayTest::initTestCase()
{
    QVERIFY(m_manager.initByJsonString(TestDocuments::units(), TestDocuments::defaultUnits()));
}

void UnitManagerArrayTest::ranges_data()
{
    QTest::addColumn<Dimensions>("dimensions");
    QTest::addColumn<unsigned int>("row");
    QTest::addColumn<unsigned int>("firstColumn");
    QTest::addColumn<unsigned int>("columnCount");
    QTest::addColumn<int>("texts");
    QTest::addColumn<int>("values");
    QTest::addColumn<bool>("writes");

    // Two rows and two columns, each with a unit type.
    const Dimensions real = {2, 2};
    row("all columns", real, 1U, 0U, 2U, 2, 2, true);
    row("last column", real, 1U, 1U, 1U, 1, 1, true);
    row("no column", real, 1U, 1U, 0U, 0, 0, true);
    row("no column after the last", real, 1U, 2U, 0U, 0, 0, true);
    row("no column beyond that", real, 1U, 3U, 0U, 0, 0, false);
    row("no column from the largest number on", real, 1U, last, 0U, 0, 0, false);
    row("too many columns", real, 1U, 0U, 3U, 0, 0, false);
    row("column after the last", real, 1U, 2U, 1U, 0, 0, false);
    row("largest number of columns", real, 1U, 0U, last, 0, 0, false);
    row("end wraps around to 0", real, 1U, last, 1U, 0, 0, true);
    row("end wraps around to 1", real, 1U, last, 2U, 0, 0, true);
    row("end wraps around below the first column", real, 1U, 2U, last, 0, 0, true);
    row("end wraps around beyond the columns", real, 1U, last, 4U, 0, 0, false);
    row("row after the last", real, 2U, 0U, 2U, 2, 0, false);
    row("largest row", real, last, 0U, 2U, 2, 0, false);
    row("row after the last, no column", real, 2U, 0U, 0U, 0, 0, false);
    row("row after the last, wrapped around", real, 2U, last, 1U, 0, 0, false);
    row("no rows", Dimensions{0, 2}, 0U, 0U, 2U, 2, 0, false);
    row("no dimensions", Dimensions{}, 0U, 0U, 2U, 0, 0, false);
    row("one dimension", Dimensions{2}, 0U, 0U, 2U, 0, 0, false);
    row("three dimensions", Dimensions{2, 2, 2}, 0U, 0U, 2U, 0, 0, false);
    row("one dimension, no column", Dimensions{2}, 0U, 0U, 0U, 0, 0, false);
    row("fewer columns than unit types", Dimensions{2, 1}, 0U, 0U, 2U, 0, 0, false);
    row("fewer columns than unit types, first one", Dimensions{2, 1}, 0U, 0U, 1U, 1, 1, true);
    row("more columns than unit types", Dimensions{2, 9}, 0U, 0U, 3U, 0, 0, false);
    row("more columns than unit types, existing ones", Dimensions{2, 9}, 0U, 0U, 2U, 2, 2, true);
}

void UnitManagerArrayTest::ranges()
{
    QFETCH(Dimensions, dimensions);
    QFETCH(unsigned int, row);
    QFETCH(unsigned int, firstColumn);
    QFETCH(unsigned int, columnCount);
    const QList<QVariant> data = {QVariantList{1.0, 2.0}, QVariantList{3.0, 4.0}};
    const QList<QVariant> given = {10.0, 20.0};
    const QString bar = QStringLiteral("Bar");
    RecordingArray array(data, {T::pressure, T::pressure}, dimensions);
    LogCapture log;

    QTEST(m_manager.getUnitText(array, QStringLiteral("de"), firstColumn, columnCount, bar).size(), "texts");
    QTEST(m_manager.getValueArray(array, row, firstColumn, columnCount, bar).size(), "values");
    QCOMPARE(array.getData(), data);
    QTEST(m_manager.setValueArray(array, row, firstColumn, columnCount, given, bar), "writes");
    QCOMPARE(takeMessageTexts(log), QStringList());

    QFETCH(int, values);
    QList<QVariant> expected = row < 2 ? data.at(static_cast<int>(row)).toList() : QList<QVariant>();
    for (int index = 0; index < values; ++index)
        expected[static_cast<int>(firstColumn) + index] = given.at(index);
    QCOMPARE(array.getRowValues(row), expected);
    const int otherRow = row == 0 ? 1 : 0;
    QCOMPARE(array.getData().at(otherRow), data.at(otherRow));
}

void UnitManagerArrayTest::shortUnitTypeListIsRejectedWithoutQueries()
{
    RecordingArray array({QVariant(QVariantList{1.0, 2.0})}, {T::pressure, T::pressure}, {1, 9});
    const QString bar = QStringLiteral("Bar");

    QCOMPARE(m_manager.getUnitText(array, QStringLiteral("de"), 0, 3, bar), QStringList());
    QCOMPARE(m_manager.getValueArray(array, 0, 0, 3, bar), QList<QVariant>());
    QVERIFY(!m_manager.setValueArray(array, 0, 0, 3, {1.0, 2.0, 3.0}, bar));
    QCOMPARE(array.dimensionQueries(), 0);
}

void UnitManagerArrayTest::getValueArray_data()
{
    QTest::addColumn<unsigned int>("row");
    QTest::addColumn<unsigned int>("firstColumn");
    QTest::addColumn<unsigned int>("columnCount");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QStringList>("values");
    QTest::addColumn<QStringList>("messages");

    const QStringList none;
    row("unit", 0U, 0U, 1U, "HectoPascal", QStringList{"double 1500"}, none);
    row("default units of the columns", 0U, 0U, 3U, "",
        QStringList{"double 1500", "double 2.5", toDebugText(300.15 - 273.15)}, none);
    row("columns from the middle", 0U, 1U, 3U, "Celsius",
        QStringList{"double 2.5", toDebugText(300.15 - 273.15), "double 3.5"}, none);
    row("unit of another column", 0U, 0U, 3U, "HectoPascal",
        QStringList{"double 1500", "double 2.5", toDebugText(300.15)},
        QStringList{Expected::unknownUnit(Conversion::FromBase, "HectoPascal", "AbsoluteTemperature")});
    row("unknown unit type", 0U, 3U, 2U, "Bar", QStringList{"double 3.5", "int 4"},
        QStringList{Expected::noConversion(Conversion::FromBase, T::unknown)});
    row("markers, also with unknown units, and texts", 1U, 0U, 5U, "Nope",
        QStringList{TestValue::markerText, "QString abc", TestValue::markerText, "QString def",
                    TestValue::markerText},
        none);
}

void UnitManagerArrayTest::getValueArray()
{
    QFETCH(unsigned int, row);
    QFETCH(unsigned int, firstColumn);
    QFETCH(unsigned int, columnCount);
    QFETCH(QString, unit);
    const Array2dDataTypeWrapper array = fiveColumns();
    LogCapture log;

    QTEST(toDebugText(m_manager.getValueArray(array, row, firstColumn, columnCount, unit)), "values");
    QTEST(takeMessageTexts(log), "messages");
}

void UnitManagerArrayTest::setValueArray_data()
{
    QTest::addColumn<unsigned int>("firstColumn");
    QTest::addColumn<QVariantList>("values");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<bool>("writes");
    QTest::addColumn<QStringList>("stored");
    QTest::addColumn<QStringList>("messages");

    const QStringList none;
    const QStringList old = {"double 1.5", "double 2.5", toDebugText(300.15), "double 3.5", "int 4"};
    const QString hPa = QStringLiteral("HectoPascal");
    row("unit, not rounded", 0U, QVariantList{1234.56}, hPa, true,
        QStringList{toDebugText(1234.56 * 0.001), old[1], old[2], old[3], old[4]}, none);
    row("default units of the columns", 0U, QVariantList{2000, 7, 0}, "", true,
        QStringList{"double 2", "int 7", toDebugText(273.15), old[3], old[4]}, none);
    row("columns from the middle, fixed unit as it is", 1U, QVariantList{"text", 0.0, 5}, "Celsius", true,
        QStringList{old[0], "QString text", toDebugText(273.15), "int 5", old[4]}, none);
    row("markers are written also with unknown units", 0U,
        QVariantList{marker, marker, marker, marker, marker}, "Nope", true,
        QStringList{TestValue::markerText, TestValue::markerText, TestValue::markerText,
                    TestValue::markerText, TestValue::markerText},
        none);
    row("failure in the last column", 3U, QVariantList{5, 6}, "Bar", false, old,
        QStringList{Expected::noConversion(Conversion::ToBase, T::unknown)});
    row("failure in the first column", 2U, QVariantList{7, 5}, hPa, false, old,
        QStringList{Expected::unknownUnit(Conversion::ToBase, hPa, "AbsoluteTemperature")});
    row("every failure is reported", 0U, QVariantList{"abc", 7, 8, 9, 10}, "Bar", false, old,
        Expected::notConverted(Conversion::ToBase, "QString", "Bar", "Pressure") +
            QStringList{Expected::unknownUnit(Conversion::ToBase, "Bar", "AbsoluteTemperature"),
                        Expected::noConversion(Conversion::ToBase, T::unknown)});
}

void UnitManagerArrayTest::setValueArray()
{
    QFETCH(unsigned int, firstColumn);
    QFETCH(QVariantList, values);
    QFETCH(QString, unit);
    Array2dDataTypeWrapper array = fiveColumns();
    LogCapture log;

    QTEST(m_manager.setValueArray(array, 0, firstColumn, static_cast<unsigned int>(values.size()), values,
                                  unit),
          "writes");
    QTEST(toDebugText(array.getRowValues(0)), "stored");
    QCOMPARE(toDebugText(array.getRowValues(1)), toDebugText(fiveColumns().getRowValues(1)));
    QTEST(takeMessageTexts(log), "messages");
}

void UnitManagerArrayTest::setValueArrayMayGetMoreValues()
{
    Array2dDataTypeWrapper array = fiveColumns();

    QVERIFY(m_manager.setValueArray(array, 0, 1, 1, {7.5, 8.5, 9.5}, QString()));
    QCOMPARE(toDebugText(array.getRowValues(0)),
             (QStringList{"double 1.5", "double 7.5", toDebugText(300.15), "double 3.5", "int 4"}));
}

void UnitManagerArrayTest::emptyRangeWritesTheRowBack_data()
{
    QTest::addColumn<unsigned int>("firstColumn");
    QTest::addColumn<unsigned int>("columnCount");

    row("no column", 0U, 0U);
    row("no column after the last", 2U, 0U);
    row("end wraps around", last, 1U);
}

void UnitManagerArrayTest::emptyRangeWritesTheRowBack()
{
    QFETCH(unsigned int, firstColumn);
    QFETCH(unsigned int, columnCount);
    // The first row lacks its second cell: writing the row back stores an invalid value there.
    const QList<QVariant> data = {QVariantList{1.0}, QVariantList{2.0, 3.0}};
    Array2dDataTypeWrapper array(data, {T::pressure, T::pressure});

    QVERIFY(m_manager.setValueArray(array, 0, firstColumn, columnCount, {}, QString()));
    QCOMPARE(array.getData(), (QList<QVariant>{QVariantList{1.0, QVariant()}, data.at(1)}));
}

void UnitManagerArrayTest::rejectedWriteIsReported()
{
    // The array reports a second row, but rejects writes to it.
    const QList<QVariant> data = {QVariant(QVariantList{1.0, 2.0})};
    RecordingArray array(data, {T::pressure, T::pressure}, {2, 2});

    QVERIFY(m_manager.setValueArray(array, 0, 0, 0, {}, QString()));
    QVERIFY(!m_manager.setValueArray(array, 1, 0, 0, {}, QString()));
    QCOMPARE(array.getData(), data);
}

void UnitManagerArrayTest::getUnitText_data()
{
    QTest::addColumn<unsigned int>("firstColumn");
    QTest::addColumn<unsigned int>("columnCount");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QStringList>("messages");

    const QString fixedBar = T::pressure + QStringLiteral("/Bar");
    row("unit", 0U, 2U, "Bar", QStringList{"Bar", ""}, QStringList());
    row("default units of the columns", 0U, 3U, "", QStringList{"Hektopascal", "", "deg C"}, QStringList());
    row("fixed unit without unit", 2U, 2U, "", QStringList{"deg C", "Bar"},
        QStringList{Expected::noDefaultUnit(fixedBar)});
    row("unit of another column", 0U, 5U, "Bar", QStringList{"Bar", "", "", "Bar", ""},
        QStringList{Expected::unknownTextUnit("Bar", T::temperature), Expected::unknownTextType(T::unknown)});
}

void UnitManagerArrayTest::getUnitText()
{
    QFETCH(unsigned int, firstColumn);
    QFETCH(unsigned int, columnCount);
    QFETCH(QString, unit);
    const Array2dDataTypeWrapper array = fiveColumns();
    LogCapture log;

    QTEST(m_manager.getUnitText(array, QStringLiteral("de"), firstColumn, columnCount, unit), "texts");
    QTEST(takeMessageTexts(log), "messages");
}

void UnitManagerArrayTest::getUnitTextOfOneColumn_data()
{
    QTest::addColumn<unsigned int>("column");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("messages");

    const QStringList none;
    row("unit", 0U, "Bar", "Bar", none);
    row("default unit", 0U, "", "Hektopascal", none);
    row("no unit type", 1U, "", "", none);
    row("fixed unit", 3U, "Celsius", "Bar", none);
    row("unknown unit", 0U, "Nope", "", QStringList{Expected::unknownTextUnit("Nope", T::pressure)});
    row("column after the last", 5U, "Bar", "", none);
    row("end wraps around", last, "Bar", "", none);
}

void UnitManagerArrayTest::getUnitTextOfOneColumn()
{
    QFETCH(unsigned int, column);
    QFETCH(QString, unit);
    const Array2dDataTypeWrapper array = fiveColumns();
    LogCapture log;

    QTEST(m_manager.getUnitText(array, QStringLiteral("de"), column, unit), "text");
    QTEST(takeMessageTexts(log), "messages");
}

static const TestClass<UnitManagerArrayTest> testClass;

#include "UnitManagerArrayTest.moc"
