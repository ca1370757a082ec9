#include "UnitManagerConnector/UnitManagerConnectionData.h"

#include "ConfigurationFileHandlerDBusConnector.h"
#include "DBusPendingReply.h"
#include "DependencyWalker.h"
#include "DeviceManagerDefinitions.h"
#include "Diagnostics.h"
#include "UnitManagerConnector/ConnectorSettings.h"
#include "UnitManagerDevice/UnitManagerDevice.h"

namespace {

const char* const sourceName = "UnitManagerConnector/UnitManagerConnectionData";

} // namespace

UnitManagerConnectionData::UnitManagerConnectionData(
    QObject* /*parent*/, bool useSignalPolling, bool useAsynchronInterface, bool /*ignoredFlag*/,
    const QString& dependencyService, const QString& dependencyObject, const QString& dependencyConfiguration,
    const QString& defaultUnitService, const QString& defaultUnitObject,
    const QString& defaultUnitConfiguration)
    : QObject(nullptr), m_useSignalPolling(useSignalPolling), m_changeSignalHandling(useSignalPolling)
{
    init(useAsynchronInterface, dependencyService, dependencyObject, dependencyConfiguration,
         defaultUnitService, defaultUnitObject, defaultUnitConfiguration);
}

UnitManagerConnectionData::~UnitManagerConnectionData() = default;

bool UnitManagerConnectionData::init(bool useAsynchronInterface, const QString& dependencyService,
                                     const QString& dependencyObject, const QString& dependencyConfiguration,
                                     const QString& defaultUnitService, const QString& defaultUnitObject,
                                     const QString& defaultUnitConfiguration)
{
    using Definitions = UnitManagerConnectorDefinitions;
    m_useAsynchronInterface = useAsynchronInterface;
    m_connectorSettings[Definitions::DependencyFile] =
        QStringList{dependencyService, dependencyObject, dependencyConfiguration,
                    Definitions::getKeyConfigurationDependencyFile(), Definitions::getKeyOptional()};
    m_connectorSettings[Definitions::DefaultUnit] =
        QStringList{defaultUnitService, defaultUnitObject, defaultUnitConfiguration,
                    Definitions::getKeyConfigurationFile(), Definitions::getKeyOptional()};
    m_connectorSettings[Definitions::UnitSwitch] =
        QStringList{DeviceManagerDefinitions::getModuleName(),
                    DeviceManagerDefinitions::getObjectNameUnitManagerConfiguration(),
                    QStringLiteral("UnitManager/UnitType"), Definitions::getKeyConfigurationFile(),
                    Definitions::getKeyMandatory()};
    return m_changeSignalHandling.init(m_connectorSettings);
}

bool UnitManagerConnectionData::useAsynchronInterface() const
{
    return m_useAsynchronInterface;
}

UnitManagerConnectionData::ConnectionStatus UnitManagerConnectionData::openConnector(ConnectorType type)
{
    const QStringList settings = m_connectorSettings.value(type);
    QSharedPointer<ConfigurationFileHandlerDBusConnector>& connector = m_connectors[type];
    if (!ConnectorSettings::areUsable(settings)) {
        connector.reset();
        return UnitManagerConnectorDefinitions::NotConfigured;
    }
    if (connector)
        QObject::disconnect(connector.data(), nullptr, nullptr, nullptr);
    connector = ConfigurationFileHandlerDBusConnector::createAndConnect(
        settings.value(ConnectorSettings::Service), settings.value(ConnectorSettings::Object));
    if (!connector)
        return UnitManagerConnectorDefinitions::ConnectionFailed;

    const ConnectionStatus status = connectChangeFlag(type);
    if (m_debugOutput) {
        LogContext{sourceName, __LINE__, Q_FUNC_INFO}.debug()
            << "Open Connection" << settings.value(ConnectorSettings::Service)
            << settings.value(ConnectorSettings::Object) << settings.value(ConnectorSettings::Configuration);
    }
    return status;
}

UnitManagerConnectionData::ConnectionStatus UnitManagerConnectionData::connectChangeFlag(ConnectorType type)
{
    switch (type) {
    case UnitManagerConnectorDefinitions::UnitSwitch:
        return m_changeSignalHandling.connectUnitSwitchChangeFlag();
    case UnitManagerConnectorDefinitions::DependencyFile:
        return m_changeSignalHandling.connectDependencyFileChangeFlag();
    case UnitManagerConnectorDefinitions::DefaultUnit:
        return m_changeSignalHandling.connectDefaultUnitChangeFlag();
    }
    return UnitManagerConnectorDefinitions::NotConfigured;
}

