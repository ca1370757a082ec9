#include <QtDBus/QDBusArgument>
#include <QtTest/QTest>

#include "AdaptedService.h"
#include "ConfigurationFileHandlerDBusConnector.h"
#include "DeviceBusEnvironment.h"
#include "FilesBus.h"
#include "Row.h"
#include "TestProgram.h"
#include "WaitUntil.h"

Q_DECLARE_METATYPE(FakeBusService::Answer)

/// The calls of a connector to a service that answers, fails or has left.
class ConfigurationFileHandlerDBusConnectorCallTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theCallsAgreeWithTheDescriptionOfTheInterface();
    void theFirstArgumentIsReturned_data();
    void theFirstArgumentIsReturned();
    void aDictionaryIsReturned();
    void aFailedCallIsAnError_data();
    void aFailedCallIsAnError();
    void aServiceThatHasGoneIsAnError();
    void noServiceIsStartedByACall();
    void anAsynchronousCallIsOutstandingUntilItsTimeOut();
    void anAsynchronousCallFailsBeforeItsTimeOut_data();
    void anAsynchronousCallFailsBeforeItsTimeOut();
    void anAsynchronousCallWithoutBusIsNotMade();
};

namespace {

const QString noReply = QStringLiteral("org.freedesktop.DBus.Error.NoReply");

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

// Makes an asynchronous call with this time-out.
QSharedPointer<DBusPendingReply> callAsynchron(const ConfigurationFileHandlerDBusConnector& connector,
                                               int timeout)
{
    setCallTimeout(timeout);
    return connector.getConfigurationAsynchron("name", "module", "extra");
}

} // namespace

