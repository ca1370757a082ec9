#include "ConfigurationFileHandlerDBusConnector.h"
#include "AdaptedService.h"
#include "BusMonitor.h"
#include "DBusConnection.h"
#include "FakeBusService.h"
#include "PrivateBus.h"
#include "WaitUntil.h"

#include <QtDBus/QDBusArgument>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>
#include <QtTest/QTest>

#include <memory>

using ConnectorPointer = QSharedPointer<ConfigurationFileHandlerDBusConnector>;

Q_DECLARE_METATYPE(FakeBusService::Answer)

class ConfigurationFileHandlerDBusConnectorTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void thereIsNoConnectorWithoutBus();
    void thereIsNoConnectorWithoutService_data();
    void thereIsNoConnectorWithoutService();
    void aHundredAttemptsWaitForNothing_data();
    void aHundredAttemptsWaitForNothing();
    void anAttemptWithoutServiceIsOneQuestion();
    void aHundredAttemptsOnAFrozenBusWaitForOneQuestion();
    void aFrozenBusIsUsableWhenItAnswersAgain();
    void aFrozenBusThatIsReplacedIsUsable();
    void aFrozenBusLeavesAnotherBusUsable();
    void anErrorIsAnAnswerOfTheBus();
    void aServiceThatDoesNotReplyLeavesTheBusUsable();
    void anAttemptWithServiceWatchesItsName();
    void theServiceIsFoundWhenItAppears();
    void noServiceIsStarted();
    void noServiceIsStartedByACall();
    void theCallsAgreeWithTheDescriptionOfTheInterface();
    void theFirstArgumentIsHandedOver_data();
    void theFirstArgumentIsHandedOver();
    void aDictionaryIsHandedOver();
    void aFailedCallIsAnError_data();
    void aFailedCallIsAnError();
    void aServiceThatHasGoneIsAnError();
    void anAsynchronousCallIsOutstandingUntilItsTimeOut();
    void anAsynchronousCallFailsBeforeItsTimeOut_data();
    void anAsynchronousCallFailsBeforeItsTimeOut();
    void anAsynchronousCallWithoutBusIsNotMade();

private:
    void startService(const FakeBusService::Answer& answer);

    std::unique_ptr<PrivateBus> m_bus;
    std::unique_ptr<FakeBusService> m_service;
};

namespace {

const QString serviceName = QStringLiteral("org.measuringdevice.Files");

ConnectorPointer create()
{
    return ConfigurationFileHandlerDBusConnector::createAndConnect("Files", "Object");
}

// Waits for the end of the call without running an event loop.
int finalState(const DBusPendingReply& reply, ErrorContainer& error)
{
    int state = DBusPendingReply::Outstanding;
    waitUntil([&] {
        state = reply.isFinished(error);
        return state != DBusPendingReply::Outstanding;
    });
    return state;
}

} // namespace

void ConfigurationFileHandlerDBusConnectorTest::init()
{
    m_bus = std::make_unique<PrivateBus>();
    qputenv("DEVICE_BUS", m_bus->address().toLocal8Bit());
}

void ConfigurationFileHandlerDBusConnectorTest::cleanup()
{
    qunsetenv("DEVICE_BUS_TIMEOUT_MS");
    m_service.reset();
    m_bus.reset();
}

void ConfigurationFileHandlerDBusConnectorTest::startService(const FakeBusService::Answer& answer)
{
    QVERIFY(m_bus->start());
    m_service = std::make_unique<FakeBusService>(m_bus->address(), serviceName, answer);
    QVERIFY(m_service->isRunning());
}

void ConfigurationFileHandlerDBusConnectorTest::thereIsNoConnectorWithoutBus()
{
    QVERIFY(create().isNull());
}

void ConfigurationFileHandlerDBusConnectorTest::thereIsNoConnectorWithoutService_data()
{
    QTest::addColumn<QString>("module");
    QTest::newRow("another module") << "Other";
    QTest::newRow("no module") << "";
    QTest::newRow("the full name") << serviceName;
    QTest::newRow("no name of a module") << "Files'";
}

void ConfigurationFileHandlerDBusConnectorTest::thereIsNoConnectorWithoutService()
{
    QFETCH(const QString, module);
    startService(FakeBusService::withValue("text"));
    QVERIFY(ConfigurationFileHandlerDBusConnector::createAndConnect(module, "Object").isNull());
    QVERIFY(!create().isNull());
}

