#include <QtCore/QDir>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonValue>
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
    void listsUnitsInDisplayOrder();
    void replacesOneDocumentAlone();
    void readsFromAPipe();
    void refusesALargeDocument_data();
    void refusesALargeDocument();
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
    addRow("missing comma", "{\n  \"A\": {},\n  \"B\": {}\n  \"C\": {}\n}\n", "4:3: expected \",\" or \"}\"");
    addRow("missing colon", "{\"A\" {}}", "1:6: expected \":\" after the name");
    addRow("name without quotes", "{\n\tA: 1}", "2:2: expected a name in double quotes");
    addRow("unknown word", "{\"A\":\n  true,\n  \"B\": nothing}",
           "3:8: unknown word \"nothing\"; write text in double quotes");
    addRow("invalid number", "{\"A\": 'x'}", "1:7: write double quotes instead of single quotes");
    addRow("text after the end", "{}\n\n}", "3:1: expected the end of the document");
    addRow("end too early", "{\"A\": {\n",
           "2:1: unexpected end; the \"{\" at line 1, column 7 is not closed");
    addRow("column in characters, not bytes", "{\"\xC3\xA4\xE2\x82\x82\": 1 2}",
           "1:10: expected \",\" or \"}\"");
    addRow("byte order mark does not count", "\xEF\xBB\xBF{\"A\" 1}", "1:6: expected \":\" after the name");
    addRow("lines that end in carriage return and line feed", "{\r\n\"A\": 1\r\n\"B\": 2}",
           "3:1: expected \",\" or \"}\"");
    addRow("Latin-1 letter", "{\n  \"A\": \"\xE4\"}", "2:9: not UTF-8; save the document in that encoding");
    addRow("letter cut in the middle", "{\"A\": \"\xC3",
           "1:8: not UTF-8; save the document in that encoding");
    addRow("not JSON at all", "Pressure = bar\n", "1:1: expected \"{\" at the start of the document");
    addRow("array", "[1]", "1:1: expected \"{\" at the start of the document");
    addRow("unit given twice", "{\"A\": {\"B\": {},\n \"B\": {}}}",
           "2:2: duplicate name \"B\"; first at line 1, column 8");
    addRow("number too large", "{\"A\": 1e999}",
           "1:7: too large for a number of double precision, whose limit is about 1.8e308");
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
    QTest::newRow("note for editors alone") << QByteArray("{\"$schema\": \"x\"}") << noTypes;
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
             "unitmanager: " + folder.path("missing.json").toUtf8() + ": no such file\n");
    QCOMPARE(missingRun.exitCode, 1);
    const ToolRun lostRun = ToolProcess::run({"types", "--units", folder.path("lost/units.json")});
    QCOMPARE(lostRun.standardError, "unitmanager: " + folder.path("lost/units.json").toUtf8() +
                                        ": no such directory: " + folder.path("lost").toUtf8() + '\n');
    QCOMPARE(lostRun.exitCode, 1);
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
    row("notes for editors", QByteArray(lengthDocument).replace(0, 1, R"({"$schema": "x", "$n": {"a": 1}, )"),
        QByteArray(lengthDefault).replace(0, 1, R"({"$schema": "x", )"), withDefault);
    row("default units with notes alone", lengthDocument, QByteArray(R"({"$schema": "x"})"), withoutDefault);
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