void ConfigurationFileHandlerDBusConnectorCallTest::theCallsAgreeWithTheDescriptionOfTheInterface()
{
    FilesBus bus;
    QVERIFY(bus.start());
    AdaptedService service(bus.address(), FilesBus::serviceName(), "/Object");
    QVERIFY(service.isRunning());
    const auto connector = FilesBus::createConnector();
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

void ConfigurationFileHandlerDBusConnectorCallTest::theFirstArgumentIsReturned_data()
{
    QTest::addColumn<FakeBusService::Answer>("answer");
    QTest::addColumn<QVariant>("value");

    const auto addRow = [](const char* name, const QVariant& value) {
        row(name, FakeBusService::withValue(value), value);
    };
    addRow("a text", "text");
    addRow("an empty text", "");
    addRow("a number", 42);
    addRow("a fraction", 0.5);
    addRow("a truth value", true);
    addRow("texts", QStringList{"a", "b"});
    addRow("a long text", QString(1 << 20, QChar(0x20ac)));
    row("nothing", FakeBusService::withoutValue(), QVariant());
}

void ConfigurationFileHandlerDBusConnectorCallTest::theFirstArgumentIsReturned()
{
    QFETCH(const FakeBusService::Answer, answer);
    QFETCH(const QVariant, value);
    FilesBus bus;
    QVERIFY(bus.startService(answer));
    const auto connector = FilesBus::createConnector();
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

void ConfigurationFileHandlerDBusConnectorCallTest::aDictionaryIsReturned()
{
    const QVariantMap map{{"number", 1}, {"text", "a"}};
    FilesBus bus;
    QVERIFY(bus.startService(FakeBusService::withValue(map)));
    const DBusReply reply = FilesBus::createConnector()->getConfigurationDependency("name", "module");
    QVERIFY(!reply.isError());
    QVERIFY(!reply.getValue().canConvert<QString>());
    QCOMPARE(qdbus_cast<QVariantMap>(reply.getValue()), map);
}

void ConfigurationFileHandlerDBusConnectorCallTest::aFailedCallIsAnError_data()
{
    QTest::addColumn<FakeBusService::Answer>("answer");
    QTest::addColumn<int>("timeout");
    QTest::addColumn<QString>("error");
    row("an error reply", FakeBusService::withError("org.example.Error"), waitLimit, "org.example.Error");
    row("a missing reply", FakeBusService::never(), 200, noReply);
}

void ConfigurationFileHandlerDBusConnectorCallTest::aFailedCallIsAnError()
{
    QFETCH(const FakeBusService::Answer, answer);
    QFETCH(const int, timeout);
    QFETCH(const QString, error);
    FilesBus bus;
    QVERIFY(bus.startService(answer));
    const auto connector = FilesBus::createConnector();
    QVERIFY(!connector.isNull());
    setCallTimeout(timeout);

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

void ConfigurationFileHandlerDBusConnectorCallTest::aServiceThatHasGoneIsAnError()
{
    FilesBus bus;
    QVERIFY(bus.startService(FakeBusService::withValue("text")));
    const auto connector = FilesBus::createConnector();
    QVERIFY(connector->isDBusInterfaceValid());
    bus.stopService();
    QVERIFY(waitUntil([&connector] { return !connector->isDBusInterfaceValid(); }));
    QVERIFY(connector->getConfiguration("name", "module", "extra").isError());
    const auto pending = connector->getConfigurationAsynchron("name", "module", "extra");
    ErrorContainer error;
    QCOMPARE(finalState(*pending, error), 1);
    QVERIFY(error.isError());
    QVERIFY(FilesBus::createConnector().isNull());
}

void ConfigurationFileHandlerDBusConnectorCallTest::noServiceIsStartedByACall()
{
    FilesBus bus;
    const QString trace = bus.directory() + "/started";
    QVERIFY(bus.addActivatableService(FilesBus::serviceName(), "/usr/bin/touch " + trace));
    QVERIFY(bus.startService(FakeBusService::withValue("text")));
    const auto connector = FilesBus::createConnector();
    QVERIFY(!connector.isNull());
    bus.stopService();
    QVERIFY(waitUntil([&connector] { return !connector->isDBusInterfaceValid(); }));
    QVERIFY(connector->getConfiguration("name", "module", "extra").isError());
    QVERIFY(!QFile::exists(trace));
}

void ConfigurationFileHandlerDBusConnectorCallTest::anAsynchronousCallIsOutstandingUntilItsTimeOut()
{
    FilesBus bus;
    QVERIFY(bus.startService(FakeBusService::never()));
    const auto connector = FilesBus::createConnector();
    const auto longest = callAsynchron(*connector, endlessTimeout);
    const auto longer = callAsynchron(*connector, 400);
    const auto shorter = callAsynchron(*connector, 200);

    ErrorContainer error;
    QCOMPARE(longest->isFinished(error), 2);
    QVERIFY(!longest->getReply().isValid());
    QVERIFY(!error.isError());

    // The calls end in the order of their time-outs.
    QCOMPARE(finalState(*longer, error), 1);
    QCOMPARE(error.getName(), noReply);
    QCOMPARE(shorter->isFinished(error), 1);
    QCOMPARE(longest->isFinished(error), 2);
}

void ConfigurationFileHandlerDBusConnectorCallTest::anAsynchronousCallFailsBeforeItsTimeOut_data()
{
    QTest::addColumn<bool>("busLeaves");
    QTest::newRow("when its service leaves the bus") << false;
    QTest::newRow("when its bus goes away") << true;
}

void ConfigurationFileHandlerDBusConnectorCallTest::anAsynchronousCallFailsBeforeItsTimeOut()
{
    QFETCH(const bool, busLeaves);
    FilesBus bus;
    QVERIFY(bus.startService(FakeBusService::never()));
    const auto connector = FilesBus::createConnector();
    const auto pending = callAsynchron(*connector, endlessTimeout);
    QVERIFY(waitUntil([&bus] { return bus.service().calls().size() == 1; }));

    if (busLeaves)
        bus.stop();
    else
        bus.stopService();
    ErrorContainer error;
    QCOMPARE(finalState(*pending, error), 1);
}

void ConfigurationFileHandlerDBusConnectorCallTest::anAsynchronousCallWithoutBusIsNotMade()
{
    FilesBus bus;
    QVERIFY(bus.startService(FakeBusService::withValue("text")));
    const auto connector = FilesBus::createConnector();
    bus.stop();
    QVERIFY(waitUntil([&connector] { return !connector->isDBusInterfaceValid(); }));
    QVERIFY(connector->getConfigurationAsynchron("name", "module", "extra").isNull());
    QVERIFY(connector->getConfigurationDependencyAsynchron("name", "module").isNull());
    QVERIFY(connector->getConfiguration("name", "module", "extra").isError());
}

static const TestClass<ConfigurationFileHandlerDBusConnectorCallTest> testClass;
#include "ConfigurationFileHandlerDBusConnectorCallTest.moc"
