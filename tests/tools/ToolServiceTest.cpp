#include <QtCore/QFile>
#include <QtTest/QTest>

#include "FakeBusService.h"
#include "Row.h"
#include "ServedDirectory.h"
#include "ServiceDocuments.h"
#include "TestFiles.h"
#include "TestProgram.h"
#include "ToolProcess.h"

namespace {

const QString serviceName = "org.measuringdevice.DeviceManager";

/// Serves the shipped documents.
bool serveShippedDocuments(ServedDirectory& served)
{
    for (const char* name : {"units.json", "default-units.json", "dependencies.json"}) {
        QFile shipped(QString(UNITMANAGER_SOURCE_DIR "/config/") + name);
        if (!shipped.open(QIODevice::ReadOnly) || !TestFiles::write(served.path(name), shipped.readAll()))
            return false;
    }
    return served.start();
}

ToolRun runWithLimit(const QStringList& arguments, int milliseconds)
{
    QProcessEnvironment environment = ToolProcess::plainEnvironment();
    environment.insert("DEVICE_BUS_TIMEOUT_MS", QString::number(milliseconds));
    return ToolProcess::run(arguments, {}, environment);
}

} // namespace

/// The verbs that answer from documents, with the active documents of the running service.
class ToolServiceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyVerbUsesTheActiveDocuments_data();
    void everyVerbUsesTheActiveDocuments();
    void changedDocumentsAreUsed();
    void refusedDocumentIsNotUsed();
    void filesAreUsedWithoutTheOption();
    void serviceIsAskedForTheTextsOnly();
    void serviceIsNotStarted();
    void unreachableBusIsReported();
    void silentBusIsReported();
    void silentServiceIsReported();
    void missingServiceIsReported();
    void missingDocumentIsReported_data();
    void missingDocumentIsReported();
    void rejectsWrongUsage_data();
    void rejectsWrongUsage();
};

void ToolServiceTest::everyVerbUsesTheActiveDocuments_data()
{
    QTest::addColumn<QStringList>("arguments");

    row("types", QStringList{"types", "--json"});
    row("units", QStringList{"units", "Pressure", "--json"});
    row("convert", QStringList{"convert", "1", "Pressure", "Bar"});
    row("table", QStringList{"table", "1", "Pressure", "Bar"});
    row("label", QStringList{"label", "Pressure", "Torr"});
    row("labels", QStringList{"labels"});
}

void ToolServiceTest::everyVerbUsesTheActiveDocuments()
{
    QFETCH(QStringList, arguments);
    ServedDirectory served;
    QVERIFY(serveShippedDocuments(served));
    const ToolRun expected = ToolProcess::run(arguments);
    const ToolRun run = ToolProcess::run(arguments + QStringList{"--bus", served.bus().address()});
    QCOMPARE(run.standardError, QByteArray());
    QVERIFY(!expected.standardOutput.isEmpty());
    QCOMPARE(run.standardOutput, expected.standardOutput);
    QCOMPARE(run.exitCode, 0);
}

void ToolServiceTest::changedDocumentsAreUsed()
{
    ServedDirectory served;
    QVERIFY(served.start());
    const QStringList arguments{"label", "Pressure", "Bar", "--bus", served.bus().address()};
    QCOMPARE(ToolProcess::run(arguments).standardOutput, QByteArray("first\n"));
    QVERIFY(TestFiles::replace(served.path("units.json"), ServiceDocuments::units("next")));
    QCOMPARE(served.settledAnnouncements(), QStringList{ServiceAnnouncement::units});
    QCOMPARE(ToolProcess::run(arguments).standardOutput, QByteArray("next\n"));
}

void ToolServiceTest::refusedDocumentIsNotUsed()
{
    ServedDirectory served;
    QVERIFY(served.start());
    QVERIFY(TestFiles::replace(served.path("units.json"), "{"));
    QCOMPARE(served.settledAnnouncements(), QStringList());
    const ToolRun run = ToolProcess::run({"label", "Pressure", "Bar", "--bus", served.bus().address()});
    QCOMPARE(run.standardOutput, QByteArray("first\n"));
    QCOMPARE(run.standardError, QByteArray());
    QCOMPARE(run.exitCode, 0);
}

void ToolServiceTest::filesAreUsedWithoutTheOption()
{
    ServedDirectory served;
    QVERIFY(served.start());
    QProcessEnvironment environment = ToolProcess::plainEnvironment();
    environment.insert("DEVICE_BUS", served.bus().address());
    const ToolRun run = ToolProcess::run({"label", "Pressure", "Bar"}, {}, environment);
    QCOMPARE(run.standardOutput, QByteArray("bar\n"));
}

void ToolServiceTest::serviceIsAskedForTheTextsOnly()
{
    PrivateBus bus;
    QVERIFY(bus.start());
    const FakeBusService service(bus.address(), serviceName, [](const QDBusMessage& call) {
        const QString object = call.path().mid(1);
        return call.createReply(QString(object == ServiceObject::units
                                            ? ServiceDocuments::units("fake")
                                            : ServiceDocuments::defaultUnits("Bar")));
    });
    QVERIFY(service.isRunning());
    const ToolRun run = ToolProcess::run({"label", "Pressure", "Bar", "--bus", bus.address()});
    QCOMPARE(run.standardOutput, QByteArray("fake\n"));
    QCOMPARE(run.standardError, QByteArray());

    QStringList calls;
    for (const QDBusMessage& call : service.calls())
        calls.append(call.path() + ' ' + call.member() + ' ' + call.arguments().value(0).toString());
    QCOMPARE(calls, (QStringList{"/UnitManagerConfiguration getConfiguration UnitManager/UnitType",
                                 "/DefaultUnitConfiguration getConfiguration UnitManager/DefaultUnit"}));
}

