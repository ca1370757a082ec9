#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include "Row.h"
#include "TestFiles.h"
#include "TestProgram.h"
#include "ToolProcess.h"

/// The tool's documents: which ones it accepts, and how it reports faults in them.
class ToolDocumentsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void placesTheFault_data();
    void placesTheFault();
    void namesAFileThatIsNotADocument_data();
    void namesAFileThatIsNotADocument();
    void namesUnusableDefaultUnits_data();
    void namesUnusableDefaultUnits();
    void loadsTheDocument_data();
    void loadsTheDocument();
    void replacesOneDocumentAlone();
    void readsFromAPipe();
};

namespace {

const QByteArray lengthDocument = R"({"Length": {"Meter": {"@displayPosition": 0, "DecimalPlaces": 2,
"Polynomial": [[0], [1]], "InversePolynomial": [[0], [1]], "UnitLabel": "m"}}})";
const QByteArray lengthDefault = R"({"Length": {"@type": "Selection", "@value": "Meter"}})";

/// A folder that contains the given files.
class Folder
{
public:
    QString file(const QString& name, const QByteArray& content) const
    {
        return TestFiles::write(path(name), content) ? path(name) : QString();
    }
    QString path(const QString& name) const
    {
        return m_folder.filePath(name);
    }

private:
    QTemporaryDir m_folder;
};

} // namespace

void ToolDocumentsTest::placesTheFault_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QByteArray>("problem");
    const auto addRow = [](const char* name, const char* content, const char* problem) {
        row(name, QByteArray(content), QByteArray(problem));
    };
    addRow("missing comma", "{\n  \"A\": {},\n  \"B\": {}\n  \"C\": {}\n}\n", "4:3: unterminated object");
    addRow("missing colon", "{\"A\" {}}", "1:6: missing name separator");
    addRow("name without quotes", "{\n\tA: 1}", "2:2: unterminated object");
    addRow("unknown word", "{\"A\":\n  true,\n  \"B\": nothing}", "3:9: illegal value");
    addRow("invalid number", "{\"A\": 'x'}", "1:7: illegal number");
    addRow("text after the end", "{}\n\n}", "3:1: garbage at the end of the document");
    addRow("end too early", "{\"A\": {\n", "1:8: unterminated object");
    addRow("column in characters, not bytes", "{\"\xC3\xA4\xE2\x82\x82\": 1 2}", "1:10: unterminated object");
    addRow("byte order mark does not count", "\xEF\xBB\xBF{\"A\" 1}", "1:6: missing name separator");
    addRow("lines that end in carriage return and line feed", "{\r\n\"A\": 1\r\n\"B\": 2}",
           "3:1: unterminated object");
    addRow("Latin-1 letter", "{\n  \"A\": \"\xE4\"}", "2:9: not UTF-8");
    addRow("letter cut in the middle", "{\"A\": \"\xC3", "1:8: not UTF-8");
    addRow("not JSON at all", "Pressure = bar\n", "1:1: illegal value");
}

void ToolDocumentsTest::placesTheFault()
{
    QFETCH(QByteArray, content);
    QFETCH(QByteArray, problem);
    const Folder folder;
    const QString path = folder.file("faulty.json", content);
    for (const char* option : {"--units", "--default-units"}) {
        const ToolRun run = ToolProcess::run({"types", option, path});
        QCOMPARE(run.standardError, "unitmanager: " + path.toUtf8() + ':' + problem + '\n');
        QCOMPARE(run.standardOutput, QByteArray());
        QCOMPARE(run.exitCode, 1);
    }
}

void ToolDocumentsTest::namesAFileThatIsNotADocument_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QByteArray>("reason");
    const QByteArray noTypes = "contains no unit types that the library can read";
    QTest::newRow("empty") << QByteArray() << noTypes;
    QTest::newRow("blank") << QByteArray(" \n") << noTypes;
    QTest::newRow("object without types") << QByteArray("{}") << noTypes;
    QTest::newRow("array") << QByteArray("[1]") << QByteArray("is not a JSON object");
}

