#include "UnitTextManagement/UnitTextHandler.h"

#include <QtTest/QTest>

#include <type_traits>
#include <utility>

#include "LogCapture.h"
#include "MessageText.h"
#include "Row.h"
#include "SourceMessages.h"
#include "TestProgram.h"
#include "TextFolder.h"
#include "UnitTypes.h"

namespace {

const QString sourceName = QStringLiteral("UnitTextManagement/UnitTextHandler");
const QString unitType = typeNamed("A");

QString loadingWarning(const QString& text)
{
    return warningText(sourceName, anyLine, "bool UnitTextHandler::initByJsonString(const QString&)", text);
}

QString noBaseUnit()
{
    return loadingWarning(withPlatformPrefix(R"(No Base unit label given for "UnitManager/UnitType/A")"));
}

QString noPosition(const QString& streamed)
{
    return loadingWarning(QStringLiteral("Cannot convert displayPosition to int: %1 !").arg(streamed));
}

/// A document with "A" as its only unit type.
QString documentOf(const QString& units)
{
    return QStringLiteral(R"({"A": )") + units + '}';
}

/// A document whose only unit "U" has the given display position.
QString documentAt(const QString& position)
{
    return documentOf(QStringLiteral(R"({"U": {"@displayPosition": %1, "UnitLabel": "u"}})").arg(position));
}

template <typename Handler, typename = void>
constexpr bool takesParsedDocuments = false;
template <typename Handler>
constexpr bool takesParsedDocuments<
    Handler, std::void_t<decltype(std::declval<Handler&>().initByDocument(BaseClassSharedPointer()))>> = true;

static_assert(!takesParsedDocuments<UnitTextHandler>, "the library does not export it");

} // namespace

/// Loading of labels; for the look-ups see UnitTextHandlerTest.
class UnitTextHandlerLoadingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void documentResult_data();
    void documentResult();
    void positionZeroIsTheBaseUnit_data();
    void positionZeroIsTheBaseUnit();
    void everyUnitWithoutPositionWarns();
    void everyTypeWithoutBaseUnitWarns();
    void everyLoadDropsTheOldLabels_data();
    void everyLoadDropsTheOldLabels();
    void baseUnitsOfAnEarlierDocumentAreForgotten();
    void readsFile_data();
    void readsFile();
};

void UnitTextHandlerLoadingTest::documentResult_data()
{
    QTest::addColumn<QString>("json");
    QTest::addColumn<bool>("result");
    QTest::addColumn<QStringList>("messages");

    const QStringList none;
    const QStringList noBase(noBaseUnit());
    row("empty text", "", false, none);
    row("null text", QString(), false, none);
    row("text that does not parse", "{", false, none);
    row("list", "[]", false, none);
    row("empty object", "{}", false, none);
    row("type without units", documentOf("{}"), false, noBase);
    row("type without node", documentOf("null"), false, noBase);
    row("type that is a value", documentOf("5"), false, noBase);
    row("base unit with label", documentAt("0"), true, none);
    row("base unit without label", documentOf(R"({"U": {"@displayPosition": 0}})"), false, none);
    row("other unit with label", documentAt("1"), true, noBase);
    row("null unit", documentOf(R"({"U": null})"), false, noBase);
    row("unit that is a value", documentOf(R"({"U": 5})"), false, noBase);
    row("unit of another type",
        documentOf(R"({"U": {"@type": "Number", "@displayPosition": 0, "UnitLabel": "u"}})"), false, noBase);
    row("label for each language",
        documentOf(R"({"U": {"@displayPosition": 0, "UnitLabel": {"@value": {"en": "u"}}}})"), true, none);
    row("null label", documentOf(R"({"U": {"@displayPosition": 0, "UnitLabel": null}})"), false, none);
    row("label without value", documentOf(R"({"U": {"@displayPosition": 0, "UnitLabel": {}}})"), false, none);
    row("empty label", documentOf(R"({"U": {"@displayPosition": 0, "UnitLabel": ""}})"), true, none);
    row("label in another spelling", documentOf(R"({"U": {"@displayPosition": 0, "unitLabel": "u"}})"), false,
        none);
    row("keys that the conversions skip", documentOf(R"({"Text": {"@displayPosition": 0, "UnitLabel": "t"},
                          "NoUnit": {"@displayPosition": 1, "UnitLabel": "n"}})"),
        true, none);
}

void UnitTextHandlerLoadingTest::documentResult()
{
    QFETCH(QString, json);
    LogCapture log;
    UnitTextHandler loaded;
    QTEST(loaded.initByJsonString(json), "result");
    QTEST(messageTexts(log.take(), LineNumbers::Any), "messages");
    const UnitTextHandler constructed(json);
    QTEST(messageTexts(log.take(), LineNumbers::Any), "messages");

    for (const UnitTextHandler& handler : {loaded, constructed}) {
        const bool usable = handler;
        QTEST(usable, "result");
        QTEST(handler.isValid(), "result");
    }
}

