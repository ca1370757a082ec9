#include "UnitConversion/UnitConversionUnitTypeHandler.h"

#include <QtCore/QRegularExpression>
#include <QtTest/QTest>

#include <limits>
#include <type_traits>

#include "ConfigurationAndProcessDataDefinitions.h"
#include "ConfigurationAndProcessDataTools.h"
#include "ExactText.h"
#include "LogCapture.h"
#include "MessageText.h"
#include "RecordingNode.h"
#include "Row.h"
#include "TestProgram.h"
#include "UnitTypes.h"

namespace {

using Handler = UnitConversionUnitTypeHandler;
using Definitions = ConfigurationAndProcessDataDefinitions;

static_assert(std::has_virtual_destructor_v<Handler>);
static_assert(std::is_copy_constructible_v<Handler> && std::is_copy_assignable_v<Handler>);
static_assert(std::is_convertible_v<const Handler&, bool>);

const QString name = QStringLiteral("Pressure");

const QString pressure = QStringLiteral(R"({
    "Bar": {"@displayPosition": 0, "Polynomial": [[0], [1]], "InversePolynomial": [[0], [1]], "DecimalPlaces": 3},
    "HectoPascal": {"@displayPosition": 1, "Polynomial": [[0], [1000]], "InversePolynomial": [[0], [0.001]],
                    "DecimalPlaces": 1},
    "Step": {"@displayPosition": 2, "ArbitraryTable": {}, "Table": [[0, 0], [10, 100]], "DecimalPlaces": 4}
})");

Handler handlerFromJson(const QString& json)
{
    return {nodeFromJson(json), name};
}

QStringList sorted(QStringList units)
{
    units.sort();
    return units;
}

bool knows(const Handler& handler, const QString& unit)
{
    unsigned int places = 0;
    return handler.getDecimalPlacesForUnit(unit, places);
}

QString initWarning()
{
    return warningText("UnitConversion/UnitConversionUnitTypeHandler", 76,
                       "bool UnitConversionUnitTypeHandler::init(const BaseClassSharedPointer&)",
                       "Invalid node found");
}

/// A unit type whose only unit "Unit" has the given value of a property.
QSharedPointer<RecordingNode> typeOfUnitWith(const QString& propertyKey, const QVariant& value)
{
    const auto calls = RecordingNode::Calls::create();
    const auto type = recordingNodeFromJson(QStringLiteral("{}"), QStringLiteral("type"), calls);
    const auto unit =
        recordingNodeFromJson(QStringLiteral(R"({"Polynomial": [[1]]})"), QStringLiteral("unit"), calls);
    unit->replaceProperty(propertyKey, value);
    type->insertChild(QStringLiteral("Unit"), unit);
    return type;
}

} // namespace

/// Reading of a unit type's node; for the conversions see UnitConversionUnitTypeHandlerConversionTest.
class UnitConversionUnitTypeHandlerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaultHandlerIsInvalid();
    void acceptsUnits_data();
    void acceptsUnits();
    void typeIsComparedAsVariant();
    void readsNothingButWhatItNeeds();
    void laterUnitsSurviveNoUnit();
    void unitAtPositionZeroIsTheBaseUnit_data();
    void unitAtPositionZeroIsTheBaseUnit();
    void lastUnitAtPositionZeroIsTheBaseUnit();
    void initWithNullKeepsValidity();
    void secondInitAddsToTheList();
    void secondInitReplacesTheConversions();
    void nullChildWarns();
    void decimalPlaces_data();
    void decimalPlaces();
    void baseUnitName_data();
    void baseUnitName();
    void copiesAreIndependent();
};

void UnitConversionUnitTypeHandlerTest::defaultHandlerIsInvalid()
{
    LogCapture log;
    const Handler handler;
    const bool usable = handler;
    QVERIFY(!usable);
    QVERIFY(!handler.isValid());
    QCOMPARE(handler.getUnitList(), QList<QString>());
    QCOMPARE(handler.getBaseUnit(QStringLiteral("X")), QStringLiteral("X/"));
    QVERIFY(!knows(handler, QStringLiteral("Bar")));
    QCOMPARE(log.takeTexts(), QStringList());
}

