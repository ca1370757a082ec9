#include "UnitManagerCore.h"

#include <QtTest/QTest>

#include <cmath>

#include "DebugText.h"
#include "ExpectedMessages.h"
#include "LogCapture.h"
#include "RecordingValueNode.h"
#include "Row.h"
#include "TestDocuments.h"
#include "TestProgram.h"
#include "UnitTypes.h"

class UnitManagerCoreConversionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void toBaseUnit_data();
    void toBaseUnit();
    void fromBaseUnit_data();
    void fromBaseUnit();
    void emptyCoreConvertsFixedUnitsOnly();
    void nodeToBaseUnit_data();
    void nodeToBaseUnit();
    void nodeFromBaseUnit_data();
    void nodeFromBaseUnit();
    void defaultUnitIsQueriedAtEachUse();
    void documentsMayGiveUnitLessTypes();

private:
    UnitManagerCore m_core;
};

namespace {

namespace T = TestUnitType;

using Expected::Conversion;
using Expected::notConverted;
using TestValue::marker;

void addConversionColumns()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("unitType");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<bool>("succeeds");
    QTest::addColumn<QString>("result");
    QTest::addColumn<QStringList>("messages");
}

/// Rows for both directions: identical numbers in both units, or no conversion.
void addRowsOfBothDirections(Conversion conversion)
{
    const QStringList none;
    const QString fixedBar = T::pressure + QStringLiteral("/Bar");

    row("whole number becomes a double", QVariant(3), T::pressure, "Bar", true, "double 3", none);
    row("no rounding", QVariant(1234.5678), T::pressure, "Bar", true, toDebugText(1234.5678), none);
    row("table unit", QVariant(1.5), T::ratio, "Counts", true, "double 1.5", none);
    row("neither unit type nor unit", QVariant("abc"), "", "", true, "QString abc", none);
    row("fixed unit", QVariant(1.5), fixedBar, "", true, "double 1.5", none);
    row("fixed unit beats the unit", QVariant(1.5), fixedBar, "HectoPascal", true, "double 1.5", none);
    row("fixed unit takes any value", QVariant("abc"), fixedBar, "", true, "QString abc", none);
    row("unknown fixed unit", QVariant(3), "x/y/z/w", "Bar", true, "int 3", none);
    row("no unit", QVariant("abc"), T::pressure, "NoUnit", true, "QString abc", none);
    row("no default unit", QVariant(7), T::ratio, "", true, "int 7",
        QStringList{Expected::noDefaultUnit(T::ratio)});
    row("text without default unit", QVariant("abc"), T::ratio, "", true, "QString abc",
        QStringList{Expected::noDefaultUnit(T::ratio)});
    row("unknown unit", QVariant(3), T::pressure, "Nope", false, "int 3",
        QStringList{Expected::unknownUnit(conversion, "Nope", "Pressure")});
    row("unit in other case", QVariant(3), T::pressure, "bar", false, "int 3",
        QStringList{Expected::unknownUnit(conversion, "bar", "Pressure")});
    row("text with an unknown unit", QVariant("abc"), T::pressure, "Nope", false, "QString abc",
        QStringList{Expected::unknownUnit(conversion, "Nope", "Pressure")});
    row("text", QVariant("1.5"), T::pressure, "Bar", false, "QString 1.5",
        notConverted(conversion, "QString", "Bar", "Pressure"));
    row("text in the default unit", QVariant("1.5"), T::pressure, "", false, "QString 1.5",
        notConverted(conversion, "QString", "HectoPascal", "Pressure"));
    row("truth value", QVariant(true), T::pressure, "Bar", false, "bool true",
        notConverted(conversion, "bool", "Bar", "Pressure"));
    row("invalid value", QVariant(), T::pressure, "Bar", false, "invalid",
        notConverted(conversion, "", "Bar", "Pressure"));
    row("marker", QVariant(marker), T::pressure, "HectoPascal", true, TestValue::markerText, none);
    row("single-precision marker", QVariant(TestValue::floatMarker), T::pressure, "HectoPascal", true,
        TestValue::floatMarkerText, none);
    row("marker in the default unit", QVariant(marker), T::pressure, "", true, TestValue::markerText, none);
    row("marker with an unknown unit", QVariant(marker), T::pressure, "Nope", false, TestValue::markerText,
        QStringList{Expected::unknownUnit(conversion, "Nope", "Pressure")});
    row("unknown unit type", QVariant(3), T::unknown, "Bar", false, "int 3",
        QStringList{Expected::noConversion(conversion, T::unknown)});
    row("unknown unit type without unit", QVariant(3), T::unknown, "", false, "int 3",
        QStringList{Expected::noDefaultUnit(T::unknown), Expected::noConversion(conversion, T::unknown)});
    row("unit type without prefix", QVariant(3), "Pressure", "Bar", false, "int 3",
        QStringList{Expected::noConversion(conversion, "Pressure")});
    row("four slashes", QVariant(3), fixedBar + "/x", "Bar", false, "int 3",
        QStringList{Expected::noConversion(conversion, fixedBar + "/x")});
    row("unit-less type that is not in the document", QVariant(3), T::noUnit, "", false, "int 3",
        Expected::noDefaultUnitOfUnitLessType() + QStringList{Expected::noConversion(conversion, T::noUnit)});
}

} // namespace