void UnitTextHandlerLoadingTest::positionZeroIsTheBaseUnit_data()
{
    QTest::addColumn<QString>("position");
    QTest::addColumn<bool>("isBase");
    QTest::addColumn<QStringList>("messages");

    const QStringList none;
    const QStringList noBase(noBaseUnit());
    row("zero", "0", true, none);
    row("one", "1", false, noBase);
    row("negative", "-1", false, noBase);
    row("rounded down to zero", "0.4", true, none);
    row("rounded up to one", "0.6", false, noBase);
    row("zero in a text", R"("0")", true, none);
    row("any text", R"("abc")", true, none);
    row("empty text", R"("")", true, none);
    row("one in a text", R"("1")", false, noBase);
    row("false", "false", true, none);
    row("true", "true", false, noBase);
    row("list", "[0]", false,
        QStringList({noPosition("QVariant(QVariantList, (QVariant(double, 0)))"), noBaseUnit()}));
    row("object", R"({"a": 0})", false,
        QStringList(
            {noPosition(R"(QVariant(QVariantMap, QMap(("a", QVariant(double, 0)))))"), noBaseUnit()}));
}

void UnitTextHandlerLoadingTest::positionZeroIsTheBaseUnit()
{
    QFETCH(QString, position);
    QFETCH(bool, isBase);
    LogCapture log;
    UnitTextHandler handler;
    QVERIFY(handler.initByJsonString(documentAt(position)));
    QTEST(messageTexts(log.take(), LineNumbers::Any), "messages");
    QCOMPARE(handler.getUnitText(unitType, "en", QString()), isBase ? QStringLiteral("u") : QString());
    QCOMPARE(handler.getUnitText(unitType, "en", "U"), QStringLiteral("u"));
    QCOMPARE(log.takeTexts(), QStringList());
}

void UnitTextHandlerLoadingTest::everyUnitWithoutPositionWarns()
{
    LogCapture log;
    UnitTextHandler handler;
    QVERIFY(handler.initByJsonString(
        documentOf(R"({"U": {"UnitLabel": "u"}, "V": {"UnitLabel": "v"}, "W": {}, "X": 1, "Y": null})")));
    const QString missing = noPosition("QVariant(Invalid)");
    QCOMPARE(messageTexts(log.take(), LineNumbers::Any),
             QStringList({missing, missing, missing, noBaseUnit()}));
}

void UnitTextHandlerLoadingTest::everyTypeWithoutBaseUnitWarns()
{
    LogCapture log;
    UnitTextHandler handler;
    QVERIFY(handler.initByJsonString(R"({"A": {}, "B": {"U": {"@displayPosition": 2, "UnitLabel": "u"}},
                                         "NoUnit": {}, "D": {"V": {"@displayPosition": 0, "UnitLabel": "v"}}})"));
    QStringList messages = messageTexts(log.take(), LineNumbers::Any);
    messages.sort();
    QCOMPARE(messages, QStringList({noBaseUnit(),
                                    loadingWarning(withPlatformPrefix(
                                        R"(No Base unit label given for "UnitManager/UnitType/B")")),
                                    loadingWarning(withPlatformPrefix(
                                        R"(No Base unit label given for "UnitManager/UnitType/NoUnit")"))}));
}

void UnitTextHandlerLoadingTest::everyLoadDropsTheOldLabels_data()
{
    QTest::addColumn<QString>("json");

    row("empty text", "");
    row("text that does not parse", "{");
    row("empty object", "{}");
    row("document without labels", R"({"B": {"U": {"@displayPosition": 0}}})");
}

void UnitTextHandlerLoadingTest::everyLoadDropsTheOldLabels()
{
    QFETCH(QString, json);
    LogCapture log;
    UnitTextHandler handler(documentAt("0"));
    QVERIFY(handler.isValid());
    QVERIFY(!handler.initByJsonString(json));
    QVERIFY(!handler.isValid());
    QCOMPARE(handler.getUnitText(unitType, "en", "U"), QString());
    QCOMPARE(log.takeTexts(),
             QStringList(withPlatformPrefix(R"(Unknown unit type given "UnitManager/UnitType/A")")));
}

void UnitTextHandlerLoadingTest::baseUnitsOfAnEarlierDocumentAreForgotten()
{
    LogCapture log;
    UnitTextHandler handler(documentAt("0"));
    QVERIFY(handler.initByJsonString(documentAt("1")));
    QCOMPARE(handler.getUnitText(unitType, "en", QString()), QString());
    QCOMPARE(messageTexts(log.take(), LineNumbers::Any), QStringList(noBaseUnit()));
}

void UnitTextHandlerLoadingTest::readsFile_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<bool>("result");
    QTest::addColumn<QStringList>("messages");

    row("no file", QString(), false, QStringList());
    row("empty file", QStringLiteral(""), false, QStringList());
    row("file that does not parse", "{", false, QStringList());
    row("document", documentAt("0"), true, QStringList());
    row("document without base unit", documentAt("1"), true, QStringList(noBaseUnit()));
}

void UnitTextHandlerLoadingTest::readsFile()
{
    QFETCH(QString, content);
    const TextFolder folder;
    const QString path = folder.write(QStringLiteral("units.json"), content);
    LogCapture log;
    UnitTextHandler handler(R"({"B": {"U": {"@displayPosition": 0, "UnitLabel": "u"}}})");
    QVERIFY(handler.isValid());
    QTEST(handler.initByJsonFile(path), "result");
    QTEST(handler.isValid(), "result");
    QTEST(messageTexts(takeMessagesOf(sourceName, log), LineNumbers::Any), "messages");
}

static const TestClass<UnitTextHandlerLoadingTest> testClass;
#include "UnitTextHandlerLoadingTest.moc"
