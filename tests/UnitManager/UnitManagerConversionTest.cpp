#include "UnitManager.h"

#include <QtTest/QTest>

#include <limits>

#include "DebugText.h"
#include "ExpectedMessages.h"
#include "LogCapture.h"
#include "Row.h"
#include "TestDocuments.h"
#include "TestProgram.h"
#include "UnitTypes.h"

class UnitManagerConversionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void roundDouble_data();
    void roundDouble();
    void fromBaseUnit_data();
    void fromBaseUnit();
    void toBaseUnit_data();
    void toBaseUnit();
    void rawFormsDoNotRound_data();
    void rawFormsDoNotRound();
    void everyTypeOfNumber_data();
    void everyTypeOfNumber();
    void namesWithSeparators_data();
    void namesWithSeparators();
    void getValue_data();
    void getValue();

private:
    UnitManager m_manager;
};

namespace {

namespace T = TestUnitType;

using Expected::Conversion;
using Expected::noConversion;
using Expected::noConversionForDecimalPlaces;
using Expected::noDefaultUnit;
using Expected::notConverted;
using Expected::notRounded;
using TestValue::marker;

const double infinity = std::numeric_limits<double>::infinity();

const QString streamedAbc = QStringLiteral("QVariant(QString, \"abc\")");

void addColumns()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("unitType");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QString>("result");
    QTest::addColumn<QStringList>("messages");
}

/// Rows for both directions: with a base unit of three places, or without conversion.
void addRowsOfBothDirections(Conversion conversion)
{
    const QStringList none;
    const QString fixedBar = T::pressure + QStringLiteral("/Bar");

    row("base unit", QVariant(1.23456), T::pressure, "Bar", toDebugText(1.235), none);
    row("negative half", QVariant(-0.0005), T::pressure, "Bar", toDebugText(-0.001), none);
    row("whole number becomes a double", QVariant(3), T::pressure, "Bar", "double 3", none);
    row("huge number has nothing to round", QVariant(1e20), T::pressure, "Bar", toDebugText(1e20), none);
    row("table unit has no places", QVariant(1.5), T::ratio, "Counts", "double 2", none);
    row("fixed unit is rounded only", QVariant(1.23456), fixedBar, "", toDebugText(1.235), none);
    row("fixed unit beats the unit", QVariant(1234.56789), fixedBar, "HectoPascal", toDebugText(1234.568),
        none);
    row("whole number in a fixed unit", QVariant(3), fixedBar, "", "double 3", none);
    row("text in a fixed unit", QVariant("abc"), fixedBar, "", "double 0",
        QStringList{notRounded(streamedAbc)});
    row("unknown fixed unit", QVariant(1.23456), T::pressure + "/Nope", "Bar", toDebugText(1.23456), none);
    row("fixed unit of an unknown type", QVariant(1.23456), "x/y/z/w", "", toDebugText(1.23456),
        QStringList{noConversionForDecimalPlaces("x/y/z")});
    row("no unit", QVariant(1.23456), T::pressure, "NoUnit", toDebugText(1.23456), none);
    row("unknown unit", QVariant(1.23456), T::pressure, "Nope", toDebugText(1.23456),
        QStringList{Expected::unknownUnit(conversion, "Nope", "Pressure")});
    row("unknown unit type", QVariant(1.23456), T::unknown, "Bar", toDebugText(1.23456),
        QStringList{noConversion(conversion, T::unknown), noConversionForDecimalPlaces(T::unknown)});
    row("unknown unit type without unit", QVariant(7), T::unknown, "", "int 7",
        QStringList{noDefaultUnit(T::unknown), noConversion(conversion, T::unknown),
                    noDefaultUnit(T::unknown), noConversionForDecimalPlaces(T::unknown)});
    row("no default unit", QVariant(7), T::ratio, "", "int 7",
        QStringList{noDefaultUnit(T::ratio), noDefaultUnit(T::ratio)});
    row("unit without unit type", QVariant(7), "", "Bar", "int 7",
        QStringList{noConversionForDecimalPlaces("")});
    row("neither unit type nor unit", QVariant(7), "", "", "int 7",
        QStringList{noDefaultUnit(""), noConversionForDecimalPlaces("")});
    row("text that is not a number", QVariant("abc"), T::pressure, "Bar", "double 0",
        notConverted(conversion, "QString", "Bar", "Pressure") + QStringList{notRounded(streamedAbc)});
    row("text that is a number is rounded nevertheless", QVariant("1.23456"), T::pressure, "Bar",
        toDebugText(1.235), notConverted(conversion, "QString", "Bar", "Pressure"));
    row("truth value", QVariant(true), T::pressure, "Bar", "double 1",
        notConverted(conversion, "bool", "Bar", "Pressure"));
    row("invalid value", QVariant(), T::pressure, "Bar", "double 0",
        notConverted(conversion, "", "Bar", "Pressure") + QStringList{notRounded("QVariant(Invalid)")});
    row("invalid value with an unknown unit", QVariant(), T::pressure, "Nope", "invalid",
        QStringList{Expected::unknownUnit(conversion, "Nope", "Pressure")});
    row("marker", QVariant(marker), T::pressure, "HectoPascal", TestValue::markerText, none);
}

} // namespace

