#include "UnitTextManagement/UnitTextHandler.h"

#include <QtTest/QTest>

#include <type_traits>

#include "EmptyText.h"
#include "ExactText.h"
#include "LogCapture.h"
#include "MessageText.h"
#include "Operation.h"
#include "RecordingNode.h"
#include "Row.h"
#include "TestProgram.h"
#include "TextDocument.h"
#include "UnitTypes.h"

using namespace TextDocument;

namespace {

static_assert(std::has_virtual_destructor_v<UnitTextHandler>);
static_assert(std::is_copy_constructible_v<UnitTextHandler> && std::is_copy_assignable_v<UnitTextHandler>);
static_assert(std::is_convertible_v<const UnitTextHandler&, bool>);
static_assert(std::is_convertible_v<QString, UnitTextHandler>);

using Handler = UnitTextHandler;
using Node = QSharedPointer<ConfigurationAndProcessDataBase>;
static_assert(hasOperation<Handler, bool(const QString&)>(&Handler::initByJsonString));
static_assert(hasOperation<Handler, bool(const QString&)>(&Handler::initByJsonFile));
static_assert(hasOperation<Handler, QString(const QString&, const QString&, const QString&) const>(
    &Handler::getUnitText));
static_assert(
    hasOperation<Handler, QString(const Node&, const QString&, const QString&) const>(&Handler::getUnitText));
static_assert(hasOperation<Handler, QString(const QString&, const Node&, const QString&, const QString&)
                                        const>(&Handler::getUnitText));
static_assert(hasOperation<Handler, QVariant(const QString&) const>(&Handler::getUnitTextJsonMap));
static_assert(hasOperation<Handler, bool(const QString&) const>(&Handler::isFixedUnitType));
static_assert(hasOperation<Handler, void()>(&Handler::reset));
static_assert(hasOperation<Handler, bool() const>(&Handler::isValid));
static_assert(hasOperation<Handler, bool() const>(&Handler::operator bool));

QString textWarning(const QString& text)
{
    return warningText(
        "UnitTextManagement/UnitTextHandler", anyLine,
        "QString UnitTextHandler::getUnitText(const QString&, const QString&, const QString&) const", text);
}

} // namespace

/// Look-ups of labels; for the loading see UnitTextHandlerLoadingTest.
class UnitTextHandlerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsEmpty();
    void findsText_data();
    void findsText();
    void findsLanguage_data();
    void findsLanguage();
    void emptyTextSilently_data();
    void emptyTextSilently();
    void unknownNamesWarn_data();
    void unknownNamesWarn();
    void emptyUnitNameIsAName();
    void textOfNode_data();
    void textOfNode();
    void textOfNullNodeIsEmpty();
    void fixedUnitTypes_data();
    void fixedUnitTypes();
    void resetForgetsEverything();
    void copiesAreIndependent();
};

void UnitTextHandlerTest::startsEmpty()
{
    LogCapture log;
    const UnitTextHandler handler;
    const bool usable = handler;
    QVERIFY(!usable);
    QVERIFY(!handler.isValid());
    QCOMPARE(log.takeTexts(), QStringList());
}

void UnitTextHandlerTest::findsText_data()
{
    QTest::addColumn<QString>("unitType");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QString>("expected");

    row("unit of a type", pressure, "HectoPascal", "hPa");
    row("empty unit is the base unit", pressure, "", "bar");
    row("null unit is the base unit", pressure, QString(), "bar");
    row("fixed unit", pressure + "/HectoPascal", "", "hPa");
    row("fixed unit with the same unit", pressure + "/HectoPascal", "HectoPascal", "hPa");
    row("fixed unit with another unit", pressure + "/HectoPascal", "Bar", "hPa");
    row("fixed unit with an unknown unit", pressure + "/HectoPascal", "Nope", "hPa");
    row("fixed unit without name is the base unit", pressure + "/", "HectoPascal", "bar");
    row("unit of a type without base unit", prefix + "Headless", "Only", "only");
    row("fixed unit of the type without unit", prefix + "NoUnit/NoUnit", "", "none");
    row("fixed unit without name of the type without unit", prefix + "NoUnit/", "", "none");
}

void UnitTextHandlerTest::findsText()
{
    QFETCH(QString, unitType);
    QFETCH(QString, unit);
    const UnitTextHandler handler = load();
    LogCapture log;
    QTEST(handler.getUnitText(unitType, "en", unit), "expected");
    QCOMPARE(log.takeTexts(), QStringList());
}

