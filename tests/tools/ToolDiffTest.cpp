#include <QtTest/QTest>

#include "FakeBusService.h"
#include "PrivateBus.h"
#include "Row.h"
#include "ServedDirectory.h"
#include "ServiceDocuments.h"
#include "TestFiles.h"
#include "TestProgram.h"
#include "TextFolder.h"
#include "ToolProcess.h"

namespace {

const QString serviceName = "org.measuringdevice.DeviceManager";

/// A unit document with one unit, Pressure/Bar.
QString bar(const QString& members)
{
    return "{\"Pressure\": {\"Bar\": {" + members + "}}}";
}

QString defaultUnit(const QString& members)
{
    return "{\"Pressure\": {" + members + "}}";
}

} // namespace

/// The verb that compares files with the active documents.
class ToolDiffTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void differencesAreNamed_data();
    void differencesAreNamed();
    void equalMeaningIsNoDifference_data();
    void equalMeaningIsNoDifference();
    void differencesArePrintedAsJson();
    void severalFilesAreCompared();
    void serviceAnswersWithItsDocuments();
    void unclearDocumentIsTrouble_data();
    void unclearDocumentIsTrouble();
    void unusableFileIsTrouble();
    void otherFilesAreComparedDespiteTrouble();
    void missingDocumentIsTrouble();
    void missingServiceIsTrouble();
    void rejectsWrongUsage_data();
    void rejectsWrongUsage();

private:
    /// Compares @p text with the active document @p active, of any kind.
    ToolRun compare(const QString& active, const QString& text, const QStringList& options = {});

    PrivateBus m_bus;
    TextFolder m_folder;
};

void ToolDiffTest::initTestCase()
{
    QVERIFY(m_bus.start());
}

ToolRun ToolDiffTest::compare(const QString& active, const QString& text, const QStringList& options)
{
    const FakeBusService service(m_bus.address(), serviceName, FakeBusService::withValue(active));
    const QString path = m_folder.write("document.json", text);
    return ToolProcess::run(QStringList{"diff", path, "--bus", m_bus.address()} + options);
}