void UnitManagerConversionTest::initTestCase()
{
    QVERIFY(m_manager.initByJsonString(TestDocuments::units(), TestDocuments::defaultUnits()));
}

void UnitManagerConversionTest::roundDouble_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<unsigned int>("places");
    QTest::addColumn<QString>("result");
    QTest::addColumn<QStringList>("messages");

    const QStringList none;
    row("half", QVariant(1.25), 1U, toDebugText(1.3), none);
    row("negative half", QVariant(-1.25), 1U, toDebugText(-1.3), none);
    row("no places", QVariant(2.5), 0U, "double 3", none);
    row("whole number becomes a double", QVariant(3), 2U, "double 3", none);
    row("unsigned number becomes a double", QVariant(4294967295U), 0U, "double 4294967295", none);
    row("long number becomes a double", QVariant(-4294967296LL), 1U, "double -4294967296", none);
    row("single-precision number becomes a double", QVariant(2.5F), 0U, "double 3", none);
    row("truth value becomes a double", QVariant(true), 0U, "double 1", none);
    row("text that is a number", QVariant("1.25"), 1U, toDebugText(1.3), none);
    row("marker", QVariant(marker), 1U, TestValue::markerText, none);
    row("infinity", QVariant(-infinity), 1U, "double -inf", none);
    row("largest number of places", QVariant(0.1), 4294967295U, toDebugText(0.1), none);
    row("text that is not a number", QVariant("abc"), 1U, "double 0", QStringList{notRounded(streamedAbc)});
    row("empty text", QVariant(""), 1U, "double 0", QStringList{notRounded("QVariant(QString, \"\")")});
    row("text with a decimal comma", QVariant("1,5"), 1U, "double 0",
        QStringList{notRounded("QVariant(QString, \"1,5\")")});
    row("list", QVariant(QVariantList{1}), 1U, "double 0",
        QStringList{notRounded("QVariant(QVariantList, (QVariant(int, 1)))")});
    row("invalid value", QVariant(), 1U, "double 0", QStringList{notRounded("QVariant(Invalid)")});
}

void UnitManagerConversionTest::roundDouble()
{
    QFETCH(QVariant, value);
    QFETCH(unsigned int, places);
    LogCapture log;

    QTEST(toDebugText(UnitManager().roundDouble(value, places)), "result");
    QTEST(takeMessageTexts(log), "messages");
}

void UnitManagerConversionTest::fromBaseUnit_data()
{
    addColumns();
    const QStringList none;
    row("unit", QVariant(1.23456), T::pressure, "HectoPascal", toDebugText(1234.6), none);
    row("empty unit is the default unit", QVariant(1.23456), T::pressure, "", toDebugText(1234.6), none);
    row("default unit written as a fixed unit", QVariant(300.0), T::temperature, "", toDebugText(26.9), none);
    row("polynomial without places", QVariant(1.23456), T::pressure, "MilliBar", "double 1235", none);
    addRowsOfBothDirections(Conversion::FromBase);
}

void UnitManagerConversionTest::fromBaseUnit()
{
    QFETCH(QVariant, value);
    QFETCH(QString, unitType);
    QFETCH(QString, unit);
    LogCapture log;

    QTEST(toDebugText(m_manager.fromBaseUnit(value, unitType, unit)), "result");
    QTEST(takeMessageTexts(log), "messages");
}

void UnitManagerConversionTest::toBaseUnit_data()
{
    addColumns();
    const QStringList none;
    row("rounded to the places of the given unit", QVariant(1234.56), T::pressure, "HectoPascal",
        toDebugText(1.2), none);
    row("rounded to zero at the places of the given unit", QVariant(1.234), T::pressure, "HectoPascal",
        "double 0", none);
    row("base unit has more places", QVariant(1.234), T::temperature, "Celsius", toDebugText(274.4), none);
    row("empty unit is the default unit", QVariant(1234.56), T::pressure, "", toDebugText(1.2), none);
    row("polynomial without places", QVariant(1634.56), T::pressure, "MilliBar", "double 2", none);
    addRowsOfBothDirections(Conversion::ToBase);
}

