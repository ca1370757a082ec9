#include "UnitManagerUnitTypeStringHandling.h"

#include <QtTest/QTest>

#include "LogCapture.h"
#include "TestDocuments.h"
#include "TestProgram.h"
#include "UnitManager.h"
#include "hashFromString.h"

class UnitManagerUnitTypeStringHandlingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyTextHasANumber_data();
    void everyTextHasANumber();
    void numbersAreMappedBack();
    void unknownNumbersLeaveTheText();
    void tableHoldsUnitTypesAndFixedUnits();
    void tableIsEmptiedFirst();
    void emptyManagerGivesAnEmptyTable();
    void nullManagerLeavesTheTable();
    void everyIdentifierIsMappedBack();
};

namespace {

namespace T = TestUnitType;

using Handling = UnitManagerUnitTypeStringHandling;
using IdentifierTable = QHash<unsigned int, QString>;

QSharedPointer<UnitManager> managerOf(const QString& json)
{
    auto manager = QSharedPointer<UnitManager>::create();
    manager->initByJsonString(json, QString());
    return manager;
}

unsigned int numberOf(const QString& identifier)
{
    return hashFromString(QVariant(identifier));
}

} // namespace

void UnitManagerUnitTypeStringHandlingTest::everyTextHasANumber_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("unit type") << T::pressure;
    QTest::newRow("fixed unit") << T::pressure + "/Bar";
    QTest::newRow("unknown text") << "anything at all";
    QTest::newRow("text beyond Latin 1") << QStringLiteral("Temperatur \u2103");
    QTest::newRow("empty text") << "";
}

void UnitManagerUnitTypeStringHandlingTest::everyTextHasANumber()
{
    QFETCH(QString, text);
    unsigned int number = numberOf(text) + 1;

    QVERIFY(Handling::mapUnitTypeStringToHashValue(text, number));
    QCOMPARE(number, numberOf(text));
}

void UnitManagerUnitTypeStringHandlingTest::numbersAreMappedBack()
{
    const IdentifierTable table = {{0U, T::noUnit}, {4294967295U, T::pressure}, {7U, QString()}};
    QString identifier = QStringLiteral("old");

    QVERIFY(Handling::mapHashValueToUnitTypeString(table, 0U, identifier));
    QCOMPARE(identifier, T::noUnit);
    QVERIFY(Handling::mapHashValueToUnitTypeString(table, 4294967295U, identifier));
    QCOMPARE(identifier, T::pressure);
    QVERIFY(Handling::mapHashValueToUnitTypeString(table, 7U, identifier));
    QCOMPARE(identifier, QString());
}

void UnitManagerUnitTypeStringHandlingTest::unknownNumbersLeaveTheText()
{
    const IdentifierTable table = {{1U, T::pressure}};
    QString identifier = QStringLiteral("old");
    LogCapture log;

    QVERIFY(!Handling::mapHashValueToUnitTypeString(table, 2U, identifier));
    QVERIFY(!Handling::mapHashValueToUnitTypeString(IdentifierTable(), 1U, identifier));
    QCOMPARE(identifier, QStringLiteral("old"));
    QCOMPARE(log.takeTexts(), QStringList());
}

void UnitManagerUnitTypeStringHandlingTest::tableHoldsUnitTypesAndFixedUnits()
{
    const QString json = QStringLiteral(R"json({ "Voltage": {
        "Volt": { "@displayPosition": 0, "Polynomial": [[0], [1]], "UnitLabel": "V" },
        "MilliVolt": { "@displayPosition": 1, "Polynomial": [[0], [1000]], "UnitLabel": "mV" } } })json");
    IdentifierTable table;

    Handling::updateUnitTypeHashMap(table, managerOf(json));

    QCOMPARE(table, (IdentifierTable{{numberOf(T::voltage), T::voltage},
                                     {numberOf(T::voltage + "/Volt"), T::voltage + "/Volt"},
                                     {numberOf(T::voltage + "/MilliVolt"), T::voltage + "/MilliVolt"}}));
}

void UnitManagerUnitTypeStringHandlingTest::tableIsEmptiedFirst()
{
    IdentifierTable table = {{1U, QStringLiteral("old")}, {numberOf(T::voltage), QStringLiteral("old")}};

    Handling::updateUnitTypeHashMap(table, managerOf(TestDocuments::voltage()));

    QCOMPARE(table, (IdentifierTable{{numberOf(T::voltage), T::voltage},
                                     {numberOf(T::voltage + "/Volt"), T::voltage + "/Volt"}}));
}

void UnitManagerUnitTypeStringHandlingTest::emptyManagerGivesAnEmptyTable()
{
    IdentifierTable table = {{1U, QStringLiteral("old")}};
    LogCapture log;

    Handling::updateUnitTypeHashMap(table, QSharedPointer<UnitManager>::create());

    QCOMPARE(table, IdentifierTable());
    QCOMPARE(log.takeTexts(), QStringList());
}

void UnitManagerUnitTypeStringHandlingTest::nullManagerLeavesTheTable()
{
    const IdentifierTable old = {{1U, QStringLiteral("old")}};
    IdentifierTable table = old;

    Handling::updateUnitTypeHashMap(table, QSharedPointer<UnitManager>());

    QCOMPARE(table, old);
}

void UnitManagerUnitTypeStringHandlingTest::everyIdentifierIsMappedBack()
{
    const auto manager = managerOf(TestDocuments::units());
    IdentifierTable table;
    Handling::updateUnitTypeHashMap(table, manager);

    // Three unit types with three, two and two units.
    QCOMPARE(table.size(), 10);
    for (const QString& expected : qAsConst(table)) {
        unsigned int number = 0;
        QString identifier;
        QVERIFY(Handling::mapUnitTypeStringToHashValue(expected, number));
        QVERIFY(Handling::mapHashValueToUnitTypeString(table, number, identifier));
        QCOMPARE(identifier, expected);
    }
    QVERIFY(table.values().contains(T::temperature));
    QVERIFY(table.values().contains(T::temperature + "/Celsius"));
    QVERIFY(!table.values().contains(T::pressure + "/NoUnit"));
}

static const TestClass<UnitManagerUnitTypeStringHandlingTest> testClass;

#include "UnitManagerUnitTypeStringHandlingTest.moc"
