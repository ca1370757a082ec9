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

/// Signals of any interface count.
const QLatin1String anyInterface("");

QString changeSignal()
{
    return QStringLiteral("configurationChanged");
}

/// One string argument, in the words of the bus. Qt ends the process over a signal whose argument it cannot
/// turn into that of the slot; with this it delivers no other than fitting ones.
const QString oneString = QStringLiteral("s");

/// The same in the words of the polling handler.
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

const DBusConfigurationChangeSignalHandling::Source DBusConfigurationChangeSignalHandling::unitSwitch = {
    UnitManagerConnectorDefinitions::UnitSwitch, "1unitSwitchConfigurationFileChange(QString)",
    &Handling::unitSwitchConfigurationFileChange, &Handling::m_unitSwitchConnected,
    &Handling::m_unitSwitchPollingHandler};

const DBusConfigurationChangeSignalHandling::Source DBusConfigurationChangeSignalHandling::dependencyFile = {
    UnitManagerConnectorDefinitions::DependencyFile, "1dependencyFileChanged(QString)",
    &Handling::dependencyFileChanged, &Handling::m_dependencyConnected,
    &Handling::m_dependencyPollingHandler};

const DBusConfigurationChangeSignalHandling::Source DBusConfigurationChangeSignalHandling::defaultUnit = {
    UnitManagerConnectorDefinitions::DefaultUnit, "1defaultUnitFileChange(QString)",
    &Handling::defaultUnitFileChange, &Handling::m_defaultUnitConnected,
    &Handling::m_defaultUnitPollingHandler};

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
    return connectSource(unitSwitch, {sourceName, __LINE__, Q_FUNC_INFO});
}

DBusConfigurationChangeSignalHandling::ConnectionStatus
DBusConfigurationChangeSignalHandling::connectDependencyFileChangeFlag()
{
    return connectSource(dependencyFile, {sourceName, __LINE__, Q_FUNC_INFO});
}

DBusConfigurationChangeSignalHandling::ConnectionStatus
DBusConfigurationChangeSignalHandling::connectDefaultUnitChangeFlag()
{
    return connectSource(defaultUnit, {sourceName, __LINE__, Q_FUNC_INFO});
}

DBusConfigurationChangeSignalHandling::ConnectionStatus
DBusConfigurationChangeSignalHandling::connectSource(const Source& source, const LogContext& context)
{
    const QStringList settings = m_connectorSettings.value(source.type);
    const QString service = settings.value(ConnectorSettings::Service);
    const QString object = settings.value(ConnectorSettings::Object);
    if (m_useSignalPolling) {
        this->*source.pollingHandler = QSharedPointer<DBusConnectionSignalPollingHandler>::create(
            service, object, changeSignal(), oneStringArgument);
        return UnitManagerConnectorDefinitions::Connected;
    }
    QDBusConnection bus = DBusConnection::getQDBusConnection();
    if (!bus.connect(busNameOf(settings), objectPathOf(settings), anyInterface, changeSignal(), oneString,
                     this, source.slot)) {
        context.warning() << "Error cannot connect to module" << service << object;
        return UnitManagerConnectorDefinitions::ConnectionFailed;
    }
    this->*source.isConnected = true;
    return UnitManagerConnectorDefinitions::Connected;
}

bool DBusConfigurationChangeSignalHandling::pollChangeFlags()
{
    if (m_useSignalPolling) {
        pollSource(unitSwitch);
        pollSource(defaultUnit);
        pollSource(dependencyFile);
    }
    return m_changed;
}

void DBusConfigurationChangeSignalHandling::pollSource(const Source& source)
{
    const PollingHandler& handler = this->*source.pollingHandler;
    if (!handler || !handler->isSignalOccured())
        return;
    const QVariant parameter = handler->getSignalParameter();
    if (parameter.canConvert(QVariant::String))
        (this->*source.report)(parameter.toString());
    handler->resetLastSignal();
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
    disconnectSource(unitSwitch, context);
    disconnectSource(dependencyFile, context);
    disconnectSource(defaultUnit, context);
    return true;
}

void DBusConfigurationChangeSignalHandling::disconnectSource(const Source& source, const LogContext& context)
{
    const QStringList settings = m_connectorSettings.value(source.type);
    if (!ConnectorSettings::areUsable(settings) || !(this->*source.isConnected))
        return;
    QDBusConnection bus = DBusConnection::getQDBusConnection();
    if (!bus.disconnect(busNameOf(settings), objectPathOf(settings), anyInterface, changeSignal(), oneString,
                        this, source.slot))
        context.warning() << "Unable to disconnect connection" << settings.value(ConnectorSettings::Object);
    this->*source.isConnected = false;
}

void DBusConfigurationChangeSignalHandling::unitSwitchConfigurationFileChange(const QString& instanceName)
{
    recordChange(UnitManagerConnectorDefinitions::UnitSwitch, instanceName,
                 "unit manager configuration has been changed", {sourceName, __LINE__, Q_FUNC_INFO});
}

void DBusConfigurationChangeSignalHandling::defaultUnitFileChange(const QString& instanceName)
{
    recordChange(UnitManagerConnectorDefinitions::DefaultUnit, instanceName,
                 "default unit configuration has been changed", {sourceName, __LINE__, Q_FUNC_INFO});
}

void DBusConfigurationChangeSignalHandling::dependencyFileChanged(const QString& instanceName)
{
    recordChange(UnitManagerConnectorDefinitions::DependencyFile, instanceName,
                 "dependency file has been changed", {sourceName, __LINE__, Q_FUNC_INFO});
}

void DBusConfigurationChangeSignalHandling::recordChange(ConnectorType type, const QString& instanceName,
                                                         const char* message, const LogContext& context)
{
    const QStringList settings = m_connectorSettings.value(type);
    if (instanceName != settings.value(ConnectorSettings::Configuration))
        return;
    m_changeMap[type] = instanceName;
    m_changed = true;
    context.debug() << message;
}