void UnitManagerConversionTest::toBaseUnit()
{
    QFETCH(QVariant, value);
    QFETCH(QString, unitType);
    QFETCH(QString, unit);
    const QString given = toDebugText(value);
    LogCapture log;

    QTEST(toDebugText(m_manager.toBaseUnit(value, unitType, unit)), "result");
    QCOMPARE(toDebugText(value), given);
    QTEST(takeMessageTexts(log), "messages");
}

void UnitManagerConversionTest::rawFormsDoNotRound_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("unitType");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QString>("fromBase");
    QTest::addColumn<QString>("toBase");
    QTest::addColumn<QStringList>("messages");

    const QStringList none;
    row("unit", QVariant(1.23456), T::pressure, "HectoPascal", toDebugText(1.23456 * 1000.0),
        toDebugText(1.23456 * 0.001), none);
    row("empty unit is the default unit", QVariant(2), T::pressure, "", "double 2000", toDebugText(2 * 0.001),
        none);
    row("table unit", QVariant(1.5), T::ratio, "Counts", "double 1.5", "double 1.5", none);
    row("fixed unit", QVariant(1.23456), T::pressure + "/Bar", "", toDebugText(1.23456), toDebugText(1.23456),
        none);
    row("whole number in a fixed unit", QVariant(3), T::pressure + "/Bar", "", "int 3", "int 3", none);
    row("unit without unit type", QVariant(3), "", "Bar", "int 3", "int 3", none);
    row("no default unit", QVariant(7), T::ratio, "", "int 7", "int 7",
        QStringList{noDefaultUnit(T::ratio), noDefaultUnit(T::ratio)});
    row("text", QVariant("abc"), T::pressure, "Bar", "QString abc", "QString abc",
        notConverted(Conversion::FromBase, "QString", "Bar", "Pressure") +
            notConverted(Conversion::ToBase, "QString", "Bar", "Pressure"));
    row("invalid value", QVariant(), T::pressure, "Bar", "invalid", "invalid",
        notConverted(Conversion::FromBase, "", "Bar", "Pressure") +
            notConverted(Conversion::ToBase, "", "Bar", "Pressure"));
    row("marker", QVariant(marker), T::pressure, "HectoPascal", TestValue::markerText, TestValue::markerText,
        none);
}

void UnitManagerConversionTest::rawFormsDoNotRound()
{
    QFETCH(QVariant, value);
    QFETCH(QString, unitType);
    QFETCH(QString, unit);
    const QString given = toDebugText(value);
    LogCapture log;

    QTEST(toDebugText(m_manager.fromBaseUnitRaw(value, unitType, unit)), "fromBase");
    QTEST(toDebugText(m_manager.toBaseUnitRaw(value, unitType, unit)), "toBase");
    QCOMPARE(toDebugText(value), given);
    QTEST(takeMessageTexts(log), "messages");
}

void UnitManagerConversionTest::everyTypeOfNumber_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("fromBase");
    QTest::addColumn<QString>("toBase");

    row("double", QVariant(2.5), "double 2500", toDebugText(2.5 * 0.001));
    row("double that is null", QVariant(QVariant::Double), "double 0", "double 0");
    row("negative zero", QVariant(-0.0), toDebugText(-0.0 + 0.0), toDebugText(-0.0 + 0.0));
    row("infinity, which Horner's scheme multiplies by zero", QVariant(-infinity), "double nan",
        "double nan");
    row("float", QVariant(2.5F), "double 2500", toDebugText(2.5 * 0.001));
    row("float marker", QVariant(TestValue::floatMarker), TestValue::floatMarkerText,
        TestValue::floatMarkerText);
    row("int", QVariant(-2), "double -2000", toDebugText(-2 * 0.001));
    row("unsigned int", QVariant(4294967295U), "double 4294967295000", toDebugText(4294967295.0 * 0.001));
    row("long long", QVariant(-4294967296LL), "double -4294967296000", toDebugText(-4294967296.0 * 0.001));
    row("unsigned long long", QVariant(4294967296ULL), "double 4294967296000",
        toDebugText(4294967296.0 * 0.001));
    row("short", QVariant::fromValue(short(-2)), "double -2000", toDebugText(-2 * 0.001));
    row("signed char", QVariant::fromValue<signed char>(-2), "double -2000", toDebugText(-2 * 0.001));
}