void UnitConversionUnitTypeHandlerTest::acceptsUnits_data()
{
    QTest::addColumn<QString>("json");
    QTest::addColumn<QStringList>("units");

    row("no children", "{}", QStringList());
    row("three units", pressure, QStringList({"Bar", "HectoPascal", "Step"}));
    row("each kind of converter",
        R"({"A": {"Polynomial": "x"}, "B": {"ArbitraryTable": 1}, "C": {"EquidistantTable": {}}})",
        QStringList({"A", "B", "C"}));
    row("unit without converter", R"({"A": {"Polynomial": [1]}, "B": {"DecimalPlaces": 1}})",
        QStringList("A"));
    row("unit with null converter", R"({"B": {"Polynomial": null}})", QStringList());
    row("children that are values", R"({"A": 1, "B": "x", "C": true, "D": [[1]]})", QStringList());
    row("unit of another type",
        R"({"A": {"@type": "Number", "Polynomial": [1]}, "B": {"@type": "treenode", "Polynomial": [1]}})",
        QStringList());
    row("unit whose type is written out", R"({"A": {"@type": "TreeNode", "Polynomial": [1]}})",
        QStringList("A"));
    row("texts of the type", R"({"Text": {"@displayPosition": 0, "Polynomial": [1]}})", QStringList());
    row("texts in another spelling", R"({"text": {"Polynomial": [1]}})", QStringList("text"));
    row("no unit", R"({"NoUnit": {"@displayPosition": 0, "Polynomial": [1]}})", QStringList());
    row("no unit that is a value", R"({"NoUnit": 1, "A": {"Polynomial": [1]}})", QStringList("A"));
    row("no unit in another spelling", R"({"nounit": {"Polynomial": [1]}})", QStringList("nounit"));
    row("unit with an empty name", R"({"": {"Polynomial": [1]}})", QStringList(""));
}

void UnitConversionUnitTypeHandlerTest::acceptsUnits()
{
    QFETCH(QString, json);
    QFETCH(QStringList, units);
    LogCapture log;
    const Handler handler = handlerFromJson(json);
    const bool usable = handler;
    QVERIFY(usable);
    QVERIFY(handler.isValid());
    QCOMPARE(sorted(handler.getUnitList()), units);
    for (const QString& unit : units)
        QVERIFY(knows(handler, unit));
    QCOMPARE(log.takeTexts(), QStringList());
}

void UnitConversionUnitTypeHandlerTest::typeIsComparedAsVariant()
{
    const QString typeKey = Definitions::getKeyDataPropertyType();
    // A boolean variant equals any non-empty text except "false" and "0".
    QCOMPARE(Handler(typeOfUnitWith(typeKey, true), name).getUnitList(), QList<QString>{"Unit"});
    QCOMPARE(Handler(typeOfUnitWith(typeKey, QVariant()), name).getUnitList(), QList<QString>());
}

// Calls and their order are visible to the node classes of other libraries.
void UnitConversionUnitTypeHandlerTest::readsNothingButWhatItNeeds()
{
    const auto calls = RecordingNode::Calls::create();
    const auto type = recordingNodeFromJson(R"({
        "Unit": {"ArbitraryTable": {}}, "Bare": {"DecimalPlaces": 1}, "Value": 1, "NoUnit": {"Polynomial": [1]},
        "Text": {"Polynomial": [1]}})",
                                            QStringLiteral("type"), calls);
    const Handler handler(type, name);
    const QStringList all = *calls;
    const auto callsOf = [&all](const QString& path) {
        QStringList found = all.filter(QRegularExpression('^' + QRegularExpression::escape(path + '.')));
        return found.replaceInStrings(path + '.', QString());
    };
    QCOMPARE(callsOf("type"), QStringList("getChildMap()"));
    QCOMPARE(callsOf("type/Unit"),
             QStringList({"getProperty(@type)", "getChild(Polynomial)", "getChild(ArbitraryTable)",
                          "getChild(Table)", "getChild(InverseTable)", "getProperty(@displayPosition)"}));
    QCOMPARE(callsOf("type/Bare"), QStringList({"getProperty(@type)", "getChild(Polynomial)",
                                                "getChild(ArbitraryTable)", "getChild(EquidistantTable)"}));
    for (const char* path : {"type/Value", "type/NoUnit", "type/Text"})
        QCOMPARE(callsOf(path), QStringList("getProperty(@type)"));
}