void ConfigurationFileHandlerDBusConnectorTest::aHundredAttemptsWaitForNothing_data()
{
    QTest::addColumn<bool>("hasBus");
    QTest::newRow("no bus") << false;
    QTest::newRow("no service") << true;
}

void ConfigurationFileHandlerDBusConnectorTest::aHundredAttemptsWaitForNothing()
{
    QFETCH(const bool, hasBus);
    if (hasBus)
        QVERIFY(m_bus->start());
    QElapsedTimer timer;
    timer.start();
    for (int attempt = 0; attempt < 100; ++attempt)
        QVERIFY(create().isNull());
    // If each attempt blocked, a hundred attempts would exceed the time-out of one call.
    QVERIFY2(timer.elapsed() < DBusConnection::getCallTimeout(),
             qPrintable(QString::number(timer.elapsed())));
}

void ConfigurationFileHandlerDBusConnectorTest::anAttemptWithoutServiceIsOneQuestion()
{
    QVERIFY(m_bus->start());
    BusMonitor monitor(m_bus->address());
    QVERIFY(monitor.start());
    monitor.takeCalls(DBusConnection::getQDBusConnection());

    QVERIFY(create().isNull());
    QCOMPARE(monitor.takeCalls(DBusConnection::getQDBusConnection()),
             QStringList{"org.freedesktop.DBus NameHasOwner " + serviceName});
}

void ConfigurationFileHandlerDBusConnectorTest::aHundredAttemptsOnAFrozenBusWaitForOneQuestion()
{
    constexpr int attempts = 100;
    QVERIFY(m_bus->start());
    BusMonitor monitor(m_bus->address());
    QVERIFY(monitor.start());
    const QDBusConnection connection = DBusConnection::getQDBusConnection();
    monitor.takeCalls(connection);

    // A time-out for each attempt would exceed the limit.
    qputenv("DEVICE_BUS_TIMEOUT_MS", QByteArray::number(2 * waitLimit / attempts));
    const QDeadlineTimer deadline(waitLimit);
    m_bus->halt();
    for (int attempt = 0; attempt < attempts && !deadline.hasExpired(); ++attempt)
        QVERIFY(create().isNull());
    QVERIFY(!deadline.hasExpired());

    m_bus->resume();
    // The call that blocked until its time-out, and the one that remains outstanding.
    const QString question = "org.freedesktop.DBus NameHasOwner " + serviceName;
    QCOMPARE(monitor.takeCalls(connection), (QStringList{question, question}));
}

void ConfigurationFileHandlerDBusConnectorTest::aFrozenBusIsUsableWhenItAnswersAgain()
{
    startService(FakeBusService::withValue("text"));
    QVERIFY(!create().isNull());
    qputenv("DEVICE_BUS_TIMEOUT_MS", "200");
    for (int freeze = 0; freeze < 2; ++freeze) {
        m_bus->halt();
        QVERIFY(create().isNull());
        m_bus->resume();
        QVERIFY(waitUntil([] { return !create().isNull(); }));
    }
}

void ConfigurationFileHandlerDBusConnectorTest::aFrozenBusThatIsReplacedIsUsable()
{
    QVERIFY(m_bus->start());
    const QDBusConnection lost = DBusConnection::getQDBusConnection();
    QVERIFY(lost.isConnected());
    qputenv("DEVICE_BUS_TIMEOUT_MS", "200");
    m_bus->halt();
    QVERIFY(create().isNull());
    m_bus->stop();
    QVERIFY(waitUntil([&lost] { return !lost.isConnected(); }));

    qunsetenv("DEVICE_BUS_TIMEOUT_MS");
    startService(FakeBusService::withValue("text"));
    QVERIFY(!create().isNull());
}

void ConfigurationFileHandlerDBusConnectorTest::aFrozenBusLeavesAnotherBusUsable()
{
    PrivateBus frozenBus;
    QVERIFY(frozenBus.start());
    BusMonitor monitor(frozenBus.address());
    QVERIFY(monitor.start());
    const QByteArray frozenAddress = frozenBus.address().toLocal8Bit();
    qputenv("DEVICE_BUS", frozenAddress);
    const QDBusConnection frozenConnection = DBusConnection::getQDBusConnection();
    monitor.takeCalls(frozenConnection);
    qputenv("DEVICE_BUS_TIMEOUT_MS", "200");
    frozenBus.halt();
    QVERIFY(create().isNull());

    qunsetenv("DEVICE_BUS_TIMEOUT_MS");
    qputenv("DEVICE_BUS", m_bus->address().toLocal8Bit());
    startService(FakeBusService::withValue("text"));
    QVERIFY(!create().isNull());
    // Answers of this bus do not make the other one usable.
    qputenv("DEVICE_BUS", frozenAddress);
    qputenv("DEVICE_BUS_TIMEOUT_MS", "200");
    QVERIFY(create().isNull());
    QVERIFY(create().isNull());
    frozenBus.resume();
    const QString question = "org.freedesktop.DBus NameHasOwner " + serviceName;
    QCOMPARE(monitor.takeCalls(frozenConnection), (QStringList{question, question}));
}

