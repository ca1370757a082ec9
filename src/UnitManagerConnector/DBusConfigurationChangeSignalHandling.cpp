#include "UnitManagerConnector/DBusConfigurationChangeSignalHandling.h"

#include <QtCore/QVariant>
#include <QtDBus/QDBusConnection>

#include "DBusConnection.h"
#include "DBusConnectionSignalPollingHandler.h"
#include "Diagnostics.h"
#include "PropertyManagerConst.h"
#include "UnitManagerConnector/ConnectorSettings.h"

namespace {

const char* const sourceName = "UnitManagerConnector/DBusConfigurationChangeSignalHandling";

/// Matches signals of any interface.
const QLatin1String anyInterface("");

QString changeSignal()
{
    return QStringLiteral("configurationChanged");
}

/// D-Bus signature of one string argument. Without it Qt delivers signals with any arguments, and aborts the
/// process when an argument, such as a map, cannot be converted to the slot's parameter.
const QString oneString = QStringLiteral("s");

/// The polling handler's code for one string argument.
const auto oneStringArgument = DBusConnectionSignalPollingHandler::SlotSignature(3);

QString busNameOf(const QStringList& settings)
{
    return PropertyManagerConst::getDBusPrefix() + QLatin1Char('.') +
           settings.value(ConnectorSettings::Service);
}

QString objectPathOf(const QStringList& settings)
{
    return QLatin1Char('/') + settings.value(ConnectorSettings::Object);
}

} // namespace

/// One of the three configuration sources: how they differ, and the operations common to all.
struct DBusConfigurationChangeSignalHandling::Source
{
    using Handling = DBusConfigurationChangeSignalHandling;

    static const Source unitSwitch;
    static const Source dependencyFile;
    static const Source defaultUnit;

    ConnectorType type;
    const char* slot;
    const char* changeMessage;
    void (Handling::*report)(const QString&);
    bool Handling::*isConnected;
    PollingHandler Handling::*pollingHandler;

    ConnectionStatus subscribe(Handling& handling, const LogContext& context) const;
    void unsubscribe(Handling& handling, const LogContext& context) const;
    void poll(Handling& handling) const;
    void recordChange(Handling& handling, const QString& instanceName, const LogContext& context) const;
};

const DBusConfigurationChangeSignalHandling::Source
    DBusConfigurationChangeSignalHandling::Source::unitSwitch = {
        UnitManagerConnectorDefinitions::UnitSwitch,
        "1unitSwitchConfigurationFileChange(QString)",
        "unit manager configuration has been changed",
        &Handling::unitSwitchConfigurationFileChange,
        &Handling::m_unitSwitchConnected,
        &Handling::m_unitSwitchPollingHandler};

const DBusConfigurationChangeSignalHandling::Source
    DBusConfigurationChangeSignalHandling::Source::dependencyFile = {
        UnitManagerConnectorDefinitions::DependencyFile,
        "1dependencyFileChanged(QString)",
        "dependency file has been changed",
        &Handling::dependencyFileChanged,
        &Handling::m_dependencyConnected,
        &Handling::m_dependencyPollingHandler};

const DBusConfigurationChangeSignalHandling::Source
    DBusConfigurationChangeSignalHandling::Source::defaultUnit = {
        UnitManagerConnectorDefinitions::DefaultUnit,
        "1defaultUnitFileChange(QString)",
        "default unit configuration has been changed",
        &Handling::defaultUnitFileChange,
        &Handling::m_defaultUnitConnected,
        &Handling::m_defaultUnitPollingHandler};

DBusConfigurationChangeSignalHandling::ConnectionStatus
DBusConfigurationChangeSignalHandling::Source::subscribe(Handling& handling, const LogContext& context) const
{
    const QStringList settings = handling.m_connectorSettings.value(type);
    const QString service = settings.value(ConnectorSettings::Service);
    const QString object = settings.value(ConnectorSettings::Object);
    if (handling.m_useSignalPolling) {
        handling.*pollingHandler = QSharedPointer<DBusConnectionSignalPollingHandler>::create(
            service, object, changeSignal(), oneStringArgument);
        return UnitManagerConnectorDefinitions::Connected;
    }
    QDBusConnection bus = DBusConnection::getQDBusConnection();
    if (!bus.connect(busNameOf(settings), objectPathOf(settings), anyInterface, changeSignal(), oneString,
                     &handling, slot)) {
        context.warning() << "Error cannot connect to module" << service << object;
        return UnitManagerConnectorDefinitions::ConnectionFailed;
    }
    handling.*isConnected = true;
    return UnitManagerConnectorDefinitions::Connected;
}

