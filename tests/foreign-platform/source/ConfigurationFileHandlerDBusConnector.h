#pragma once

#include <QtCore/QSharedPointer>

#include "DBusConnectorBase.h"
#include "DBusPendingReply.h"
#include "DBusReply.h"

/// Reads documents of one object of the store.
class ConfigurationFileHandlerDBusConnector : public DBusConnectorBase
{
    Q_OBJECT

public:
    /// @return null when the module is not this device's, or the store does not have the object.
    static QSharedPointer<ConfigurationFileHandlerDBusConnector> createAndConnect(const QString& service,
                                                                                  const QString& object);

    DBusReply getConfiguration(const QString& name, const QString& module, const QString& extra) const;
    DBusReply getConfigurationDependency(const QString& name, const QString& module) const;
    QSharedPointer<DBusPendingReply> getConfigurationAsynchron(const QString& name, const QString& module,
                                                               const QString& extra) const;
    QSharedPointer<DBusPendingReply> getConfigurationDependencyAsynchron(const QString& name,
                                                                         const QString& module) const;

private:
    explicit ConfigurationFileHandlerDBusConnector(const QString& object);
};
