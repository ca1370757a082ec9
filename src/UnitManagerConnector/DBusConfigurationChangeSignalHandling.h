#pragma once

#include <QtCore/QMap>
#include <QtCore/QObject>
#include <QtCore/QSharedPointer>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include "UnitManagerConnector/UnitManagerConnectorDefinitions.h"
#include "UnitManagerExport.h"

class DBusConnectionSignalPollingHandler;

/// Subscribes to the signal "configurationChanged" of each configuration source and records which sources
/// have changed.
///
/// Signals are either delivered by the Qt event loop of the thread that created the object, which must then
/// run, or polled by pollChangeFlags(), for threads without an event loop. Must be used from one thread.
///
/// The subscription to delivered signals specifies the signature: one string. Otherwise Qt aborts the process
/// when a signal carries a map instead of the name. As a consequence, a delivered signal with further
/// arguments after the name is not received; a polled one is.
class UNITMANAGER_EXPORT DBusConfigurationChangeSignalHandling : public QObject
{
    Q_OBJECT

public:
    /// Short name of the type.
    using ConnectorType = UnitManagerConnectorDefinitions::ConnectorType;
    /// Short name of the type.
    using ConnectionStatus = UnitManagerConnectorDefinitions::ConnectionStatus;

    /// @param useSignalPolling whether signals are polled instead of delivered by the event loop
    DBusConfigurationChangeSignalHandling(bool useSignalPolling);
    ~DBusConfigurationChangeSignalHandling() override;

    /// Sets the settings of each source (0 service name, 1 object name, 2 configuration name), clears the
    /// recorded changes and removes all subscriptions. The subscriptions are removed by the new names, so
    /// change names only while nothing is subscribed.
    ///
    /// @return the result of closeDbusConnections().
    bool init(const QMap<ConnectorType, QStringList>& settings);

    /// Subscribes to the changes of the units.
    ///
    /// @return ConnectionFailed, with a warning that names the source, when the subscription fails.
    ConnectionStatus connectUnitSwitchChangeFlag();
    /// Subscribes to the changes of the dependencies; see connectUnitSwitchChangeFlag().
    ConnectionStatus connectDependencyFileChangeFlag();
    /// Subscribes to the changes of the default units; see connectUnitSwitchChangeFlag().
    ConnectionStatus connectDefaultUnitChangeFlag();

    /// Processes polled signals.
    ///
    /// @return whether a source has changed since the last resetCachedObjects() or init().
    bool pollChangeFlags();

    /// The configuration name reported by the last change of each source; an empty text means no change.
    QMap<ConnectorType, QString> getConfigurationChangeMap() const;

    /// Clears the recorded changes. @return true.
    bool resetCachedObjects();
    /// Clears the recorded changes and removes all subscriptions. @return true.
    bool reset();
    /// Removes all subscriptions; logs a warning for each one that the bus does not know. @return true.
    bool closeDbusConnections();

public Q_SLOTS:
    /// Called when the units report a change of the configuration @p instanceName. If it is the configured
    /// name, the change is recorded and a debug message logged; other names are ignored.
    void unitSwitchConfigurationFileChange(const QString& instanceName);
    /// Called when the default units report a change; see unitSwitchConfigurationFileChange().
    void defaultUnitFileChange(const QString& instanceName);
    /// Called when the dependencies report a change; see unitSwitchConfigurationFileChange().
    void dependencyFileChanged(const QString& instanceName);

private:
    using PollingHandler = QSharedPointer<DBusConnectionSignalPollingHandler>;

    /// @return whether @p instanceName is the configured name of the source.
    UNITMANAGER_NO_EXPORT bool recordChange(ConnectorType type, const QString& instanceName);

    QMap<ConnectorType, QString> m_changeMap;
    QMap<ConnectorType, QStringList> m_connectorSettings;
    bool m_useSignalPolling;
    bool m_changed = false;
    bool m_unitSwitchConnected = false;
    bool m_defaultUnitConnected = false;
    bool m_dependencyConnected = false;
    PollingHandler m_unitSwitchPollingHandler;
    PollingHandler m_dependencyPollingHandler;
    PollingHandler m_defaultUnitPollingHandler;
};
