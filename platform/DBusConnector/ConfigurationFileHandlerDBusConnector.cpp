#include "ConfigurationFileHandlerDBusConnector.h"

ConfigurationFileHandlerDBusConnector::ConfigurationFileHandlerDBusConnector(const QString& service,
                                                                             const QString& object)
    : DBusConnectorBase(service, object, QStringLiteral("org.measuringdevice.ConfigurationFileHandler"))
{}

QSharedPointer<ConfigurationFileHandlerDBusConnector>
ConfigurationFileHandlerDBusConnector::createAndConnect(const QString& service, const QString& object)
{
    // Checked before anything is watched: opening is retried repeatedly while the service is down.
    if (!isServiceAvailable(service))
        return {};

    QSharedPointer<ConfigurationFileHandlerDBusConnector> connector(
        new ConfigurationFileHandlerDBusConnector(service, object));
    if (!connector->isDBusInterfaceValid())
        return {};
    return connector;
}

DBusReply ConfigurationFileHandlerDBusConnector::getConfiguration(const QString& name, const QString& module,
                                                                  const QString& extra) const
{
    return call(QStringLiteral("getConfiguration"), {name, module, extra});
}

DBusReply ConfigurationFileHandlerDBusConnector::getConfigurationDependency(const QString& name,
                                                                            const QString& module) const
{
    return call(QStringLiteral("getConfigurationDependency"), {name, module});
}

QSharedPointer<DBusPendingReply>
ConfigurationFileHandlerDBusConnector::getConfigurationAsynchron(const QString& name, const QString& module,
                                                                 const QString& extra) const
{
    return callAsynchron(QStringLiteral("getConfiguration"), {name, module, extra});
}

QSharedPointer<DBusPendingReply>
ConfigurationFileHandlerDBusConnector::getConfigurationDependencyAsynchron(const QString& name,
                                                                           const QString& module) const
{
    return callAsynchron(QStringLiteral("getConfigurationDependency"), {name, module});
}
