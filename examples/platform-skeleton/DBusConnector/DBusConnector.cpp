#include "ConfigurationFileHandlerDBusConnector.h"
#include "DBusConnection.h"
#include "DBusConnectionSignalPollingHandler.h"

using Connector = ConfigurationFileHandlerDBusConnector;
using PollingHandler = DBusConnectionSignalPollingHandler;

ErrorContainer::ErrorContainer() = default;

DBusReply::DBusReply() = default;

bool DBusReply::isError() const
{
    return true;
}

QVariant DBusReply::getValue() const
{
    return {};
}

int DBusPendingReply::isFinished(ErrorContainer& /*error*/) const
{
    return 1;
}

QVariant DBusPendingReply::getReply() const
{
    return {};
}

QDBusConnection DBusConnection::getQDBusConnection()
{
    return QDBusConnection(QString());
}

bool DBusConnectorBase::isDBusInterfaceValid() const
{
    return false;
}

QSharedPointer<Connector> Connector::createAndConnect(const QString& /*service*/, const QString& /*object*/)
{
    return {};
}

DBusReply Connector::getConfiguration(const QString& /*name*/, const QString& /*module*/,
                                      const QString& /*extra*/) const
{
    return {};
}

DBusReply Connector::getConfigurationDependency(const QString& /*name*/, const QString& /*module*/) const
{
    return {};
}

QSharedPointer<DBusPendingReply> Connector::getConfigurationAsynchron(const QString& /*name*/,
                                                                      const QString& /*module*/,
                                                                      const QString& /*extra*/) const
{
    return {};
}

QSharedPointer<DBusPendingReply>
Connector::getConfigurationDependencyAsynchron(const QString& /*name*/, const QString& /*module*/) const
{
    return {};
}

PollingHandler::DBusConnectionSignalPollingHandler(const QString& /*service*/, const QString& /*object*/,
                                                   const QString& /*signalName*/, int /*slotSignature*/)
{}

bool PollingHandler::isSignalOccured()
{
    return false;
}

QVariant PollingHandler::getSignalParameter() const
{
    return {};
}

void PollingHandler::resetLastSignal() {}
