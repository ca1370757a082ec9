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

JsonDocument parsed(const QByteArray& bytes)
{
    DocumentProblem problem;
    const std::optional<JsonDocument> document = JsonDocument::read(bytes, problem);
    if (!document)
        qFatal("%s", qPrintable(problem.withPlace()));
    return *document;
}

/// What a rule finds wrong with a document; empty if it is valid.
QString problemOf(const QByteArray& bytes, bool (*rule)(const JsonDocument&, DocumentProblem&))
{
    DocumentProblem problem;
    const bool isValid = rule(parsed(bytes), problem);
    return isValid ? QString() : problem.withPlace();
}

} // namespace

void DocumentRulesTest::units_data()
{
    addDocuments({
        {"good", {ServiceDocuments::units("bar"), ""}},
        {"no unit type", {"{}", "contains no unit type"}},
        {"properties only", {R"({"@displayPosition": 0})", "contains no unit type"}},
        {"unit type without units", {R"({"Pressure": {}})", "contains no unit label"}},
        {"unit without label",
         {R"({"Pressure": {"Bar": {"@displayPosition": 0, "Polynomial": [[0], [1]]}}})",
          "contains no unit label"}},
    });
}

void DocumentRulesTest::units()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, problem);

    QCOMPARE(problemOf(bytes, DocumentRules::isUnits), problem);
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
        {"no entry", {"{}", "contains no default unit"}},
        {"notes for editors only",
         {R"({"$schema": "x", "@displayPosition": 0})", "contains no default unit"}},
        {"unit without selection",
         {R"({"Pressure": "Bar"})", "line 1, column 14: entry \"Pressure\" is not a selection of a unit"}},
        {"type missing",
         {R"({"Pressure": {"@value": "Bar"}})",
          "line 1, column 14: entry \"Pressure\" is not a selection of a unit"}},
        {"type of another kind",
         {R"({"Pressure": {"@type": "Text", "@value": "Bar"}})",
          "line 1, column 14: entry \"Pressure\" is not a selection of a unit"}},
        {"unit missing",
         {R"({"Pressure": {"@type": "Selection"}})",
          "line 1, column 14: entry \"Pressure\" is not a selection of a unit"}},
        {"unit empty",
         {R"({"Pressure": {"@type": "Selection", "@value": ""}})",
          "line 1, column 14: entry \"Pressure\" is not a selection of a unit"}},
        {"unit is a number",
         {R"({"Pressure": {"@type": "Selection", "@value": 1}})",
          "line 1, column 14: entry \"Pressure\" is not a selection of a unit"}},
        {"one bad among good ones",
         {R"({"A": {"@type": "Selection", "@value": "x"}, "B": null, "C": {"@type": "Selection", "@value": "x"}})",
          "line 1, column 51: entry \"B\" is not a selection of a unit"}},
    });
}

void DocumentRulesTest::defaultUnits()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, problem);

    QCOMPARE(problemOf(bytes, DocumentRules::isDefaultUnits), problem);
    if (problem.isEmpty())
        QVERIFY(UnitManager().updateDefaultUnitsByJsonString(bytes));
}

void DocumentRulesTest::dependencies_data()
{
    addDocuments({
        {"good", {ServiceDocuments::dependencies("Pressure"), ""}},
        {"no entry", {"{}", ""}},
        {"entry without dependents", {R"({"PressureUnit": []})", ""}},
        {"note for editors", {R"({"$schema": "x", "A": []})", ""}},
        {"name with a line break",
         {R"({"A\nB": 1})", "line 1, column 10: entry \"A?B\" is not a list of texts"}},
        {"circle", {R"({"A": ["B"], "B": ["A"]})", ""}},
        {"one text",
         {R"({"PressureUnit": "Pressure"})",
          "line 1, column 18: entry \"PressureUnit\" is not a list of texts"}},
        {"object",
         {R"({"PressureUnit": {}})", "line 1, column 18: entry \"PressureUnit\" is not a list of texts"}},
        {"null",
         {R"({"PressureUnit": null})", "line 1, column 18: entry \"PressureUnit\" is not a list of texts"}},
        {"number among texts",
         {R"({"A": ["B"], "C": ["D", 1]})", "line 1, column 19: entry \"C\" is not a list of texts"}},
    });
}

void DocumentRulesTest::dependencies()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, problem);

    QCOMPARE(problemOf(bytes, DocumentRules::isDependencies), problem);
    const LogCapture log;
    QCOMPARE(DependencyWalker().initDependencyGraphByJsonString(bytes), problem.isEmpty());
}

static const TestClass<DocumentRulesTest> testClass;
#include "DocumentRulesTest.moc"
