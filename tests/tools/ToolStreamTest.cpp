#include <QtCore/QProcess>
#include <QtCore/QProcessEnvironment>
#include <QtTest/QTest>

#include "Row.h"
#include "TestProgram.h"
#include "ToolProcess.h"
#include "WaitLimit.h"

/// `convert -`: one value per line of standard input.
class ToolStreamTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void convertsLineByLine_data();
    void convertsLineByLine();
    void givesALineForEveryLine_data();
    void givesALineForEveryLine();
    void answersBeforeTheInputEnds();
    void doesNotGrowOverAMillionLines();
    void endsQuietlyWhenTheReaderLeaves_data();
    void endsQuietlyWhenTheReaderLeaves();
    void reportsAnInputThatCannotBeRead();
    void reportsAFullDisk();
};

namespace {

const QStringList toBar{"convert", "-", "Pressure", "HectoPascal", "Bar"};

QByteArray notANumber(int line, const QByteArray& text)
{
    return "unitmanager: line " + QByteArray::number(line) + ": \"" + text +
           "\" is not a decimal number such as -1234.5 or 1e-3, within the range of a double\n";
}

/// Writes lines to a running conversion and waits for as many results, a thousand at a time.
/// @return whether they arrived, with no wait longer than a minute
bool convertLines(QProcess& process, int lineCount)
{
    const int linesAtATime = 1000;
    int answered = 0;
    for (int sent = linesAtATime; sent <= lineCount; sent += linesAtATime) {
        process.write(QByteArray("1234.5678901234567\n").repeated(linesAtATime));
        while (answered < sent) {
            if (!process.waitForReadyRead(waitLimit))
                return false;
            answered += process.readAllStandardOutput().count('\n');
        }
    }
    return answered == lineCount;
}

} // namespace

void ToolStreamTest::convertsLineByLine_data()
{
    QTest::addColumn<QByteArray>("standardInput");
    QTest::addColumn<QByteArray>("standardOutput");
    QTest::addColumn<QByteArray>("standardError");
    row("nothing", QByteArray(), QByteArray(), QByteArray());
    row("values", QByteArray("1000\n-5\n1e3\n"), QByteArray("1.000 bar\n-0.005 bar\n1.000 bar\n"),
        QByteArray());
    row("last line without end", QByteArray("1000\n2000"), QByteArray("1.000 bar\n2.000 bar\n"),
        QByteArray());
    row("carriage returns", QByteArray("1000\r\n2000\r\n"), QByteArray("1.000 bar\n2.000 bar\n"),
        QByteArray());
    row("blank lines and comments give empty lines", QByteArray("# hPa\n\n  \n1000\n\r\n #2\n"),
        QByteArray("\n\n\n1.000 bar\n\n\n"), QByteArray());
    row("comment without end", QByteArray("1000\n#"), QByteArray("1.000 bar\n\n"), QByteArray());
    row("blanks around a value", QByteArray("  1000\t\n"), QByteArray("1.000 bar\n"), QByteArray());
    row("bad lines do not stop the good ones", QByteArray("1000\nfive\n\n2,5\n3000\n"),
        QByteArray("1.000 bar\n\n\n\n3.000 bar\n"), notANumber(2, "five") + notANumber(4, "2,5"));
    row("comment after a value", QByteArray("1000 # hPa\n"), QByteArray("\n"), notANumber(1, "1000 # hPa"));
    row("null byte", QByteArray("1000\0zero\n2000\n", 15), QByteArray("\n2.000 bar\n"),
        notANumber(1, "1000?zero"));
    row("not UTF-8", QByteArray("1000\xFF\n"), QByteArray("\n"), notANumber(1, "1000\xEF\xBF\xBD"));
    row("line of the longest size", QByteArray(4091, ' ') + "1000\n2000\n",
        QByteArray("1.000 bar\n2.000 bar\n"), QByteArray());
    row("line too long", QByteArray(4092, ' ') + "1000\n2000\n", QByteArray("\n2.000 bar\n"),
        notANumber(1, "100..."));
    row("line far too long", QByteArray(100000, '1') + "\n2000\n", QByteArray("\n2.000 bar\n"),
        notANumber(1, QByteArray(60, '1') + "..."));
    row("line too long without end", QByteArray(5000, ' ') + "1", QByteArray("\n"), notANumber(1, "..."));
}

void ToolStreamTest::convertsLineByLine()
{
    QFETCH(QByteArray, standardInput);
    QFETCH(QByteArray, standardOutput);
    QFETCH(QByteArray, standardError);
    const ToolRun run = ToolProcess::run(toBar, standardInput);
    QCOMPARE(run.standardError, standardError);
    QCOMPARE(run.standardOutput, standardOutput);
    QCOMPARE(run.exitCode, standardError.isEmpty() ? 0 : 1);
}