void ConfigurationFileHandlerDBusConnectorTest::anErrorIsAnAnswerOfTheBus()
{
    constexpr int attempts = 3;
    m_bus->deny("NameHasOwner");
    QVERIFY(m_bus->start());
    BusMonitor monitor(m_bus->address());
    QVERIFY(monitor.start());
    monitor.takeCalls(DBusConnection::getQDBusConnection());

    for (int attempt = 0; attempt < attempts; ++attempt)
        QVERIFY(create().isNull());
    const QStringList questions = monitor.takeCalls(DBusConnection::getQDBusConnection());
    QCOMPARE(questions.size(), attempts);
    QCOMPARE(questions.count("org.freedesktop.DBus NameHasOwner " + serviceName), attempts);
}

void ConfigurationFileHandlerDBusConnectorTest::aServiceThatDoesNotReplyLeavesTheBusUsable()
{
    startService(FakeBusService::never());
    ConnectorPointer connector = create();
    QVERIFY(!connector.isNull());
    qputenv("DEVICE_BUS_TIMEOUT_MS", "200");
    QVERIFY(connector->getConfiguration("name", "module", "extra").isError());
    qunsetenv("DEVICE_BUS_TIMEOUT_MS");
    // Without this connector the bus is queried again.
    connector.reset();
    QVERIFY(!create().isNull());
}

void ConfigurationFileHandlerDBusConnectorTest::anAttemptWithServiceWatchesItsName()
{
    startService(FakeBusService::withValue("text"));
    BusMonitor monitor(m_bus->address());
    QVERIFY(monitor.start());
    monitor.takeCalls(DBusConnection::getQDBusConnection());

    const ConnectorPointer first = create();
    const QStringList opened = monitor.takeCalls(DBusConnection::getQDBusConnection());
    const ConnectorPointer second = create();
    second->getConfiguration("name", "module", "extra");
    const QStringList used = monitor.takeCalls(DBusConnection::getQDBusConnection());

    // Query, watch, and query again, because the owner may have left before the watch.
    const QString question = "org.freedesktop.DBus NameHasOwner " + serviceName;
    const QString watch = "org.freedesktop.DBus AddMatch type='signal',sender='org.freedesktop.DBus',"
                          "interface='org.freedesktop.DBus',member='NameOwnerChanged',arg0='" +
                          serviceName + "'";
    QCOMPARE(opened, (QStringList{question, watch, question}));
    // The second connector shares the state of the first one.
    QCOMPARE(used, QStringList{serviceName + " getConfiguration name"});
}

void ConfigurationFileHandlerDBusConnectorTest::theServiceIsFoundWhenItAppears()
{
    QVERIFY(m_bus->start());
    QVERIFY(create().isNull());
    startService(FakeBusService::withValue("text"));
    const ConnectorPointer connector = create();
    QVERIFY(!connector.isNull());
    QVERIFY(connector->isDBusInterfaceValid());
}

void ConfigurationFileHandlerDBusConnectorTest::noServiceIsStarted()
{
    const QString trace = m_bus->directory() + "/started";
    QVERIFY(m_bus->addActivatableService(serviceName, "/usr/bin/touch " + trace));
    QVERIFY(m_bus->start());
    QVERIFY(create().isNull());
    QVERIFY(!QFile::exists(trace));

    // The bus does start it for an ordinary call.
    DBusConnection::getQDBusConnection().send(
        QDBusMessage::createMethodCall(serviceName, "/Object", QString(), "method"));
    QVERIFY(waitUntil([&trace] { return QFile::exists(trace); }));
}

