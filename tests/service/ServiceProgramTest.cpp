#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <csignal>

#include "ConfigurationFileService.h"
#include "Row.h"
#include "ServedDirectory.h"
#include "ServiceDocuments.h"
#include "TestFiles.h"
#include "TestProgram.h"
#include "WaitLimit.h"

/// How the program starts and ends.
class ServiceProgramTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wrongUsageIsRejected_data();
    void wrongUsageIsRejected();
    void wrongVariableIsRejected();
    void helpNamesTheOptions_data();
    void helpNamesTheOptions();
    void versionIsPrinted_data();
    void versionIsPrinted();
    void busIsChosen_data();
    void busIsChosen();
    void directoryMayHaveAnyName();
    void directoryMayBeRelative();
    void busStartsIt();
    void signalEndsIt_data();
    void signalEndsIt();
    void nameIsFreeAfterItsEnd();
    void usedNameEndsIt();
    void unreachableBusEndsIt_data();
    void unreachableBusEndsIt();
    void lostBusEndsIt();
};

namespace {

/// The message for a wrong command line.
QString rejection(const QString& reason)
{
    return "configuration-file-service: " + reason +
           "\nconfiguration-file-service: usage: configuration-file-service [options] --directory DIR...; "
           "more with --help\n";
}

} // namespace

void ServiceProgramTest::wrongUsageIsRejected_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("reason");

    using Arguments = QStringList;
    const QString noBus = " is not a valid bus: expected session, system or a D-Bus address";
    row("nothing", Arguments{}, "--directory is missing");
    row("no directory", Arguments{"--bus", "session"}, "--directory is missing");
    row("empty directory", Arguments{"--directory", ""}, "--directory is missing");
    row("empty second directory", Arguments{"--directory", "x", "--directory", ""}, "--directory is missing");
    row("directory without value", Arguments{"--directory"}, "missing value after \"--directory\"");
    row("empty bus", Arguments{"--directory", "x", "--bus", ""}, "\"\"" + noBus);
    row("unknown bus", Arguments{"--directory", "x", "--bus", "Session"}, "\"Session\"" + noBus);
    row("unknown option", Arguments{"--directory", "x", "--port", "1"}, "unknown option \"port\"");
    row("no size", Arguments{"--directory", "x", "--max-size", "1M"},
        "--max-size must be a number of bytes from 1 to 1073741824");
    row("plain argument", Arguments{"--directory", "x", "y"}, "too many arguments: \"y\"");
}

void ServiceProgramTest::wrongUsageIsRejected()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, reason);

    ServiceProcess service;
    QCOMPARE(service.run(arguments), 2);
    QCOMPARE(service.log(), rejection(reason));
    QCOMPARE(service.output(), QString());
}

void ServiceProgramTest::wrongVariableIsRejected()
{
    ServiceProcess service;
    service.setVariable("DEVICE_BUS", "anything");
    QCOMPARE(service.run({"--directory", "x"}), 2);
    QCOMPARE(service.log(),
             rejection("\"anything\" is not a valid bus: expected session, system or a D-Bus address"));
}

void ServiceProgramTest::helpNamesTheOptions_data()
{
    QTest::addColumn<QString>("option");

    row("long", "--help");
    row("short", "-h");
}

void ServiceProgramTest::helpNamesTheOptions()
{
    QFETCH(QString, option);
    ServiceProcess service;
    QCOMPARE(service.run({option}), 0);
    const QStringList lines = service.output().split('\n');
    QCOMPARE(lines.first(), "Usage: configuration-file-service [options] --directory DIR...");
    for (const char* text : {"--directory <DIR>", "--bus <BUS>", "DEVICE_BUS", "--max-size <BYTES>",
                             "-h, --help", "-v, --version"})
        QVERIFY2(service.output().contains(text), text);
    for (const QString& line : lines)
        QVERIFY2(line.size() < 81, qPrintable(line));
    QCOMPARE(service.log(), QString());
}