void UnitManagerCoreConversionTest::initTestCase()
{
    QVERIFY(m_core.updateUnitConversionByJsonString(TestDocuments::units()));
    QVERIFY(m_core.updateDefaultUnitsByJsonString(TestDocuments::defaultUnits()));
}

void UnitManagerCoreConversionTest::toBaseUnit_data()
{
    addConversionColumns();
    const QStringList none;
    row("unit", QVariant(1500.0), T::pressure, "HectoPascal", true, "double 1.5", none);
    row("empty unit is the default unit", QVariant(1500.0), T::pressure, "", true, "double 1.5", none);
    row("default unit written as a fixed unit", QVariant(-273.15), T::temperature, "", true, "double 0",
        none);
    row("whole number in the default unit", QVariant(2000U), T::pressure, "", true, "double 2", none);
    row("unit without unit type", QVariant(3), "", "Bar", false, "int 3", none);
    row("no unit without unit type", QVariant(3), "", "NoUnit", false, "int 3", none);
    addRowsOfBothDirections(Conversion::ToBase);
}

void UnitManagerCoreConversionTest::toBaseUnit()
{
    QFETCH(QVariant, value);
    QFETCH(QString, unitType);
    QFETCH(QString, unit);
    LogCapture log;

    QTEST(m_core.toBaseUnit(value, unitType, unit), "succeeds");
    QTEST(toDebugText(value), "result");
    QTEST(takeMessageTexts(log), "messages");
}

void UnitManagerCoreConversionTest::fromBaseUnit_data()
{
    addConversionColumns();
    const QStringList none;
    row("unit", QVariant(1.5), T::pressure, "HectoPascal", true, "double 1500", none);
    row("empty unit is the default unit", QVariant(1.5), T::pressure, "", true, "double 1500", none);
    row("default unit written as a fixed unit", QVariant(273.15), T::temperature, "", true, "double 0", none);
    row("unit without unit type", QVariant(3), "", "Bar", true, "int 3", none);
    addRowsOfBothDirections(Conversion::FromBase);
}

void UnitManagerCoreConversionTest::fromBaseUnit()
{
    QFETCH(QVariant, value);
    QFETCH(QString, unitType);
    QFETCH(QString, unit);
    const QString given = toDebugText(value);
    LogCapture log;

    QTEST(toDebugText(m_core.fromBaseUnit(value, unitType, unit)), "result");
    QCOMPARE(toDebugText(value), given);
    QTEST(takeMessageTexts(log), "messages");
}

void UnitManagerCoreConversionTest::emptyCoreConvertsFixedUnitsOnly()
{
    const UnitManagerCore core;
    QVariant value(3);
    LogCapture log;

    QVERIFY(core.toBaseUnit(value, T::pressure + "/Bar", QString()));
    QVERIFY(core.toBaseUnit(value, QString(), QString()));
    QVERIFY(!core.toBaseUnit(value, QString(), QStringLiteral("Bar")));
    QCOMPARE(toDebugText(core.fromBaseUnit(value, T::pressure + "/Bar", QString())), QStringLiteral("int 3"));
    QCOMPARE(takeMessageTexts(log), QStringList());

    QVERIFY(!core.toBaseUnit(value, T::pressure, QStringLiteral("Bar")));
    QCOMPARE(toDebugText(value), QStringLiteral("int 3"));
    QCOMPARE(takeMessageTexts(log), QStringList{Expected::noConversion(Conversion::ToBase, T::pressure)});
}

void UnitManagerCoreConversionTest::nodeToBaseUnit_data()
{
    QTest::addColumn<QVariant>("unitType");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<bool>("succeeds");
    QTest::addColumn<QString>("result");
    QTest::addColumn<QStringList>("messages");

    const QStringList none;
    row("unit", QVariant(T::pressure), "HectoPascal", true, "double 2", none);
    row("default unit", QVariant(T::pressure), "", true, "double 2", none);
    row("fixed unit", QVariant(T::pressure + "/Bar"), "HectoPascal", true, "int 2000", none);
    row("no unit type, no unit", QVariant(), "", true, "int 2000", none);
    row("no unit type, a unit", QVariant(), "Bar", false, "int 2000", none);
    row("unit type that is not a text, no unit", QVariant(QVariantList{1}), "", true, "int 2000", none);
    row("unit type that is not a text, a unit", QVariant(QVariantList{1}), "Bar", false, "int 2000", none);
    row("unknown unit", QVariant(T::pressure), "Nope", false, "int 2000",
        QStringList{Expected::unknownUnit(Conversion::ToBase, "Nope", "Pressure")});
    row("unknown unit type", QVariant(T::unknown), "Bar", false, "int 2000",
        QStringList{Expected::noConversion(Conversion::ToBase, T::unknown)});
}

