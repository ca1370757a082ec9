#include "UnitManagerConnector/DBusConfigurationChangeSignalHandling.h"

#include <QtCore/QVariant>
#include <QtDBus/QDBusConnection>

#include "DBusConnection.h"
#include "DBusConnectionSignalPollingHandler.h"
#include "Diagnostics.h"
#include "PropertyManagerConst.h"
#include "UnitManagerConnector/ConnectorSettings.h"

namespace {

using Definitions = UnitManagerConnectorDefinitions;
using PollingHandler = QSharedPointer<DBusConnectionSignalPollingHandler>;

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

/// The polling handler's code for one string argument. Every platform defines the value; the name of the
/// enumerator may differ.
const auto oneStringArgument = DBusConnectionSignalPollingHandler::SlotSignature(3);

const char* const unitSwitchSlot = SLOT(unitSwitchConfigurationFileChange(QString));
const char* const dependencyFileSlot = SLOT(dependencyFileChanged(QString));
const char* const defaultUnitSlot = SLOT(defaultUnitFileChange(QString));

QString busNameOf(const QStringList& settings)
{
    return PropertyManagerConst::getDBusPrefix() + QLatin1Char('.') +
           settings.value(ConnectorSettings::Service);
}

QString objectPathOf(const QStringList& settings)
{
    return QLatin1Char('/') + settings.value(ConnectorSettings::Object);
}

PollingHandler createPollingHandler(const QStringList& settings)
{
    return PollingHandler::create(settings.value(ConnectorSettings::Service),
                                  settings.value(ConnectorSettings::Object), changeSignal(),
                                  oneStringArgument);
}

/// Subscribes a slot to the delivered signals of a source.
Definitions::ConnectionStatus subscribe(const QStringList& settings, QObject* receiver, const char* slot,
                                        bool& isConnected, const LogContext& context)
{
    QDBusConnection bus = DBusConnection::getQDBusConnection();
    if (!bus.connect(busNameOf(settings), objectPathOf(settings), anyInterface, changeSignal(), oneString,
                     receiver, slot)) {
        context.warning() << "Error cannot connect to module" << settings.value(ConnectorSettings::Service)
                          << settings.value(ConnectorSettings::Object);
        return Definitions::ConnectionFailed;
    }
    isConnected = true;
    return Definitions::Connected;
}

/// Reverses subscribe(), unless the source is not connected or its settings are incomplete.
void unsubscribe(const QStringList& settings, QObject* receiver, const char* slot, bool& isConnected,
                 const LogContext& context)
{
    if (!ConnectorSettings::areUsable(settings) || !isConnected)
        return;
    QDBusConnection bus = DBusConnection::getQDBusConnection();
    if (!bus.disconnect(busNameOf(settings), objectPathOf(settings), anyInterface, changeSignal(), oneString,
                        receiver, slot))
        context.warning() << "Unable to disconnect connection" << settings.value(ConnectorSettings::Object);
    isConnected = false;
}

/// Passes the configuration name of a recorded signal to @p report, and resets the signal.
template <typename Report>
void poll(const PollingHandler& signal, Report report)
{
    if (!signal || !signal->isSignalOccured())
        return;
    const QVariant parameter = signal->getSignalParameter();
    if (parameter.canConvert(QVariant::String))
        report(parameter.toString());
    signal->resetLastSignal();
}

} // namespace

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
    const QStringList settings = m_connectorSettings.value(Definitions::UnitSwitch);
    if (!m_useSignalPolling)
        return subscribe(settings, this, unitSwitchSlot, m_unitSwitchConnected,
                         {sourceName, __LINE__, Q_FUNC_INFO});
    m_unitSwitchPollingHandler = createPollingHandler(settings);
    return Definitions::Connected;
}

DBusConfigurationChangeSignalHandling::ConnectionStatus
DBusConfigurationChangeSignalHandling::connectDependencyFileChangeFlag()
{
    const QStringList settings = m_connectorSettings.value(Definitions::DependencyFile);
    if (!m_useSignalPolling)
        return subscribe(settings, this, dependencyFileSlot, m_dependencyConnected,
                         {sourceName, __LINE__, Q_FUNC_INFO});
    m_dependencyPollingHandler = createPollingHandler(settings);
    return Definitions::Connected;
}

DBusConfigurationChangeSignalHandling::ConnectionStatus
DBusConfigurationChangeSignalHandling::connectDefaultUnitChangeFlag()
{
    const QStringList settings = m_connectorSettings.value(Definitions::DefaultUnit);
    if (!m_useSignalPolling)
        return subscribe(settings, this, defaultUnitSlot, m_defaultUnitConnected,
                         {sourceName, __LINE__, Q_FUNC_INFO});
    m_defaultUnitPollingHandler = createPollingHandler(settings);
    return Definitions::Connected;
}

bool DBusConfigurationChangeSignalHandling::pollChangeFlags()
{
    if (m_useSignalPolling) {
        poll(m_unitSwitchPollingHandler,
             [this](const QString& name) { unitSwitchConfigurationFileChange(name); });
        poll(m_defaultUnitPollingHandler, [this](const QString& name) { defaultUnitFileChange(name); });
        poll(m_dependencyPollingHandler, [this](const QString& name) { dependencyFileChanged(name); });
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
    unsubscribe(m_connectorSettings.value(Definitions::UnitSwitch), this, unitSwitchSlot,
                m_unitSwitchConnected, context);
    unsubscribe(m_connectorSettings.value(Definitions::DependencyFile), this, dependencyFileSlot,
                m_dependencyConnected, context);
    unsubscribe(m_connectorSettings.value(Definitions::DefaultUnit), this, defaultUnitSlot,
                m_defaultUnitConnected, context);
    return true;
}

void DBusConfigurationChangeSignalHandling::unitSwitchConfigurationFileChange(const QString& instanceName)
{
    if (recordChange(Definitions::UnitSwitch, instanceName))
        LogContext{sourceName, __LINE__, Q_FUNC_INFO}.debug()
            << "unit manager configuration has been changed";
}

void DBusConfigurationChangeSignalHandling::defaultUnitFileChange(const QString& instanceName)
{
    if (recordChange(Definitions::DefaultUnit, instanceName))
        LogContext{sourceName, __LINE__, Q_FUNC_INFO}.debug()
            << "default unit configuration has been changed";
}

void DBusConfigurationChangeSignalHandling::dependencyFileChanged(const QString& instanceName)
{
    if (recordChange(Definitions::DependencyFile, instanceName))
        LogContext{sourceName, __LINE__, Q_FUNC_INFO}.debug() << "dependency file has been changed";
}

bool DBusConfigurationChangeSignalHandling::recordChange(ConnectorType type, const QString& instanceName)
{
    if (instanceName != m_connectorSettings.value(type).value(ConnectorSettings::Configuration))
        return false;
    m_changeMap[type] = instanceName;
    m_changed = true;
    return true;
}