void ServiceProgramTest::versionIsPrinted_data()
{
    QTest::addColumn<QString>("option");

    row("long", "--version");
    row("short", "-v");
}

void ServiceProgramTest::versionIsPrinted()
{
    QFETCH(QString, option);
    ServiceProcess service;
    QCOMPARE(service.run({option}), 0);
    QCOMPARE(service.output(), "configuration-file-service " UNITMANAGER_VERSION "\n");
    QCOMPARE(service.log(), QString());
}

void ServiceProgramTest::busIsChosen_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("variable");
    QTest::addColumn<QString>("shown");

    row("default", QStringList{}, "DBUS_SESSION_BUS_ADDRESS", "session");
    row("session", QStringList{"--bus", "session"}, "DBUS_SESSION_BUS_ADDRESS", "session");
    row("system", QStringList{"--bus", "system"}, "DBUS_SYSTEM_BUS_ADDRESS", "system");
    row("address of the variable", QStringList{}, "DEVICE_BUS", "ADDRESS");
    row("address, not the variable", QStringList{"--bus", "ADDRESS"}, "UNUSED", "ADDRESS");
}

void ServiceProgramTest::busIsChosen()
{
    QFETCH(QStringList, options);
    QFETCH(QString, variable);
    QFETCH(QString, shown);
    ServedDirectory served;
    QVERIFY(served.bus().start());
    const QString address = served.bus().address();
    options.replaceInStrings("ADDRESS", address);
    shown.replace("ADDRESS", address);

    ServiceProcess service;
    service.setVariable("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere");
    service.setVariable("DBUS_SYSTEM_BUS_ADDRESS", "unix:path=/nowhere");
    service.setVariable("DEVICE_BUS", options.isEmpty() ? "" : "unix:path=/nowhere");
    service.setVariable(variable, address);
    QVERIFY(service.start(QStringList{"--directory", served.directory()} + options));
    QCOMPARE(service.output(),
             "serving " + served.directory() + " as org.measuringdevice.DeviceManager on " + shown + '\n');
    const ServiceClient client(served.bus().address());
    QCOMPARE(client.text(ServiceObject::units), QString(ServiceDocuments::units("first")));
}

void ServiceProgramTest::directoryMayHaveAnyName()
{
    ServedDirectory served;
    const QString directory = served.directory() + QString::fromUtf8(" für %1 µ\xF0\x9F\x93\x81");
    QVERIFY(QDir().rename(served.directory(), directory));
    QVERIFY(served.bus().start());

    ServiceProcess service;
    service.setVariable("LC_ALL", "C");
    QVERIFY(service.serve(directory, served.bus().address()));
    QVERIFY2(service.output().startsWith("serving " + directory + " as "), qPrintable(service.output()));
    const ServiceClient client(served.bus().address());
    QCOMPARE(client.text(ServiceObject::units), QString(ServiceDocuments::units("first")));
    QVERIFY(TestFiles::replace(directory + "/units.json", ServiceDocuments::units("next")));
    QTRY_COMPARE_WITH_TIMEOUT(client.text(ServiceObject::units), QString(ServiceDocuments::units("next")),
                              waitLimit);
}

void ServiceProgramTest::directoryMayBeRelative()
{
    ServedDirectory served;
    QVERIFY(served.bus().start());

    ServiceProcess service;
    const QString directory = QDir::current().relativeFilePath(served.directory());
    QVERIFY(QDir::isRelativePath(directory));
    QVERIFY(service.serve(directory, served.bus().address()));
    const ServiceClient client(served.bus().address());
    QCOMPARE(client.text(ServiceObject::units), QString(ServiceDocuments::units("first")));
    QVERIFY(TestFiles::replace(served.path("units.json"), ServiceDocuments::units("next")));
    QTRY_COMPARE_WITH_TIMEOUT(client.text(ServiceObject::units), QString(ServiceDocuments::units("next")),
                              waitLimit);
}

