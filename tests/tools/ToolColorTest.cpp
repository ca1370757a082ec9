#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include "Row.h"
#include "TestFiles.h"
#include "TestProgram.h"
#include "ToolProcess.h"

/// Colors: on a terminal only, unless the variable NO_COLOR or the option --color says otherwise.
class ToolColorTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void colorsDependOnTerminalAndChoice_data();
    void colorsDependOnTerminalAndChoice();
    void otherFormatsHaveNoColors_data();
    void otherFormatsHaveNoColors();

private:
    QTemporaryDir m_directory;
    QString m_units;
};

void ToolColorTest::initTestCase()
{
    m_units = m_directory.filePath("units.json");
    QVERIFY(TestFiles::write(m_units, R"({ "Flow": {} })"));
}

void ToolColorTest::colorsDependOnTerminalAndChoice_data()
{
    QTest::addColumn<bool>("isTerminal");
    QTest::addColumn<QString>("noColor");
    QTest::addColumn<QString>("option");
    QTest::addColumn<bool>("hasColors");
    row("terminal", true, "", "", true);
    row("terminal, auto", true, "", "--color auto", true);
    row("terminal, always", true, "", "--color always", true);
    row("terminal, never", true, "", "--color never", false);
    row("terminal, variable", true, "1", "", false);
    row("terminal, variable, auto", true, "1", "--color auto", false);
    row("terminal, variable, always", true, "1", "--color=always", true);
    row("terminal, variable, never", true, "1", "--color never", false);
    row("pipe", false, "", "", false);
    row("pipe, auto", false, "", "--color auto", false);
    row("pipe, always", false, "", "--color always", true);
    row("pipe, never", false, "", "--color never", false);
    row("pipe, variable", false, "1", "", false);
    row("pipe, variable, always", false, "1", "--color always", true);
}

void ToolColorTest::colorsDependOnTerminalAndChoice()
{
    QFETCH(bool, isTerminal);
    QFETCH(QString, noColor);
    QFETCH(QString, option);
    QFETCH(bool, hasColors);
    QProcessEnvironment environment = ToolProcess::plainEnvironment();
    environment.insert("NO_COLOR", noColor);
    const QString command = ToolProcess::path() + " check --units " + m_units + ' ' + option;
    // script(1) runs the command on a pseudo-terminal.
    const ToolRun run =
        isTerminal ? ToolProcess::runProgram("script", {"-qec", command, "/dev/null"}, {}, environment)
                   : ToolProcess::runProgram("sh", {"-c", command}, {}, environment);
    const QByteArray severity = hasColors ? "\033[1;31merror\033[0m" : "error";
    const QByteArray finding =
        m_units.toUtf8() + ":1:3: " + severity + ": unit type \"Flow\" has no units [type-empty]";
    QVERIFY2(run.standardOutput.startsWith(finding), run.standardOutput.constData());
    QCOMPARE(run.standardOutput.count('\033'), hasColors ? 2 : 0);
    QCOMPARE(run.exitCode, 1);
}

void ToolColorTest::otherFormatsHaveNoColors_data()
{
    QTest::addColumn<QString>("format");
    QTest::newRow("JSON") << "--json";
    QTest::newRow("SARIF") << "--sarif";
}

void ToolColorTest::otherFormatsHaveNoColors()
{
    QFETCH(QString, format);
    const QStringList options{"check", "--units", m_units, format};
    const ToolRun run = ToolProcess::run(options + QStringList{"--color", "always"});
    QCOMPARE(run.standardOutput, ToolProcess::run(options).standardOutput);
    QVERIFY(run.standardOutput.contains("type-empty"));
    QVERIFY(!run.standardOutput.contains('\033'));
}

static const TestClass<ToolColorTest> testClass;
#include "ToolColorTest.moc"
