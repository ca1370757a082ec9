#include "DBusConnectorBase.h"

#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusPendingCall>
#include <QtTest/QTest>

#include <memory>
#include <thread>

#include "DBusConnection.h"
#include "DeviceBusEnvironment.h"
#include "FakeBusService.h"
#include "TestProgram.h"
#include "WaitLimit.h"
#include "WaitUntil.h"

// A connector to any interface.
class Connector : public DBusConnectorBase
{
    Q_OBJECT

public:
    Connector() : DBusConnectorBase("Module", "Object", "org.measuringdevice.Interface") {}

    using DBusConnectorBase::call;
    using DBusConnectorBase::callAsynchron;
    using DBusConnectorBase::isServiceAvailable;
};

class DBusConnectorBaseTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aModuleOnTheBusIsAvailable();
    void aConnectorWithoutAnOwnerBecomesValidWhenOneAppears();
    void theOwnerIsFollowedInAThreadWithoutEventLoop();
    void theOwnerIsFollowedWithAnEventLoop();
    void onlyItsOwnEventsAreDelivered();
    void aConnectorStaysInvalidWhenItsBusIsLost();
    void aCallNamesTheObjectTheInterfaceAndTheMethod();
    void aQuestionToAFrozenBusEndsWithItsTimeOut();

private:
    std::unique_ptr<FakeBusService> startService();

    std::unique_ptr<PrivateBus> m_bus;
};

namespace {

const QString serviceName = QStringLiteral("org.measuringdevice.Module");

constexpr int defaultTimeout = -1; // 25 seconds, chosen by D-Bus

// Asks the bus for a sign of life.
QDBusPendingCall ping(int timeout)
{
    const QDBusMessage call = QDBusMessage::createMethodCall("org.freedesktop.DBus", "/org/freedesktop/DBus",
                                                             "org.freedesktop.DBus.Peer", "Ping");
    return DBusConnection::getQDBusConnection().asyncCall(call, timeout);
}

} // namespace

void DBusConnectorBaseTest::init()
{
    m_bus = std::make_unique<PrivateBus>();
    QVERIFY(startDeviceBus(*m_bus));
}

void DBusConnectorBaseTest::cleanup()
{
    m_bus.reset();
}

std::unique_ptr<FakeBusService> DBusConnectorBaseTest::startService()
{
    return std::make_unique<FakeBusService>(m_bus->address(), serviceName, FakeBusService::withValue("text"));
}

void DBusConnectorBaseTest::aModuleOnTheBusIsAvailable()
{
    QVERIFY(!Connector::isServiceAvailable("Module"));
    {
        const auto service = startService();
        QVERIFY(service->isRunning());
        QVERIFY(Connector::isServiceAvailable("Module"));
        QVERIFY(!Connector::isServiceAvailable("Other"));
        QVERIFY(!Connector::isServiceAvailable(""));
        QVERIFY(!Connector::isServiceAvailable("no'name"));
    }
    QVERIFY(waitUntil([] { return !Connector::isServiceAvailable("Module"); }));
    m_bus->stop();
    QVERIFY(!Connector::isServiceAvailable("Module"));
}

void DBusConnectorBaseTest::aConnectorWithoutAnOwnerBecomesValidWhenOneAppears()
{
    const Connector connector;
    QVERIFY(!connector.isDBusInterfaceValid());
    const auto service = startService();
    QVERIFY(service->isRunning());
    QVERIFY(waitUntil([&connector] { return connector.isDBusInterfaceValid(); }));
}

void DBusConnectorBaseTest::theOwnerIsFollowedInAThreadWithoutEventLoop()
{
    auto service = startService();
    bool validFirst = false;
    bool becameInvalid = false;
    bool becameValid = false;
    std::thread thread([&] {
        const Connector connector;
        validFirst = connector.isDBusInterfaceValid();
        service.reset();
        becameInvalid = waitUntil([&connector] { return !connector.isDBusInterfaceValid(); });
        service = startService();
        becameValid = waitUntil([&connector] { return connector.isDBusInterfaceValid(); });
    });
    thread.join();
    QVERIFY(validFirst);
    QVERIFY(becameInvalid);
    QVERIFY(becameValid);
}

