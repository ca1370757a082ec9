#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtTest/QTest>

#include <csignal>
#include <unistd.h>

#include "PrivateBus.h"
#include "ServedDirectory.h"
#include "ServiceDocuments.h"
#include "TestFiles.h"
#include "TestProgram.h"
#include "ToolProcess.h"
#include "WaitLimit.h"
#include "Watcher.h"

namespace {

const QByteArray threeUnits = R"({
    "Pressure": { "Bar": { "@displayPosition": 0, "DecimalPlaces": 3, "Polynomial": [[0], [1]],
                           "InversePolynomial": [[0], [1]] },
                  "Pascal": { "@displayPosition": 1, "DecimalPlaces": 0, "Polynomial": [[0], [1e5]],
                              "InversePolynomial": [[0], [1e-5]] } },
    "Voltage": { "Volt": { "@displayPosition": 0, "DecimalPlaces": 1, "UnitLabel": "V",
                           "Polynomial": [[0], [1]], "InversePolynomial": [[0], [1]] } }
})";
/// The tool's output while it reads, and then for a served ServiceDocuments::units().
const QByteArray reading = "waiting: reading\n";
const QByteArray oneUnit = "ready\nadopted; unit types: 1, units: 1\n";

QByteArray noService(const PrivateBus& bus)
{
    return "waiting: no configuration service on the bus " + bus.address().toUtf8() + '\n';
}

/// The processor time used by a process, in clock ticks; -1 if unknown.
qint64 processorTime(qint64 processId)
{
    QFile file(QStringLiteral("/proc/%1/stat").arg(processId));
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    // The second field is the program name in parentheses; the times are the 14th and 15th field.
    const QList<QByteArray> fields = file.readAll().split(')').last().simplified().split(' ');
    return fields.value(11).toLongLong() + fields.value(12).toLongLong();
}

/// How often a process has gone to sleep; -1 if unknown.
qint64 sleeps(qint64 processId)
{
    return ToolProcess::statusNumber(processId, "voluntary_ctxt_switches");
}

} // namespace

/// The verb that follows the configuration service: its output, and how it ends.
class ToolWatchTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void followsTheService_data();
    void followsTheService();
    void outlivesTheService();
    void endsWhenAsked_data();
    void endsWhenAsked();
    void showsLibraryMessagesWhenVerbose();
    void isIdleBetweenChanges();
    void reportsAFullDisk();
    void rejectsWrongUsage_data();
    void rejectsWrongUsage();

private:
    static void endQuietly(Watcher& watcher, int signal);
};

/// The tool ends with exit code 0, without further output.
void ToolWatchTest::endQuietly(Watcher& watcher, int signal)
{
    QCOMPARE(watcher.end(signal), 0);
    QVERIFY(watcher.prints(""));
    QCOMPARE(watcher.errors(), QByteArray());
}

void ToolWatchTest::followsTheService_data()
{
    QTest::addColumn<bool>("isOption");
    QTest::newRow("bus by option") << true;
    QTest::newRow("bus by variable") << false;
}

void ToolWatchTest::followsTheService()
{
    QFETCH(bool, isOption);
    ServedDirectory served;
    QVERIFY(served.start());
    Watcher watcher(isOption ? QStringList{"--bus", served.bus().address()} : QStringList());
    watcher.setVariable("DEVICE_BUS", isOption ? "unix:path=/nowhere" : served.bus().address());
    QVERIFY(watcher.start());
    QVERIFY(watcher.prints(reading + oneUnit));

    QVERIFY(TestFiles::replace(served.path("default-units.json"), ServiceDocuments::defaultUnits("second")));
    QVERIFY(watcher.prints(reading + oneUnit));

    QVERIFY(TestFiles::replace(served.path("dependencies.json"), ServiceDocuments::dependencies("second")));
    QVERIFY(watcher.prints(reading + oneUnit));

    QVERIFY(TestFiles::replace(served.path("units.json"), threeUnits));
    QVERIFY(watcher.prints(reading + "ready\nadopted; unit types: 2, units: 3\n"));

    endQuietly(watcher, SIGTERM);
}

