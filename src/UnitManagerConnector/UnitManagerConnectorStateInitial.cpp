#include "UnitManagerConnector/UnitManagerConnectorStateInitial.h"

#include "Diagnostics.h"
#include "UnitManagerConnector/ConnectorSettings.h"
#include "UnitManagerConnector/UnitManagerConnectionData.h"

namespace {

const char* const sourceName = "UnitManagerConnector/UnitManagerConnectorStateInitial";

using ConnectorType = UnitManagerConnectorDefinitions::ConnectorType;

/// Opens a source, and on success adds it to the sources to read.
///
/// @return whether the attempt continues with the next source.
bool openSource(UnitManagerConnectionData& data, ConnectorType type, QList<ConnectorType>& opened,
                const LogContext& context)
{
    const auto status = data.openConnector(type);
    const QStringList settings = data.connectorSettings().value(type);
    if (settings.size() < ConnectorSettings::EntryCount) {
        context.warning() << "Unable to find handling for file type";
        return true;
    }
    const QString& configuration = settings.at(ConnectorSettings::Configuration);
    const bool isMandatory = settings.at(ConnectorSettings::Requirement) == QLatin1String("mandatory");
    const bool isOptional = settings.at(ConnectorSettings::Requirement) == QLatin1String("optional");
    if (!isMandatory && !isOptional)
        return true;
    if (status == UnitManagerConnectorDefinitions::Connected) {
        opened.append(type);
        return true;
    }
    if (isMandatory) {
        context.warning() << "Unable to connect to mandantory file type" << configuration;
        return false;
    }
    if (status == UnitManagerConnectorDefinitions::ConnectionFailed) {
        context.warning() << "Connection Error to optional file type" << configuration;
        return false;
    }
    return true;
}

} // namespace

UnitManagerConnectorStateInitial::UnitManagerConnectorStateInitial(QObject* parent)
    : UnitManagerConnectorStateBase(parent)
{}

UnitManagerConnectorStateInitial::~UnitManagerConnectorStateInitial() = default;

void UnitManagerConnectorStateInitial::postInitialEvent(const StateMachineEvent& /*event*/) {}

void UnitManagerConnectorStateInitial::postEvent(const StateMachineEvent& /*event*/)
{
    if (!m_wrapper)
        return;
    const QList<ConnectorType> types = connectionData().connectorSettings().keys();
    const LogContext context{sourceName, __LINE__, Q_FUNC_INFO};
    QList<ConnectorType> opened;
    for (const ConnectorType type : types) {
        if (!openSource(connectionData(), type, opened, context)) {
            connectionData().resetObject();
            return;
        }
    }
    triggerRead(opened);
}