void DBusConnectorBaseTest::theOwnerIsFollowedWithAnEventLoop()
{
    auto service = startService();
    const Connector connector;
    QVERIFY(connector.isDBusInterfaceValid());
    service.reset();
    QTRY_VERIFY_WITH_TIMEOUT(!connector.isDBusInterfaceValid(), waitLimit);
    service = startService();
    QTRY_VERIFY_WITH_TIMEOUT(connector.isDBusInterfaceValid(), waitLimit);
}

void DBusConnectorBaseTest::onlyItsOwnEventsAreDelivered()
{
    const auto service = startService();
    const Connector connector;
    QObject bystander;
    bool delivered = false;
    QMetaObject::invokeMethod(
        &bystander, [&delivered] { delivered = true; }, Qt::QueuedConnection);
    QVERIFY(connector.isDBusInterfaceValid());
    QVERIFY(!delivered);
    QCoreApplication::sendPostedEvents(&bystander);
    QVERIFY(delivered);
}

void DBusConnectorBaseTest::aConnectorStaysInvalidWhenItsBusIsLost()
{
    auto service = startService();
    const Connector connector;
    QVERIFY(connector.isDBusInterfaceValid());
    m_bus->stop();
    QVERIFY(waitUntil([&connector] { return !connector.isDBusInterfaceValid(); }));
    QVERIFY(connector.call("method", {}).isError());
    QVERIFY(connector.callAsynchron("method", {}).isNull());

    QVERIFY(m_bus->start());
    service = startService();
    QVERIFY(service->isRunning());
    QVERIFY(!connector.isDBusInterfaceValid());
    const Connector another;
    QVERIFY(another.isDBusInterfaceValid());
    QCOMPARE(another.call("method", {}).getValue(), QVariant("text"));
}

void DBusConnectorBaseTest::aCallNamesTheObjectTheInterfaceAndTheMethod()
{
    const auto service = startService();
    const Connector connector;
    QVERIFY(!connector.call("blocking", {"a", 1}).isError());
    const QSharedPointer<DBusPendingReply> pending = connector.callAsynchron("asynchronous", {});
    ErrorContainer error;
    QVERIFY(waitUntil([&] { return pending->isFinished(error) == DBusPendingReply::Arrived; }));

    const QList<QDBusMessage> calls = service->calls();
    QCOMPARE(calls.size(), 2);
    QCOMPARE(calls.at(0).member(), QStringLiteral("blocking"));
    QCOMPARE(calls.at(0).arguments(), (QVariantList{"a", 1}));
    QCOMPARE(calls.at(1).member(), QStringLiteral("asynchronous"));
    QCOMPARE(calls.at(1).arguments(), QVariantList());
    for (const QDBusMessage& call : calls) {
        QCOMPARE(call.service(), DBusConnection::getQDBusConnection().baseService());
        QCOMPARE(call.path(), QStringLiteral("/Object"));
        QCOMPARE(call.interface(), QStringLiteral("org.measuringdevice.Interface"));
    }
}

void DBusConnectorBaseTest::aQuestionToAFrozenBusEndsWithItsTimeOut()
{
    const auto service = startService();
    QVERIFY(Connector::isServiceAvailable("Module"));
    m_bus->halt();
    const QDBusPendingCall shorter = ping(200);
    const QDBusPendingCall longer = ping(defaultTimeout);
    setCallTimeout(400);
    QVERIFY(!Connector::isServiceAvailable("Module"));
    // The question ended in the order of the time-outs.
    QVERIFY(shorter.isFinished());
    QVERIFY(!longer.isFinished());

    // Until the bus answers, further questions do not wait.
    setCallTimeout(endlessTimeout);
    QVERIFY(!Connector::isServiceAvailable("Module"));
    m_bus->resume();
    QVERIFY(waitUntil([] { return Connector::isServiceAvailable("Module"); }));
}

static const TestClass<DBusConnectorBaseTest> testClass;
#include "DBusConnectorBaseTest.moc"