void ToolDiffTest::differencesAreNamed_data()
{
    QTest::addColumn<QString>("active");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("lines");

    const QString one = bar("\"DecimalPlaces\": 1");
    row("unit type added", one, R"({"Pressure": {"Bar": {"DecimalPlaces": 1}}, "Time": {}})",
        QByteArray("units: unit type Time added\n"));
    row("unit type removed", R"({"Pressure": {}, "Time": {}})", R"({"Time": {}})",
        QByteArray("units: unit type Pressure removed\n"));
    row("unit added", one, R"({"Pressure": {"Bar": {"DecimalPlaces": 1}, "Torr": {}}})",
        QByteArray("units: unit Pressure/Torr added\n"));
    row("unit removed", R"({"Pressure": {"Bar": {"DecimalPlaces": 1}, "Torr": {}}})", one,
        QByteArray("units: unit Pressure/Torr removed\n"));
    row("polynomial", bar("\"Polynomial\": [[0], [750]]"), bar("\"Polynomial\": [[0], [750.06]]"),
        QByteArray("units: Pressure/Bar: Polynomial changed: [[0],[750]] -> [[0],[750.06]]\n"));
    row("order of a list", bar("\"Polynomial\": [[0], [1]]"), bar("\"Polynomial\": [[1], [0]]"),
        QByteArray("units: Pressure/Bar: Polynomial changed: [[0],[1]] -> [[1],[0]]\n"));
    row("member added", bar(""), one, QByteArray("units: Pressure/Bar: DecimalPlaces added: 1\n"));
    row("member removed", one, bar(""), QByteArray("units: Pressure/Bar: DecimalPlaces removed\n"));
    row("type of a value", one, bar("\"DecimalPlaces\": \"1\""),
        QByteArray("units: Pressure/Bar: DecimalPlaces changed: 1 -> \"1\"\n"));
    row("last digit", bar("\"DecimalPlaces\": 0.1"), bar("\"DecimalPlaces\": 0.10000000000000002"),
        QByteArray("units: Pressure/Bar: DecimalPlaces changed: 0.1 -> 0.10000000000000002\n"));
    row("label", bar(R"("UnitLabel": {"@value": {"de": "a", "en": "c"}})"),
        bar(R"("UnitLabel": {"@value": {"en": "c", "de": "b"}})"),
        QByteArray("units: Pressure/Bar: label de changed: \"a\" -> \"b\"\n"));
    row("label added", bar(R"("UnitLabel": {"@value": {}})"), bar(R"("UnitLabel": {"@value": {"de": "b"}})"),
        QByteArray("units: Pressure/Bar: label de added: \"b\"\n"));
    row("label of another form", bar(R"("UnitLabel": "a")"), bar(R"("UnitLabel": {"@value": {"de": "b"}})"),
        QByteArray("units: Pressure/Bar: UnitLabel changed: \"a\" -> {\"de\":\"b\"}\n"));
    row("control character", bar(R"("UnitLabel": "a")"), bar(R"("UnitLabel": "\u009b31m")"),
        QByteArray("units: Pressure/Bar: UnitLabel changed: \"a\" -> \"?31m\"\n"));
    row("property of a type", R"({"Pressure": {"@x": 1, "Bar": {}}})",
        R"({"Pressure": {"@x": 2, "Bar": {}}})", QByteArray("units: Pressure: @x changed: 1 -> 2\n"));
    row("several, sorted by path", R"({"B": {"x": {}}, "A": {"y": {}}})", R"({"C": {}, "A": {"z": {}}})",
        QByteArray("units: unit A/y removed\nunits: unit A/z added\nunits: unit type B removed\n"
                   "units: unit type C added\n"));
    row("default unit", defaultUnit(R"("@type": "Selection", "@value": "Bar")"),
        defaultUnit(R"("@type": "Selection", "@value": "HectoPascal")"),
        QByteArray("default-units: default unit of Pressure changed: Bar -> HectoPascal\n"));
    row("default unit added", R"({"A": {"@type": "Selection", "@value": "x"}})",
        R"({"A": {"@type": "Selection", "@value": "x"}, "B": {"@type": "Selection", "@value": "y"}})",
        QByteArray("default-units: default unit of B added: y\n"));
    row("property of a default unit", defaultUnit(R"("@type": "Selection", "@value": "Bar")"),
        defaultUnit(R"("@type": "Selection", "@value": "Bar", "@readOnly": true)"),
        QByteArray("default-units: default unit of Pressure: @readOnly added: true\n"));
    row("dependents", R"({"PressureUnit": ["A"]})", R"({"PressureUnit": ["A", "B"]})",
        QByteArray("dependencies: PressureUnit: dependents changed: [\"A\"] -> [\"A\",\"B\"]\n"));
    row("dependents added", "{}", R"({"PressureUnit": ["A"]})",
        QByteArray("dependencies: PressureUnit: dependents added: [\"A\"]\n"));
}

void ToolDiffTest::differencesAreNamed()
{
    QFETCH(QString, active);
    QFETCH(QString, text);
    QFETCH(QByteArray, lines);
    const ToolRun run = compare(active, text);
    QCOMPARE(run.standardOutput, lines);
    QCOMPARE(run.standardError, QByteArray());
    QCOMPARE(run.exitCode, 1);
}

