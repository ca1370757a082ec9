#include <QtTest/QTest>

#include "Row.h"
#include "ServedDirectory.h"
#include "TestFiles.h"
#include "TestProgram.h"
#include "ToolProcess.h"

/// The words that may be typed next. tests/completion uses them in shells.
class ToolCompleteTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listsWords_data();
    void listsWords();
    void describesWords_data();
    void describesWords();
    void namesOfFilesAreMarked_data();
    void namesOfFilesAreMarked();
    void usesTheActiveDocuments();
    void leavesOutLabelsThatCannotBeTyped();
    void reportsADocumentThatCannotBeRead();
};

namespace {

/// The first columns of the lines.
QStringList wordsOf(const ToolRun& run)
{
    QStringList words;
    for (const QByteArray& line : run.standardOutput.split('\n'))
        words.append(QString::fromUtf8(line.left(line.indexOf('\t'))));
    words.removeLast();
    return words;
}

ToolRun complete(const QStringList& line)
{
    return ToolProcess::run(QStringList{"complete", "--"} + line);
}

QStringList sharedLabels()
{
    return {"--units", ToolProcess::testData("shared-labels.json"), "--default-units",
            ToolProcess::testData("shared-labels-default-units.json")};
}

} // namespace

void ToolCompleteTest::listsWords_data()
{
    QTest::addColumn<QStringList>("line");
    QTest::addColumn<QStringList>("words");
    const QStringList documents = sharedLabels();
    const QStringList types{"Duration", "Length", "Sound", "Time", "Volume"};
    const QStringList length{"Meter", "Mile", "Foot", "m", "Meile", "mi", "Fuß", "ft"};
    const QStringList volume{"Liter", "UsPint", "ImperialPint", "Share", "l", "US-pt", "pt", "l/m"};

    row("verbs", QStringList{""},
        QStringList{"types", "units", "convert", "table", "label", "labels", "check", "get", "diff",
                    "watch"});
    row("options of the program", QStringList{"-"}, QStringList{"-h", "--help", "-v", "--version"});
    row("options of a verb", QStringList{"get", "--"},
        QStringList{"-h", "--help", "-v", "--version", "--verbose", "--bus", "--state", "--json"});
    row("unknown verb", QStringList{"invert", ""}, QStringList{});
    row("number", QStringList{"convert", ""}, QStringList{});
    row("types", QStringList{"units"} + documents + QStringList{""}, types);
    row("types first", QStringList{"convert", "1"} + documents + QStringList{""}, types);
    row("units of a type", QStringList{"convert", "1", "Length"} + documents + QStringList{""}, length);
    row("units after a negative number", QStringList{"convert", "-1", "Length"} + documents + QStringList{""},
        length);
    row("second unit", QStringList{"convert", "1", "Length", "mi"} + documents + QStringList{""}, length);
    row("third unit", QStringList{"convert", "1", "Length", "mi", "m"} + documents + QStringList{""},
        QStringList{});
    row("units without type", QStringList{"convert", "1", "pt"} + documents + QStringList{""}, volume);
    row("default unit, then a unit", QStringList{"convert", "1", "Volume", ""} + documents + QStringList{""},
        volume);
    row("only one unit", QStringList{"label", "Length", "mi"} + documents + QStringList{""}, QStringList{});
    row("fixed units", QStringList{"labels"} + documents + QStringList{"Length/M"},
        types + QStringList{"Length/Meter", "Length/Mile", "Length/Foot"});
    row("type in place of a unit", QStringList{"units", "Length"} + documents + QStringList{""},
        QStringList{});
    row("documents", QStringList{"get", ""}, QStringList{"units", "default-units", "dependencies"});
    row("severities", QStringList{"check", "--severity", ""}, QStringList{"error", "warning", "note"});
    row("choices of colors", QStringList{"check", "--color", ""}, QStringList{"auto", "always", "never"});
    row("severities after an equals sign", QStringList{"check", "--severity="},
        QStringList{"--severity=error", "--severity=warning", "--severity=note"});
    row("languages", QStringList{"label"} + documents + QStringList{"--language", ""},
        QStringList{"en", "de"});
    row("list of languages", QStringList{"check"} + documents + QStringList{"--languages", "de,"},
        QStringList{"de,en"});
    row("busses", QStringList{"watch", "--bus", ""}, QStringList{"session", "system"});
    row("value without choice", QStringList{"check", "--max-size", ""}, QStringList{});
    row("argument in place of an option", QStringList{"get", "--", "-"},
        QStringList{"units", "default-units", "dependencies"});
}