void ToolStreamTest::givesALineForEveryLine_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QByteArray>("standardOutput");
    const QByteArray start = R"({"label":"bar","type":"Pressure","unit":"Bar","value":)";
    row("shown", QStringList(), QByteArray("1.000 bar\n\n\n\nnan bar\n2.000 bar\n"));
    row("raw", QStringList{"--raw"}, QByteArray("1\n\n\n\nnan\n2\n"));
    row("JSON", QStringList{"--json"}, start + "1}\n" + (start + "null}\n").repeated(4) + start + "2}\n");
}

void ToolStreamTest::givesALineForEveryLine()
{
    QFETCH(QStringList, options);
    QFETCH(QByteArray, standardOutput);
    const ToolRun run = ToolProcess::run(toBar + options, "1000\n\n# pause\nfive\nnan\n2000\n");
    QCOMPARE(run.standardError, notANumber(4, "five"));
    QCOMPARE(run.standardOutput, standardOutput);
    QCOMPARE(run.exitCode, 1);
}

void ToolStreamTest::answersBeforeTheInputEnds()
{
    QProcess process;
    process.start(ToolProcess::path(), toBar);
    for (int i = 1; i <= 3; ++i) {
        process.write("1000\n");
        QVERIFY(process.waitForReadyRead(waitLimit));
        QCOMPARE(process.readAllStandardOutput(), QByteArray("1.000 bar\n"));
    }
    process.closeWriteChannel();
    QVERIFY(process.waitForFinished(waitLimit));
    QCOMPARE(process.exitCode(), 0);
}

void ToolStreamTest::doesNotGrowOverAMillionLines()
{
    // The address sanitizer keeps freed memory for a while; this shortens it.
    QProcessEnvironment environment = ToolProcess::plainEnvironment();
    environment.insert("ASAN_OPTIONS", environment.value("ASAN_OPTIONS") +
                                           ":quarantine_size_mb=1:thread_local_quarantine_size_kb=64");
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(ToolProcess::path(), toBar);
    QVERIFY(convertLines(process, 10000));
    const qint64 peakAfterFew = ToolProcess::statusNumber(process.processId(), "VmHWM");
    QVERIFY(peakAfterFew > 0);
    QVERIFY(convertLines(process, 990000));
    const qint64 peakAfterMany = ToolProcess::statusNumber(process.processId(), "VmHWM");
    process.closeWriteChannel();
    QVERIFY(process.waitForFinished(waitLimit));
    QCOMPARE(process.exitCode(), 0);

    // Keeping one byte per line would already use half of it.
    const int allowedGrowth = 2048;
    QVERIFY2(peakAfterMany - peakAfterFew < allowedGrowth,
             qPrintable(QString("from %1 kB to %2 kB").arg(peakAfterFew).arg(peakAfterMany)));
}

void ToolStreamTest::endsQuietlyWhenTheReaderLeaves_data()
{
    QTest::addColumn<QString>("preparation");
    QTest::newRow("broken pipe as a signal") << "true";
    QTest::newRow("broken pipe as an error") << "trap '' PIPE";
}

void ToolStreamTest::endsQuietlyWhenTheReaderLeaves()
{
    QFETCH(QString, preparation);
    // Runs forever, unless the program ends by itself.
    const QString script = preparation + "; yes 1000 | \"$0\" \"$@\" | head -n 2";
    const ToolRun run = ToolProcess::runProgram("sh", QStringList{"-c", script, ToolProcess::path()} + toBar);
    QCOMPARE(run.standardOutput, QByteArray("1.000 bar\n1.000 bar\n"));
    QVERIFY2(!run.standardError.contains("unitmanager"), run.standardError.constData());
    QCOMPARE(run.exitCode, 0);
}

void ToolStreamTest::reportsAnInputThatCannotBeRead()
{
    const QStringList program{"-c", "exec \"$0\" \"$@\" < /", ToolProcess::path()};
    const ToolRun run = ToolProcess::runProgram("sh", program + toBar);
    QCOMPARE(run.standardError, QByteArray("unitmanager: cannot read standard input\n"));
    QCOMPARE(run.standardOutput, QByteArray());
    QCOMPARE(run.exitCode, 1);
}

void ToolStreamTest::reportsAFullDisk()
{
    const QStringList program{"-c", "exec \"$0\" \"$@\" >/dev/full", ToolProcess::path()};
    const ToolRun run = ToolProcess::runProgram("sh", program + toBar, QByteArray("1000\n").repeated(100000));
    QCOMPARE(run.standardError, QByteArray("unitmanager: cannot write: No space left on device\n"));
    QCOMPARE(run.exitCode, 1);
}

static const TestClass<ToolStreamTest> testClass;
#include "ToolStreamTest.moc"