void UnitManagerConversionTest::everyTypeOfNumber()
{
    QFETCH(QVariant, value);
    LogCapture log;

    QTEST(toDebugText(m_manager.fromBaseUnitRaw(value, T::pressure, "HectoPascal")), "fromBase");
    QTEST(toDebugText(m_manager.toBaseUnitRaw(value, T::pressure, "HectoPascal")), "toBase");
    QCOMPARE(
        toDebugText(m_manager.fromBaseUnit(value, T::pressure, "HectoPascal")),
        toDebugText(m_manager.roundDouble(m_manager.fromBaseUnitRaw(value, T::pressure, "HectoPascal"), 1)));
    QCOMPARE(
        toDebugText(m_manager.toBaseUnit(value, T::pressure, "HectoPascal")),
        toDebugText(m_manager.roundDouble(m_manager.toBaseUnitRaw(value, T::pressure, "HectoPascal"), 1)));
    QCOMPARE(takeMessageTexts(log), QStringList());
}

void UnitManagerConversionTest::namesWithSeparators_data()
{
    QTest::addColumn<QString>("unitType");
    QTest::addColumn<QString>("raw");
    QTest::addColumn<QString>("rounded");
    QTest::addColumn<QString>("toBase");
    QTest::addColumn<QStringList>("messages");

    const QStringList none;
    const QString parent = typeNamed("Gauge");
    row("none", parent, toDebugText(1.23456 * 1000.0), toDebugText(1234.6), toDebugText(1.23456 * 0.001),
        none);
    row("one is a fixed unit", parent + "/Low", toDebugText(1.23456), toDebugText(1.23456),
        toDebugText(1.23456), none);
    row("one at the end is a fixed unit", parent + "/", toDebugText(1.23456), toDebugText(1.23456),
        toDebugText(1.23456), none);
    row("two are not a fixed unit", parent + "/Low/Er", toDebugText(1.23456 * 1000.0), toDebugText(1234.6),
        toDebugText(1.23456 * 0.001), none);
}

void UnitManagerConversionTest::namesWithSeparators()
{
    QFETCH(QString, unitType);
    const QString unit =
        QStringLiteral("{\"Milli\": {\"Polynomial\": [[0], [1000]], \"InversePolynomial\": [[0], [0.001]], "
                       "\"DecimalPlaces\": 1, \"UnitLabel\": {\"@value\": \"m\"}}}");
    UnitManager manager;
    QVERIFY(manager.initByJsonString(
        QStringLiteral("{\"Gauge\": %1, \"Gauge/\": %1, \"Gauge/Low\": %1, \"Gauge/Low/Er\": %1}").arg(unit),
        QString()));
    LogCapture log;

    QTEST(toDebugText(manager.fromBaseUnitRaw(1.23456, unitType, "Milli")), "raw");
    QTEST(toDebugText(manager.fromBaseUnit(1.23456, unitType, "Milli")), "rounded");
    QTEST(toDebugText(manager.toBaseUnitRaw(1.23456, unitType, "Milli")), "toBase");
    double value = 1.23456;
    QVERIFY(manager.fromBaseUnitArray(&value, &value, 1, unitType, "Milli"));
    QTEST(toDebugText(value), "raw");
    QTEST(takeMessageTexts(log), "messages");
}

void UnitManagerConversionTest::getValue_data()
{
    addColumns();
    const QStringList none;
    row("unit", QVariant(1.23456), T::pressure, "HectoPascal", toDebugText(1.23456 * 1000.0), none);
    row("empty unit is the default unit", QVariant(2), T::pressure, "", "double 2000", none);
    row("fixed unit", QVariant(1.23456), T::pressure + "/Bar", "", toDebugText(1.23456), none);
    row("marker", QVariant(marker), T::pressure, "HectoPascal", TestValue::markerText, none);
    row("invalid value", QVariant(), T::pressure, "Bar", "invalid", none);
    row("invalid value of an unknown type", QVariant(), T::unknown, "", "invalid", none);
    row("text", QVariant("abc"), T::pressure, "Bar", "QString abc",
        notConverted(Conversion::FromBase, "QString", "Bar", "Pressure"));
    row("unknown unit type", QVariant(7), T::unknown, "Bar", "int 7",
        QStringList{noConversion(Conversion::FromBase, T::unknown)});
}

void UnitManagerConversionTest::getValue()
{
    QFETCH(QVariant, value);
    QFETCH(QString, unitType);
    QFETCH(QString, unit);
    LogCapture log;

    QTEST(toDebugText(m_manager.getValue(value, unitType, unit)), "result");
    QTEST(takeMessageTexts(log), "messages");
}

static const TestClass<UnitManagerConversionTest> testClass;

#include "UnitManagerConversionTest.moc"