void ToolDiffTest::equalMeaningIsNoDifference_data()
{
    QTest::addColumn<QString>("active");
    QTest::addColumn<QString>("text");

    row("same text", bar("\"DecimalPlaces\": 1"), bar("\"DecimalPlaces\": 1"));
    row("number", bar("\"Polynomial\": [[0], [100000]]"), bar("\"Polynomial\": [[-0.0], [1.0e5]]"));
    row("order of members", R"({"A": {"x": {}, "y": {"a": 1, "b": 2}}, "B": {}})",
        R"({"B": {}, "A": {"y": {"b": 2, "a": 1}, "x": {}}})");
    row("blanks", bar("\"a\": [1, 2]"), bar("\n\"a\" :\t[1,2]\r\n"));
    row("notes for editors", R"({"$schema": "x", "Pressure": {}})", R"({"$comment": [1], "Pressure": {}})");
    row("escaped character", bar(R"("UnitLabel": "\u00b0C")"), bar("\"UnitLabel\": \"\u00b0C\""));
    row("short form", bar("\"DecimalPlaces\": 1"), bar("\"DecimalPlaces\": {\"@value\": 1}"));
    row("whole identifier of a default unit", defaultUnit(R"("@type": "Selection", "@value": "Bar")"),
        defaultUnit(R"("@type": "Selection", "@value": "UnitManager/UnitType/Pressure/Bar")"));
    row("dependencies", R"({"A": ["x"], "B": []})", R"({"B": [], "A": ["x"]})");
}

void ToolDiffTest::equalMeaningIsNoDifference()
{
    QFETCH(QString, active);
    QFETCH(QString, text);
    const ToolRun run = compare(active, text);
    QCOMPARE(run.standardOutput, QByteArray());
    QCOMPARE(run.standardError, QByteArray());
    QCOMPARE(run.exitCode, 0);
}

void ToolDiffTest::differencesArePrintedAsJson()
{
    const ToolRun run = compare(R"({"Pressure": {"Bar": {"a": [1], "b": 2}}, "Time": {}})",
                                R"({"Pressure": {"Bar": {"a": [1.5], "c": "x"}}, "Time": {}})", {"--json"});
    const QByteArray file = "\"file\":\"" + m_folder.path("document.json").toUtf8() + '"';
    const QByteArray units = "\"document\":\"units\",";
    QCOMPARE(run.standardOutput, "{\"after\":[1.5],\"before\":[1],\"change\":\"changed\"," + units + file +
                                     ",\"path\":\"Pressure/Bar/a\"}\n"
                                     "{\"after\":null,\"before\":2,\"change\":\"removed\"," +
                                     units + file +
                                     ",\"path\":\"Pressure/Bar/b\"}\n"
                                     "{\"after\":\"x\",\"before\":null,\"change\":\"added\"," +
                                     units + file + ",\"path\":\"Pressure/Bar/c\"}\n");
    QCOMPARE(run.exitCode, 1);
}

void ToolDiffTest::severalFilesAreCompared()
{
    ServedDirectory served;
    QVERIFY(served.start());
    const QString units = m_folder.write("a", ServiceDocuments::units("other"));
    const QString defaults = m_folder.write("b", ServiceDocuments::defaultUnits("first"));
    const QString dependencies = m_folder.write("c", ServiceDocuments::dependencies("other"));
    const ToolRun run =
        ToolProcess::run({"diff", dependencies, defaults, units, "--bus", served.bus().address()});
    QCOMPARE(run.standardOutput,
             QByteArray("dependencies: PressureUnit: dependents changed: [\"first\"] -> [\"other\"]\n"
                        "units: Pressure/Bar: label en changed: \"first\" -> \"other\"\n"));
    QCOMPARE(run.standardError, QByteArray());
    QCOMPARE(run.exitCode, 1);
}

void ToolDiffTest::serviceAnswersWithItsDocuments()
{
    ServedDirectory served;
    QVERIFY(served.start());
    QProcessEnvironment environment = ToolProcess::plainEnvironment();
    environment.insert("DEVICE_BUS", served.bus().address());
    const ToolRun run =
        ToolProcess::run({"diff", served.path("units.json"), served.path("default-units.json"),
                          served.path("dependencies.json")},
                         {}, environment);
    QCOMPARE(run.standardOutput, QByteArray());
    QCOMPARE(run.standardError, QByteArray());
    QCOMPARE(run.exitCode, 0);
}