void ConfigurationFileHandlerDBusConnectorTest::noServiceIsStartedByACall()
{
    const QString trace = m_bus->directory() + "/started";
    QVERIFY(m_bus->addActivatableService(serviceName, "/usr/bin/touch " + trace));
    startService(FakeBusService::withValue("text"));
    const ConnectorPointer connector = create();
    QVERIFY(!connector.isNull());
    m_service.reset();
    QVERIFY(waitUntil([&connector] { return !connector->isDBusInterfaceValid(); }));
    QVERIFY(connector->getConfiguration("name", "module", "extra").isError());
    QVERIFY(!QFile::exists(trace));
}

void ConfigurationFileHandlerDBusConnectorTest::theCallsAgreeWithTheDescriptionOfTheInterface()
{
    QVERIFY(m_bus->start());
    AdaptedService service(m_bus->address(), serviceName, "/Object");
    QVERIFY(service.isRunning());
    const ConnectorPointer connector = create();
    QVERIFY(!connector.isNull());

    ErrorContainer error;
    const auto configuration = connector->getConfigurationAsynchron("a", "b", "c");
    const auto dependency = connector->getConfigurationDependencyAsynchron("a", "b");
    QCOMPARE(finalState(*configuration, error), 0);
    QCOMPARE(finalState(*dependency, error), 0);
    const QList<QVariant> values{
        connector->getConfiguration("a", "b", "c").getValue(), configuration->getReply(),
        connector->getConfigurationDependency("a", "b").getValue(), dependency->getReply()};
    const QList<QVariant> expected{"configuration a for b with c", "configuration a for b with c",
                                   "dependency a for b", "dependency a for b"};
    QCOMPARE(values, expected);
}

void ConfigurationFileHandlerDBusConnectorTest::theFirstArgumentIsHandedOver_data()
{
    QTest::addColumn<FakeBusService::Answer>("answer");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("a text") << FakeBusService::withValue("text") << QVariant("text");
    QTest::newRow("an empty text") << FakeBusService::withValue("") << QVariant("");
    QTest::newRow("a number") << FakeBusService::withValue(42) << QVariant(42);
    QTest::newRow("a broken number") << FakeBusService::withValue(0.5) << QVariant(0.5);
    QTest::newRow("a truth value") << FakeBusService::withValue(true) << QVariant(true);
    QTest::newRow("texts") << FakeBusService::withValue(QStringList{"a", "b"})
                           << QVariant(QStringList{"a", "b"});
    QTest::newRow("nothing") << FakeBusService::withoutValue() << QVariant();
    const QString longText(1 << 20, QChar(0x20ac));
    QTest::newRow("a long text") << FakeBusService::withValue(longText) << QVariant(longText);
}

void ConfigurationFileHandlerDBusConnectorTest::theFirstArgumentIsHandedOver()
{
    QFETCH(const FakeBusService::Answer, answer);
    QFETCH(const QVariant, value);
    startService(answer);
    const ConnectorPointer connector = create();
    QVERIFY(!connector.isNull());

    const DBusReply reply = connector->getConfiguration("name", "module", "extra");
    QVERIFY(!reply.isError());
    QCOMPARE(reply.getValue().userType(), value.userType());
    QCOMPARE(reply.getValue(), value);

    const auto pending = connector->getConfigurationAsynchron("name", "module", "extra");
    ErrorContainer error;
    QCOMPARE(finalState(*pending, error), 0);
    QVERIFY(!error.isError());
    QCOMPARE(pending->getReply().userType(), value.userType());
    QCOMPARE(pending->getReply(), value);
}

void ConfigurationFileHandlerDBusConnectorTest::aDictionaryIsHandedOver()
{
    const QVariantMap map{{"number", 1}, {"text", "a"}};
    startService(FakeBusService::withValue(map));
    const DBusReply reply = create()->getConfigurationDependency("name", "module");
    QVERIFY(!reply.isError());
    QVERIFY(!reply.getValue().canConvert<QString>());
    QCOMPARE(qdbus_cast<QVariantMap>(reply.getValue()), map);
}

void ConfigurationFileHandlerDBusConnectorTest::aFailedCallIsAnError_data()
{
    QTest::addColumn<FakeBusService::Answer>("answer");
    QTest::addColumn<QString>("error");
    QTest::newRow("an error reply") << FakeBusService::withError("org.example.Error") << "org.example.Error";
    QTest::newRow("a reply that never comes")
        << FakeBusService::never() << "org.freedesktop.DBus.Error.NoReply";
}

