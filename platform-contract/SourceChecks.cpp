#include <QtCore/QElapsedTimer>
#include <QtDBus/QDBusConnection>

#include "Checks.h"
#include "ConfigurationFileHandlerDBusConnector.h"
#include "DBusConnection.h"
#include "DBusConnectionSignalPollingHandler.h"
#include "DeviceManagerDefinitions.h"
#include "VendorHooks.h"

namespace {

using Connector = ConfigurationFileHandlerDBusConnector;
using PollingHandler = DBusConnectionSignalPollingHandler;

const QString object = "ContractConfiguration";
const QString configuration = "Contract/Configuration";
const QString text = "{ \"a\": 1 }";

QSharedPointer<Connector> connect()
{
    return Connector::createAndConnect(DeviceManagerDefinitions::getModuleName(), object);
}

/// The source for the duration of a check.
class Source
{
public:
    explicit Source(Faults& faults)
    {
        faults.expect(VendorHooks::startSource(object, configuration, text), "the source starts");
    }
    ~Source()
    {
        VendorHooks::stopSource();
    }
    Source(const Source&) = delete;
    Source& operator=(const Source&) = delete;
};

void nothingIsThereWithoutASource(Faults& faults)
{
    QElapsedTimer timer;
    timer.start();
    faults.expect(!connect(), "there is no connector without a source");
    faults.expect(!Connector::createAndConnect("NoSuchModule", object), "an unknown module has no connector");
    faults.expect(timer.elapsed() < answerLimit, QString("both answers come within %1 ms").arg(answerLimit));
}

void sourceIsObserved(Faults& faults)
{
    QSharedPointer<Connector> connector;
    {
        const Source source(faults);
        connector = connect();
        faults.expect(connector && connector->isDBusInterfaceValid(), "a connector to the source is valid");
    }
    faults.expect(connector && becomesTrue([&] { return !connector->isDBusInterfaceValid(); }),
                  "a connector is invalid after the source has stopped");
}

void connectorIsOwnedByItsUser(Faults& faults)
{
    const Source source(faults);
    QSharedPointer<Connector> connector = connect();
    faults.expect(connector && !connector->parent(), "a connector has no other owner");
    const QWeakPointer<Connector> observer = connector;
    connector.reset();
    faults.expect(!observer, "a connector is destroyed with its last handle");
}

void textsAreReadBlocking(Faults& faults)
{
    const Source source(faults);
    const QSharedPointer<Connector> connector = connect();
    if (!connector) {
        faults.expect(false, "there is a connector to the source");
        return;
    }
    const DBusReply reply = connector->getConfiguration(configuration, "UnitManager", QString());
    faults.expect(!reply.isError() && reply.getValue() == QVariant(text), "a configuration is read");
    const DBusReply dependency = connector->getConfigurationDependency(configuration, "UnitManager");
    faults.expect(!dependency.isError() && dependency.getValue() == QVariant(text),
                  "a dependency configuration is read");
}

void emptyReplyIsAnError(Faults& faults)
{
    faults.expect(DBusReply().isError(), "a reply that was never received is an error");
    faults.expect(!DBusReply().getValue().isValid(), "it has no value");
}

void expectText(Faults& faults, const QSharedPointer<DBusPendingReply>& reply, const QString& what)
{
    if (!reply) {
        faults.expect(false, what + " is requested");
        return;
    }
    ErrorContainer error;
    int state = 2;
    faults.expect(becomesTrue([&] {
                      state = reply->isFinished(error);
                      return state == 0 || state == 1;
                  }),
                  what + " is finished without an event loop");
    faults.expect(state == 0 && reply->isFinished(error) == 0, what + " has arrived, and stays so");
    faults.expect(reply->getReply() == QVariant(text), what + " has the text");
}

void textsAreReadWithoutBlocking(Faults& faults)
{
    const Source source(faults);
    const QSharedPointer<Connector> connector = connect();
    if (!connector) {
        faults.expect(false, "there is a connector to the source");
        return;
    }
    expectText(faults, connector->getConfigurationAsynchron(configuration, "UnitManager", QString()),
               "a configuration");
    expectText(faults, connector->getConfigurationDependencyAsynchron(configuration, "UnitManager"),
               "a dependency configuration");
}

PollingHandler::SlotSignature oneText()
{
    return PollingHandler::SlotSignature(3);
}

void signalsAreQueued(Faults& faults)
{
    const Source source(faults);
    PollingHandler handler(DeviceManagerDefinitions::getModuleName(), object, "configurationChanged",
                           oneText());
    faults.expect(!handler.isSignalOccured(), "no signal has occurred at first");
    VendorHooks::announceChange(object, configuration);
    faults.expect(becomesTrue([&] { return handler.isSignalOccured(); }),
                  "a signal is received without an event loop");
    faults.expect(handler.isSignalOccured(), "it stays until it is reset");
    faults.expect(handler.getSignalParameter() == QVariant(configuration), "it has its parameter");
}

void resetKeepsNewSignals(Faults& faults)
{
    const Source source(faults);
    const QString module = DeviceManagerDefinitions::getModuleName();
    PollingHandler handler(module, object, "configurationChanged", oneText());
    VendorHooks::announceChange(object, configuration);
    if (!becomesTrue([&] { return handler.isSignalOccured(); }))
        return; // reported by signalsAreQueued()
    handler.resetLastSignal();
    faults.expect(!handler.isSignalOccured(), "a signal is gone after a reset");
    // Shows that the next signal has arrived, without polling the handler.
    PollingHandler witness(module, object, "configurationChanged", oneText());
    VendorHooks::announceChange(object, configuration);
    if (!becomesTrue([&] { return witness.isSignalOccured(); }))
        return;
    handler.resetLastSignal();
    faults.expect(becomesTrue([&] { return handler.isSignalOccured(); }),
                  "a signal that arrives before a reset, but was not polled, is not lost");
}

void busIsConstant(Faults& faults)
{
    faults.expect(DBusConnection::getQDBusConnection().name() == DBusConnection::getQDBusConnection().name(),
                  "every call returns the same connection, connected or not");
}

} // namespace

