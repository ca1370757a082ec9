#include "DocumentRules.h"

#include <QtTest/QTest>

#include "DependencyWalker.h"
#include "LogCapture.h"
#include "ServiceDocuments.h"
#include "TestProgram.h"
#include "UnitManager.h"

/// The accepted documents are those that the libraries of the applications can load.
class DocumentRulesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void units_data();
    void units();
    void defaultUnits_data();
    void defaultUnits();
    void dependencies_data();
    void dependencies();
};

namespace {

void addDocuments(const QList<QPair<const char*, QPair<QByteArray, QString>>>& rows)
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("problem");
    for (const auto& row : rows)
        QTest::newRow(row.first) << row.second.first << row.second.second;
}

JsonText parsed(const QByteArray& bytes)
{
    JsonText json = JsonText::fromBytes(bytes);
    if (!json.problem.isEmpty())
        qFatal("%s", qPrintable(json.problem));
    return json;
}

} // namespace

void DocumentRulesTest::units_data()
{
    addDocuments({
        {"good", {ServiceDocuments::units("bar"), ""}},
        {"no unit type", {"{}", "it contains no unit type"}},
        {"properties only", {R"({"@displayPosition": 0})", "it contains no unit type"}},
        {"unit type without units", {R"({"Pressure": {}})", "it contains no unit label"}},
        {"unit without label",
         {R"({"Pressure": {"Bar": {"@displayPosition": 0, "Polynomial": [[0], [1]]}}})",
          "it contains no unit label"}},
    });
}

void DocumentRulesTest::units()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, problem);

    QCOMPARE(DocumentRules::unitsProblem(parsed(bytes)), problem);
    QCOMPARE(UnitManager().initByJsonString(bytes, QString()), problem.isEmpty());
}

void DocumentRulesTest::defaultUnits_data()
{
    addDocuments({
        {"good", {ServiceDocuments::defaultUnits("Bar"), ""}},
        {"whole identifier",
         {R"({"Pressure": {"@type": "Selection", "@value": "UnitManager/UnitType/Pressure/Bar"}})", ""}},
        {"further properties",
         {R"({"Pressure": {"@type": "Selection", "@value": "Bar", "@readOnly": true}})", ""}},
        {"no entry", {"{}", "it contains no default unit"}},
        {"unit without selection",
         {R"({"Pressure": "Bar"})", "its entry \"Pressure\" is not a selection of a unit"}},
        {"type missing",
         {R"({"Pressure": {"@value": "Bar"}})", "its entry \"Pressure\" is not a selection of a unit"}},
        {"type of another kind",
         {R"({"Pressure": {"@type": "Text", "@value": "Bar"}})",
          "its entry \"Pressure\" is not a selection of a unit"}},
        {"unit missing",
         {R"({"Pressure": {"@type": "Selection"}})", "its entry \"Pressure\" is not a selection of a unit"}},
        {"unit empty",
         {R"({"Pressure": {"@type": "Selection", "@value": ""}})",
          "its entry \"Pressure\" is not a selection of a unit"}},
        {"unit is a number",
         {R"({"Pressure": {"@type": "Selection", "@value": 1}})",
          "its entry \"Pressure\" is not a selection of a unit"}},
        {"one bad among good ones",
         {R"({"A": {"@type": "Selection", "@value": "x"}, "B": null, "C": {"@type": "Selection", "@value": "x"}})",
          "its entry \"B\" is not a selection of a unit"}},
    });
}

void DocumentRulesTest::defaultUnits()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, problem);

    QCOMPARE(DocumentRules::defaultUnitsProblem(parsed(bytes)), problem);
    if (problem.isEmpty())
        QVERIFY(UnitManager().updateDefaultUnitsByJsonString(bytes));
}

void DocumentRulesTest::dependencies_data()
{
    addDocuments({
        {"good", {ServiceDocuments::dependencies("Pressure"), ""}},
        {"no entry", {"{}", ""}},
        {"entry without dependents", {R"({"PressureUnit": []})", ""}},
        {"circle", {R"({"A": ["B"], "B": ["A"]})", ""}},
        {"one text",
         {R"({"PressureUnit": "Pressure"})", "its entry \"PressureUnit\" is not a list of texts"}},
        {"object", {R"({"PressureUnit": {}})", "its entry \"PressureUnit\" is not a list of texts"}},
        {"null", {R"({"PressureUnit": null})", "its entry \"PressureUnit\" is not a list of texts"}},
        {"number among texts", {R"({"A": ["B"], "C": ["D", 1]})", "its entry \"C\" is not a list of texts"}},
    });
}

void DocumentRulesTest::dependencies()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, problem);

    QCOMPARE(DocumentRules::dependenciesProblem(parsed(bytes)), problem);
    const LogCapture log;
    QCOMPARE(DependencyWalker().initDependencyGraphByJsonString(bytes), problem.isEmpty());
}

static const TestClass<DocumentRulesTest> testClass;
#include "DocumentRulesTest.moc"
