#include "UnitManagerConnector/UnitManagerConnectorStateReadConfigurationSynchron.h"

#include "ConfigurationFileHandlerDBusConnector.h"
#include "DBusReply.h"
#include "Diagnostics.h"
#include "UnitManagerConnector/ConfigurationReading.h"
#include "UnitManagerConnector/ConnectorSettings.h"
#include "UnitManagerConnector/UnitManagerConnectionData.h"
#include "UnitManagerConnector/UnitManagerConnectorStateError.h"
#include "UnitManagerConnector/UnitManagerConnectorStateUpdate.h"
#include "UnitManagerDefinitions.h"

namespace {

const char* const sourceName = "UnitManagerConnector/UnitManagerConnectorStateReadConfigurationSynchron";

DBusReply request(const ConfigurationFileHandlerDBusConnector& connector, const QStringList& settings,
                  const LogContext& context)
{
    const QString name = settings.value(ConnectorSettings::Configuration);
    const QString kind = settings.value(ConnectorSettings::Kind);
    if (kind == UnitManagerConnectorDefinitions::getKeyConfigurationDependencyFile())
        return connector.getConfigurationDependency(name, UnitManagerDefinitions::getModuleName());
    if (kind == UnitManagerConnectorDefinitions::getKeyConfigurationFile())
        return connector.getConfiguration(name, UnitManagerDefinitions::getModuleName(), QString());
    ConfigurationReading::warnUnknownKind(context, kind);
    return {};
}

} // namespace

UnitManagerConnectorStateReadConfigurationSynchron::UnitManagerConnectorStateReadConfigurationSynchron(
    QObject* parent)
    : UnitManagerConnectorStateBase(parent)
{}

UnitManagerConnectorStateReadConfigurationSynchron::~UnitManagerConnectorStateReadConfigurationSynchron() =
    default;

void UnitManagerConnectorStateReadConfigurationSynchron::postInitialEvent(const StateMachineEvent& /*event*/)
{}

void UnitManagerConnectorStateReadConfigurationSynchron::postEvent(const StateMachineEvent& event)
{
    if (forEachType(event, [this](ConnectorType type) { return readConfiguration(type); }))
        moveTo<UnitManagerConnectorStateUpdate>(event);
    else
        moveTo<UnitManagerConnectorStateError>(event);
}

bool UnitManagerConnectorStateReadConfigurationSynchron::readConfiguration(
    UnitManagerConnectorDefinitions::ConnectorType type)
{
    if (!m_wrapper)
        return false;
    UnitManagerConnectionData& data = connectionData();
    data.configurations()[type] = QString();

    const LogContext context{sourceName, __LINE__, Q_FUNC_INFO};
    const auto connector = ConfigurationReading::connectorOf(data, type, context);
    if (!connector)
        return false;

    const QStringList settings = data.connectorSettings().value(type);
    const DBusReply reply = request(*connector, settings, context);
    if (reply.isError()) {
        ConfigurationReading::warnNoReply(context, settings);
        return false;
    }
    const QString text = reply.getValue().toString();
    data.configurations()[type] = text;
    if (text.isEmpty())
        ConfigurationReading::warnEmpty(context, settings);
    return !text.isEmpty();
}