void ConfigurationFileHandlerDBusConnectorTest::aFailedCallIsAnError()
{
    QFETCH(const FakeBusService::Answer, answer);
    QFETCH(const QString, error);
    qputenv("DEVICE_BUS_TIMEOUT_MS", "200");
    startService(answer);
    const ConnectorPointer connector = create();
    QVERIFY(!connector.isNull());

    for (const DBusReply& reply : {connector->getConfiguration("name", "module", "extra"),
                                   connector->getConfigurationDependency("name", "module")}) {
        QVERIFY(reply.isError());
        QCOMPARE(reply.getError().getName(), error);
        QVERIFY(!reply.getValue().isValid());
    }
    for (const auto& pending : {connector->getConfigurationAsynchron("name", "module", "extra"),
                                connector->getConfigurationDependencyAsynchron("name", "module")}) {
        ErrorContainer details;
        QCOMPARE(finalState(*pending, details), 1);
        QCOMPARE(details.getName(), error);
        QVERIFY(!pending->getReply().isValid());
    }
    QVERIFY(connector->isDBusInterfaceValid());
}

void ConfigurationFileHandlerDBusConnectorTest::aServiceThatHasGoneIsAnError()
{
    startService(FakeBusService::withValue("text"));
    const ConnectorPointer connector = create();
    QVERIFY(connector->isDBusInterfaceValid());
    m_service.reset();
    QVERIFY(waitUntil([&connector] { return !connector->isDBusInterfaceValid(); }));
    QVERIFY(connector->getConfiguration("name", "module", "extra").isError());
    const auto pending = connector->getConfigurationAsynchron("name", "module", "extra");
    ErrorContainer error;
    QCOMPARE(finalState(*pending, error), 1);
    QVERIFY(error.isError());
    QVERIFY(create().isNull());
}

void ConfigurationFileHandlerDBusConnectorTest::anAsynchronousCallIsOutstandingUntilItsTimeOut()
{
    constexpr int timeout = 300;
    qputenv("DEVICE_BUS_TIMEOUT_MS", QByteArray::number(timeout));
    startService(FakeBusService::never());
    const ConnectorPointer connector = create();
    QElapsedTimer timer;
    timer.start();
    const auto pending = connector->getConfigurationAsynchron("name", "module", "extra");
    QVERIFY2(timer.elapsed() < timeout, "the call itself must not wait");

    ErrorContainer error;
    QCOMPARE(pending->isFinished(error), 2);
    QVERIFY(!pending->getReply().isValid());
    QVERIFY(!error.isError());
    QCOMPARE(finalState(*pending, error), 1);
    QVERIFY(timer.elapsed() >= timeout - 50); // timers of this length may be early by five per cent or more
    QCOMPARE(error.getName(), QStringLiteral("org.freedesktop.DBus.Error.NoReply"));
}

void ConfigurationFileHandlerDBusConnectorTest::anAsynchronousCallFailsBeforeItsTimeOut_data()
{
    QTest::addColumn<bool>("busLeaves");
    QTest::newRow("when its service leaves the bus") << false;
    QTest::newRow("when its bus goes away") << true;
}

void ConfigurationFileHandlerDBusConnectorTest::anAsynchronousCallFailsBeforeItsTimeOut()
{
    QFETCH(const bool, busLeaves);
    startService(FakeBusService::never());
    const ConnectorPointer connector = create();
    const auto pending = connector->getConfigurationAsynchron("name", "module", "extra");
    QVERIFY(waitUntil([this] { return m_service->calls().size() == 1; }));

    QElapsedTimer timer;
    timer.start();
    if (busLeaves)
        m_bus->stop();
    else
        m_service.reset();
    ErrorContainer error;
    QCOMPARE(finalState(*pending, error), 1);
    QVERIFY(timer.elapsed() < DBusConnection::getCallTimeout());
}

void ConfigurationFileHandlerDBusConnectorTest::anAsynchronousCallWithoutBusIsNotMade()
{
    startService(FakeBusService::withValue("text"));
    const ConnectorPointer connector = create();
    m_bus->stop();
    QVERIFY(waitUntil([&connector] { return !connector->isDBusInterfaceValid(); }));
    QVERIFY(connector->getConfigurationAsynchron("name", "module", "extra").isNull());
    QVERIFY(connector->getConfigurationDependencyAsynchron("name", "module").isNull());
    QVERIFY(connector->getConfiguration("name", "module", "extra").isError());
}

QTEST_GUILESS_MAIN(ConfigurationFileHandlerDBusConnectorTest)
#include "ConfigurationFileHandlerDBusConnectorTest.moc"