void ToolCompleteTest::listsWords()
{
    QFETCH(QStringList, line);
    QFETCH(QStringList, words);
    const ToolRun run = complete(line);
    QCOMPARE(run.standardError, QByteArray());
    QCOMPARE(wordsOf(run), words);
    QCOMPARE(run.exitCode, 0);
}

void ToolCompleteTest::describesWords_data()
{
    QTest::addColumn<QStringList>("line");
    QTest::addColumn<QByteArray>("described");
    row("verb", QStringList{""}, QByteArray("types\tLists the unit types by name.\n"));
    row("option with a long description", QStringList{"check", "--"},
        QByteArray("\n--range\tValues in base units between which polynomials of degree 2 and higher are "
                   "examined; 0,100 when not given.\n"));
    row("type", QStringList{"units", ""}, QByteArray("\nPressure\tunit type\n"));
    row("unit", QStringList{"label", "Pressure", ""}, QByteArray("\nHectoPascal\thPa (Pressure)\n"));
    row("unit without label", QStringList{"label", "NoUnit", ""}, QByteArray("NoUnit\t(NoUnit)\n"));
    row("label", QStringList{"label", "Pressure", ""}, QByteArray("\nhPa\tHectoPascal (Pressure)\n"));
    row("fixed unit", QStringList{"label", "Pressure/"},
        QByteArray("\nPressure/HectoPascal\thPa (Pressure)\n"));
}

void ToolCompleteTest::describesWords()
{
    QFETCH(QStringList, line);
    QFETCH(QByteArray, described);
    const ToolRun run = complete(line);
    QVERIFY2(run.standardOutput.contains(described), run.standardOutput.constData());
    QCOMPARE(run.exitCode, 0);
}

void ToolCompleteTest::namesOfFilesAreMarked_data()
{
    QTest::addColumn<QStringList>("line");
    row("argument", QStringList{"diff", ""});
    row("repeated argument", QStringList{"diff", "units.json", ""});
    row("value of an option", QStringList{"types", "--units", ""});
    row("value after an equals sign", QStringList{"check", "--dependencies=dep"});
}

void ToolCompleteTest::namesOfFilesAreMarked()
{
    QFETCH(QStringList, line);
    const ToolRun run = complete(line);
    QCOMPARE(run.standardError, QByteArray());
    QCOMPARE(run.standardOutput, QByteArray("FILE\n"));
    QCOMPARE(run.exitCode, 0);
}

void ToolCompleteTest::usesTheActiveDocuments()
{
    ServedDirectory served;
    QVERIFY(TestFiles::write(served.path("units.json"),
                             R"({ "Flow": { "CubicMeterPerHour": { "@displayPosition": 0, "DecimalPlaces": 2,
"Polynomial": [[0], [1]], "InversePolynomial": [[0], [1]], "UnitLabel": { "@value": { "en": "m³/h" } } } } })"));
    QVERIFY(served.start());
    const ToolRun run = complete({"label", "--bus", served.bus().address(), "Flow", ""});
    QCOMPARE(run.standardError, QByteArray());
    QCOMPARE(run.standardOutput, QByteArray("CubicMeterPerHour\tm³/h (Flow)\n"
                                            "m³/h\tCubicMeterPerHour (Flow)\n"));
    QCOMPARE(run.exitCode, 0);
}

void ToolCompleteTest::leavesOutLabelsThatCannotBeTyped()
{
    const QByteArray units = R"({"Length": {"Meter": {"@displayPosition": 0, "DecimalPlaces": 1,
"Polynomial": [[0], [1]], "InversePolynomial": [[0], [1]], "UnitLabel": {"@value": {"en": "m\n", "de": "m"}}}}})";
    const ToolRun run =
        ToolProcess::run({"complete", "--", "label", "--units", "/dev/stdin", "Length", ""}, units);
    QCOMPARE(run.standardError, QByteArray());
    QCOMPARE(run.standardOutput, QByteArray("Meter\tm? (Length)\nm\tMeter (Length)\n"));
}

void ToolCompleteTest::reportsADocumentThatCannotBeRead()
{
    const ToolRun run = complete({"label", "--units", "/no/such.json", ""});
    QCOMPARE(run.standardError, QByteArray("unitmanager: /no/such.json: no such directory: /no\n"));
    QCOMPARE(run.standardOutput, QByteArray());
    QCOMPARE(run.exitCode, 1);
}

static const TestClass<ToolCompleteTest> testClass;
#include "ToolCompleteTest.moc"
