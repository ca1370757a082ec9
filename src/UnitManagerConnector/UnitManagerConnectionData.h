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

/// Data shared by the states of one connector: the settings of the configuration sources, their connectors,
/// pending replies and fetched texts, the objects built from the texts, and the handling of change signals.
///
/// The built objects are shared with their users and never modified; new texts produce new objects. Must be
/// used from the thread that drives the state machine.
class UNITMANAGER_EXPORT UnitManagerConnectionData : public QObject
{
    Q_OBJECT

public:
    /// Short name of the type.
    using ConnectorType = UnitManagerConnectorDefinitions::ConnectorType;
    /// Short name of the type.
    using ConnectionStatus = UnitManagerConnectorDefinitions::ConnectionStatus;

    /// @param parent ignored: the holder owns the object
    /// @param useSignalPolling whether change signals are polled instead of delivered by the event loop
    /// @param useAsynchronInterface whether configurations are read without blocking
    /// @param ignoredFlag has no effect
    /// @param dependencyService module name of the service of the dependencies
    /// @param dependencyObject name of their object
    /// @param dependencyConfiguration name of their configuration
    /// @param defaultUnitService module name of the service of the default units
    /// @param defaultUnitObject name of their object
    /// @param defaultUnitConfiguration name of their configuration
    UnitManagerConnectionData(QObject* parent, bool useSignalPolling, bool useAsynchronInterface,
                              bool ignoredFlag, const QString& dependencyService,
                              const QString& dependencyObject, const QString& dependencyConfiguration,
                              const QString& defaultUnitService, const QString& defaultUnitObject,
                              const QString& defaultUnitConfiguration);
    ~UnitManagerConnectionData() override;

    /// Sets how and from where configurations are read, and removes all change subscriptions. A source with
    /// an empty name is not configured.
    ///
    /// @return true.
    bool init(bool useAsynchronInterface, const QString& dependencyService, const QString& dependencyObject,
              const QString& dependencyConfiguration, const QString& defaultUnitService,
              const QString& defaultUnitObject, const QString& defaultUnitConfiguration);

    /// Whether configurations are read without blocking.
    virtual bool useAsynchronInterface() const;

    /// Opens the connector of a source, replacing an earlier one, and subscribes to its changes. If the
    /// subscription fails, the connector is kept.
    ConnectionStatus openConnector(ConnectorType type);

    /// Whether every configured source has a usable connector.
    bool isConnectedToDBus() const;

    /// Builds new objects from the texts fetched so far, and clears the recorded changes. The objects are
    /// replaced even if a text does not load.
    ///
    /// @return whether every text was loaded; true when there was none.
    bool updateObjects();

    /// Discards fetched texts, pending replies and recorded changes. @return true.
    bool resetCachedObjects();
    /// Discards subscriptions, connectors, fetched texts, pending replies and recorded changes; built objects
    /// are kept. @return true.
    bool resetObject();
    /// Removes the change subscriptions. @return true.
    bool closeConnections();

    /// Whether a source has changed since its objects were built. Processes polled signals.
    bool pollChangeFlags();
    /// The configuration name reported by the last change of each source; an empty text means no change.
    QMap<ConnectorType, QString> getConfigurationChangeMap() const;

    /// Shares the built unit manager. @return false, with @p out unchanged, when none has been built.
    bool initializeUnitManager(QSharedPointer<UnitManagerDevice>& out);
    /// Shares the built dependency walker. @return false, with @p out unchanged, when none has been built.
    bool initializeDependencyWalker(QSharedPointer<DependencyWalker>& out);

    /// The connector of each source; null when it is not open. The states read and write it.
    QMap<ConnectorType, QSharedPointer<ConfigurationFileHandlerDBusConnector>>& connectors();
    /// The settings of each source, see ConnectorSettings.
    QMap<ConnectorType, QStringList>& connectorSettings();
    /// The reply that is outstanding for each source; null when there is none.
    QMap<ConnectorType, QSharedPointer<DBusPendingReply>>& pendingReplies();
    /// The text fetched from each source, from which updateObjects() builds.
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
