#pragma once

#include "DBusConnectorBase.h"
#include "DBusConnectorExport.h"

#include <QtCore/QSharedPointer>
#include <QtCore/QString>

/// The device's configuration-file service, seen from a client: reads configuration texts by name, blocking
/// or not. The names, the modules and the time-out are those of DBusConnectorBase.
class DBUSCONNECTOR_EXPORT ConfigurationFileHandlerDBusConnector : public DBusConnectorBase
{
    Q_OBJECT

public:
    /// A connector to one object of a module that is on the bus now. Answers at once: the bus is asked for
    /// the name's owner, nothing is introspected, started or waited for. A bus that does not answer costs one
    /// time-out (DBusConnection::getCallTimeout()) for any number of attempts, until it answers again.
    /// @param service the module's name, without the device's prefix.
    /// @param object the object's name, without "/".
    /// @return null when there is no bus, the bus does not answer, or nobody owns the module's name on it.
    static QSharedPointer<ConfigurationFileHandlerDBusConnector> createAndConnect(const QString& service,
                                                                                  const QString& object);

    /// The text of the configuration `name`, asked for by the module `module`.
    /// @param extra handed on to the service.
    /// @return an error when the call failed or timed out.
    DBusReply getConfiguration(const QString& name, const QString& module, const QString& extra) const;

    /// The text of the dependency configuration `name`, asked for by the module `module`.
    /// @return an error when the call failed or timed out.
    DBusReply getConfigurationDependency(const QString& name, const QString& module) const;

    /// getConfiguration() without waiting. @return null when the call could not be sent.
    QSharedPointer<DBusPendingReply> getConfigurationAsynchron(const QString& name, const QString& module,
                                                               const QString& extra) const;

    /// getConfigurationDependency() without waiting. @return null when the call could not be sent.
    QSharedPointer<DBusPendingReply> getConfigurationDependencyAsynchron(const QString& name,
                                                                         const QString& module) const;

private:
    ConfigurationFileHandlerDBusConnector(const QString& service, const QString& object);
};
