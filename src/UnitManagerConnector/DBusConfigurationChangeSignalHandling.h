#pragma once

#include <QtCore/QMap>
#include <QtCore/QObject>
#include <QtCore/QSharedPointer>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include "UnitManagerConnector/UnitManagerConnectorDefinitions.h"
#include "UnitManagerExport.h"

class DBusConnectionSignalPollingHandler;

/// Subscribes to the signal "configurationChanged" of each configuration source and remembers which source
/// has changed.
///
/// Signals are either delivered by the Qt event loop of the thread that built the object, which must then
/// run, or polled inside pollChangeFlags(), for threads without one. Used from one thread.
///
/// The subscription to delivered signals names their signature, one string. Without it Qt ends the process
/// when a signal carries a map in place of the name. As a consequence, a delivered signal that carries
/// further arguments behind the name is not received; a polled one is.
class UNITMANAGER_EXPORT DBusConfigurationChangeSignalHandling : public QObject
{
    Q_OBJECT

public:
    using ConnectorType = UnitManagerConnectorDefinitions::ConnectorType;
    using ConnectionStatus = UnitManagerConnectorDefinitions::ConnectionStatus;

    /// @param useSignalPolling whether signals are polled instead of delivered by the event loop
    DBusConfigurationChangeSignalHandling(bool useSignalPolling);
    ~DBusConfigurationChangeSignalHandling() override;

    /// Takes over the settings (0 service name, 1 object name, 2 configuration name of each source), forgets
    /// that something has changed and drops all subscriptions. They are dropped under the new names: change
    /// names only while nothing is subscribed.
    ///
    /// @return what closeDbusConnections() returns.
    bool init(const QMap<ConnectorType, QStringList>& settings);

    /// Subscribes to the changes of one source.
    ///
    /// @return ConnectionFailed, with a warning that names the source, when the subscription was refused.
    ConnectionStatus connectUnitSwitchChangeFlag();
    ConnectionStatus connectDependencyFileChangeFlag();
    ConnectionStatus connectDefaultUnitChangeFlag();

    /// Takes in polled signals.
    ///
    /// @return whether a source has changed since the last resetCachedObjects() or init().
    bool pollChangeFlags();

    /// The configuration name that each source's last change reported; an empty text means no change.
    QMap<ConnectorType, QString> getConfigurationChangeMap() const;

    /// Forgets all changes. @return true.
    bool resetCachedObjects();
    /// Forgets all changes and drops all subscriptions. @return true.
    bool reset();
    /// Drops all subscriptions; logs a warning for each that the bus does not know. @return true.
    bool closeDbusConnections();

public Q_SLOTS:
    /// A source reports a change of the configuration @p instanceName. Only the configured name counts, and
    /// is noted with a debug line.
    void unitSwitchConfigurationFileChange(const QString& instanceName);
    void defaultUnitFileChange(const QString& instanceName);
    void dependencyFileChanged(const QString& instanceName);

private:
    using PollingHandler = QSharedPointer<DBusConnectionSignalPollingHandler>;
    struct UNITMANAGER_NO_EXPORT Source;

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