void ToolServiceTest::serviceIsNotStarted()
{
    // If the tool let the bus start the service, it would receive the answer.
    ServedDirectory served;
    const QString command = QStringLiteral("%1 --directory %2 --bus %3")
                                .arg(ServiceProcess::program(), served.directory(), served.bus().address());
    QVERIFY(served.bus().addActivatableService(serviceName, command));
    QVERIFY(served.bus().start());
    const ToolRun run = ToolProcess::run({"types", "--bus", served.bus().address()});
    QCOMPARE(run.standardError,
             "unitmanager: no configuration service on the bus " + served.bus().address().toUtf8() + '\n');
    QCOMPARE(run.exitCode, 1);
}

void ToolServiceTest::unreachableBusIsReported()
{
    const ToolRun run = ToolProcess::run({"types", "--bus", "unix:path=/nowhere/socket"});
    QCOMPARE(run.standardError, QByteArray("unitmanager: cannot reach the bus unix:path=/nowhere/socket: "
                                           "Failed to connect to socket /nowhere/socket: No such file or "
                                           "directory\n"));
    QCOMPARE(run.standardOutput, QByteArray());
    QCOMPARE(run.exitCode, 1);
}

void ToolServiceTest::silentBusIsReported()
{
    PrivateBus bus;
    QVERIFY(bus.start());
    bus.halt();
    const ToolRun run = runWithLimit({"types", "--bus", bus.address()}, 100);
    bus.resume();
    QCOMPARE(run.standardError,
             "unitmanager: cannot reach the bus " + bus.address().toUtf8() + ": it does not answer\n");
    QCOMPARE(run.exitCode, 1);
}

void ToolServiceTest::silentServiceIsReported()
{
    PrivateBus bus;
    QVERIFY(bus.start());
    const FakeBusService service(bus.address(), serviceName, FakeBusService::never());
    QVERIFY(service.isRunning());
    const ToolRun run = runWithLimit({"types", "--bus", bus.address()}, 100);
    QVERIFY2(run.standardError.startsWith("unitmanager: the configuration service does not answer: "),
             run.standardError.constData());
    QCOMPARE(run.standardError.count('\n'), 1);
    QCOMPARE(run.exitCode, 1);
}

void ToolServiceTest::missingServiceIsReported()
{
    PrivateBus bus;
    QVERIFY(bus.start());
    const ToolRun run = ToolProcess::run({"types", "--bus", bus.address()});
    QCOMPARE(run.standardError,
             "unitmanager: no configuration service on the bus " + bus.address().toUtf8() + '\n');
    QCOMPARE(run.standardOutput, QByteArray());
    QCOMPARE(run.exitCode, 1);
}

void ToolServiceTest::missingDocumentIsReported_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("description");

    row("units", "units.json", QByteArray("units"));
    row("default units", "default-units.json", QByteArray("default-units"));
}

void ToolServiceTest::missingDocumentIsReported()
{
    QFETCH(QString, file);
    QFETCH(QByteArray, description);
    ServedDirectory served;
    QVERIFY(TestFiles::write(served.path(file), "{\n]"));
    QVERIFY(served.start());
    const ToolRun run = ToolProcess::run({"types", "--bus", served.bus().address()});
    const QByteArray beginning = "unitmanager: the configuration service has no valid document \"" +
                                 description + "\" yet: " + served.path(file).toUtf8() + ":2:1: ";
    QVERIFY2(run.standardError.startsWith(beginning), run.standardError.constData());
    QCOMPARE(run.standardError.count('\n'), 1);
    QCOMPARE(run.standardOutput, QByteArray());
    QCOMPARE(run.exitCode, 1);
}

void ToolServiceTest::rejectsWrongUsage_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QByteArray>("message");

    const QByteArray combined = "--bus cannot be combined with --units and --default-units";
    row("with units", QStringList{"--bus", "session", "--units", "x"}, combined);
    row("with default units", QStringList{"--bus", "session", "--default-units", "x"}, combined);
    row("not a bus", QStringList{"--bus", "x"},
        QByteArray("\"x\" is not a valid bus: expected session, system or a D-Bus address"));
}

void ToolServiceTest::rejectsWrongUsage()
{
    QFETCH(QStringList, options);
    QFETCH(QByteArray, message);
    const ToolRun run = ToolProcess::run(QStringList("types") + options);
    QCOMPARE(run.standardError, "unitmanager: " + message +
                                    "\nunitmanager: usage: unitmanager types [options]; more with --help\n");
    QCOMPARE(run.standardOutput, QByteArray());
    QCOMPARE(run.exitCode, 2);
}

static const TestClass<ToolServiceTest> testClass;
#include "ToolServiceTest.moc"
