#include "UnitConversion/UnitConversionUnitTypeHandler.h"

#include <QtTest/QTest>

#include <limits>

#include "ConfigurationAndProcessDataTools.h"
#include "ExactText.h"
#include "LogCapture.h"
#include "MessageText.h"
#include "RecordingNode.h"
#include "Row.h"
#include "TestProgram.h"

namespace {

using Handler = UnitConversionUnitTypeHandler;

enum class Direction
{
    ToBase,
    FromBase
};

Handler pressureHandler()
{
    return {nodeFromJson(R"({
        "Bar": {"@displayPosition": 0, "Polynomial": [[0], [1]], "InversePolynomial": [[0], [1]]},
        "HectoPascal": {"Polynomial": [[0], [1000]], "InversePolynomial": [[0], [0.001]]},
        "Offset": {"Polynomial": [[5], [2]]},
        "Step": {"ArbitraryTable": {}, "Table": [[0, 0], [10, 100]]}
    })"),
            QStringLiteral("Pressure")};
}

bool convert(const Handler& handler, Direction direction, QVariant& value, const QString& unit)
{
    return direction == Direction::ToBase ? handler.toBaseUnit(value, unit)
                                          : handler.fromBaseUnit(value, unit);
}

QString warning(Direction direction, int toBaseLine, int fromBaseLine, const QString& text)
{
    const bool toBase = direction == Direction::ToBase;
    return warningText(
        "UnitConversion/UnitConversionUnitTypeHandler", toBase ? toBaseLine : fromBaseLine,
        QStringLiteral("bool UnitConversionUnitTypeHandler::%1(QVariant&, const QString&) const")
            .arg(toBase ? "toBaseUnit" : "fromBaseUnit"),
        text);
}

QString invalidType(Direction direction, const QString& typeName)
{
    return warning(direction, 114, 162, QStringLiteral("Invalid type given for conversion ") + typeName);
}

QString unknownUnit(Direction direction, const QString& unit)
{
    return warning(direction, 132, 180,
                   QStringLiteral(R"(Unknown unit "%1" given for unitType "Pressure")").arg(unit));
}

const QVariant marker = ConfigurationAndProcessDataTools::getNoInputValueIndicator();

} // namespace

Q_DECLARE_METATYPE(Direction)

/// Conversions of the values of one unit type; each scenario is tested in both directions.
class UnitConversionUnitTypeHandlerConversionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void convertsNumbers_data();
    void convertsNumbers();
    void leavesValueAndSucceeds_data();
    void leavesValueAndSucceeds();
    void otherTypesOfAKnownUnitFail_data();
    void otherTypesOfAKnownUnitFail();
    void unknownUnitFails_data();
    void unknownUnitFails();
    void unitWithEmptyName();
    void messagesNameTheUnitTypeGiven();
    void defaultHandlerKnowsNoUnit();
};

void UnitConversionUnitTypeHandlerConversionTest::convertsNumbers_data()
{
    using Limits = std::numeric_limits<double>;
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<double>("toBase");
    QTest::addColumn<double>("fromBase");

    row("double", QVariant(2.5), "HectoPascal", 2.5 * 0.001, 2500.0);
    row("int", QVariant(3), "HectoPascal", 3 * 0.001, 3000.0);
    row("unsigned int", QVariant(4000000000U), "HectoPascal", 4000000.0, 4e12);
    row("long long", QVariant(-5LL), "HectoPascal", -5 * 0.001, -5000.0);
    row("unsigned long long", QVariant(5ULL), "Offset", 0.0, 15.0);
    row("short", QVariant::fromValue<short>(-2), "Bar", -2.0, -2.0);
    row("float", QVariant(0.5F), "Offset", 0.0, 6.0);
    row("negative", QVariant(-2.5), "Offset", 0.0, 0.0);
    row("int of the base unit", QVariant(7), "Bar", 7.0, 7.0);
    row("int of a table unit", QVariant(5), "Step", 5.0, 5.0);
    row("infinity", QVariant(Limits::infinity()), "Step", Limits::infinity(), Limits::infinity());
    row("largest number", QVariant(Limits::max()), "Bar", Limits::max(), Limits::max());
    row("smallest number", QVariant(Limits::denorm_min()), "Bar", Limits::denorm_min(), Limits::denorm_min());
}

void UnitConversionUnitTypeHandlerConversionTest::convertsNumbers()
{
    QFETCH(QVariant, value);
    QFETCH(QString, unit);
    QFETCH(double, toBase);
    QFETCH(double, fromBase);
    LogCapture log;
    const Handler handler = pressureHandler();
    QVariant base = value;
    QVERIFY(handler.toBaseUnit(base, unit));
    QCOMPARE(exactText(base), exactText(QVariant(toBase)));
    QVariant converted = value;
    QVERIFY(handler.fromBaseUnit(converted, unit));
    QCOMPARE(exactText(converted), exactText(QVariant(fromBase)));
    QCOMPARE(log.takeTexts(), QStringList());
}

void UnitConversionUnitTypeHandlerConversionTest::leavesValueAndSucceeds_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("unit");

    row("number without unit", QVariant(3), "NoUnit");
    row("text without unit", QVariant("abc"), "NoUnit");
    row("invalid variant without unit", QVariant(), "NoUnit");
    row("marker without unit", marker, "NoUnit");
    row("number, empty unit", QVariant(3), "");
    row("number, null unit", QVariant(3), QString());
    row("text, empty unit", QVariant("abc"), "");
    row("invalid variant, empty unit", QVariant(), "");
    row("marker, empty unit", marker, "");
    row("marker of a known unit", marker, "HectoPascal");
    row("marker of a table unit", marker, "Step");
    row("marker as float", QVariant(marker.toFloat()), "HectoPascal");
}