void UnitConversionUnitTypeHandlerTest::laterUnitsSurviveNoUnit()
{
    const auto calls = RecordingNode::Calls::create();
    const auto type = recordingNodeFromJson(R"({"NoUnit": {}})", QStringLiteral("type"), calls);
    for (int number = 0; number < 64; ++number) {
        const QString unit = QStringLiteral("Unit%1").arg(number);
        type->insertChild(unit, nodeFromJson(R"({"@displayPosition": 1, "Polynomial": [1]})"));
    }
    const QStringList order = type->getChildMap().keys();
    const int place = order.indexOf(QStringLiteral("NoUnit"));

    const Handler handler(type, name);
    QCOMPARE(handler.getUnitList(), order.mid(0, place) + order.mid(place + 1));
    QCOMPARE(handler.getBaseUnit(name), QStringLiteral("Pressure/NoUnit"));
    for (int number = 0; number < order.size(); ++number)
        QCOMPARE(knows(handler, order.at(number)), number > place);
}

void UnitConversionUnitTypeHandlerTest::unitAtPositionZeroIsTheBaseUnit_data()
{
    QTest::addColumn<QVariant>("position");
    QTest::addColumn<bool>("isBase");

    row("missing", QVariant(), false);
    row("zero", QVariant(0), true);
    row("zero as double", QVariant(0.0), true);
    row("zero in a text", QVariant("0"), true);
    row("any text", QVariant("abc"), true);
    row("empty text", QVariant(""), true);
    row("fraction in a text", QVariant("1.5"), true);
    row("false", QVariant(false), true);
    row("true", QVariant(true), false);
    row("rounded down to zero", QVariant(0.4), true);
    row("negative, rounded up to zero", QVariant(-0.4), true);
    row("rounded up to one", QVariant(0.6), false);
    row("one", QVariant(1), false);
    row("one in a text", QVariant("1"), false);
    row("negative", QVariant(-1), false);
    row("list", QVariant(QVariantList{0}), false);
    row("map", QVariant(QVariantMap{{"a", 0}}), false);
}

void UnitConversionUnitTypeHandlerTest::unitAtPositionZeroIsTheBaseUnit()
{
    QFETCH(QVariant, position);
    QFETCH(bool, isBase);
    LogCapture log;
    const Handler handler(typeOfUnitWith(Definitions::getKeyDataPropertyDisplayPosition(), position), name);
    QCOMPARE(handler.getUnitList(), QList<QString>{"Unit"});
    QCOMPARE(handler.getBaseUnit(name),
             isBase ? QStringLiteral("Pressure/Unit") : QStringLiteral("Pressure/"));
    QCOMPARE(log.takeTexts(), QStringList());
}

void UnitConversionUnitTypeHandlerTest::lastUnitAtPositionZeroIsTheBaseUnit()
{
    const BaseClassSharedPointer type = nodeFromJson(R"({
        "A": {"@displayPosition": 0, "Polynomial": [1]}, "B": {"@displayPosition": 0, "Polynomial": [1]},
        "C": {"@displayPosition": 0, "Polynomial": [1]}, "D": {"@displayPosition": 0}})");
    QStringList order = type->getChildMap().keys();
    order.removeAll(QStringLiteral("D"));
    QCOMPARE(Handler(type, name).getBaseUnit(name), name + '/' + order.last());
}

void UnitConversionUnitTypeHandlerTest::initWithNullKeepsValidity()
{
    LogCapture log;
    Handler invalid;
    QVERIFY(invalid.init(BaseClassSharedPointer()));
    QVERIFY(!invalid.isValid());
    QVERIFY(!Handler(BaseClassSharedPointer(), name).isValid());

    Handler valid = handlerFromJson(pressure);
    QVERIFY(valid.init(BaseClassSharedPointer()));
    QVERIFY(valid.isValid());
    QVERIFY(!knows(valid, QStringLiteral("Bar")));
    QCOMPARE(sorted(valid.getUnitList()), QStringList({"Bar", "HectoPascal", "Step"}));
    QCOMPARE(valid.getBaseUnit(name), QStringLiteral("Pressure/Bar"));
    QCOMPARE(log.takeTexts(), QStringList());
}

void UnitConversionUnitTypeHandlerTest::secondInitAddsToTheList()
{
    const BaseClassSharedPointer node = nodeFromJson(pressure);
    Handler handler(node, name);
    const QStringList once = handler.getUnitList();
    QVERIFY(handler.init(node));
    QCOMPARE(handler.getUnitList(), once + once);
}

