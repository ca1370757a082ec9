#include <QtCore/QFile>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include "Row.h"
#include "Rule.h"
#include "ServedDirectory.h"
#include "ServiceDocuments.h"
#include "TestFiles.h"
#include "TestProgram.h"
#include "ToolProcess.h"

/// The output of the verb check. What it finds is tested with the corpus of faulty documents.
class ToolCheckTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void findingsAreShownWithTheirLines();
    void longLinesAreNotShown();
    void findingsAreJsonObjects();
    void findingsAreASarifLog();
    void leastSeverityDecides_data();
    void leastSeverityDecides();
    void languagesAreRequired();
    void rangeIsExamined_data();
    void rangeIsExamined();
    void documentsAreCheckedTogether();
    void shippedDocumentsHaveNoFindings();
    void activeDocumentsAreChecked();
    void unreadableDocumentIsTrouble();
    void rulesAreListed();
    void manyUnitsAreChecked();
    void rejectsWrongUsage_data();
    void rejectsWrongUsage();

private:
    ToolRun check(const QStringList& options) const;

    QTemporaryDir m_directory;
    QString m_units;
};

namespace {

/// One error, one warning and one note.
const QByteArray faultyUnits = R"({
  "Flow": {
    "CubicMeterPerHour": { "@displayPosition": 0, "DecimalPlaces": 2, "Polynomial": [[0], [1]],
      "InversePolynomial": [[0], [1]], "UnitLabel": { "@value": { "en": "m³/h", "de": "m³/h" } } },
	"LiterPerMinute": { "@displayPosition": 1, "DecimalPlaces": 0, "Polynomial": [[0], [16.6]],
      "InversePolynomial": [[0], [1]], "UnitLabel": { "@value": { "en": "l/min" } } }
  }
}
)";

const QByteArray note =
    ":5:62: note: with 0 decimal places, a displayed value that is written back unedited changes the stored "
    "value, which has 2; write 1 [decimals-too-few]\n"
    R"(   "LiterPerMinute": { "@displayPosition": 1, "DecimalPlaces": 0, "Polynomial": [[0], [16.6]],)"
    "\n"
    R"(                                                               ^)"
    "\n";
const QByteArray error =
    ":6:7: error: converting to the base unit and back turns 1 into 16.6; values are off by up to "
    "1.37219e+17 ulp, or 5.772e+07 units of the last displayed digit; write [[0], "
    "[0.06024096385542168]] [inverse-wrong]\n"
    R"(        "InversePolynomial": [[0], [1]], "UnitLabel": { "@value": { "en": "l/min" } } })"
    "\n"
    "        ^\n";
const QByteArray warning =
    ":6:40: warning: the label lacks de [language-missing]\n"
    R"(        "InversePolynomial": [[0], [1]], "UnitLabel": { "@value": { "en": "l/min" } } })"
    "\n"
    "                                         ^\n";

QByteArray withFile(const QString& path, const QByteArray& finding)
{
    return path.toUtf8() + finding;
}

} // namespace

void ToolCheckTest::initTestCase()
{
    m_units = m_directory.filePath("units.json");
    QVERIFY(TestFiles::write(m_units, faultyUnits));
}

ToolRun ToolCheckTest::check(const QStringList& options) const
{
    return ToolProcess::run(QStringList{"check", "--units", m_units} + options);
}

void ToolCheckTest::findingsAreShownWithTheirLines()
{
    const ToolRun run = check({});
    QCOMPARE(run.standardOutput, withFile(m_units, note) + withFile(m_units, error) +
                                     withFile(m_units, warning) + "1 error, 1 warning, 1 note\n");
    QCOMPARE(run.standardError, QByteArray());
    QCOMPARE(run.exitCode, 1);
}