void ToolDocumentsTest::listsUnitsInDisplayOrder()
{
    const QByteArray conversion = R"("Polynomial": [[0], [1]], "InversePolynomial": [[0], [1]]})";
    const auto unit = [&conversion](const char* name, const char* position) {
        return QByteArray("\"") + name + "\": {" + position + conversion;
    };
    // By position, then by name; a unit without a usable position comes last.
    const QByteArray document =
        "{\"Length\": {" + unit("B", "") + ',' + unit("A", R"("@displayPosition": null, )") + ',' +
        unit("Tenth", R"("@displayPosition": 10, )") + ',' + unit("D", R"("@displayPosition": 2, )") + ',' +
        unit("C", R"("@displayPosition": 2, )") + ',' + unit("Zero", R"("@displayPosition": 0, )") + "}}";
    const Folder folder;
    const QStringList options{"--units", folder.file("units.json", document), "--default-units",
                              folder.file("default-units.json", "")};
    QCOMPARE(ToolProcess::run(QStringList{"units", "Length"} + options).standardOutput,
             QByteArray("Zero   base unit\nC\nD\nTenth\nA\nB\n"));
    QCOMPARE(ToolProcess::run(QStringList{"table", "5", "Length", "Zero", "--raw"} + options).standardOutput,
             QByteArray("Zero   5\nC      5\nD      5\nTenth  5\nA      5\nB      5\n"));
    QCOMPARE(ToolProcess::run(QStringList{"labels"} + options).standardOutput,
             QByteArray("type    unit\nLength  Zero\nLength  C\nLength  D\nLength  Tenth\nLength  A\n"
                        "Length  B\n"));
    QCOMPARE(ToolProcess::run(QStringList{"label", "Length", "X"} + options).standardError,
             QByteArray("unitmanager: unknown unit \"X\" of Length; known: Zero, C, D, Tenth, A, B\n"));

    for (const QStringList& verb :
         {QStringList{"units", "Length"}, QStringList{"table", "5", "Zero"}, QStringList{"labels"}}) {
        const QByteArray lines = ToolProcess::run(verb + QStringList("--json") + options).standardOutput;
        QByteArrayList units;
        for (const QByteArray& line : lines.trimmed().split('\n'))
            units.append(QJsonDocument::fromJson(line)["unit"].toString().toUtf8());
        QCOMPARE(units, QByteArrayList({"Zero", "C", "D", "Tenth", "A", "B"}));
    }
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
    QCOMPARE(run.standardError, QByteArray("unitmanager: Length has no default unit; known: Meter (m)\n"));
    QCOMPARE(run.exitCode, 1);
}

void ToolDocumentsTest::readsFromAPipe()
{
    const ToolRun run = ToolProcess::run({"types", "--units", "/dev/stdin"}, lengthDocument);
    QCOMPARE(run.standardError, QByteArray());
    QCOMPARE(run.standardOutput, QByteArray("Length\n"));

    const Folder folder;
    const QString path = folder.file("units.json", lengthDocument);
    const QString command = QString("'%1' types --units <(cat '%2')").arg(ToolProcess::path(), path);
    const ToolRun substitution = ToolProcess::runProgram("bash", {"-c", command});
    QCOMPARE(substitution.standardError, QByteArray());
    QCOMPARE(substitution.standardOutput, QByteArray("Length\n"));
}

void ToolDocumentsTest::refusesALargeDocument_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<int>("limit");

    row("default", QStringList(), 1048576);
    row("other limit", QStringList{"--max-size", "100000"}, 100000);
}

void ToolDocumentsTest::refusesALargeDocument()
{
    QFETCH(QStringList, options);
    QFETCH(int, limit);
    const Folder folder;
    const QString large = folder.file("large.json", QByteArray(limit + 1, ' '));
    const QString allowed = folder.file("allowed.json", QByteArray(limit, ' '));
    for (const char* option : {"--units", "--default-units"}) {
        for (const QString& path : {large, QString("/dev/zero")}) {
            const ToolRun run = ToolProcess::run(QStringList{"types", option, path} + options);
            QCOMPARE(run.standardError, "unitmanager: " + path.toUtf8() + ": is larger than the limit of " +
                                            QByteArray::number(limit) + " bytes; see --max-size\n");
            QCOMPARE(run.standardOutput, QByteArray());
            QCOMPARE(run.exitCode, 1);
        }
    }
    QCOMPARE(ToolProcess::run(QStringList{"types", "--default-units", allowed} + options).exitCode, 0);
}

static const TestClass<ToolDocumentsTest> testClass;
#include "ToolDocumentsTest.moc"
