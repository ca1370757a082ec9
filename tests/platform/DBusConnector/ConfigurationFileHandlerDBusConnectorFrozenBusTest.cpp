#include <QtDBus/QDBusConnection>
#include <QtTest/QTest>

#include "BusMonitor.h"
#include "ConfigurationFileHandlerDBusConnector.h"
#include "DBusConnection.h"
#include "DeviceBusEnvironment.h"
#include "FilesBus.h"
#include "TestProgram.h"
#include "WaitUntil.h"

/// Attempts to create a connector on a bus that accepts requests but does not answer them.
class ConfigurationFileHandlerDBusConnectorFrozenBusTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aHundredAttemptsWaitForOneQuestion();
    void aFrozenBusIsUsableWhenItAnswersAgain();
    void aFrozenBusThatIsReplacedIsUsable();
    void aFrozenBusLeavesAnotherBusUsable();
    void aServiceThatDoesNotReplyLeavesTheBusUsable();
};

namespace {

// Makes an attempt that ends with its time-out.
bool failsToConnect()
{
    setCallTimeout(200);
    const bool isNull = FilesBus::createConnector().isNull();
    setCallTimeout(waitLimit);
    return isNull;
}

} // namespace

void ConfigurationFileHandlerDBusConnectorFrozenBusTest::aHundredAttemptsWaitForOneQuestion()
{
    FilesBus bus;
    QVERIFY(bus.start());
    BusMonitor monitor(bus.address());
    QVERIFY(monitor.start());
    const QDBusConnection connection = DBusConnection::getQDBusConnection();
    monitor.takeCalls(connection);

    bus.halt();
    QVERIFY(failsToConnect());
    setCallTimeout(endlessTimeout);
    for (int attempt = 1; attempt < 100; ++attempt)
        QVERIFY(FilesBus::createConnector().isNull());

    bus.resume();
    // The call that blocked until its time-out, and the one that remains outstanding.
    QCOMPARE(monitor.takeCalls(connection), (QStringList{FilesBus::question(), FilesBus::question()}));
}

void ConfigurationFileHandlerDBusConnectorFrozenBusTest::aFrozenBusIsUsableWhenItAnswersAgain()
{
    FilesBus bus;
    QVERIFY(bus.startService(FakeBusService::withValue("text")));
    QVERIFY(!FilesBus::createConnector().isNull());
    for (int freeze = 0; freeze < 2; ++freeze) {
        bus.halt();
        QVERIFY(failsToConnect());
        bus.resume();
        QVERIFY(waitUntil([] { return !FilesBus::createConnector().isNull(); }));
    }
}

void ConfigurationFileHandlerDBusConnectorFrozenBusTest::aFrozenBusThatIsReplacedIsUsable()
{
    FilesBus bus;
    QVERIFY(bus.start());
    const QDBusConnection lost = DBusConnection::getQDBusConnection();
    QVERIFY(lost.isConnected());
    bus.halt();
    QVERIFY(failsToConnect());
    bus.stop();
    QVERIFY(waitUntil([&lost] { return !lost.isConnected(); }));

    QVERIFY(bus.startService(FakeBusService::withValue("text")));
    QVERIFY(!FilesBus::createConnector().isNull());
}

void ConfigurationFileHandlerDBusConnectorFrozenBusTest::aFrozenBusLeavesAnotherBusUsable()
{
    FilesBus frozenBus;
    QVERIFY(frozenBus.start());
    BusMonitor monitor(frozenBus.address());
    QVERIFY(monitor.start());
    const QDBusConnection frozenConnection = DBusConnection::getQDBusConnection();
    monitor.takeCalls(frozenConnection);
    frozenBus.halt();
    QVERIFY(failsToConnect());

    FilesBus anotherBus;
    QVERIFY(anotherBus.startService(FakeBusService::withValue("text")));
    QVERIFY(!FilesBus::createConnector().isNull());

    // Answers of this bus do not make the other one usable.
    useDeviceBus(frozenBus.address(), endlessTimeout);
    QVERIFY(FilesBus::createConnector().isNull());
    QVERIFY(FilesBus::createConnector().isNull());
    frozenBus.resume();
    QCOMPARE(monitor.takeCalls(frozenConnection), (QStringList{FilesBus::question(), FilesBus::question()}));
}

void ConfigurationFileHandlerDBusConnectorFrozenBusTest::aServiceThatDoesNotReplyLeavesTheBusUsable()
{
    FilesBus bus;
    QVERIFY(bus.startService(FakeBusService::never()));
    auto connector = FilesBus::createConnector();
    QVERIFY(!connector.isNull());
    setCallTimeout(200);
    QVERIFY(connector->getConfiguration("name", "module", "extra").isError());
    setCallTimeout(waitLimit);
    // Without this connector the bus is queried again.
    connector.reset();
    QVERIFY(!FilesBus::createConnector().isNull());
}

static const TestClass<ConfigurationFileHandlerDBusConnectorFrozenBusTest> testClass;
#include "ConfigurationFileHandlerDBusConnectorFrozenBusTest.moc"