void UnitManagerCoreConversionTest::nodeToBaseUnit()
{
    QFETCH(QVariant, unitType);
    QFETCH(QString, unit);
    const auto node = RecordingValueNode::number(1.5, unitType);
    QVariant value(2000);
    LogCapture log;

    QTEST(m_core.toBaseUnit(node, value, unit), "succeeds");
    QTEST(toDebugText(value), "result");
    QTEST(takeMessageTexts(log), "messages");
    QCOMPARE(toDebugText(node->value()), QStringLiteral("double 1.5"));
}

void UnitManagerCoreConversionTest::nodeFromBaseUnit_data()
{
    QTest::addColumn<QVariant>("unitType");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QString>("result");
    QTest::addColumn<QStringList>("messages");

    const QStringList none;
    row("unit", QVariant(T::pressure), "HectoPascal", "double 2000", none);
    row("default unit", QVariant(T::pressure), "", "double 2000", none);
    row("fixed unit", QVariant(T::pressure + "/Bar"), "HectoPascal", "int 2", none);
    row("no unit type", QVariant(), "Bar", "int 2", none);
    row("unit type that is not a text", QVariant(QVariantList{1}), "Bar", "int 2", none);
    row("unknown unit", QVariant(T::pressure), "Nope", "int 2",
        QStringList{Expected::unknownUnit(Conversion::FromBase, "Nope", "Pressure")});
    row("unknown unit type", QVariant(T::unknown), "Bar", "int 2",
        QStringList{Expected::noConversion(Conversion::FromBase, T::unknown)});
}

void UnitManagerCoreConversionTest::nodeFromBaseUnit()
{
    QFETCH(QVariant, unitType);
    QFETCH(QString, unit);
    const auto node = RecordingValueNode::number(1.5, unitType);
    LogCapture log;

    QTEST(toDebugText(m_core.fromBaseUnit(node, QVariant(2), unit)), "result");
    QTEST(takeMessageTexts(log), "messages");
}

void UnitManagerCoreConversionTest::defaultUnitIsQueriedAtEachUse()
{
    UnitManagerCore core = m_core;
    QVERIFY(core.updateDefaultUnitsByJsonString(
        QStringLiteral(R"({ "Pressure": { "@type": "Selection", "@value": "Bar" } })")));
    QCOMPARE(toDebugText(core.fromBaseUnit(1.5, T::pressure, QString())), QStringLiteral("double 1.5"));
    QCOMPARE(toDebugText(m_core.fromBaseUnit(1.5, T::pressure, QString())), QStringLiteral("double 1500"));

    QVERIFY(core.updateDefaultUnitsByJsonString(QString()));
    LogCapture log;
    QCOMPARE(toDebugText(core.fromBaseUnit(7, T::pressure, QString())), QStringLiteral("int 7"));
    QCOMPARE(toDebugText(core.fromBaseUnit(7, T::pressure, QString())), QStringLiteral("int 7"));
    QCOMPARE(takeMessageTexts(log),
             (QStringList{Expected::noDefaultUnit(T::pressure), Expected::noDefaultUnit(T::pressure)}));
}

void UnitManagerCoreConversionTest::documentsMayGiveUnitLessTypes()
{
    UnitManagerCore core;
    LogCapture log;
    QVERIFY(!core.updateUnitConversionByJsonString(QStringLiteral(R"({ "NoUnit": { "NoUnit": {} } })")));
    QCOMPARE(
        log.takeTexts(),
        (QStringList{QStringLiteral("Cannot convert displayPosition to int: QVariant(Invalid) !"),
                     withPlatformPrefix("No Base unit label given for \"UnitManager/UnitType/NoUnit\"")}));

    QVariant value(QStringLiteral("abc"));
    QVERIFY(core.toBaseUnit(value, T::noUnit, QString()));
    QCOMPARE(toDebugText(value), QStringLiteral("QString abc"));
    QCOMPARE(core.getBaseUnit(T::noUnit), T::noUnit + "/NoUnit");
    QCOMPARE(takeMessageTexts(log), Expected::noDefaultUnitOfUnitLessType());
}

static const TestClass<UnitManagerCoreConversionTest> testClass;

#include "UnitManagerCoreConversionTest.moc"
