#include "UnitConversion/UnitConversionLookUp.h"

#include <QtTest/QTest>

#include <type_traits>

#include "ExactText.h"
#include "LogCapture.h"
#include "MessageText.h"
#include "Row.h"
#include "SourceMessages.h"
#include "TestProgram.h"
#include "TextFolder.h"
#include "UnitTypes.h"

namespace {

using LookUp = UnitConversionLookUp;

static_assert(std::has_virtual_destructor_v<LookUp>);
static_assert(std::is_copy_constructible_v<LookUp> && std::is_copy_assignable_v<LookUp>);
static_assert(std::is_convertible_v<const LookUp&, bool>);
static_assert(std::is_convertible_v<QString, LookUp>);

const QString sourceName = QStringLiteral("UnitConversion/UnitConversionLookUp");
const QString pressure = typeNamed("Pressure");
const QString unread = typeNamed("Unread");

/// "Unread" is a unit type whose node is null.
const QString document = QStringLiteral(R"({
    "Pressure": {
        "Bar": {"@displayPosition": 0, "Polynomial": [[0], [1]], "InversePolynomial": [[0], [1]], "DecimalPlaces": 3},
        "HectoPascal": {"@displayPosition": 1, "Polynomial": [[0], [1000]], "InversePolynomial": [[0], [0.001]],
                        "DecimalPlaces": 1}
    },
    "Plain": {"Only": {"Polynomial": [[0], [1]]}},
    "NoUnit": {"NoUnit": {}},
    "Bare": {},
    "Value": 5,
    "Unread": null
})");

QStringList sorted(QStringList list)
{
    list.sort();
    return list;
}

QString noConversion(int line, const QString& function, const QString& unitType)
{
    return warningText(sourceName, line, function,
                       QStringLiteral(R"(No conversion function given for unitType  "%1")").arg(unitType));
}

} // namespace

class UnitConversionLookUpTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsEmpty();
    void readsDocument();
    void documentResult_data();
    void documentResult();
    void failedLoadLosesTheCatalogue_data();
    void failedLoadLosesTheCatalogue();
    void unparsableTextIsLoggedWhole_data();
    void unparsableTextIsLoggedWhole();
    void laterDocumentReplacesTheEarlier();
    void readsFile_data();
    void readsFile();
    void listsUnits_data();
    void listsUnits();
    void convertsUnitsOfKnownTypes();
    void baseUnits_data();
    void baseUnits();
    void failsForUnknownTypes_data();
    void failsForUnknownTypes();
    void queriesAddNoType();
    void warningNamesThePlainKey();
    void copiesAreIndependent();
};

void UnitConversionLookUpTest::startsEmpty()
{
    LogCapture log;
    const LookUp lookUp;
    const bool usable = lookUp;
    QVERIFY(!usable);
    QVERIFY(!lookUp.isValid());
    QCOMPARE(lookUp.getListofUnitTypes(), QList<QString>());
    QVERIFY(!LookUp(QString()).isValid());
    QCOMPARE(log.takeTexts(), QStringList());
}

void UnitConversionLookUpTest::readsDocument()
{
    LogCapture log;
    LookUp lookUp(document);
    const bool usable = lookUp;
    QVERIFY(usable);
    QVERIFY(lookUp.isValid());
    QCOMPARE(sorted(lookUp.getListofUnitTypes()),
             QStringList({typeNamed("Bare"), typeNamed("NoUnit"), typeNamed("Plain"), pressure, unread,
                          typeNamed("Value")}));
    lookUp.reset();
    QVERIFY(!lookUp.isValid());
    QCOMPARE(lookUp.getListofUnitTypes(), QList<QString>());
    QCOMPARE(lookUp.getListofUnits(pressure), QList<QString>());
    QCOMPARE(log.takeTexts(), QStringList());
}

void UnitConversionLookUpTest::documentResult_data()
{
    QTest::addColumn<QString>("json");
    QTest::addColumn<bool>("result");

    row("empty text", "", false);
    row("null text", QString(), false);
    row("empty object", "{}", false);
    row("properties only", R"({"@type": "TreeNode", "@version": 1})", false);
    row("unit type without units", R"({"A": {}})", true);
    row("unit type without usable units", R"({"A": {"B": {"DecimalPlaces": 1}, "C": 2}})", true);
    row("unit type that is a value", R"({"A": 1})", true);
    row("unit type without node", R"({"A": null})", true);
    row("whole document", document, true);
}

void UnitConversionLookUpTest::documentResult()
{
    QFETCH(QString, json);
    LogCapture log;
    LookUp lookUp;
    QTEST(lookUp.initByJsonString(json), "result");
    QTEST(lookUp.isValid(), "result");
    QTEST(LookUp(json).isValid(), "result");
    QCOMPARE(log.takeTexts(), QStringList());
}