void UnitTextHandlerTest::findsLanguage_data()
{
    QTest::addColumn<QString>("unitType");
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("expected");

    row("language", pressure, "de", "Bar");
    row("language of a country", pressure, "fr_CH", "bar suisse");
    row("country falls back to its language", pressure, "de_AT", "Bar");
    row("missing language falls back", pressure, "fr", "bar");
    row("empty language falls back", pressure, "", "bar");
    row("first language without the fallback language", prefix + "Time", "de", "segundos");
    row("one text for every language", pressure + "/HectoPascal", "xx", "hPa");
}

void UnitTextHandlerTest::findsLanguage()
{
    QFETCH(QString, unitType);
    QFETCH(QString, language);
    QTEST(load().getUnitText(unitType, language, QString()), "expected");
}

void UnitTextHandlerTest::emptyTextSilently_data()
{
    QTest::addColumn<QString>("unitType");
    QTest::addColumn<QString>("unit");

    row("type without unit", prefix + "NoUnit", "");
    row("type without unit, known unit", prefix + "NoUnit", "NoUnit");
    row("type without unit, unknown unit", prefix + "NoUnit", "Nope");
    row("no base unit", prefix + "Headless", "");
    row("base unit without label", prefix + "Tailless", "");
    row("fixed unit without name, base unit without label", prefix + "Tailless/", "Other");
}

void UnitTextHandlerTest::emptyTextSilently()
{
    QFETCH(QString, unitType);
    QFETCH(QString, unit);
    const UnitTextHandler handler = load();
    LogCapture log;
    QVERIFY(isEmptyText(handler.getUnitText(unitType, "en", unit)));
    QCOMPARE(log.takeTexts(), QStringList());
}

void UnitTextHandlerTest::unknownNamesWarn_data()
{
    QTest::addColumn<QString>("unitType");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QString>("text");

    const auto typeRow = [](const char* name, const QString& unitType, const QString& unit) {
        row(name, unitType, unit, unknownType(unitType));
    };
    const auto unitRow = [](const char* name, const QString& unitType, const QString& unit) {
        row(name, unitType, unit, unknownUnit(unit, unitType));
    };
    typeRow("unknown type", prefix + "Nope", "Bar");
    typeRow("unknown type, empty unit", prefix + "Nope", "");
    typeRow("fixed unit of an unknown type is named whole", prefix + "Nope/Bar", "Bar");
    typeRow("type without labels", prefix + "Unlabelled", "Base");
    typeRow("plain key", "Pressure", "Bar");
    typeRow("other spelling", prefix + "pressure", "Bar");
    typeRow("one slash too many", pressure + "/Bar/", "Bar");
    typeRow("no unit without prefix", "NoUnit", "");
    typeRow("empty type", "", "");
    unitRow("unknown unit", pressure, "Nope");
    unitRow("unit in another spelling", pressure, "bar");
    unitRow("unit without label", pressure, "Bare");
    unitRow("fixed unit as unit", pressure, pressure + "/Bar");
    // The message contains the given name, not the name that was looked up.
    unitRow("unknown fixed unit names the unit given", pressure + "/Nope", "Bar");
    unitRow("unknown fixed unit, empty unit given", pressure + "/Nope", "");
    unitRow("unknown fixed unit of the type without unit", prefix + "NoUnit/Nope", "NoUnit");
}

void UnitTextHandlerTest::unknownNamesWarn()
{
    QFETCH(QString, unitType);
    QFETCH(QString, unit);
    QFETCH(QString, text);
    const UnitTextHandler handler = load();
    LogCapture log;
    QVERIFY(isEmptyText(handler.getUnitText(unitType, "en", unit)));
    QCOMPARE(messageTexts(log.take(), LineNumbers::Any), QStringList(textWarning(text)));
}

void UnitTextHandlerTest::emptyUnitNameIsAName()
{
    const UnitTextHandler handler(R"({"A": {"": {"@displayPosition": 1, "UnitLabel": "nameless"},
                                             "B": {"@displayPosition": 0, "UnitLabel": "base"}}})");
    QCOMPARE(handler.getUnitText(prefix + "A", "en", QString()), QStringLiteral("nameless"));
}