void ServiceProgramTest::busStartsIt()
{
    ServedDirectory served;
    const QString command = QStringLiteral("%1 --directory %2 --bus %3")
                                .arg(ServiceProcess::program(), served.directory(), served.bus().address());
    QVERIFY(served.bus().addActivatableService(ConfigurationFileService::name(), command));
    QVERIFY(served.bus().start());

    const ServiceClient client(served.bus().address());
    QCOMPARE(client.text(ServiceObject::units), QString(ServiceDocuments::units("first")));
}

void ServiceProgramTest::signalEndsIt_data()
{
    QTest::addColumn<int>("signal");

    QTest::newRow("SIGTERM") << SIGTERM;
    QTest::newRow("SIGINT") << SIGINT;
}

void ServiceProgramTest::signalEndsIt()
{
    QFETCH(int, signal);
    ServedDirectory served;
    QVERIFY(served.start());

    QVERIFY(served.service().send(signal));
    QCOMPARE(served.service().waitForEnd(), 0);
    QCOMPARE(served.service().log().count('\n'), 3);
}

void ServiceProgramTest::nameIsFreeAfterItsEnd()
{
    ServedDirectory served;
    QVERIFY(served.start());
    QVERIFY(served.service().send(SIGTERM));
    QCOMPARE(served.service().waitForEnd(), 0);

    ServiceProcess next;
    QVERIFY(next.serve(served.directory(), served.bus().address()));
    QCOMPARE(served.client().text(ServiceObject::units), QString(ServiceDocuments::units("first")));
}

void ServiceProgramTest::usedNameEndsIt()
{
    ServedDirectory served;
    QVERIFY(served.start());

    ServiceProcess second;
    QCOMPARE(second.run({"--directory", served.directory(), "--bus", served.bus().address()}), 1);
    QVERIFY2(second.log().endsWith("configuration-file-service: cannot take the name "
                                   "org.measuringdevice.DeviceManager: another program has it\n"),
             qPrintable(second.log()));
    QCOMPARE(second.output(), QString());
    QCOMPARE(served.client().text(ServiceObject::units), QString(ServiceDocuments::units("first")));
}

void ServiceProgramTest::unreachableBusEndsIt_data()
{
    QTest::addColumn<QString>("bus");

    QTest::newRow("no listener") << "unix:path=/nowhere/socket";
    QTest::newRow("not a transport") << "anything:";
    QTest::newRow("missing session bus") << "session";
    QTest::newRow("missing system bus") << "system";
}

void ServiceProgramTest::unreachableBusEndsIt()
{
    QFETCH(QString, bus);
    const QTemporaryDir directory;

    ServiceProcess service;
    service.setVariable("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere/socket");
    service.setVariable("DBUS_SYSTEM_BUS_ADDRESS", "unix:path=/nowhere/socket");
    QCOMPARE(service.run({"--directory", directory.path(), "--bus", bus}), 1);
    const QString beginning = "configuration-file-service: cannot reach the bus " + bus + ": ";
    QVERIFY2(service.log().startsWith(beginning), qPrintable(service.log()));
    QVERIFY2(service.log().size() > beginning.size() + 1, qPrintable(service.log()));
    QCOMPARE(service.log().count('\n'), 1);
    QCOMPARE(service.output(), QString());
}

void ServiceProgramTest::lostBusEndsIt()
{
    ServedDirectory served;
    QVERIFY(served.start());

    served.bus().stop();
    QCOMPARE(served.service().waitForEnd(), 1);
    QVERIFY2(served.service().log().endsWith("configuration-file-service: lost the bus " +
                                             served.bus().address() + '\n'),
             qPrintable(served.service().log()));
}

static const TestClass<ServiceProgramTest> testClass;
#include "ServiceProgramTest.moc"