QList<Check> sourceChecks()
{
    const QString create =
        "ConfigurationFileHandlerDBusConnector::createAndConnect(QString const&, QString const&)";
    const QString askForText =
        "ConfigurationFileHandlerDBusConnector::getConfigurationAsynchron(QString const&, "
        "QString const&, QString const&) const";
    const QString askForDependencies =
        "ConfigurationFileHandlerDBusConnector::getConfigurationDependencyAsynchron(QString const&, QString "
        "const&) const";
    const QString isOccured = "DBusConnectionSignalPollingHandler::isSignalOccured()";
    const QString resetSignal = "DBusConnectionSignalPollingHandler::resetLastSignal()";
    return {
        {"source: without one, answers are immediate", {create}, nothingIsThereWithoutASource},
        {"source: its end is observed",
         {create, "DBusConnectorBase::isDBusInterfaceValid() const"},
         sourceIsObserved},
        {"source: a connector is owned by its user", {create}, connectorIsOwnedByItsUser},
        {"source: texts are read blocking",
         {"ConfigurationFileHandlerDBusConnector::getConfiguration(QString const&, QString const&, QString "
          "const&) const",
          "ConfigurationFileHandlerDBusConnector::getConfigurationDependency(QString const&, QString const&) "
          "const",
          "DBusReply::getValue() const", "DBusReply::isError() const"},
         textsAreReadBlocking},
        {"source: an empty reply is an error",
         {"DBusReply::DBusReply()", "DBusReply::isError() const"},
         emptyReplyIsAnError},
        {"source: texts are read without blocking",
         {askForText, askForDependencies, "DBusPendingReply::getReply() const",
          "DBusPendingReply::isFinished(ErrorContainer&) const", "ErrorContainer::ErrorContainer()"},
         textsAreReadWithoutBlocking},
        {"source: signals are queued without an event loop",
         {"DBusConnectionSignalPollingHandler::DBusConnectionSignalPollingHandler(QString const&, QString "
          "const&, QString const&, int)",
          isOccured, "DBusConnectionSignalPollingHandler::getSignalParameter() const"},
         signalsAreQueued},
        {"source: a reset keeps new signals", {isOccured, resetSignal}, resetKeepsNewSignals},
        {"source: the bus is the same throughout the process",
         {"DBusConnection::getQDBusConnection()"},
         busIsConstant},
    };
}