void ToolCheckTest::longLinesAreNotShown()
{
    const QString path = m_directory.filePath("one-line.json");
    QVERIFY(TestFiles::write(path, QByteArray(faultyUnits).replace('\n', ' ')));
    const ToolRun run = ToolProcess::run({"check", "--units", path, "--severity", "warning"});
    QCOMPARE(run.standardOutput.count('\n'), 3);
    QVERIFY(run.standardOutput.startsWith(path.toUtf8() + ":1:310: error: "));
    QVERIFY(run.standardOutput.endsWith("\n1 error, 1 warning, 0 notes\n"));
}

void ToolCheckTest::findingsAreJsonObjects()
{
    const ToolRun run = check({"--json", "--severity", "warning"});
    const QList<QByteArray> lines = run.standardOutput.split('\n');
    QCOMPARE(lines.size(), 3);
    QCOMPARE(QJsonDocument::fromJson(lines[1]).object(),
             (QJsonObject{{"file", m_units},
                          {"line", 6},
                          {"column", 40},
                          {"path", "Flow/LiterPerMinute/UnitLabel"},
                          {"severity", "warning"},
                          {"rule", "language-missing"},
                          {"message", "the label lacks de"},
                          {"advice", ""}}));
    QCOMPARE(lines[2], QByteArray());
    QCOMPARE(run.exitCode, 1);
}

void ToolCheckTest::findingsAreASarifLog()
{
    const ToolRun run = check({"--sarif", "--severity", "warning"});
    const QJsonObject log = QJsonDocument::fromJson(run.standardOutput).object();
    QCOMPARE(log["version"].toString(), "2.1.0");
    const QJsonObject content = log["runs"].toArray().at(0).toObject();
    const QJsonObject driver = content["tool"].toObject()["driver"].toObject();
    QCOMPARE(driver["name"].toString(), "unitmanager");
    QCOMPARE(driver["version"].toString(), UNITMANAGER_VERSION);
    const QJsonArray rules = driver["rules"].toArray();
    QCOMPARE(rules.size(), static_cast<int>(Rules::all().size()));
    const QJsonArray results = content["results"].toArray();
    QCOMPARE(results.size(), 2);
    const QJsonObject result = results[1].toObject();
    QCOMPARE(result["ruleId"].toString(), "language-missing");
    QCOMPARE(rules[result["ruleIndex"].toInt()].toObject()["id"].toString(), "language-missing");
    QCOMPARE(result["level"].toString(), "warning");
    QCOMPARE(result["message"].toObject()["text"].toString(), "the label lacks de");
    const QJsonObject location = result["locations"].toArray().at(0).toObject();
    QCOMPARE(location["physicalLocation"].toObject(),
             (QJsonObject{{"artifactLocation", QJsonObject{{"uri", "file://" + m_units}}},
                          {"region", QJsonObject{{"startLine", 6}, {"startColumn", 40}}}}));
    QCOMPARE(location["logicalLocations"].toArray().at(0).toObject()["fullyQualifiedName"].toString(),
             "Flow/LiterPerMinute/UnitLabel");
    QCOMPARE(run.exitCode, 1);
}

void ToolCheckTest::leastSeverityDecides_data()
{
    QTest::addColumn<QString>("severity");
    QTest::addColumn<QByteArray>("standardOutput");

    row("note", "note",
        withFile(m_units, note) + withFile(m_units, error) + withFile(m_units, warning) +
            "1 error, 1 warning, 1 note\n");
    row("warning", "warning",
        withFile(m_units, error) + withFile(m_units, warning) + "1 error, 1 warning, 0 notes\n");
    row("error", "error", withFile(m_units, error) + "1 error, 0 warnings, 0 notes\n");
}

void ToolCheckTest::leastSeverityDecides()
{
    QFETCH(QString, severity);
    QFETCH(QByteArray, standardOutput);

    QCOMPARE(check({"--severity", severity}).standardOutput, standardOutput);
}

void ToolCheckTest::languagesAreRequired()
{
    const QString path = m_directory.filePath("german.json");
    QVERIFY(TestFiles::write(path, ServiceDocuments::units("bar")));
    const QByteArray finding = path.toUtf8() + ":2:36: warning: the label lacks de, fr [language-missing]\n";

    const ToolRun lacking = ToolProcess::run({"check", "--units", path, "--languages", "en,de,fr"});
    QCOMPARE(lacking.standardOutput.left(finding.size()), finding);
    QCOMPARE(lacking.exitCode, 1);
    const ToolRun complete = ToolProcess::run({"check", "--units", path, "--languages", "en"});
    QCOMPARE(complete.standardOutput, QByteArray("no findings\n"));
    QCOMPARE(complete.exitCode, 0);
}