void DBusConfigurationChangeSignalHandling::Source::unsubscribe(Handling& handling,
                                                                const LogContext& context) const
{
    const QStringList settings = handling.m_connectorSettings.value(type);
    if (!ConnectorSettings::areUsable(settings) || !(handling.*isConnected))
        return;
    QDBusConnection bus = DBusConnection::getQDBusConnection();
    if (!bus.disconnect(busNameOf(settings), objectPathOf(settings), anyInterface, changeSignal(), oneString,
                        &handling, slot))
        context.warning() << "Unable to disconnect connection" << settings.value(ConnectorSettings::Object);
    handling.*isConnected = false;
}

void DBusConfigurationChangeSignalHandling::Source::poll(Handling& handling) const
{
    const PollingHandler& signal = handling.*pollingHandler;
    if (!signal || !signal->isSignalOccured())
        return;
    const QVariant parameter = signal->getSignalParameter();
    if (parameter.canConvert(QVariant::String))
        (handling.*report)(parameter.toString());
    signal->resetLastSignal();
}

void DBusConfigurationChangeSignalHandling::Source::recordChange(Handling& handling,
                                                                 const QString& instanceName,
                                                                 const LogContext& context) const
{
    const QStringList settings = handling.m_connectorSettings.value(type);
    if (instanceName != settings.value(ConnectorSettings::Configuration))
        return;
    handling.m_changeMap[type] = instanceName;
    handling.m_changed = true;
    context.debug() << changeMessage;
}

DBusConfigurationChangeSignalHandling::DBusConfigurationChangeSignalHandling(bool useSignalPolling)
    : QObject(nullptr), m_useSignalPolling(useSignalPolling)
{}

DBusConfigurationChangeSignalHandling::~DBusConfigurationChangeSignalHandling() = default;

bool DBusConfigurationChangeSignalHandling::init(const QMap<ConnectorType, QStringList>& settings)
{
    m_connectorSettings = settings;
    m_changed = false;
    return closeDbusConnections();
}

DBusConfigurationChangeSignalHandling::ConnectionStatus
DBusConfigurationChangeSignalHandling::connectUnitSwitchChangeFlag()
{
    return Source::unitSwitch.subscribe(*this, {sourceName, __LINE__, Q_FUNC_INFO});
}

DBusConfigurationChangeSignalHandling::ConnectionStatus
DBusConfigurationChangeSignalHandling::connectDependencyFileChangeFlag()
{
    return Source::dependencyFile.subscribe(*this, {sourceName, __LINE__, Q_FUNC_INFO});
}

DBusConfigurationChangeSignalHandling::ConnectionStatus
DBusConfigurationChangeSignalHandling::connectDefaultUnitChangeFlag()
{
    return Source::defaultUnit.subscribe(*this, {sourceName, __LINE__, Q_FUNC_INFO});
}

bool DBusConfigurationChangeSignalHandling::pollChangeFlags()
{
    if (m_useSignalPolling) {
        Source::unitSwitch.poll(*this);
        Source::defaultUnit.poll(*this);
        Source::dependencyFile.poll(*this);
    }
    return m_changed;
}

QMap<DBusConfigurationChangeSignalHandling::ConnectorType, QString>
DBusConfigurationChangeSignalHandling::getConfigurationChangeMap() const
{
    return m_changeMap;
}

bool DBusConfigurationChangeSignalHandling::resetCachedObjects()
{
    ConnectorSettings::clearValues(m_changeMap);
    m_changed = false;
    return true;
}

bool DBusConfigurationChangeSignalHandling::reset()
{
    resetCachedObjects();
    return closeDbusConnections();
}

bool DBusConfigurationChangeSignalHandling::closeDbusConnections()
{
    if (m_useSignalPolling) {
        m_unitSwitchPollingHandler.reset();
        m_dependencyPollingHandler.reset();
        m_defaultUnitPollingHandler.reset();
        return true;
    }
    const LogContext context{sourceName, __LINE__, Q_FUNC_INFO};
    Source::unitSwitch.unsubscribe(*this, context);
    Source::dependencyFile.unsubscribe(*this, context);
    Source::defaultUnit.unsubscribe(*this, context);
    return true;
}

void DBusConfigurationChangeSignalHandling::unitSwitchConfigurationFileChange(const QString& instanceName)
{
    Source::unitSwitch.recordChange(*this, instanceName, {sourceName, __LINE__, Q_FUNC_INFO});
}

void DBusConfigurationChangeSignalHandling::defaultUnitFileChange(const QString& instanceName)
{
    Source::defaultUnit.recordChange(*this, instanceName, {sourceName, __LINE__, Q_FUNC_INFO});
}

void DBusConfigurationChangeSignalHandling::dependencyFileChanged(const QString& instanceName)
{
    Source::dependencyFile.recordChange(*this, instanceName, {sourceName, __LINE__, Q_FUNC_INFO});
}
