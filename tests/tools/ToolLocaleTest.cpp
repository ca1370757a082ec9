#include <QtCore/QProcessEnvironment>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include "Row.h"
#include "TestProgram.h"
#include "ToolProcess.h"

/// A locale with a decimal comma changes neither input nor output.
class ToolLocaleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void keepsTheDecimalPoint_data();
    void keepsTheDecimalPoint();
    void refusesTheDecimalComma();

private:
    QTemporaryDir m_locales;
    QProcessEnvironment m_environment = ToolProcess::plainEnvironment();
};

void ToolLocaleTest::initTestCase()
{
    const ToolRun made = ToolProcess::runProgram(
        "localedef", {"-i", "de_DE", "-f", "UTF-8", m_locales.filePath("de_DE.UTF-8")});
    QVERIFY2(made.exitCode == 0, made.standardError.constData());
    m_environment.insert("LOCPATH", m_locales.path());
    m_environment.insert("LC_ALL", "de_DE.UTF-8");
    const ToolRun active = ToolProcess::runProgram("printf", {"%.1f", "1"}, {}, m_environment);
    QCOMPARE(active.standardOutput, QByteArray("1,0"));
}

void ToolLocaleTest::keepsTheDecimalPoint_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("standardInput");
    QTest::addColumn<QByteArray>("standardOutput");
    const QStringList units{"Pressure", "HectoPascal", "Bar"};
    row("shown", QStringList{"convert", "1234.56"} + units, QByteArray(), QByteArray("1.235 bar\n"));
    row("raw", QStringList{"convert", "1234.5", "--raw"} + units, QByteArray(), QByteArray("1.2345\n"));
    row("JSON", QStringList{"convert", "1234.5", "--json"} + units, QByteArray(),
        QByteArray("{\"label\":\"bar\",\"type\":\"Pressure\",\"unit\":\"Bar\",\"value\":1.2345}\n"));
    row("standard input", QStringList{"convert", "-"} + units, QByteArray("1234.56\n-0.5e3\n"),
        QByteArray("1.235 bar\n-0.500 bar\n"));
    row("grouping stays off", QStringList{"convert", "1234567", "Pressure", "Bar", "Bar"}, QByteArray(),
        QByteArray("1234567.000 bar\n"));
    row("table", QStringList{"table", "45.67", "RelativeHumidity", "RelHumidity"}, QByteArray(),
        QByteArray("RelHumidity  45.7 %RH\n"));
    row("labels stay English", QStringList{"label", "RelativeHumidity"}, QByteArray(), QByteArray("%RH\n"));
}

void ToolLocaleTest::keepsTheDecimalPoint()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, standardInput);
    QFETCH(QByteArray, standardOutput);
    const ToolRun run = ToolProcess::run(arguments, standardInput, m_environment);
    QCOMPARE(run.standardError, QByteArray());
    QCOMPARE(run.standardOutput, standardOutput);
    QCOMPARE(run.exitCode, 0);
}

void ToolLocaleTest::refusesTheDecimalComma()
{
    const ToolRun run =
        ToolProcess::run({"convert", "-", "Pressure", "HectoPascal", "Bar"}, "1,5\n", m_environment);
    QVERIFY(run.standardError.startsWith("unitmanager: line 1: \"1,5\" is not a decimal number"));
    QCOMPARE(run.standardOutput, QByteArray("\n"));
    QCOMPARE(run.exitCode, 1);
}

static const TestClass<ToolLocaleTest> testClass;
#include "ToolLocaleTest.moc"
