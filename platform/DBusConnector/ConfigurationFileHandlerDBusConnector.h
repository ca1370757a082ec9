#pragma once

#include <QtCore/QSharedPointer>
#include <QtCore/QString>

#include "DBusConnectorBase.h"
#include "DBusConnectorExport.h"

/// Client of the device's configuration-file service: reads configuration texts by name, blocking or not. For
/// names, modules and the time-out see DBusConnectorBase.
class DBUSCONNECTOR_EXPORT ConfigurationFileHandlerDBusConnector : public DBusConnectorBase
{
    Q_OBJECT

public:
    /// Creates a connector to one object of a module that is on the bus now. Queries the name's owner only;
    /// nothing is introspected or started. It does not wait for the module to appear. A bus that does not
    /// answer costs one time-out (DBusConnection::getCallTimeout()) for any number of attempts, until it
    /// answers again.
    /// @param service the module's name, without the device's prefix.
    /// @param object the object's name, without "/".
    /// @return null without a bus, when the bus does not answer, or when the module's name has no owner.
    static QSharedPointer<ConfigurationFileHandlerDBusConnector> createAndConnect(const QString& service,
                                                                                  const QString& object);

    /// Reads the text of the configuration `name` on behalf of the module `module`.
    /// @param extra passed to the service.
    /// @return an error when the call failed or timed out.
    DBusReply getConfiguration(const QString& name, const QString& module, const QString& extra) const;

    /// Reads the text of the dependency configuration `name` on behalf of the module `module`.
    /// @return an error when the call failed or timed out.
    DBusReply getConfigurationDependency(const QString& name, const QString& module) const;

    /// Starts getConfiguration() without waiting for the reply. @return null when the call could not be sent.
    QSharedPointer<DBusPendingReply> getConfigurationAsynchron(const QString& name, const QString& module,
                                                               const QString& extra) const;

    /// Starts getConfigurationDependency() without waiting for the reply. @return null when the call could
    /// not be sent.
    QSharedPointer<DBusPendingReply> getConfigurationDependencyAsynchron(const QString& name,
                                                                         const QString& module) const;

private:
    ConfigurationFileHandlerDBusConnector(const QString& service, const QString& object);
};
