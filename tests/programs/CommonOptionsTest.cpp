#include "CommonOptions.h"

#include <QtCore/QCommandLineParser>
#include <QtTest/QTest>

#include "Row.h"
#include "TestProgram.h"

/// The options that tool and service share.
class CommonOptionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void busIsTheOptionThenTheVariable_data();
    void busIsTheOptionThenTheVariable();
    void otherBusIsWrongUsage_data();
    void otherBusIsWrongUsage();
    void failureIsOneLine();
    void wrongUsageIsTwoLines();
    void parserFailureIsAClause();
    void helpBeginsWithTheUsage();
};

namespace {

Result<QString> busOf(const QStringList& words, const QByteArray& variable)
{
    qputenv("DEVICE_BUS", variable);
    QCommandLineParser parser;
    CommonOptions::addBus(parser);
    parser.parse(QStringList("program") + words);
    return CommonOptions::bus(parser);
}

} // namespace

void CommonOptionsTest::busIsTheOptionThenTheVariable_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QByteArray>("variable");
    QTest::addColumn<QString>("bus");

    row("neither", QStringList(), QByteArray(), "session");
    row("variable", QStringList(), QByteArray("system"), "system");
    row("option", QStringList{"--bus", "system"}, QByteArray(), "system");
    row("both", QStringList{"--bus", "session"}, QByteArray("system"), "session");
    row("option, invalid variable", QStringList{"--bus", "session"}, QByteArray("x"), "session");
    row("address", QStringList{"--bus", "unix:path=/x"}, QByteArray(), "unix:path=/x");
    row("address in the variable", QStringList(), QByteArray("unix:path=/x"), "unix:path=/x");
}

void CommonOptionsTest::busIsTheOptionThenTheVariable()
{
    QFETCH(QStringList, words);
    QFETCH(QByteArray, variable);
    QFETCH(QString, bus);
    const auto result = busOf(words, variable);
    QVERIFY2(result, qPrintable(result.error().reason));
    QCOMPARE(*result, bus);
}

void CommonOptionsTest::otherBusIsWrongUsage_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QByteArray>("variable");
    QTest::addColumn<QString>("shown");

    row("empty", QStringList{"--bus", ""}, QByteArray(), "\"\"");
    row("other case", QStringList{"--bus", "Session"}, QByteArray(), "\"Session\"");
    row("control character", QStringList{"--bus", "x\n"}, QByteArray(), "\"x?\"");
    row("variable", QStringList(), QByteArray("anything"), "\"anything\"");
}

void CommonOptionsTest::otherBusIsWrongUsage()
{
    QFETCH(QStringList, words);
    QFETCH(QByteArray, variable);
    QFETCH(QString, shown);
    const auto result = busOf(words, variable);
    QVERIFY(!result);
    QCOMPARE(result.error().exitCode, WrongUsage);
    QCOMPARE(result.error().reason,
             shown + " is not a valid bus: expected session, system or a D-Bus address");
}

void CommonOptionsTest::failureIsOneLine()
{
    QCOMPARE(CommonOptions::failureText("program", Failure{"no such file"}, "program FILE"),
             "program: no such file\n");
}

void CommonOptionsTest::wrongUsageIsTwoLines()
{
    QCOMPARE(CommonOptions::failureText("program", wrongUsage("FILE is missing"), "program FILE"),
             "program: FILE is missing\nprogram: usage: program FILE; more with --help\n");
}

void CommonOptionsTest::parserFailureIsAClause()
{
    QCommandLineParser parser;
    parser.parse({"program", "--colour"});
    const Failure failure = CommonOptions::parserFailure(parser);
    QCOMPARE(failure.reason, "unknown option \"colour\"");
    QCOMPARE(failure.exitCode, WrongUsage);
}

void CommonOptionsTest::helpBeginsWithTheUsage()
{
    QCommandLineParser parser;
    CommonOptions::addHelpAndVersion(parser);
    QCOMPARE(CommonOptions::helpText(parser, "program FILE"), "Usage: program FILE\n\n"
                                                              "Options:\n"
                                                              "  -h, --help     Show this help.\n"
                                                              "  -v, --version  Show the program's version.");
}

static const TestClass<CommonOptionsTest> testClass;
#include "CommonOptionsTest.moc"