void UnitConversionLookUpTest::failedLoadLosesTheCatalogue_data()
{
    QTest::addColumn<QString>("json");

    row("empty text", "");
    row("empty object", "{}");
    row("text that does not parse", "{");
    row("list", "[]");
}

void UnitConversionLookUpTest::failedLoadLosesTheCatalogue()
{
    QFETCH(QString, json);
    LogCapture log;
    LookUp lookUp(document);
    QVERIFY(!lookUp.initByJsonString(json));
    QVERIFY(!lookUp.isValid());
    QCOMPARE(lookUp.getListofUnitTypes(), QList<QString>());
    QCOMPARE(lookUp.getListofUnits(pressure), QList<QString>());
}

void UnitConversionLookUpTest::unparsableTextIsLoggedWhole_data()
{
    QTest::addColumn<QString>("json");
    QTest::addColumn<QString>("logged");

    row("one bracket", "{", R"("{")");
    row("blank", " ", R"(" ")");
    row("list", "[1]", R"("[1]")");
    row("quotes, backslash, line end and tabulator", "{\"a\": \"b\\c\"\n\t", R"("{\"a\": \"b\\c\"\n\t")");
    row("long text", QString(5000, '{'), '"' + QString(5000, '{') + '"');
}

void UnitConversionLookUpTest::unparsableTextIsLoggedWhole()
{
    QFETCH(QString, json);
    QFETCH(QString, logged);
    LogCapture log;
    QVERIFY(!LookUp().initByJsonString(json));
    QCOMPARE(
        messageTexts(log.take()),
        QStringList(warningText(sourceName, 75, "bool UnitConversionLookUp::initByJsonString(const QString&)",
                                "Conversion configuration invalid " + logged)));
}

void UnitConversionLookUpTest::laterDocumentReplacesTheEarlier()
{
    LookUp lookUp(document);
    QVERIFY(lookUp.initByJsonString(R"({"Time": {"Seconds": {"Polynomial": [[0], [1]]}}})"));
    QCOMPARE(lookUp.getListofUnitTypes(), QList<QString>{typeNamed("Time")});
    QVERIFY(lookUp.initByJsonString(document));
    QCOMPARE(lookUp.getListofUnitTypes().size(), 6);
    QCOMPARE(sorted(lookUp.getListofUnits(pressure)), QStringList({"Bar", "HectoPascal"}));
}

void UnitConversionLookUpTest::readsFile_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<QStringList>("messages");

    row("no file", QString(), QStringList());
    row("empty file", QStringLiteral(""), QStringList());
    row("document", document, QStringList());
    row("file that does not parse", "{",
        QStringList(warningText(sourceName, 75, "bool UnitConversionLookUp::initByJsonString(const QString&)",
                                "Conversion configuration invalid \"{\"")));
}

void UnitConversionLookUpTest::readsFile()
{
    QFETCH(QString, content);
    const TextFolder folder;
    const QString path = folder.write(QStringLiteral("units.json"), content);
    LogCapture log;
    LookUp lookUp(R"({"Old": {}})");
    QCOMPARE(lookUp.initByJsonFile(path), content == document);
    QCOMPARE(lookUp.getListofUnitTypes().size(), content == document ? 6 : 0);
    QTEST(messageTexts(takeMessagesOf(sourceName, log)), "messages");
}

void UnitConversionLookUpTest::listsUnits_data()
{
    QTest::addColumn<QString>("unitType");
    QTest::addColumn<QStringList>("units");

    row("known type", pressure, QStringList({"Bar", "HectoPascal"}));
    row("type without unit", typeNamed("NoUnit"), QStringList());
    row("type without units", typeNamed("Bare"), QStringList());
    row("type that is a value", typeNamed("Value"), QStringList());
    row("type without node", unread, QStringList());
    row("unknown type", typeNamed("Nope"), QStringList());
    row("plain key", "Pressure", QStringList());
    row("fixed unit", pressure + "/Bar", QStringList());
    row("empty text", "", QStringList());
}

void UnitConversionLookUpTest::listsUnits()
{
    QFETCH(QString, unitType);
    LogCapture log;
    QTEST(sorted(LookUp(document).getListofUnits(unitType)), "units");
    QCOMPARE(log.takeTexts(), QStringList());
}

void UnitConversionLookUpTest::convertsUnitsOfKnownTypes()
{
    LogCapture log;
    const LookUp lookUp(document);
    QVariant value(3);
    QVERIFY(lookUp.toBaseUnit(value, pressure, QStringLiteral("HectoPascal")));
    QCOMPARE(exactText(value), exactText(QVariant(3 * 0.001)));
    value = 3;
    QVERIFY(lookUp.fromBaseUnit(value, pressure, QStringLiteral("HectoPascal")));
    QCOMPARE(exactText(value), exactText(QVariant(3000.0)));

    unsigned int places = 77;
    QVERIFY(lookUp.getDecimalPlacesForUnit(pressure, QStringLiteral("HectoPascal"), places));
    QCOMPARE(places, 1U);
    places = 77;
    QVERIFY(!lookUp.getDecimalPlacesForUnit(pressure, QStringLiteral("Nope"), places));
    QVERIFY(!lookUp.getDecimalPlacesForUnit(pressure, QStringLiteral("NoUnit"), places));
    QCOMPARE(places, 77U);
    QCOMPARE(log.takeTexts(), QStringList());
}

void UnitConversionLookUpTest::baseUnits_data()
{
    QTest::addColumn<QString>("unitType");
    QTest::addColumn<QString>("expected");

    row("known type", pressure, pressure + "/Bar");
    row("no unit at position 0", typeNamed("Plain"), typeNamed("Plain/"));
    row("type without units", typeNamed("Bare"), typeNamed("Bare/"));
    row("type without unit", typeNamed("NoUnit"), typeNamed("NoUnit/NoUnit"));
}

void UnitConversionLookUpTest::baseUnits()
{
    QFETCH(QString, unitType);
    LogCapture log;
    QTEST(LookUp(document).getBaseUnit(unitType), "expected");
    QCOMPARE(log.takeTexts(), QStringList());
}

void UnitConversionLookUpTest::failsForUnknownTypes_data()
{
    QTest::addColumn<QString>("unitType");

    row("unknown type", typeNamed("Nope"));
    row("plain key", "Pressure");
    row("other spelling", typeNamed("pressure"));
    row("fixed unit", pressure + "/Bar");
    row("type without node", unread);
    row("no unit without prefix", "NoUnit");
    row("prefix alone", typeNamed(""));
    row("empty text", "");
}

void UnitConversionLookUpTest::failsForUnknownTypes()
{
    QFETCH(QString, unitType);
    const LookUp lookUp(document);
    QVERIFY(lookUp.isValid());
    LogCapture log;
    // Even a conversion that changes nothing fails if its unit type is unknown.
    for (const char* unit : {"Bar", "NoUnit", ""}) {
        QVariant value(3);
        unsigned int places = 77;
        QVERIFY(!lookUp.toBaseUnit(value, unitType, unit));
        QVERIFY(!lookUp.fromBaseUnit(value, unitType, unit));
        QVERIFY(!lookUp.getDecimalPlacesForUnit(unitType, unit, places));
        QCOMPARE(lookUp.getBaseUnit(unitType), QString());
        QCOMPARE(exactText(value), exactText(QVariant(3)));
        QCOMPARE(places, 77U);
        QCOMPARE(
            messageTexts(log.take()),
            QStringList(
                {noConversion(
                     137,
                     "bool UnitConversionLookUp::toBaseUnit(QVariant&, const QString&, const QString&) const",
                     unitType),
                 noConversion(152,
                              "bool UnitConversionLookUp::fromBaseUnit(QVariant&, const QString&, const "
                              "QString&) const",
                              unitType),
                 noConversion(174,
                              "bool UnitConversionLookUp::getDecimalPlacesForUnit(const QString&, const "
                              "QString&, unsigned int&) const",
                              unitType),
                 warningText(sourceName, 122,
                             "QString UnitConversionLookUp::getBaseUnit(const QString&) const",
                             QStringLiteral(R"(No base unit given for unitType  "%1")").arg(unitType))}));
    }
}

void UnitConversionLookUpTest::queriesAddNoType()
{
    LogCapture log;
    const LookUp lookUp;
    QVariant value(3);
    unsigned int places = 77;
    QVERIFY(!lookUp.toBaseUnit(value, pressure, QString()));
    QVERIFY(!lookUp.fromBaseUnit(value, pressure, QString()));
    QVERIFY(!lookUp.getDecimalPlacesForUnit(pressure, QString(), places));
    QVERIFY(lookUp.getBaseUnit(pressure).isEmpty());
    QVERIFY(lookUp.getListofUnits(pressure).isEmpty());
    QVERIFY(!lookUp.isValid());
    QCOMPARE(lookUp.getListofUnitTypes(), QList<QString>());
}

void UnitConversionLookUpTest::warningNamesThePlainKey()
{
    LogCapture log;
    QVariant value(3);
    QVERIFY(!LookUp(document).toBaseUnit(value, pressure, QStringLiteral("Nope")));
    QCOMPARE(messageTexts(log.take()),
             QStringList(warningText(
                 "UnitConversion/UnitConversionUnitTypeHandler", 132,
                 "bool UnitConversionUnitTypeHandler::toBaseUnit(QVariant&, const QString&) const",
                 R"(Unknown unit "Nope" given for unitType "Pressure")")));
}

void UnitConversionLookUpTest::copiesAreIndependent()
{
    LookUp original(document);
    const LookUp copy = original;
    original.reset();
    QVERIFY(copy.isValid());
    QCOMPARE(copy.getBaseUnit(pressure), pressure + QStringLiteral("/Bar"));
}

static const TestClass<UnitConversionLookUpTest> testClass;
#include "UnitConversionLookUpTest.moc"
