#include <QtTest/QTest>

#include "Row.h"
#include "TestProgram.h"
#include "ToolProcess.h"

/// Help and version of the program and of every verb: on standard output, exit code 0.
class ToolHelpTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyVerbHasHelp_data();
    void everyVerbHasHelp();
    void everyVerbHasTheVersion_data();
    void everyVerbHasTheVersion();
    void programHelpListsEveryVerb_data();
    void programHelpListsEveryVerb();
    void programHasTheVersion();
};

namespace {

void addVerbs()
{
    QTest::addColumn<QString>("verb");
    QTest::addColumn<QByteArray>("usage");
    QTest::addColumn<QStringList>("content");
    const QStringList common{
        "-h, --help",  "-v, --version",      "--verbose", "--units <FILE>", "--default-units <FILE>",
        "--bus <BUS>", "--max-size <BYTES>", "--json",    "Example"};
    row("types", "types", QByteArray("[options]"), common);
    row("units", "units", QByteArray("[options] TYPE"), common + QStringList{"--language", "  TYPE  "});
    row("convert", "convert", QByteArray("[options] VALUE [TYPE] FROM [TO]"),
        common + QStringList{"--raw", "--language", "  VALUE  ", "  TYPE  ", "  FROM  ", "  TO  ", "nan",
                             "inf and -inf are kept in their own\nunit and become nan in any other",
                             "fixed unit", "exactly one line of output", "#"});
    row("table", "table", QByteArray("[options] VALUE [TYPE] FROM"),
        common + QStringList{"--raw", "--language", "  VALUE  ", "  TYPE  ", "  FROM  "});
    row("label", "label", QByteArray("[options] [TYPE] UNIT"),
        common + QStringList{"--language", "  TYPE  ", "  UNIT  "});
    row("labels", "labels", QByteArray("[options] [TYPE]"),
        common +
            QStringList{"--missing <LANGUAGE>", "  TYPE  ", "exit code is 0 also if a label is missing"});
    row("get", "get", QByteArray("[options] DOCUMENT"),
        QStringList{"-h, --help", "-v, --version", "--bus <BUS>", "DEVICE_BUS", "--state", "--json",
                    "  DOCUMENT  ", "Example"});
    row("diff", "diff", QByteArray("[options] FILE..."),
        QStringList{"-h, --help", "-v, --version", "--bus <BUS>", "DEVICE_BUS", "--json", "  FILE  ",
                    "--max-size <BYTES>", "Exit codes", "Example"});
    row("complete", "complete", QByteArray("[options] WORD..."),
        QStringList{"-h, --help", "-v, --version", "--verbose", "  WORD  ", "a tab", "Example"});
    row("watch", "watch", QByteArray("[options]"),
        QStringList{"-h, --help", "-v, --version", "--verbose", "--bus <BUS>", "DEVICE_BUS", "--json",
                    "SIGTERM", "Example"});
}

} // namespace

void ToolHelpTest::everyVerbHasHelp_data()
{
    addVerbs();
}

void ToolHelpTest::everyVerbHasHelp()
{
    QFETCH(QString, verb);
    QFETCH(QByteArray, usage);
    QFETCH(QStringList, content);
    const ToolRun run = ToolProcess::run({verb, "--help"});
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.standardError, QByteArray());
    QCOMPARE(run.standardOutput.split('\n').first(), "Usage: unitmanager " + verb.toUtf8() + ' ' + usage);
    for (const QString& text : content)
        QVERIFY2(run.standardOutput.contains(text.toUtf8()), qPrintable(text));
    for (const QByteArray& line : run.standardOutput.split('\n'))
        QVERIFY2(line.size() < 81, line.constData());

    QCOMPARE(ToolProcess::run({verb, "-h"}).standardOutput, run.standardOutput);
    QCOMPARE(ToolProcess::run({verb, "too", "many", "words", "for", "any", "--help"}).standardOutput,
             run.standardOutput);
}

void ToolHelpTest::everyVerbHasTheVersion_data()
{
    addVerbs();
}

void ToolHelpTest::everyVerbHasTheVersion()
{
    QFETCH(QString, verb);
    for (const char* option : {"--version", "-v"}) {
        const ToolRun run = ToolProcess::run({verb, option});
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(run.standardError, QByteArray());
        QCOMPARE(run.standardOutput, QByteArray("unitmanager " UNITMANAGER_VERSION "\n"));
    }
}

void ToolHelpTest::programHelpListsEveryVerb_data()
{
    QTest::addColumn<QString>("option");
    QTest::newRow("long") << "--help";
    QTest::newRow("short") << "-h";
}

void ToolHelpTest::programHelpListsEveryVerb()
{
    QFETCH(QString, option);
    const ToolRun run = ToolProcess::run({option});
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.standardError, QByteArray());
    for (const char* verb : {"types", "units", "convert", "table", "label", "labels", "check", "get", "diff",
                             "watch", "complete"})
        QVERIFY2(run.standardOutput.contains('\n' + QByteArray(" ") + verb + ' '), verb);
}

void ToolHelpTest::programHasTheVersion()
{
    for (const char* option : {"--version", "-v"}) {
        const ToolRun run = ToolProcess::run({option});
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(run.standardError, QByteArray());
        QCOMPARE(run.standardOutput, QByteArray("unitmanager " UNITMANAGER_VERSION "\n"));
    }
}

static const TestClass<ToolHelpTest> testClass;
#include "ToolHelpTest.moc"