void ToolDocumentsTest::namesAFileThatIsNotADocument()
{
    QFETCH(QByteArray, content);
    QFETCH(QByteArray, reason);
    const Folder folder;
    const QString path = folder.file("units.json", content);
    const ToolRun run = ToolProcess::run({"types", "--units", path});
    QCOMPARE(run.standardError, "unitmanager: " + path.toUtf8() + ": " + reason + '\n');
    QCOMPARE(run.standardOutput, QByteArray());
    QCOMPARE(run.exitCode, 1);

    const ToolRun folderRun = ToolProcess::run({"types", "--units", folder.path("")});
    QCOMPARE(folderRun.standardError, "unitmanager: " + folder.path("").toUtf8() + ": is a directory\n");
    QCOMPARE(folderRun.exitCode, 1);
    const ToolRun missingRun = ToolProcess::run({"types", "--units", folder.path("missing.json")});
    QCOMPARE(missingRun.standardError,
             "unitmanager: " + folder.path("missing.json").toUtf8() + ": No such file or directory\n");
    QCOMPARE(missingRun.exitCode, 1);
}

void ToolDocumentsTest::namesUnusableDefaultUnits_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("wrong kind of node") << QByteArray(R"({"Length": {"@value": "Meter"}})");
}

void ToolDocumentsTest::namesUnusableDefaultUnits()
{
    QFETCH(QByteArray, content);
    const Folder folder;
    const QString path = folder.file("default-units.json", content);
    const ToolRun run = ToolProcess::run({"types", "--default-units", path});
    QCOMPARE(run.standardError,
             "unitmanager: " + path.toUtf8() + ": contains no default units that the library can read\n");
    QCOMPARE(run.exitCode, 1);
}

void ToolDocumentsTest::loadsTheDocument_data()
{
    QTest::addColumn<QByteArray>("units");
    QTest::addColumn<QByteArray>("defaultUnits");
    QTest::addColumn<QByteArray>("types");
    const QByteArray withDefault = "{\"baseUnit\":\"Meter\",\"defaultUnit\":\"Meter\",\"type\":\"Length\"}\n";
    const QByteArray withoutDefault = "{\"baseUnit\":\"Meter\",\"defaultUnit\":null,\"type\":\"Length\"}\n";
    row("plain", lengthDocument, lengthDefault, withDefault);
    row("byte order mark", "\xEF\xBB\xBF" + lengthDocument, "\xEF\xBB\xBF" + lengthDefault, withDefault);
    row("carriage returns", QByteArray(lengthDocument).replace('\n', "\r\n"), lengthDefault + "\r\n",
        withDefault);
    row("empty default units", lengthDocument, QByteArray(), withoutDefault);
    row("default units without content", lengthDocument, QByteArray("{}\n"), withoutDefault);
    row("no label", QByteArray(lengthDocument).replace(", \"UnitLabel\": \"m\"", ""), lengthDefault,
        withDefault);
}

void ToolDocumentsTest::loadsTheDocument()
{
    QFETCH(QByteArray, units);
    QFETCH(QByteArray, defaultUnits);
    QFETCH(QByteArray, types);
    const Folder folder;
    const ToolRun run = ToolProcess::run({"types", "--json", "--units", folder.file("units.json", units),
                                          "--default-units", folder.file("default.json", defaultUnits)});
    QCOMPARE(run.standardError, QByteArray());
    QCOMPARE(run.standardOutput, types);
    QCOMPARE(run.exitCode, 0);
}

void ToolDocumentsTest::replacesOneDocumentAlone()
{
    const Folder folder;
    const QString pressureDefault =
        folder.file("default.json", R"({"Pressure": {"@type": "Selection", "@value": "Pascal"}})");
    QCOMPARE(ToolProcess::run({"convert", "1", "Pressure", "Bar", "--default-units", pressureDefault})
                 .standardOutput,
             QByteArray("100000 Pa\n"));

    const ToolRun run = ToolProcess::run(
        {"convert", "1", "Length", "Meter", "--units", folder.file("units.json", lengthDocument)});
    QCOMPARE(run.standardError, QByteArray("unitmanager: Length has no default unit; known: Meter\n"));
    QCOMPARE(run.exitCode, 1);
}

void ToolDocumentsTest::readsFromAPipe()
{
    const ToolRun run = ToolProcess::run({"types", "--units", "/dev/stdin"}, lengthDocument);
    QCOMPARE(run.standardError, QByteArray());
    QCOMPARE(run.standardOutput, QByteArray("Length\n"));
}

static const TestClass<ToolDocumentsTest> testClass;
#include "ToolDocumentsTest.moc"