bool UnitManagerConnectionData::isConnectedToDBus() const
{
    return hasValidConnector(UnitManagerConnectorDefinitions::UnitSwitch) &&
           hasValidConnectorIfConfigured(UnitManagerConnectorDefinitions::DependencyFile) &&
           hasValidConnectorIfConfigured(UnitManagerConnectorDefinitions::DefaultUnit);
}

bool UnitManagerConnectionData::hasValidConnector(ConnectorType type) const
{
    const QSharedPointer<ConfigurationFileHandlerDBusConnector> connector = m_connectors.value(type);
    return connector && connector->isDBusInterfaceValid();
}

bool UnitManagerConnectionData::hasValidConnectorIfConfigured(ConnectorType type) const
{
    return !ConnectorSettings::areUsable(m_connectorSettings.value(type)) || hasValidConnector(type);
}

bool UnitManagerConnectionData::updateObjects()
{
    // Both are updated: each source's objects are replaced regardless of the other's result.
    bool result = updateUnitManager();
    result = updateDependencyWalker() && result;
    // Clears only the recorded changes. The fetched texts are needed when a single source is read again.
    m_changeSignalHandling.resetCachedObjects();
    return result;
}

bool UnitManagerConnectionData::updateUnitManager()
{
    const QString unitSwitch = m_configurations.value(UnitManagerConnectorDefinitions::UnitSwitch);
    const QString defaultUnit = m_configurations.value(UnitManagerConnectorDefinitions::DefaultUnit);
    if (unitSwitch.isEmpty() && defaultUnit.isEmpty())
        return true;
    m_unitManager = QSharedPointer<UnitManagerDevice>::create();
    bool result = true;
    if (!unitSwitch.isEmpty())
        result = m_unitManager->updateUnitConversionByJsonString(unitSwitch);
    if (!defaultUnit.isEmpty())
        result = m_unitManager->updateDefaultUnitsByJsonString(defaultUnit) && result;
    return result;
}

bool UnitManagerConnectionData::updateDependencyWalker()
{
    const QString dependencyFile = m_configurations.value(UnitManagerConnectorDefinitions::DependencyFile);
    if (dependencyFile.isEmpty())
        return true;
    m_dependencyWalker = QSharedPointer<DependencyWalker>::create();
    return m_dependencyWalker->initDependencyGraphByJsonString(dependencyFile);
}

bool UnitManagerConnectionData::resetCachedObjects()
{
    ConnectorSettings::clearValues(m_configurations);
    ConnectorSettings::clearValues(m_pendingReplies);
    return m_changeSignalHandling.resetCachedObjects();
}

bool UnitManagerConnectionData::resetObject()
{
    closeConnections();
    ConnectorSettings::clearValues(m_connectors);
    resetCachedObjects();
    return true;
}

bool UnitManagerConnectionData::closeConnections()
{
    return m_changeSignalHandling.closeDbusConnections();
}

bool UnitManagerConnectionData::pollChangeFlags()
{
    return m_changeSignalHandling.pollChangeFlags();
}

QMap<UnitManagerConnectionData::ConnectorType, QString>
UnitManagerConnectionData::getConfigurationChangeMap() const
{
    return m_changeSignalHandling.getConfigurationChangeMap();
}

bool UnitManagerConnectionData::initializeUnitManager(QSharedPointer<UnitManagerDevice>& out)
{
    if (!m_unitManager)
        return false;
    out = m_unitManager;
    return true;
}

bool UnitManagerConnectionData::initializeDependencyWalker(QSharedPointer<DependencyWalker>& out)
{
    if (!m_dependencyWalker)
        return false;
    out = m_dependencyWalker;
    return true;
}

QMap<UnitManagerConnectionData::ConnectorType, QSharedPointer<ConfigurationFileHandlerDBusConnector>>&
UnitManagerConnectionData::connectors()
{
    return m_connectors;
}

QMap<UnitManagerConnectionData::ConnectorType, QStringList>& UnitManagerConnectionData::connectorSettings()
{
    return m_connectorSettings;
}

QMap<UnitManagerConnectionData::ConnectorType, QSharedPointer<DBusPendingReply>>&
UnitManagerConnectionData::pendingReplies()
{
    return m_pendingReplies;
}

QMap<UnitManagerConnectionData::ConnectorType, QString>& UnitManagerConnectionData::configurations()
{
    return m_configurations;
}
