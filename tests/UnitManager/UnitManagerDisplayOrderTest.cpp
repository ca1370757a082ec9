#include "UnitManager.h"

#include <QtTest/QTest>

#include "LogCapture.h"
#include "Row.h"
#include "TestProgram.h"
#include "UnitTypes.h"

/// The units of a type in the order of a user interface.
class UnitManagerDisplayOrderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void unitsAreOrdered_data();
    void unitsAreOrdered();
    void everyTypeHasItsOrder();
    void unknownTypesHaveNoUnits_data();
    void unknownTypesHaveNoUnits();
    void reloadReplacesTheOrder();
    void orderNeedsNoLabels();
    void textsOfTheTypeAreNotAffected();
};

namespace {

const QString typePrefix = typeNamed("");

/// A unit with further members.
QString unit(const QString& name, const QString& members)
{
    return '"' + name + R"(": { "Polynomial": [[0], [1]], "InversePolynomial": [[0], [1]], )" +
           R"("UnitLabel": { "@value": { "en": "x" } })" + (members.isEmpty() ? "" : ", " + members) + " }";
}

QString at(const QString& name, const QString& position)
{
    return unit(name, R"("@displayPosition": )" + position);
}

QString document(const QStringList& units)
{
    return R"({ "Level": { )" + units.join(", ") + " } }";
}

QStringList orderIn(const QString& json)
{
    const LogCapture log;
    UnitManager manager;
    manager.updateUnitConversionByJsonString(json);
    return manager.getUnitsInDisplayOrder(typePrefix + "Level");
}

} // namespace

void UnitManagerDisplayOrderTest::unitsAreOrdered_data()
{
    QTest::addColumn<QStringList>("units");
    QTest::addColumn<QStringList>("expected");

    row("by position", QStringList{at("B", "2"), at("C", "0"), at("A", "10"), at("D", "1")},
        QStringList{"C", "D", "B", "A"});
    row("equal positions by name", QStringList{at("B", "1"), at("A", "1"), at("C", "0")},
        QStringList{"C", "A", "B"});
    row("negative position first", QStringList{at("A", "0"), at("B", "-1")}, QStringList{"B", "A"});
    row("positions as texts", QStringList{at("A", "\"2\""), at("B", "\"1\"")}, QStringList{"B", "A"});
    row("without position last, by name",
        QStringList{unit("B", ""), at("C", "5"), unit("A", ""), at("D", "null")},
        QStringList{"C", "A", "B", "D"});
    row("without conversion not listed",
        QStringList{R"("A": { "@displayPosition": 0, "UnitLabel": { "@value": { "en": "x" } } })",
                    at("B", "1")},
        QStringList{"B"});
    row("name with a slash last", QStringList{at("A/B", "0"), at("C", "1")}, QStringList{"C", "A/B"});
}

void UnitManagerDisplayOrderTest::unitsAreOrdered()
{
    QFETCH(QStringList, units);
    QFETCH(QStringList, expected);

    QCOMPARE(orderIn(document(units)), expected);
}

void UnitManagerDisplayOrderTest::everyTypeHasItsOrder()
{
    UnitManager manager;
    QVERIFY(manager.updateUnitConversionByJsonString("{ \"Level\": { " + at("A", "1") + ", " + at("B", "0") +
                                                     " }, \"Flow\": { " + at("A", "0") + ", " + at("B", "1") +
                                                     " } }"));
    QCOMPARE(manager.getUnitsInDisplayOrder(typePrefix + "Level"), (QStringList{"B", "A"}));
    QCOMPARE(manager.getUnitsInDisplayOrder(typePrefix + "Flow"), (QStringList{"A", "B"}));
}

void UnitManagerDisplayOrderTest::unknownTypesHaveNoUnits_data()
{
    QTest::addColumn<QString>("unitType");

    row("empty", QString());
    row("unknown", typePrefix + "Flow");
    row("without prefix", QString("Level"));
    row("fixed unit", typePrefix + "Level/A");
    row("with slash", typePrefix + "Level/");
}

void UnitManagerDisplayOrderTest::unknownTypesHaveNoUnits()
{
    QFETCH(QString, unitType);

    UnitManager manager;
    QVERIFY(manager.updateUnitConversionByJsonString(document({at("A", "0")})));
    LogCapture log;
    QCOMPARE(manager.getUnitsInDisplayOrder(unitType), QStringList());
    QCOMPARE(log.takeTexts(), QStringList());
}

void UnitManagerDisplayOrderTest::reloadReplacesTheOrder()
{
    UnitManager manager;
    QVERIFY(manager.updateUnitConversionByJsonString(document({at("A", "0"), at("B", "1")})));
    QVERIFY(manager.updateUnitConversionByJsonString(document({at("A", "1"), at("C", "0")})));
    QCOMPARE(manager.getUnitsInDisplayOrder(typePrefix + "Level"), (QStringList{"C", "A"}));
    QVERIFY(!manager.updateUnitConversionByJsonString(QString()));
    QCOMPARE(manager.getUnitsInDisplayOrder(typePrefix + "Level"), QStringList());
}

void UnitManagerDisplayOrderTest::orderNeedsNoLabels()
{
    const QString withoutLabels =
        R"({ "Level": { "A": { "@displayPosition": 1, "Polynomial": [[0], [1]] },
                        "B": { "@displayPosition": 0, "Polynomial": [[0], [1]] } } })";
    QCOMPARE(orderIn(withoutLabels), (QStringList{"B", "A"}));
}

/// The order is kept beside the base units of the labels.
void UnitManagerDisplayOrderTest::textsOfTheTypeAreNotAffected()
{
    UnitManager manager;
    QVERIFY(manager.updateUnitConversionByJsonString(document({at("A", "0"), at("B", "1")})));
    const LogCapture log;
    QCOMPARE(manager.getUnitText(typePrefix + "Level", "en", "A"), "x");
    // A fixed unit without unit has the label of the base unit.
    QCOMPARE(manager.getUnitText(typePrefix + "Level/", "en", QString()), "x");
}

static const TestClass<UnitManagerDisplayOrderTest> testClass;
#include "UnitManagerDisplayOrderTest.moc"
