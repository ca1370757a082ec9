#pragma once

#include <QtCore/QSharedPointer>
#include <QtCore/QString>

#include "DBusConnectorBase.h"
#include "DBusPendingReply.h"
#include "DBusReply.h"

class ConfigurationFileHandlerDBusConnector : public DBusConnectorBase
{
    Q_OBJECT

public:
    /// @return null, at once, when the service is not present.
    static QSharedPointer<ConfigurationFileHandlerDBusConnector> createAndConnect(const QString& service,
                                                                                  const QString& object);

    DBusReply getConfiguration(const QString& name, const QString& module, const QString& extra) const;
    DBusReply getConfigurationDependency(const QString& name, const QString& module) const;
    QSharedPointer<DBusPendingReply> getConfigurationAsynchron(const QString& name, const QString& module,
                                                               const QString& extra) const;
    QSharedPointer<DBusPendingReply> getConfigurationDependencyAsynchron(const QString& name,
                                                                         const QString& module) const;
};