void ToolDiffTest::unclearDocumentIsTrouble_data()
{
    QTest::addColumn<QString>("text");

    row("no entries", "{}");
    row("notes only", R"({"$schema": "x", "@displayPosition": 0})");
    row("texts", R"({"Pressure": "Bar"})");
    row("null", R"({"Pressure": null})");
    row("objects of texts", R"({"Pressure": {"Bar": "bar"}})");
    row("several kinds", R"({"Pressure": {"Bar": {}}, "PressureUnit": ["Pressure"]})");
}

void ToolDiffTest::unclearDocumentIsTrouble()
{
    QFETCH(QString, text);
    const ToolRun run = compare("{}", text);
    QCOMPARE(run.standardError, "unitmanager: " + m_folder.path("document.json").toUtf8() +
                                    ": is not clearly units, default units or dependencies\n");
    QCOMPARE(run.standardOutput, QByteArray());
    QCOMPARE(run.exitCode, 2);
}

void ToolDiffTest::unusableFileIsTrouble()
{
    const ToolRun run = compare("{}", "{\n]");
    const QByteArray beginning = "unitmanager: " + m_folder.path("document.json").toUtf8() + ":2:1: ";
    QVERIFY2(run.standardError.startsWith(beginning), run.standardError.constData());
    QCOMPARE(run.standardError.count('\n'), 1);
    QCOMPARE(run.standardOutput, QByteArray());
    QCOMPARE(run.exitCode, 2);
}

void ToolDiffTest::otherFilesAreComparedDespiteTrouble()
{
    const FakeBusService service(m_bus.address(), serviceName, FakeBusService::withValue(QString("{}")));
    const QString path = m_folder.write("document.json", R"({"A": []})");
    const QString missing = m_folder.path("missing.json");
    const ToolRun run = ToolProcess::run({"diff", missing, path, "--bus", m_bus.address()});
    QCOMPARE(run.standardError, "unitmanager: " + missing.toUtf8() + ": no such file\n");
    QCOMPARE(run.standardOutput, QByteArray("dependencies: A: dependents added: []\n"));
    QCOMPARE(run.exitCode, 2);
}

void ToolDiffTest::missingDocumentIsTrouble()
{
    ServedDirectory served;
    QVERIFY(TestFiles::write(served.path("units.json"), "{}"));
    QVERIFY(served.start());
    const QString path = m_folder.write("document.json", bar(""));
    const ToolRun run = ToolProcess::run({"diff", path, "--bus", served.bus().address()});
    QCOMPARE(run.standardError,
             "unitmanager: the configuration service has no valid document \"units\" yet: " +
                 served.path("units.json").toUtf8() + ":1:1: the document has no unit types\n");
    QCOMPARE(run.standardOutput, QByteArray());
    QCOMPARE(run.exitCode, 2);
}

void ToolDiffTest::missingServiceIsTrouble()
{
    const QString path = m_folder.write("document.json", bar(""));
    const ToolRun run = ToolProcess::run({"diff", path, "--bus", m_bus.address()});
    QCOMPARE(run.standardError,
             "unitmanager: no configuration service on the bus " + m_bus.address().toUtf8() + '\n');
    QCOMPARE(run.standardOutput, QByteArray());
    QCOMPARE(run.exitCode, 2);
}

void ToolDiffTest::rejectsWrongUsage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("message");

    row("no file", QStringList(), QByteArray("FILE is missing"));
    row("not a bus", QStringList{"x", "--bus", "x"},
        QByteArray("\"x\" is not a valid bus: expected session, system or a D-Bus address"));
    row("size that is not a number", QStringList{"x", "--max-size", "x"},
        QByteArray("--max-size must be a number of bytes from 1 to 1073741824"));
}

void ToolDiffTest::rejectsWrongUsage()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, message);
    const ToolRun run = ToolProcess::run(QStringList("diff") + arguments);
    QCOMPARE(run.standardError,
             "unitmanager: " + message +
                 "\nunitmanager: usage: unitmanager diff [options] FILE...; more with --help\n");
    QCOMPARE(run.standardOutput, QByteArray());
    QCOMPARE(run.exitCode, 2);
}

static const TestClass<ToolDiffTest> testClass;
#include "ToolDiffTest.moc"