void ToolCheckTest::rangeIsExamined_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<bool>("isMonotonic");

    row("default", QStringList(), true);
    row("without the vertex", QStringList{"--range", "0,100"}, true);
    row("with the vertex", QStringList{"--range", "-100,100"}, false);
}

void ToolCheckTest::rangeIsExamined()
{
    QFETCH(QStringList, options);
    QFETCH(bool, isMonotonic);
    const QString path = m_directory.filePath("parabola.json");
    QVERIFY(TestFiles::write(path, R"({ "Level": {
  "Volt": { "@displayPosition": 0, "DecimalPlaces": 2, "Polynomial": [[0], [1]],
            "InversePolynomial": [[0], [1]], "UnitLabel": { "@value": { "en": "V" } } },
  "Meter": { "@displayPosition": 1, "DecimalPlaces": 2, "Polynomial": [[0], [1], [0.01]],
             "InversePolynomial": [[0], [1]], "UnitLabel": { "@value": { "en": "m" } } } } })"));
    const ToolRun run = ToolProcess::run(QStringList{"check", "--units", path} + options);
    QCOMPARE(run.standardOutput.contains("[not-monotonic]"), !isMonotonic);
    QCOMPARE(run.standardOutput.contains("[inverse-inaccurate]"), isMonotonic);
    QCOMPARE(run.exitCode, 1);
}

void ToolCheckTest::documentsAreCheckedTogether()
{
    const QString path = m_directory.filePath("default-units.json");
    QVERIFY(TestFiles::write(path, R"({ "Flow": { "@type": "Selection", "@value": "LiterPerMinut" } })"));
    const ToolRun run = check({"--default-units", path, "--severity", "warning"});
    QCOMPARE(
        run.standardOutput,
        withFile(m_units, error) + withFile(m_units, warning) + path.toUtf8() +
            ":1:3: warning: \"LiterPerMinut\" is not a unit of \"Flow\"; did you mean \"LiterPerMinute\"? "
            "[default-unit-unknown]\n"
            "  { \"Flow\": { \"@type\": \"Selection\", \"@value\": \"LiterPerMinut\" } }\n"
            "    ^\n"
            "1 error, 2 warnings, 0 notes\n");

    const ToolRun alone = ToolProcess::run({"check", "--default-units", path});
    QCOMPARE(alone.standardOutput, QByteArray("no findings\n"));
    QCOMPARE(alone.exitCode, 0);
}

void ToolCheckTest::shippedDocumentsHaveNoFindings()
{
    const ToolRun run = ToolProcess::run({"check", "--languages", "en,de,fr"});
    QCOMPARE(run.standardOutput, QByteArray("no findings\n"));
    QCOMPARE(run.standardError, QByteArray());
    QCOMPARE(run.exitCode, 0);
}

void ToolCheckTest::activeDocumentsAreChecked()
{
    ServedDirectory served;
    QVERIFY(TestFiles::write(served.path("default-units.json"),
                             R"({ "Pressure": { "@type": "Selection", "@value": "Bra" } })"));
    QVERIFY(served.start());
    const ToolRun run = ToolProcess::run({"check", "--bus", served.bus().address()});
    QCOMPARE(run.standardError, QByteArray());
    QVERIFY(run.standardOutput.startsWith("active default-units:1:3: warning: \"Bra\" is not a unit"));
    QCOMPARE(run.exitCode, 1);
}

