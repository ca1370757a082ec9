#include "UnitConversion/DefaultUnitHandler.h"

#include <QtTest/QTest>

#include <type_traits>

#include "LogCapture.h"
#include "MessageText.h"
#include "Row.h"
#include "SourceMessages.h"
#include "TestProgram.h"
#include "TextFolder.h"
#include "UnitManagerDefinitions.h"
#include "UnitTypes.h"

namespace {

static_assert(std::has_virtual_destructor_v<DefaultUnitHandler>);
static_assert(std::is_copy_constructible_v<DefaultUnitHandler> &&
              std::is_copy_assignable_v<DefaultUnitHandler>);
static_assert(std::is_convertible_v<const DefaultUnitHandler&, bool>);

const QString sourceName = QStringLiteral("UnitConversion/DefaultUnitHandler");
const QString pressure = typeNamed("Pressure");
const QString document = QStringLiteral(R"({"Pressure": {"@type": "Selection", "@value": "HectoPascal"}})");

QString invalidDocument()
{
    return warningText(sourceName, anyLine, "bool DefaultUnitHandler::initByJsonString(const QString&)",
                       "DefaultUnit file is not valid");
}

QString noDefault(const QString& unitType)
{
    return warningText(sourceName, anyLine,
                       "QString DefaultUnitHandler::getDefaultUnit(const QString&) const",
                       QStringLiteral(R"(Cannot find default unit for unitType "%1" !)").arg(unitType));
}

} // namespace

class DefaultUnitHandlerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsEmpty();
    void documentResult_data();
    void documentResult();
    void everyLoadDropsTheOldTable_data();
    void everyLoadDropsTheOldTable();
    void readsFile_data();
    void readsFile();
    void returnsTheLastPartOfTheValue_data();
    void returnsTheLastPartOfTheValue();
    void unknownTypeWarns_data();
    void unknownTypeWarns();
    void noUnitTypeIsSilent();
    void queriesAddNoEntry();
    void resetEmpties();
    void copiesAreIndependent();
};

void DefaultUnitHandlerTest::startsEmpty()
{
    LogCapture log;
    const DefaultUnitHandler handler;
    const bool usable = handler;
    QVERIFY(!usable);
    QVERIFY(!handler.isValid());
    QCOMPARE(log.takeTexts(), QStringList());
}

void DefaultUnitHandlerTest::documentResult_data()
{
    QTest::addColumn<QString>("json");
    QTest::addColumn<bool>("result");
    QTest::addColumn<QStringList>("messages");

    const QStringList none;
    row("empty text", "", false, none);
    row("null text", QString(), false, none);
    row("text that does not parse", "{", false, QStringList(invalidDocument()));
    row("list", "[]", false, QStringList(invalidDocument()));
    row("blank", " ", false, QStringList(invalidDocument()));
    row("empty object", "{}", false, none);
    row("selection", document, true, none);
    row("null child", R"({"A": null})", false, none);
    row("text node", R"({"A": "Bar"})", false, none);
    row("tree node", R"({"A": {}})", false, none);
    row("other types",
        R"({"A": {"@type": "Text", "@value": "Bar"}, "B": {"@type": "selection", "@value": "Bar"}})", false,
        none);
    row("selection without value", R"({"A": {"@type": "Selection"}})", false, none);
    row("selection of a list", R"({"A": {"@type": "Selection", "@value": ["Bar"]}})", false, none);
    row("selection of an object", R"({"A": {"@type": "Selection", "@value": {"en": "Bar"}}})", false, none);
    row("selection of an empty text", R"({"A": {"@type": "Selection", "@value": ""}})", true, none);
    row("selection of a number", R"({"A": {"@type": "Selection", "@value": 5}})", true, none);
    row("one selection among others",
        R"({"A": null, "B": "Bar", "C": {"@type": "Selection"}, "D": {"@type": "Selection", "@value": "Bar"}})",
        true, none);
}

void DefaultUnitHandlerTest::documentResult()
{
    QFETCH(QString, json);
    QFETCH(bool, result);
    LogCapture log;
    DefaultUnitHandler handler;
    QCOMPARE(handler.initByJsonString(json), result);
    const bool usable = handler;
    QCOMPARE(usable, result);
    QCOMPARE(handler.isValid(), result);
    QTEST(messageTexts(log.take(), LineNumbers::Any), "messages");
}

void DefaultUnitHandlerTest::everyLoadDropsTheOldTable_data()
{
    QTest::addColumn<QString>("json");
    QTest::addColumn<bool>("result");

    row("empty text", "", false);
    row("text that does not parse", "{", false);
    row("document without selection", R"({"Pressure": "Bar"})", false);
    row("other document", R"({"Time": {"@type": "Selection", "@value": "Seconds"}})", true);
}

void DefaultUnitHandlerTest::everyLoadDropsTheOldTable()
{
    QFETCH(QString, json);
    QFETCH(bool, result);
    LogCapture log;
    DefaultUnitHandler handler;
    QVERIFY(handler.initByJsonString(document));
    QCOMPARE(handler.initByJsonString(json), result);
    QCOMPARE(handler.isValid(), result);
    log.take();
    QCOMPARE(handler.getDefaultUnit(pressure), QString());
    QCOMPARE(messageTexts(log.take(), LineNumbers::Any), QStringList(noDefault(pressure)));
}