void UnitConversionUnitTypeHandlerTest::secondInitReplacesTheConversions()
{
    Handler handler = handlerFromJson(pressure);
    QVERIFY(handler.init(nodeFromJson(R"({"Psi": {"@displayPosition": 3, "Polynomial": [1]}})")));
    QVERIFY(!knows(handler, QStringLiteral("Bar")));
    QVERIFY(knows(handler, QStringLiteral("Psi")));
    QCOMPARE(handler.getUnitList().last(), QStringLiteral("Psi"));
    QCOMPARE(handler.getUnitList().size(), 4);
    QCOMPARE(handler.getBaseUnit(name), QStringLiteral("Pressure/Bar"));
}

void UnitConversionUnitTypeHandlerTest::nullChildWarns()
{
    LogCapture log;
    const BaseClassSharedPointer node =
        nodeFromJson(R"({"A": null, "B": {"Polynomial": [1]}, "Text": null, "NoUnit": null})");
    Handler handler(node, name);
    QVERIFY(handler.isValid());
    QCOMPARE(handler.getUnitList(), QList<QString>{"B"});
    QVERIFY(knows(handler, QStringLiteral("B")));
    QCOMPARE(handler.getBaseUnit(name), QStringLiteral("Pressure/"));
    QCOMPARE(messageTexts(log.take()), QStringList({initWarning(), initWarning(), initWarning()}));
}

void UnitConversionUnitTypeHandlerTest::decimalPlaces_data()
{
    QTest::addColumn<QString>("unit");
    QTest::addColumn<bool>("known");
    QTest::addColumn<unsigned int>("expected");

    row("polynomial", "HectoPascal", true, 1U);
    row("table has none", "Step", true, 0U);
    row("unknown unit", "Nope", false, 77U);
    row("other spelling", "bar", false, 77U);
    row("fixed unit", "Pressure/Bar", false, 77U);
    row("empty unit", "", false, 77U);
    row("no unit", "NoUnit", false, 77U);
}

void UnitConversionUnitTypeHandlerTest::decimalPlaces()
{
    QFETCH(QString, unit);
    LogCapture log;
    unsigned int places = 77;
    QTEST(handlerFromJson(pressure).getDecimalPlacesForUnit(unit, places), "known");
    QTEST(places, "expected");
    QCOMPARE(log.takeTexts(), QStringList());
}

void UnitConversionUnitTypeHandlerTest::baseUnitName_data()
{
    QTest::addColumn<QString>("json");
    QTest::addColumn<QString>("unitTypeName");
    QTest::addColumn<QString>("expected");

    const QString noUnit = QStringLiteral(R"({"NoUnit": {}})");
    row("plain name", pressure, "Pressure", "Pressure/Bar");
    row("name with prefix", pressure, typeNamed("Pressure"), typeNamed("Pressure/Bar"));
    row("the name in the query is used", pressure, "Other", "Other/Bar");
    row("empty name", pressure, "", "/Bar");
    row("no unit", pressure, "NoUnit", "NoUnit");
    row("no unit with prefix", noUnit, typeNamed("NoUnit"), typeNamed("NoUnit/NoUnit"));
    row("type marked as without unit", noUnit, "Pressure", "Pressure/NoUnit");
    row("no base unit", R"({"A": {"Polynomial": [1]}})", typeNamed("Plain"), typeNamed("Plain/"));
}

void UnitConversionUnitTypeHandlerTest::baseUnitName()
{
    QFETCH(QString, json);
    QFETCH(QString, unitTypeName);
    LogCapture log;
    QTEST(handlerFromJson(json).getBaseUnit(unitTypeName), "expected");
    QCOMPARE(log.takeTexts(), QStringList());
}

void UnitConversionUnitTypeHandlerTest::copiesAreIndependent()
{
    Handler original = handlerFromJson(pressure);
    const Handler copy = original;
    QVERIFY(original.init(BaseClassSharedPointer()));
    QVERIFY(!knows(original, QStringLiteral("Bar")));
    QVERIFY(knows(copy, QStringLiteral("Bar")));
    QVariant value(2);
    QVERIFY(copy.fromBaseUnit(value, QStringLiteral("HectoPascal")));
    QCOMPARE(exactText(value), exactText(QVariant(2000.0)));
}

static const TestClass<UnitConversionUnitTypeHandlerTest> testClass;
#include "UnitConversionUnitTypeHandlerTest.moc"