void ToolWatchTest::outlivesTheService()
{
    ServedDirectory served;
    QVERIFY(served.start());
    Watcher watcher({"--bus", served.bus().address()});
    QVERIFY(watcher.start());
    QVERIFY(watcher.prints(reading + oneUnit));

    QVERIFY(served.service().send(SIGKILL));
    QCOMPARE(served.service().waitForEnd(), -1);
    ServiceProcess successor;
    QVERIFY(successor.serve(served.directory(), served.bus().address()));
    QVERIFY(TestFiles::replace(served.path("default-units.json"), ServiceDocuments::defaultUnits("second")));
    QVERIFY(watcher.prints(reading + oneUnit));

    QVERIFY(successor.send(SIGTERM));
    QCOMPARE(successor.waitForEnd(), 0);
    QVERIFY(watcher.isRunning());
    endQuietly(watcher, SIGTERM);
}

void ToolWatchTest::endsWhenAsked_data()
{
    QTest::addColumn<int>("signal");
    QTest::addColumn<bool>("isServed");
    QTest::newRow("SIGINT, ready") << SIGINT << true;
    QTest::newRow("SIGTERM, ready") << SIGTERM << true;
    QTest::newRow("SIGINT, waiting") << SIGINT << false;
    QTest::newRow("SIGTERM, waiting") << SIGTERM << false;
}

void ToolWatchTest::endsWhenAsked()
{
    QFETCH(int, signal);
    QFETCH(bool, isServed);
    ServedDirectory served;
    QVERIFY(isServed ? served.start() : served.bus().start());
    Watcher watcher({"--bus", served.bus().address()});
    QVERIFY(watcher.start());
    QVERIFY(watcher.prints(isServed ? reading + oneUnit : noService(served.bus())));

    endQuietly(watcher, signal);
}

void ToolWatchTest::showsLibraryMessagesWhenVerbose()
{
    PrivateBus bus;
    QVERIFY(bus.start());
    Watcher watcher({"--bus", bus.address(), "--verbose"});
    QVERIFY(watcher.start());
    QVERIFY(watcher.prints(noService(bus)));
    QVERIFY(watcher.complains(
        "unitmanager: Unable to connect to mandantory file type \"UnitManager/UnitType\"\n"));
    QCOMPARE(watcher.end(SIGTERM), 0);
}

void ToolWatchTest::isIdleBetweenChanges()
{
    ServedDirectory served;
    QVERIFY(served.start());
    Watcher watcher({"--bus", served.bus().address()});
    QVERIFY(watcher.start());
    QVERIFY(watcher.prints(reading + oneUnit));

    const qint64 processorBefore = processorTime(watcher.processId());
    const qint64 sleepsBefore = sleeps(watcher.processId());
    QVERIFY(processorBefore >= 0 && sleepsBefore >= 0);
    QElapsedTimer elapsed;
    elapsed.start();
    QTRY_VERIFY_WITH_TIMEOUT(sleeps(watcher.processId()) >= sleepsBefore + 50, waitLimit);
    const qint64 used =
        (processorTime(watcher.processId()) - processorBefore) * 1000 / ::sysconf(_SC_CLK_TCK);
    QVERIFY2(used < elapsed.elapsed() / 4, qPrintable(QString::number(used)));
    QCOMPARE(watcher.end(SIGTERM), 0);
}

void ToolWatchTest::reportsAFullDisk()
{
    PrivateBus bus;
    QVERIFY(bus.start());
    Watcher watcher({"--bus", bus.address()});
    watcher.writeTo("/dev/full");
    QVERIFY(watcher.start());
    QCOMPARE(watcher.waitForEnd(), 1);
    QCOMPARE(watcher.errors(), QByteArray("unitmanager: cannot write: No space left on device\n"));
}

void ToolWatchTest::rejectsWrongUsage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("message");
    const QByteArray noBus = " is not a valid bus: expected session, system or a D-Bus address";
    QTest::newRow("empty bus") << QStringList{"--bus", ""} << "\"\"" + noBus;
    QTest::newRow("unknown bus") << QStringList{"--bus", "Session"} << "\"Session\"" + noBus;
    QTest::newRow("bus without value") << QStringList{"--bus"} << QByteArray("missing value after \"--bus\"");
    QTest::newRow("argument") << QStringList{"session"} << QByteArray("too many arguments: \"session\"");
    QTest::newRow("option of other verbs") << QStringList{"--raw"} << QByteArray("unknown option \"raw\"");
}

void ToolWatchTest::rejectsWrongUsage()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, message);
    const ToolRun run = ToolProcess::run(QStringList("watch") + arguments);
    QCOMPARE(run.standardError, "unitmanager: " + message +
                                    "\nunitmanager: usage: unitmanager watch [options]; more with --help\n");
    QCOMPARE(run.standardOutput, QByteArray());
    QCOMPARE(run.exitCode, 2);
}

static const TestClass<ToolWatchTest> testClass;
#include "ToolWatchTest.moc"
