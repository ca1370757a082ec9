#include <QtTest/QTest>

#include <type_traits>

#include "EmptyText.h"
#include "ExactText.h"
#include "LogCapture.h"
#include "MessageText.h"
#include "Operation.h"
#include "RecordingNode.h"
#include "TextDocument.h"
#include "UnitTextManagement/UnitTextHandler.h"

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

private slots:
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

    QTest::newRow("unit of a type") << pressure << "HectoPascal"
                                    << "hPa";
    QTest::newRow("empty unit is the base unit") << pressure << ""
                                                 << "bar";
    QTest::newRow("null unit is the base unit") << pressure << QString() << "bar";
    QTest::newRow("fixed unit") << pressure + "/HectoPascal"
                                << ""
                                << "hPa";
    QTest::newRow("fixed unit with the same unit") << pressure + "/HectoPascal"
                                                   << "HectoPascal"
                                                   << "hPa";
    QTest::newRow("fixed unit with another unit") << pressure + "/HectoPascal"
                                                  << "Bar"
                                                  << "hPa";
    QTest::newRow("fixed unit with an unknown unit") << pressure + "/HectoPascal"
                                                     << "Nope"
                                                     << "hPa";
    QTest::newRow("fixed unit without name is the base unit") << pressure + "/"
                                                              << "HectoPascal"
                                                              << "bar";
    QTest::newRow("unit of a type without base unit") << prefix + "Headless"
                                                      << "Only"
                                                      << "only";
    QTest::newRow("fixed unit of the type without unit") << prefix + "NoUnit/NoUnit"
                                                         << ""
                                                         << "none";
    QTest::newRow("fixed unit without name of the type without unit") << prefix + "NoUnit/"
                                                                      << ""
                                                                      << "none";
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

    QTest::newRow("language") << pressure << "de"
                              << "Bar";
    QTest::newRow("language of a country") << pressure << "fr_CH"
                                           << "bar suisse";
    QTest::newRow("country falls back to its language") << pressure << "de_AT"
                                                        << "Bar";
    QTest::newRow("missing language falls back") << pressure << "fr"
                                                 << "bar";
    QTest::newRow("empty language falls back") << pressure << ""
                                               << "bar";
    QTest::newRow("without the fallback language, the first") << prefix + "Time"
                                                              << "de"
                                                              << "segundos";
    QTest::newRow("one text for every language") << pressure + "/HectoPascal"
                                                 << "xx"
                                                 << "hPa";
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

    QTest::newRow("type without unit") << prefix + "NoUnit"
                                       << "";
    QTest::newRow("type without unit, known unit") << prefix + "NoUnit"
                                                   << "NoUnit";
    QTest::newRow("type without unit, unknown unit") << prefix + "NoUnit"
                                                     << "Nope";
    QTest::newRow("no base unit") << prefix + "Headless"
                                  << "";
    QTest::newRow("base unit without label") << prefix + "Tailless"
                                             << "";
    QTest::newRow("fixed unit without name, base unit without label") << prefix + "Tailless/"
                                                                      << "Other";
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
        QTest::newRow(name) << unitType << unit << unknownType(unitType);
    };
    const auto unitRow = [](const char* name, const QString& unitType, const QString& unit) {
        QTest::newRow(name) << unitType << unit << unknownUnit(unit, unitType);
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
    const QString ofPressure = R"({"@value": 1, "@unitType": "UnitManager/UnitType/Pressure"})";
    QTest::newRow("unit type") << ofPressure << "HectoPascal"
                               << "hPa" << none;
    QTest::newRow("unit type, empty unit") << ofPressure << ""
                                           << "bar" << none;
    QTest::newRow("fixed unit") << R"({"@unitType": "UnitManager/UnitType/Pressure/HectoPascal"})"
                                << "Bar"
                                << "hPa" << none;
    QTest::newRow("no unit type") << R"({"@value": 1})"
                                  << "Bar"
                                  << "" << none;
    QTest::newRow("unit type that is a list") << R"({"@unitType": ["UnitManager/UnitType/Pressure"]})"
                                              << "Bar"
                                              << "" << none;
    QTest::newRow("type without unit") << R"({"@unitType": "UnitManager/UnitType/NoUnit"})"
                                       << "Bar"
                                       << "" << none;
    QTest::newRow("unit type that is a number") << R"({"@unitType": 5})"
                                                << "Bar"
                                                << "" << QStringList(textWarning(unknownType("5")));
    QTest::newRow("empty unit type") << R"({"@unitType": ""})"
                                     << "Bar"
                                     << "" << QStringList(textWarning(unknownType("")));
    QTest::newRow("unknown unit") << ofPressure << "Nope"
                                  << "" << QStringList(textWarning(unknownUnit("Nope", pressure)));
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
        nodeFromJson(R"({"Value": null, "@unitType": "UnitManager/UnitType/Pressure"})");
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

    QTest::newRow("unit type") << pressure << false;
    QTest::newRow("fixed unit") << pressure + "/Bar" << true;
    QTest::newRow("one part more") << pressure + "/Bar/x" << false;
    QTest::newRow("prefix") << prefix << false;
    QTest::newRow("prefix and slash") << prefix + "/" << true;
    QTest::newRow("only slashes count") << "x/y/z/w" << true;
    QTest::newRow("slash at the end") << "a/b/c/" << true;
    QTest::newRow("three slashes") << "///" << true;
    QTest::newRow("two slashes") << "//" << false;
    QTest::newRow("four slashes") << "////" << false;
    QTest::newRow("backslashes") << R"(a\b\c\d)" << false;
    QTest::newRow("empty text") << "" << false;
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

QTEST_GUILESS_MAIN(UnitTextHandlerTest)
#include "UnitTextHandlerTest.moc"
