#include "UnitManagerUnitTypeStringHandling.h"

#include <QtTest/QTest>

#include "TestProgram.h"
#include "UnitManager.h"
#include "hashFromString.h"

/// Two identifiers with the same number. Which ones have it depends on the hash function of the platform.
class UnitManagerEqualNumbersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void laterIdentifierIsKept();
};

void UnitManagerEqualNumbersTest::laterIdentifierIsKept()
{
    // A unit type and one of its units, found by trial.
    const QString unitType = QStringLiteral("UnitManager/UnitType/Type703");
    const QString fixedUnit = unitType + QStringLiteral("/oc4I");
    QCOMPARE(hashFromString(unitType), hashFromString(fixedUnit));
    const auto manager = QSharedPointer<UnitManager>::create();
    QVERIFY(manager->initByJsonString(
        R"json({ "Type703": { "oc4I": { "@displayPosition": 0, "Polynomial": [[0], [1]], "UnitLabel": "x" } } })json",
        QString()));
    QHash<unsigned int, QString> table;

    UnitManagerUnitTypeStringHandling::updateUnitTypeHashMap(table, manager);

    QCOMPARE(table, (QHash<unsigned int, QString>{{hashFromString(unitType), fixedUnit}}));
}

static const TestClass<UnitManagerEqualNumbersTest> testClass;

#include "UnitManagerEqualNumbersTest.moc"
