#include <QtTest/QTest>

#include "Row.h"
#include "TestProgram.h"
#include "ToolProcess.h"

/// The tool's response to invalid requests: nothing on standard output, the exact message, and exit code 1
/// for unknown names, 2 for a wrong command line.
class ToolUsageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesWhatIsKnown_data();
    void namesWhatIsKnown();
    void hintsAtTheRightUsage_data();
    void hintsAtTheRightUsage();
    void needsAVerb_data();
    void needsAVerb();
    void showsLibraryMessagesWhenVerbose();
    void reportsAFullDisk();
};

void ToolUsageTest::namesWhatIsKnown_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("message");
    const QByteArray types = "known: Empty, Größe, Misled, NoUnit, Pressure, Temperature, Unlabelled";
    const QByteArray units = "known: Bar (bar), HectoPascal (hPa), MilliBar (mbar)";

    row("unit, near miss", QStringList{"convert", "1", "Pressure", "Baar"},
        "unknown unit \"Baar\" of Pressure; " + units + "; did you mean Bar (bar)?");
    row("unit, other case", QStringList{"convert", "1", "Pressure", "HECTOPASCAL"},
        "unknown unit \"HECTOPASCAL\" of Pressure; " + units + "; did you mean HectoPascal (hPa)?");
    row("unit, no near miss", QStringList{"convert", "1", "Pressure", "Furlong"},
        "unknown unit \"Furlong\" of Pressure; " + units);
    row("unit, too short to be a near miss", QStringList{"convert", "1", "Pressure", "B"},
        "unknown unit \"B\" of Pressure; " + units);
    row("target unit", QStringList{"convert", "1", "Pressure", "Bar", "Celsius"},
        "unknown unit \"Celsius\" of Pressure; " + units);
    row("unit of a table", QStringList{"table", "1", "Pressure", "Celsius"},
        "unknown unit \"Celsius\" of Pressure; " + units);
    row("unit of a label", QStringList{"label", "Pressure", "Celsius"},
        "unknown unit \"Celsius\" of Pressure; " + units);
    row("unit of the unit-less type", QStringList{"convert", "1", "NoUnit", "Bar"},
        QByteArray("unknown unit \"Bar\" of NoUnit; known: NoUnit"));
    row("unit of a type without any", QStringList{"convert", "1", "Empty", "Bar"},
        QByteArray("unknown unit \"Bar\" of Empty; known: none"));
    row("unit other than the fixed one", QStringList{"convert", "1", "Pressure/Bar", "HectoPascal"},
        QByteArray("unknown unit \"HectoPascal\" of Pressure/Bar; known: Bar (bar)"));
    row("fixed unit", QStringList{"label", "Pressure/Ba"},
        "unknown unit \"Ba\" of Pressure; " + units + "; did you mean Bar (bar)?");
    row("unit with control characters", QStringList{"convert", "1", "Pressure", "x\n\x1b[31m"},
        "unknown unit \"x??[31m\" of Pressure; " + units);
    row("unit type, near miss", QStringList{"units", "Presure"},
        "unknown unit type \"Presure\"; " + types + "; did you mean Pressure?");
    row("unit type, empty", QStringList{"units", ""}, "unknown unit type \"\"; " + types);
    row("unit type with a foreign prefix", QStringList{"units", "Else/Where/Pressure"},
        "unknown unit type \"Else/Where/Pressure\"; " + types);
    row("no default unit", QStringList{"convert", "1", "Unlabelled", "Plain"},
        QByteArray("Unlabelled has no default unit; known: Plain, Fine, TooFine, Table, Huge"));
    row("no default unit for a label", QStringList{"label", "Empty"},
        QByteArray("Empty has no default unit; known: none"));
    row("default unit that does not exist", QStringList{"convert", "1", "Misled", "Here"},
        QByteArray("unknown default unit \"Elsewhere\" of Misled; known: Here"));
}

void ToolUsageTest::namesWhatIsKnown()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, message);
    const ToolRun run = ToolProcess::run(arguments + ToolProcess::testDocuments());
    QCOMPARE(run.standardError, "unitmanager: " + message + '\n');
    QCOMPARE(run.standardOutput, QByteArray());
    QCOMPARE(run.exitCode, 1);
}

