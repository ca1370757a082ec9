#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QJsonValue>
#include <QtTest/QTest>

#include <algorithm>

#include "Row.h"
#include "TestProgram.h"
#include "ToolProcess.h"

/// Control characters of documents and arguments do not reach the terminal.
class ToolControlCharactersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void replacesThemInText_data();
    void replacesThemInText();
    void escapesThemInJson_data();
    void escapesThemInJson();
    void replacesThemInMessages_data();
    void replacesThemInMessages();
    void replacesThemInTheLog();
    void checkShowsNone_data();
    void checkShowsNone();
};

namespace {

/// ESC and an 8-bit control sequence, a line break, DEL, and a bidirectional override.
const QByteArray hostile = R"(\u001b[31m\u009b1m\n\u007f\u202e)";
const QByteArray harmless = "?[31m?1m???";

/// A unit and its label are hostile.
QByteArray document()
{
    return QByteArray(R"({"Length": {"U#": {"@displayPosition": 0, "DecimalPlaces": 1, "UnitLabel":
{"@value": {"en": "L#"}}, "Polynomial": [[0], [1]], "InversePolynomial": [[0], [1]]}}})")
        .replace('#', hostile);
}

QString decoded(const QByteArray& escaped)
{
    return QJsonDocument::fromJson("{\"text\":\"" + escaped + "\"}").object().value("text").toString();
}

/// Whether the text has no control characters other than line breaks.
bool isHarmless(const QByteArray& text)
{
    const QString characters = QString::fromUtf8(text);
    return std::none_of(characters.begin(), characters.end(), [](QChar character) {
        const QChar::Category category = character.category();
        return character != '\n' && (category == QChar::Other_Control || category == QChar::Other_Format);
    });
}

ToolRun runWithDocument(const QStringList& arguments)
{
    return ToolProcess::run(arguments + QStringList{"--units", "/dev/stdin"}, document());
}

} // namespace

void ToolControlCharactersTest::replacesThemInText_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("standardOutput");
    const QString unit = decoded("U" + hostile);
    row("units", QStringList{"units", "Length"}, "U" + harmless + "  L" + harmless + "  base unit\n");
    row("convert", QStringList{"convert", "1", unit, unit}, "1.0 L" + harmless + "\n");
    row("table", QStringList{"table", "1", unit}, "U" + harmless + "  1.0 L" + harmless + "\n");
    row("label", QStringList{"label", unit}, "L" + harmless + "\n");
    row("labels", QStringList{"labels"},
        "type    unit          en\nLength  U" + harmless + "  L" + harmless + "\n");
}

void ToolControlCharactersTest::replacesThemInText()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, standardOutput);
    const ToolRun run = runWithDocument(arguments);
    QCOMPARE(run.standardError, QByteArray());
    QCOMPARE(run.standardOutput, standardOutput);
    QCOMPARE(run.exitCode, 0);
}

void ToolControlCharactersTest::escapesThemInJson_data()
{
    QTest::addColumn<QStringList>("arguments");
    const QString unit = decoded("U" + hostile);
    QTest::newRow("units") << QStringList{"units", "Length"};
    QTest::newRow("convert") << QStringList{"convert", "1", unit, unit};
    QTest::newRow("table") << QStringList{"table", "1", unit};
    QTest::newRow("label") << QStringList{"label", unit};
    QTest::newRow("labels") << QStringList{"labels"};
}

void ToolControlCharactersTest::escapesThemInJson()
{
    QFETCH(QStringList, arguments);
    const ToolRun run = runWithDocument(arguments + QStringList("--json"));
    QCOMPARE(run.standardError, QByteArray());
    QCOMPARE(run.exitCode, 0);
    QVERIFY2(run.standardOutput.contains("U" + hostile), run.standardOutput.constData());
    QVERIFY2(run.standardOutput.contains("L" + hostile), run.standardOutput.constData());
    QCOMPARE(QJsonDocument::fromJson(run.standardOutput)["unit"].toString(), decoded("U" + hostile));
}

void ToolControlCharactersTest::replacesThemInMessages_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("message");
    QTest::addColumn<int>("exitCode");
    const QString word = decoded(hostile);
    const QByteArray quoted = '"' + harmless + '"';
    const QString unit = decoded("U" + hostile);
    const QByteArray shown = "U" + harmless + " (L" + harmless + ")";
    row("unit", QStringList{"convert", "1", "Length", word},
        "unknown unit " + quoted + " of Length; known: " + shown + "; did you mean " + shown + "?\n", 1);
    row("unit without type", QStringList{"convert", "1", word},
        "unknown unit type or unit " + quoted + "; known unit types: Length; did you mean " + shown +
            " of Length?\n",
        1);
    row("value", QStringList{"table", word, "Length", unit},
        quoted + " is not a decimal number such as -1234.5 or 1e-3, within the range of a double\n"
                 "unitmanager: usage: unitmanager table [options] VALUE [TYPE] FROM; more with --help\n",
        2);
    row("file", QStringList{"types", "--default-units", "/no" + word}, "/no" + harmless + ": no such file\n",
        1);
    row("option", QStringList{"types", "--x" + word},
        "unknown option \"x" + harmless +
            "\"\nunitmanager: usage: unitmanager types [options]; more with --help\n",
        2);
    row("argument", QStringList{"types", word},
        "too many arguments: " + quoted +
            "\nunitmanager: usage: unitmanager types [options]; more with --help\n",
        2);
}

void ToolControlCharactersTest::replacesThemInMessages()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, message);
    QFETCH(int, exitCode);
    const ToolRun run = runWithDocument(arguments);
    QCOMPARE(run.standardError, "unitmanager: " + message);
    QCOMPARE(run.standardOutput, QByteArray());
    QCOMPARE(run.exitCode, exitCode);
}

void ToolControlCharactersTest::replacesThemInTheLog()
{
    const QByteArray units =
        document().replace("\"@displayPosition\": 0", "\"@displayPosition\": [\"" + hostile + "\"]");
    const ToolRun run = ToolProcess::run({"types", "--units", "/dev/stdin", "--verbose"}, units);
    QVERIFY2(run.standardError.contains("Cannot convert displayPosition"), run.standardError.constData());
    QVERIFY2(isHarmless(run.standardError), run.standardError.constData());
}

void ToolControlCharactersTest::checkShowsNone_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::newRow("text") << QStringList();
    QTest::newRow("JSON") << QStringList("--json");
    QTest::newRow("SARIF") << QStringList("--sarif");
}

void ToolControlCharactersTest::checkShowsNone()
{
    QFETCH(QStringList, options);
    const QByteArray units = QByteArray("{\t\"A#\": {}}").replace('#', hostile);
    const ToolRun run = ToolProcess::run(QStringList{"check", "--units", "/dev/stdin"} + options, units);
    QCOMPARE(run.standardError, QByteArray());
    QVERIFY2(isHarmless(run.standardOutput), run.standardOutput.constData());
    QVERIFY2(run.standardOutput.contains("A" + harmless), run.standardOutput.constData());
    QCOMPARE(run.exitCode, 1);
}

static const TestClass<ToolControlCharactersTest> testClass;
#include "ToolControlCharactersTest.moc"
