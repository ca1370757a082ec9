#pragma once

#include <QtCore/QMap>
#include <QtCore/QObject>
#include <QtCore/QSharedPointer>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include "UnitManagerConnector/DBusConfigurationChangeSignalHandling.h"
#include "UnitManagerConnector/UnitManagerConnectorDefinitions.h"
#include "UnitManagerExport.h"

class ConfigurationFileHandlerDBusConnector;
class DBusPendingReply;
class DependencyWalker;
class UnitManagerDevice;

/// What the states of one connector share: the settings of the configuration sources, their connectors,
/// pending replies and fetched texts, the objects built from the texts, and the handling of change signals.
///
/// The built objects are shared with whoever took them and never changed; new texts give new objects. Used
/// from the one thread that drives the state machine.
class UNITMANAGER_EXPORT UnitManagerConnectionData : public QObject
{
    Q_OBJECT

public:
    using ConnectorType = UnitManagerConnectorDefinitions::ConnectorType;
    using ConnectionStatus = UnitManagerConnectorDefinitions::ConnectionStatus;

    /// @param parent ignored: the object belongs to its holder
    /// @param useSignalPolling whether change signals are polled instead of delivered by the event loop
    /// @param useAsynchronInterface whether configurations are read without blocking
    /// @param ignoredFlag has no effect
    UnitManagerConnectionData(QObject* parent, bool useSignalPolling, bool useAsynchronInterface,
                              bool ignoredFlag, const QString& dependencyService,
                              const QString& dependencyObject, const QString& dependencyConfiguration,
                              const QString& defaultUnitService, const QString& defaultUnitObject,
                              const QString& defaultUnitConfiguration);
    ~UnitManagerConnectionData() override;

    /// Takes over how and where configurations are read, and drops all change subscriptions. A source with an
    /// empty name is not configured.
    ///
    /// @return true.
    bool init(bool useAsynchronInterface, const QString& dependencyService, const QString& dependencyObject,
              const QString& dependencyConfiguration, const QString& defaultUnitService,
              const QString& defaultUnitObject, const QString& defaultUnitConfiguration);

    /// Whether configurations are read without blocking.
    virtual bool useAsynchronInterface() const;

    /// Opens the connector of a source in place of its earlier one and subscribes to its changes. A connector
    /// whose subscription failed is kept.
    ConnectionStatus openConnector(ConnectorType type);

    /// Whether every configured source has a connector that is usable.
    bool isConnectedToDBus() const;

    /// Builds new objects from the fetched texts that are there, and forgets all changes. The objects are
    /// replaced also when a text does not load.
    ///
    /// @return whether every text was loaded; true when there was none.
    bool updateObjects();

    /// Drops fetched texts, pending replies and noted changes. @return true.
    bool resetCachedObjects();
    /// Drops subscriptions, connectors, fetched texts, pending replies and noted changes; built objects stay.
    /// @return true.
    bool resetObject();
    /// Drops the change subscriptions. @return true.
    bool closeConnections();

    /// Whether a source has changed since its objects were built.
    bool pollChangeFlags();
    /// The configuration name that each source's last change reported; an empty text means no change.
    QMap<ConnectorType, QString> getConfigurationChangeMap() const;

    /// Shares the built unit manager. @return false, with @p out untouched, when none has been built.
    bool initializeUnitManager(QSharedPointer<UnitManagerDevice>& out);
    /// Shares the built dependency walker. @return false, with @p out untouched, when none has been built.
    bool initializeDependencyWalker(QSharedPointer<DependencyWalker>& out);

    /// What the states read and write.
    QMap<ConnectorType, QSharedPointer<ConfigurationFileHandlerDBusConnector>>& connectors();
    QMap<ConnectorType, QStringList>& connectorSettings();
    QMap<ConnectorType, QSharedPointer<DBusPendingReply>>& pendingReplies();
    QMap<ConnectorType, QString>& configurations();

private:
    UNITMANAGER_NO_EXPORT bool hasValidConnector(ConnectorType type) const;
    UNITMANAGER_NO_EXPORT bool hasValidConnectorIfConfigured(ConnectorType type) const;
    UNITMANAGER_NO_EXPORT ConnectionStatus connectChangeFlag(ConnectorType type);
    UNITMANAGER_NO_EXPORT bool updateUnitManager();
    UNITMANAGER_NO_EXPORT bool updateDependencyWalker();

    QMap<ConnectorType, QSharedPointer<ConfigurationFileHandlerDBusConnector>> m_connectors;
    QMap<ConnectorType, QStringList> m_connectorSettings;
    QMap<ConnectorType, QSharedPointer<DBusPendingReply>> m_pendingReplies;
    QMap<ConnectorType, QString> m_configurations;
    bool m_debugOutput = false;
    bool m_useAsynchronInterface = false;
    bool m_useSignalPolling;
    QSharedPointer<DependencyWalker> m_dependencyWalker;
    QSharedPointer<UnitManagerDevice> m_unitManager;
    DBusConfigurationChangeSignalHandling m_changeSignalHandling;
};
