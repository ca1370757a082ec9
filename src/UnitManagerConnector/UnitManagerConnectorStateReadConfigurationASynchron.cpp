#include "UnitManagerConnector/UnitManagerConnectorStateReadConfigurationASynchron.h"

#include "ConfigurationFileHandlerDBusConnector.h"
#include "DBusPendingReply.h"
#include "Diagnostics.h"
#include "UnitManagerConnector/ConfigurationReading.h"
#include "UnitManagerConnector/ConnectorSettings.h"
#include "UnitManagerConnector/UnitManagerConnectionData.h"
#include "UnitManagerConnector/UnitManagerConnectorStateError.h"
#include "UnitManagerConnector/UnitManagerConnectorStateWaitForReply.h"
#include "UnitManagerDefinitions.h"

namespace {

const char* const sourceName = "UnitManagerConnector/UnitManagerConnectorStateReadConfigurationASynchron";

/// Starts a call and stores its pending reply in place of an earlier one. For an unknown kind of
/// configuration the earlier one is kept.
void request(UnitManagerConnectionData& data, UnitManagerConnectorDefinitions::ConnectorType type,
             const ConfigurationFileHandlerDBusConnector& connector, const LogContext& context)
{
    const QStringList settings = data.connectorSettings().value(type);
    const QString name = settings.value(ConnectorSettings::Configuration);
    const QString kind = settings.value(ConnectorSettings::Kind);
    const QString& module = UnitManagerDefinitions::getModuleName();
    if (kind == UnitManagerConnectorDefinitions::getKeyConfigurationDependencyFile())
        data.pendingReplies()[type] = connector.getConfigurationDependencyAsynchron(name, module);
    else if (kind == UnitManagerConnectorDefinitions::getKeyConfigurationFile())
        data.pendingReplies()[type] = connector.getConfigurationAsynchron(name, module, QString());
    else
        ConfigurationReading::warnUnknownKind(context, kind);
}

} // namespace

UnitManagerConnectorStateReadConfigurationASynchron::UnitManagerConnectorStateReadConfigurationASynchron(
    QObject* parent)
    : UnitManagerConnectorStateBase(parent)
{}

UnitManagerConnectorStateReadConfigurationASynchron::~UnitManagerConnectorStateReadConfigurationASynchron() =
    default;

void UnitManagerConnectorStateReadConfigurationASynchron::postInitialEvent(const StateMachineEvent& /*event*/)
{}

void UnitManagerConnectorStateReadConfigurationASynchron::postEvent(const StateMachineEvent& event)
{
    if (forEachType(event, [this](ConnectorType type) { return startConfigurationRead(type); }))
        moveTo<UnitManagerConnectorStateWaitForReply>(event);
    else
        moveTo<UnitManagerConnectorStateError>(event);
}

bool UnitManagerConnectorStateReadConfigurationASynchron::startConfigurationRead(
    UnitManagerConnectorDefinitions::ConnectorType type)
{
    if (!m_wrapper)
        return false;
    UnitManagerConnectionData& data = connectionData();
    if (data.configurations().contains(type))
        data.configurations()[type] = QString();

    const LogContext context{sourceName, __LINE__, Q_FUNC_INFO};
    const auto connector = ConfigurationReading::connectorOf(data, type, context);
    if (!connector)
        return false;

    request(data, type, *connector, context);
    if (!data.pendingReplies().value(type)) {
        ConfigurationReading::warnNoReply(context, data.connectorSettings().value(type));
        return false;
    }
    return true;
}