void ToolUsageTest::hintsAtTheRightUsage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("message");
    QTest::addColumn<QByteArray>("usage");
    const QByteArray convert = "convert [options] VALUE [TYPE] FROM [TO]";
    const QByteArray table = "table [options] VALUE [TYPE] FROM";
    const QByteArray rule = " is not a decimal number such as -1234.5 or 1e-3, within the range of a double";

    row("types with an argument", QStringList{"types", "Pressure"},
        QByteArray("too many arguments: \"Pressure\""), QByteArray("types [options]"));
    row("size that is not a number", QStringList{"types", "--max-size", "1M"},
        QByteArray("--max-size must be a number of bytes from 1 to 1073741824"),
        QByteArray("types [options]"));
    row("units without type", QStringList{"units"}, QByteArray("TYPE is missing"),
        QByteArray("units [options] TYPE"));
    row("label without unit", QStringList{"label"}, QByteArray("UNIT is missing"),
        QByteArray("label [options] [TYPE] UNIT"));
    row("convert without arguments", QStringList{"convert"}, QByteArray("VALUE is missing"), convert);
    row("convert without type and unit", QStringList{"convert", "1"}, QByteArray("FROM is missing"), convert);
    row("convert without unit", QStringList{"convert", "1", "Pressure"}, QByteArray("FROM is missing"),
        convert);
    row("convert with too many arguments", QStringList{"convert", "1", "Pressure", "Bar", "Bar", "Bar"},
        QByteArray("too many arguments: \"Bar\""), convert);
    row("convert with garbage", QStringList{"convert", "five", "Pressure", "Bar"}, "\"five\"" + rule,
        convert);
    row("convert with a negative number and garbage", QStringList{"convert", "-5x", "Pressure", "Bar"},
        "\"-5x\"" + rule, convert);
    row("table without unit", QStringList{"table", "1", "Pressure"}, QByteArray("FROM is missing"), table);
    row("table of standard input", QStringList{"table", "-", "Pressure", "Bar"}, "\"-\"" + rule, table);
    row("raw and JSON", QStringList{"convert", "1", "Pressure", "Bar", "--raw", "--json"},
        QByteArray("--raw and --json cannot be combined"), convert);
    row("unknown option", QStringList{"convert", "1", "Pressure", "Bar", "--colour"},
        QByteArray("unknown option \"colour\""), convert);
    row("option of another verb", QStringList{"units", "Pressure", "--raw"},
        QByteArray("unknown option \"raw\""), QByteArray("units [options] TYPE"));
    row("no language", QStringList{"labels", "--missing", ""}, QByteArray("--missing must name a language"),
        QByteArray("labels [options] [TYPE]"));
    row("option without its value", QStringList{"label", "Pressure", "--language"},
        QByteArray("missing value after \"--language\""), QByteArray("label [options] [TYPE] UNIT"));
}

void ToolUsageTest::hintsAtTheRightUsage()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, message);
    QFETCH(QByteArray, usage);
    const ToolRun run = ToolProcess::run(arguments);
    QCOMPARE(run.standardError, "unitmanager: " + message + "\nunitmanager: usage: unitmanager " + usage +
                                    "; more with --help\n");
    QCOMPARE(run.standardOutput, QByteArray());
    QCOMPARE(run.exitCode, 2);
}

void ToolUsageTest::needsAVerb_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("message");
    const QByteArray known =
        "; known: check, complete, convert, diff, get, label, labels, table, types, units, watch";
    row("nothing", QStringList{}, "VERB is missing" + known);
    row("unknown verb", QStringList{"invert"}, "unknown verb \"invert\"" + known + "; did you mean convert?");
    row("option before the verb", QStringList{"--json", "types"}, "unknown verb \"--json\"" + known);
}

void ToolUsageTest::needsAVerb()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, message);
    const ToolRun run = ToolProcess::run(arguments);
    QCOMPARE(run.standardError,
             "unitmanager: " + message +
                 "\nunitmanager: usage: unitmanager VERB [options] ...; more with --help\n");
    QCOMPARE(run.standardOutput, QByteArray());
    QCOMPARE(run.exitCode, 2);
}

void ToolUsageTest::showsLibraryMessagesWhenVerbose()
{
    const QStringList arguments = QStringList{"units", "Pressure"} + ToolProcess::testDocuments();
    const ToolRun quiet = ToolProcess::run(arguments);
    QCOMPARE(quiet.standardError, QByteArray());
    const ToolRun verbose = ToolProcess::run(arguments + QStringList("--verbose"));
    QVERIFY(verbose.standardError.contains(
        "unitmanager: No Base unit label given for \"UnitManager/UnitType/Empty\"\n"));
    QCOMPARE(verbose.standardOutput, quiet.standardOutput);
    QCOMPARE(verbose.exitCode, 0);
}

void ToolUsageTest::reportsAFullDisk()
{
    const ToolRun run =
        ToolProcess::runProgram("sh", {"-c", "exec \"$0\" types >/dev/full", ToolProcess::path()});
    QCOMPARE(run.standardError, QByteArray("unitmanager: cannot write: No space left on device\n"));
    QCOMPARE(run.exitCode, 1);
}

static const TestClass<ToolUsageTest> testClass;
#include "ToolUsageTest.moc"
