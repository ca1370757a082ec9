#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>
#include <QtTest/QTest>

#include "BusMonitor.h"
#include "ConfigurationFileHandlerDBusConnector.h"
#include "DBusConnection.h"
#include "DeviceBusEnvironment.h"
#include "FilesBus.h"
#include "TestProgram.h"
#include "WaitUntil.h"

/// When a connector is created, and the bus traffic of an attempt.
class ConfigurationFileHandlerDBusConnectorOpeningTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thereIsNoConnectorWithoutBus();
    void thereIsNoConnectorWithoutService_data();
    void thereIsNoConnectorWithoutService();
    void aHundredAttemptsWaitForNothing_data();
    void aHundredAttemptsWaitForNothing();
    void anAttemptWithoutServiceIsOneQuestion();
    void anErrorIsAnAnswerOfTheBus();
    void anAttemptWithServiceWatchesItsName();
    void theServiceIsFoundWhenItAppears();
    void noServiceIsStarted();
};

void ConfigurationFileHandlerDBusConnectorOpeningTest::thereIsNoConnectorWithoutBus()
{
    const FilesBus bus;
    QVERIFY(FilesBus::createConnector().isNull());
}

void ConfigurationFileHandlerDBusConnectorOpeningTest::thereIsNoConnectorWithoutService_data()
{
    QTest::addColumn<QString>("module");
    QTest::newRow("another module") << "Other";
    QTest::newRow("no module") << "";
    QTest::newRow("the full name") << FilesBus::serviceName();
    QTest::newRow("an invalid name") << "Files'";
}

void ConfigurationFileHandlerDBusConnectorOpeningTest::thereIsNoConnectorWithoutService()
{
    QFETCH(const QString, module);
    FilesBus bus;
    QVERIFY(bus.startService(FakeBusService::withValue("text")));
    QVERIFY(ConfigurationFileHandlerDBusConnector::createAndConnect(module, "Object").isNull());
    QVERIFY(!FilesBus::createConnector().isNull());
}

void ConfigurationFileHandlerDBusConnectorOpeningTest::aHundredAttemptsWaitForNothing_data()
{
    QTest::addColumn<bool>("hasBus");
    QTest::newRow("no bus") << false;
    QTest::newRow("no service") << true;
}

void ConfigurationFileHandlerDBusConnectorOpeningTest::aHundredAttemptsWaitForNothing()
{
    QFETCH(const bool, hasBus);
    FilesBus bus;
    if (hasBus)
        QVERIFY(bus.start());
    setCallTimeout(endlessTimeout);
    for (int attempt = 0; attempt < 100; ++attempt)
        QVERIFY(FilesBus::createConnector().isNull());
}

void ConfigurationFileHandlerDBusConnectorOpeningTest::anAttemptWithoutServiceIsOneQuestion()
{
    FilesBus bus;
    QVERIFY(bus.start());
    BusMonitor monitor(bus.address());
    QVERIFY(monitor.start());
    monitor.takeCalls(DBusConnection::getQDBusConnection());

    QVERIFY(FilesBus::createConnector().isNull());
    QCOMPARE(monitor.takeCalls(DBusConnection::getQDBusConnection()), QStringList{FilesBus::question()});
}

void ConfigurationFileHandlerDBusConnectorOpeningTest::anErrorIsAnAnswerOfTheBus()
{
    constexpr int attempts = 3;
    FilesBus bus;
    bus.deny("NameHasOwner");
    QVERIFY(bus.start());
    BusMonitor monitor(bus.address());
    QVERIFY(monitor.start());
    monitor.takeCalls(DBusConnection::getQDBusConnection());

    for (int attempt = 0; attempt < attempts; ++attempt)
        QVERIFY(FilesBus::createConnector().isNull());
    const QStringList questions = monitor.takeCalls(DBusConnection::getQDBusConnection());
    QCOMPARE(questions.size(), attempts);
    QCOMPARE(questions.count(FilesBus::question()), attempts);
}

void ConfigurationFileHandlerDBusConnectorOpeningTest::anAttemptWithServiceWatchesItsName()
{
    FilesBus bus;
    QVERIFY(bus.startService(FakeBusService::withValue("text")));
    BusMonitor monitor(bus.address());
    QVERIFY(monitor.start());
    monitor.takeCalls(DBusConnection::getQDBusConnection());

    const auto first = FilesBus::createConnector();
    const QStringList opened = monitor.takeCalls(DBusConnection::getQDBusConnection());
    const auto second = FilesBus::createConnector();
    second->getConfiguration("name", "module", "extra");
    const QStringList used = monitor.takeCalls(DBusConnection::getQDBusConnection());

    // The order matters: the bus is asked again after the watch, because the owner may have left before it.
    const QString watch = "org.freedesktop.DBus AddMatch type='signal',sender='org.freedesktop.DBus',"
                          "interface='org.freedesktop.DBus',member='NameOwnerChanged',arg0='" +
                          FilesBus::serviceName() + "'";
    QCOMPARE(opened, (QStringList{FilesBus::question(), watch, FilesBus::question()}));
    // The second connector shares the state of the first one.
    QCOMPARE(used, QStringList{FilesBus::serviceName() + " getConfiguration name"});
}

void ConfigurationFileHandlerDBusConnectorOpeningTest::theServiceIsFoundWhenItAppears()
{
    FilesBus bus;
    QVERIFY(bus.start());
    QVERIFY(FilesBus::createConnector().isNull());
    QVERIFY(bus.startService(FakeBusService::withValue("text")));
    const auto connector = FilesBus::createConnector();
    QVERIFY(!connector.isNull());
    QVERIFY(connector->isDBusInterfaceValid());
}

void ConfigurationFileHandlerDBusConnectorOpeningTest::noServiceIsStarted()
{
    FilesBus bus;
    const QString trace = bus.directory() + "/started";
    QVERIFY(bus.addActivatableService(FilesBus::serviceName(), "/usr/bin/touch " + trace));
    QVERIFY(bus.start());
    QVERIFY(FilesBus::createConnector().isNull());
    QVERIFY(!QFile::exists(trace));

    // The bus does start it for an ordinary call.
    DBusConnection::getQDBusConnection().send(
        QDBusMessage::createMethodCall(FilesBus::serviceName(), "/Object", QString(), "method"));
    QVERIFY(waitUntil([&trace] { return QFile::exists(trace); }));
}

static const TestClass<ConfigurationFileHandlerDBusConnectorOpeningTest> testClass;
#include "ConfigurationFileHandlerDBusConnectorOpeningTest.moc"