void UnitTextHandlerTest::textOfNode_data()
{
    QTest::addColumn<QString>("json");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QStringList>("messages");

    const QStringList none;
    const QString ofPressure =
        withPlatformPrefix(R"({"@value": 1, "@unitType": "UnitManager/UnitType/Pressure"})");
    row("unit type", ofPressure, "HectoPascal", "hPa", none);
    row("unit type, empty unit", ofPressure, "", "bar", none);
    row("fixed unit", withPlatformPrefix(R"({"@unitType": "UnitManager/UnitType/Pressure/HectoPascal"})"),
        "Bar", "hPa", none);
    row("no unit type", R"({"@value": 1})", "Bar", "", none);
    row("unit type that is a list", withPlatformPrefix(R"({"@unitType": ["UnitManager/UnitType/Pressure"]})"),
        "Bar", "", none);
    row("type without unit", withPlatformPrefix(R"({"@unitType": "UnitManager/UnitType/NoUnit"})"), "Bar", "",
        none);
    row("unit type that is a number", R"({"@unitType": 5})", "Bar", "",
        QStringList(textWarning(unknownType("5"))));
    row("empty unit type", R"({"@unitType": ""})", "Bar", "", QStringList(textWarning(unknownType(""))));
    row("unknown unit", ofPressure, "Nope", "", QStringList(textWarning(unknownUnit("Nope", pressure))));
}

void UnitTextHandlerTest::textOfNode()
{
    QFETCH(QString, json);
    QFETCH(QString, unit);
    QFETCH(QString, expected);
    QFETCH(QStringList, messages);
    const UnitTextHandler handler = load();
    const auto calls = RecordingNode::Calls::create();
    const QSharedPointer<RecordingNode> node =
        recordingNodeFromJson(R"({"Value": )" + json + '}', QStringLiteral("node"), calls);
    LogCapture log;
    const QString text = handler.getUnitText(node->getChildMap().value("Value"), "en", unit);
    QCOMPARE(text, expected);
    QVERIFY(!text.isNull());
    QCOMPARE(*calls, QStringList({"node.getChildMap()", "node/Value.getProperty(@unitType)"}));
    QCOMPARE(messageTexts(log.take(), LineNumbers::Any), messages);

    calls->clear();
    QCOMPARE(handler.getUnitText("Value", node, "en", unit), expected);
    QCOMPARE(*calls, QStringList({"node.getChild(Value)", "node/Value.getProperty(@unitType)"}));
    QCOMPARE(messageTexts(log.take(), LineNumbers::Any), messages);
}

void UnitTextHandlerTest::textOfNullNodeIsEmpty()
{
    const UnitTextHandler handler = load();
    const BaseClassSharedPointer none;
    const BaseClassSharedPointer node =
        nodeFromJson(withPlatformPrefix(R"({"Value": null, "@unitType": "UnitManager/UnitType/Pressure"})"));
    LogCapture log;
    QVERIFY(isEmptyText(handler.getUnitText(none, "en", "Bar")));
    QVERIFY(isEmptyText(handler.getUnitText("Value", none, "en", "Bar")));
    QVERIFY(isEmptyText(handler.getUnitText("Value", node, "en", "Bar")));
    QVERIFY(isEmptyText(handler.getUnitText("Missing", node, "en", "Bar")));
    QCOMPARE(log.takeTexts(), QStringList());
}

void UnitTextHandlerTest::fixedUnitTypes_data()
{
    QTest::addColumn<QString>("unitType");
    QTest::addColumn<bool>("isFixed");

    row("unit type", pressure, false);
    row("fixed unit", pressure + "/Bar", true);
    row("one additional part", pressure + "/Bar/x", false);
    row("prefix", prefix, false);
    row("prefix and slash", prefix + "/", true);
    row("only slashes count", "x/y/z/w", true);
    row("slash at the end", "a/b/c/", true);
    row("three slashes", "///", true);
    row("two slashes", "//", false);
    row("four slashes", "////", false);
    row("backslashes", R"(a\b\c\d)", false);
    row("empty text", "", false);
}

void UnitTextHandlerTest::fixedUnitTypes()
{
    QFETCH(QString, unitType);
    LogCapture log;
    QTEST(UnitTextHandler().isFixedUnitType(unitType), "isFixed");
    QCOMPARE(log.takeTexts(), QStringList());
}

void UnitTextHandlerTest::resetForgetsEverything()
{
    UnitTextHandler handler = load();
    handler.reset();
    QVERIFY(!handler.isValid());
    LogCapture log;
    QVERIFY(isEmptyText(handler.getUnitText(pressure, "en", QString())));
    QCOMPARE(messageTexts(log.take(), LineNumbers::Any), QStringList(textWarning(unknownType(pressure))));
}

void UnitTextHandlerTest::copiesAreIndependent()
{
    UnitTextHandler original = load();
    const UnitTextHandler copy = original;
    original.reset();
    QVERIFY(copy.isValid());
    QCOMPARE(copy.getUnitText(pressure, "en", "HectoPascal"), QStringLiteral("hPa"));
}

static const TestClass<UnitTextHandlerTest> testClass;
#include "UnitTextHandlerTest.moc"