void ToolCheckTest::unreadableDocumentIsTrouble()
{
    const ToolRun run = ToolProcess::run({"check", "--units", "/no/such.json"});
    QCOMPARE(run.standardOutput, QByteArray());
    QCOMPARE(run.standardError, QByteArray("unitmanager: /no/such.json: no such directory: /no\n"));
    QCOMPARE(run.exitCode, 2);

    // What can be read is checked nevertheless.
    const ToolRun other = check({"--default-units", "/no/such.json", "--severity", "error"});
    QCOMPARE(other.standardOutput, withFile(m_units, error) + "1 error, 0 warnings, 0 notes\n");
    QCOMPARE(other.exitCode, 2);
}

void ToolCheckTest::rulesAreListed()
{
    const ToolRun run = ToolProcess::run({"check", "--rules"});
    const QList<QByteArray> lines = run.standardOutput.split('\n');
    QCOMPARE(lines.size(), static_cast<int>(Rules::all().size()) + 1);
    QCOMPARE(lines[0], QByteArray("syntax                error    the document is not valid JSON"));
    QCOMPARE(run.exitCode, 0);
}

void ToolCheckTest::manyUnitsAreChecked()
{
    QByteArray text = "{ \"Many\": {\n";
    for (int index = 0; index < 10000; ++index) {
        text += QByteArray(index == 0 ? "" : ",\n") + R"("Unit)" + QByteArray::number(index) +
                R"(": { "@displayPosition": )" + QByteArray::number(index) +
                R"(, "DecimalPlaces": 2, "Polynomial": [[0], [1]], "InversePolynomial": [[0], [1]],)" +
                R"( "UnitLabel": { "@value": { "en": "u)" + QByteArray::number(index) + "\" } } }";
    }
    const QString path = m_directory.filePath("many.json");
    QVERIFY(TestFiles::write(path, text + " } }"));
    const ToolRun run = ToolProcess::run({"check", "--units", path, "--max-size", "10000000"});
    QCOMPARE(run.standardOutput, QByteArray("no findings\n"));
    QCOMPARE(run.exitCode, 0);
}

void ToolCheckTest::rejectsWrongUsage_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QByteArray>("reason");

    row("two formats", QStringList{"--json", "--sarif"}, QByteArray("--json and --sarif cannot be combined"));
    row("unknown severity", QStringList{"--severity", "fatal"},
        QByteArray("--severity must be error, warning or note"));
    row("empty language", QStringList{"--languages", "en,,de"},
        QByteArray("--languages must be a list such as en,de,fr"));
    row("language in upper case", QStringList{"--languages", "en,DE"},
        QByteArray("--languages must be a list such as en,de,fr"));
    row("blank in a list of languages", QStringList{"--languages", "en, de"},
        QByteArray("--languages must be a list such as en,de,fr"));
    row("unknown choice of colors", QStringList{"--color", "sometimes"},
        QByteArray("--color must be auto, always or never"));
    row("empty choice of colors", QStringList{"--color="},
        QByteArray("--color must be auto, always or never"));
    const QByteArray range = "--range must be two numbers, the lower first, such as -40,180";
    row("one limit", QStringList{"--range", "5"}, range);
    row("three limits", QStringList{"--range", "1,2,3"}, range);
    row("limits interchanged", QStringList{"--range", "2,1"}, range);
    row("equal limits", QStringList{"--range", "1,1"}, range);
    row("no number", QStringList{"--range", "a,b"}, range);
    row("infinite limit", QStringList{"--range", "0,inf"}, range);
    row("files and bus", QStringList{"--bus", "session"},
        QByteArray("--bus cannot be combined with names of files"));
    row("argument", QStringList{"units.json"}, QByteArray("too many arguments: \"units.json\""));
}

void ToolCheckTest::rejectsWrongUsage()
{
    QFETCH(QStringList, options);
    QFETCH(QByteArray, reason);

    const ToolRun run = check(options);
    QCOMPARE(run.standardError, "unitmanager: " + reason +
                                    "\nunitmanager: usage: unitmanager check [options]; more with --help\n");
    QCOMPARE(run.standardOutput, QByteArray());
    QCOMPARE(run.exitCode, 2);
}

static const TestClass<ToolCheckTest> testClass;
#include "ToolCheckTest.moc"