void UnitConversionUnitTypeHandlerConversionTest::leavesValueAndSucceeds()
{
    QFETCH(QVariant, value);
    QFETCH(QString, unit);
    for (const Direction direction : {Direction::ToBase, Direction::FromBase}) {
        LogCapture log;
        QVariant converted = value;
        QVERIFY(convert(pressureHandler(), direction, converted, unit));
        QCOMPARE(exactText(converted), exactText(value));
        QCOMPARE(log.takeTexts(), QStringList());
    }
}

void UnitConversionUnitTypeHandlerConversionTest::otherTypesOfAKnownUnitFail_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("typeName");

    row("text", QVariant("abc"), "QString");
    row("number in a text", QVariant("3"), "QString");
    row("boolean", QVariant(true), "bool");
    row("list", QVariant(QVariantList{3}), "QVariantList");
    row("map", QVariant(QVariantMap{{"a", 3}}), "QVariantMap");
    row("invalid variant has no type name", QVariant(), "");
}

void UnitConversionUnitTypeHandlerConversionTest::otherTypesOfAKnownUnitFail()
{
    QFETCH(QVariant, value);
    QFETCH(QString, typeName);
    for (const Direction direction : {Direction::ToBase, Direction::FromBase}) {
        for (const char* unit : {"HectoPascal", "Step"}) {
            LogCapture log;
            QVariant converted = value;
            QVERIFY(!convert(pressureHandler(), direction, converted, unit));
            QCOMPARE(exactText(converted), exactText(value));
            QCOMPARE(messageTexts(log.take()),
                     QStringList({invalidType(direction, typeName), unknownUnit(direction, unit)}));
        }
    }
}

void UnitConversionUnitTypeHandlerConversionTest::unknownUnitFails_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("unit");

    row("number", QVariant(3), "Nope");
    row("text", QVariant("abc"), "Nope");
    row("invalid variant", QVariant(), "Nope");
    row("marker", marker, "Nope");
    row("unit in another spelling", QVariant(3), "hectopascal");
    row("no unit in another spelling", QVariant(3), "nounit");
    row("blank", QVariant(3), " ");
    row("fixed unit", QVariant(3), "Pressure/Bar");
}

void UnitConversionUnitTypeHandlerConversionTest::unknownUnitFails()
{
    QFETCH(QVariant, value);
    QFETCH(QString, unit);
    for (const Direction direction : {Direction::ToBase, Direction::FromBase}) {
        LogCapture log;
        QVariant converted = value;
        QVERIFY(!convert(pressureHandler(), direction, converted, unit));
        QCOMPARE(exactText(converted), exactText(value));
        QCOMPARE(messageTexts(log.take()), QStringList(unknownUnit(direction, unit)));
    }
}

void UnitConversionUnitTypeHandlerConversionTest::unitWithEmptyName()
{
    const Handler handler(nodeFromJson(R"({"": {"Polynomial": [[5], [2]], "InversePolynomial": [[1]]}})"),
                          "Pressure");
    for (const Direction direction : {Direction::ToBase, Direction::FromBase}) {
        LogCapture log;
        QVariant number(3);
        QVERIFY(convert(handler, direction, number, QString()));
        QCOMPARE(exactText(number), exactText(QVariant(direction == Direction::ToBase ? 1.0 : 11.0)));
        QVariant untouched = marker;
        QVERIFY(convert(handler, direction, untouched, QString()));
        QCOMPARE(exactText(untouched), exactText(marker));
        QCOMPARE(log.takeTexts(), QStringList());

        QVariant text("abc");
        QVERIFY(convert(handler, direction, text, QString()));
        QCOMPARE(exactText(text), exactText(QVariant("abc")));
        QCOMPARE(messageTexts(log.take()), QStringList(invalidType(direction, "QString")));
    }
}

void UnitConversionUnitTypeHandlerConversionTest::messagesNameTheUnitTypeGiven()
{
    LogCapture log;
    const Handler handler(nodeFromJson("{}"), QStringLiteral("My \"type\""));
    QVariant value(3);
    QVERIFY(!handler.toBaseUnit(value, QStringLiteral("a\nb")));
    const QString text = R"(Unknown unit "a\nb" given for unitType "My \"type\"")";
    QCOMPARE(log.takeTexts(), QStringList(text));
}

void UnitConversionUnitTypeHandlerConversionTest::defaultHandlerKnowsNoUnit()
{
    LogCapture log;
    const Handler handler;
    QVariant value(3);
    QVERIFY(handler.toBaseUnit(value, QStringLiteral("NoUnit")));
    QVERIFY(handler.fromBaseUnit(value, QString()));
    QVERIFY(!handler.fromBaseUnit(value, QStringLiteral("Bar")));
    QCOMPARE(exactText(value), exactText(QVariant(3)));
    QCOMPARE(log.takeTexts(), QStringList(R"(Unknown unit "Bar" given for unitType "")"));
}

static const TestClass<UnitConversionUnitTypeHandlerConversionTest> testClass;
#include "UnitConversionUnitTypeHandlerConversionTest.moc"