void DefaultUnitHandlerTest::readsFile_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<QStringList>("messages");

    row("no file", QString(), QStringList());
    row("empty file", QStringLiteral(""), QStringList());
    row("document", document, QStringList());
    row("file that does not parse", "{", QStringList(invalidDocument()));
}

void DefaultUnitHandlerTest::readsFile()
{
    QFETCH(QString, content);
    const TextFolder folder;
    const QString path = folder.write(QStringLiteral("default-units.json"), content);
    LogCapture log;
    DefaultUnitHandler handler;
    QVERIFY(handler.initByJsonString(R"({"Old": {"@type": "Selection", "@value": "Unit"}})"));
    QCOMPARE(handler.initByJsonFile(path), content == document);
    QCOMPARE(handler.isValid(), content == document);
    QTEST(messageTexts(takeMessagesOf(sourceName, log), LineNumbers::Any), "messages");
}

void DefaultUnitHandlerTest::returnsTheLastPartOfTheValue_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("expected");

    row("unit name", R"("Bar")", "Bar");
    row("fixed unit", '"' + UnitManagerDefinitions::getUnitUrlPressureBar() + '"', "Bar");
    row("two parts", R"("a/b")", "b");
    row("slash at the end", R"("a/b/")", "");
    row("slash at the start", R"("/b")", "b");
    row("two slashes", R"("a//b")", "b");
    row("slash alone", R"("/")", "");
    row("empty text", R"("")", "");
    row("backslash", R"("a\\b")", "a\\b");
    row("number", "5", "5");
    row("boolean", "true", "true");
}

void DefaultUnitHandlerTest::returnsTheLastPartOfTheValue()
{
    QFETCH(QString, value);
    LogCapture log;
    DefaultUnitHandler handler;
    QVERIFY(handler.initByJsonString(R"({"Pressure": {"@type": "Selection", "@value": )" + value + "}}"));
    QTEST(handler.getDefaultUnit(pressure), "expected");
    // The stored value is unchanged: a second query gives the same result.
    QTEST(handler.getDefaultUnit(pressure), "expected");
    QCOMPARE(log.takeTexts(), QStringList());
}

void DefaultUnitHandlerTest::unknownTypeWarns_data()
{
    QTest::addColumn<QString>("unitType");

    row("unknown type", typeNamed("Nope"));
    row("plain key", "Pressure");
    row("other spelling", typeNamed("pressure"));
    row("fixed unit", pressure + "/Bar");
    row("no unit without prefix", "NoUnit");
    row("no unit with a slash at the end", typeNamed("NoUnit/"));
    row("empty text", "");
}

void DefaultUnitHandlerTest::unknownTypeWarns()
{
    QFETCH(QString, unitType);
    LogCapture log;
    DefaultUnitHandler handler;
    QVERIFY(handler.initByJsonString(document));
    QCOMPARE(handler.getDefaultUnit(unitType), QString());
    QCOMPARE(messageTexts(log.take(), LineNumbers::Any), QStringList(noDefault(unitType)));
}

void DefaultUnitHandlerTest::noUnitTypeIsSilent()
{
    LogCapture log;
    DefaultUnitHandler handler;
    QCOMPARE(handler.getDefaultUnit(UnitManagerDefinitions::getUnitTypeUrlNoUnit()), QString());
    QVERIFY(handler.initByJsonString(document));
    QCOMPARE(handler.getDefaultUnit(UnitManagerDefinitions::getUnitTypeUrlNoUnit()), QString());
    QVERIFY(handler.initByJsonString(R"({"NoUnit": {"@type": "Selection", "@value": "a/b"}})"));
    QCOMPARE(handler.getDefaultUnit(typeNamed("NoUnit")), QStringLiteral("b"));
    QCOMPARE(log.takeTexts(), QStringList());
}

void DefaultUnitHandlerTest::queriesAddNoEntry()
{
    LogCapture log;
    const DefaultUnitHandler handler;
    QCOMPARE(handler.getDefaultUnit(pressure), QString());
    QVERIFY(!handler.isValid());
    QCOMPARE(handler.getDefaultUnit(pressure), QString());
    QCOMPARE(messageTexts(log.take(), LineNumbers::Any),
             QStringList({noDefault(pressure), noDefault(pressure)}));
}

void DefaultUnitHandlerTest::resetEmpties()
{
    LogCapture log;
    DefaultUnitHandler handler;
    QVERIFY(handler.initByJsonString(document));
    handler.reset();
    QVERIFY(!handler.isValid());
    QCOMPARE(handler.getDefaultUnit(pressure), QString());
    QCOMPARE(messageTexts(log.take(), LineNumbers::Any), QStringList(noDefault(pressure)));
}

void DefaultUnitHandlerTest::copiesAreIndependent()
{
    DefaultUnitHandler original;
    QVERIFY(original.initByJsonString(document));
    const DefaultUnitHandler copy = original;
    original.reset();
    QCOMPARE(copy.getDefaultUnit(pressure), QStringLiteral("HectoPascal"));
}

static const TestClass<DefaultUnitHandlerTest> testClass;
#include "DefaultUnitHandlerTest.moc"
