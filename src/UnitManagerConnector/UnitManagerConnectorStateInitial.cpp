#include "UnitManagerConnector/UnitManagerConnectorStateInitial.h"

#include "Diagnostics.h"
#include "UnitManagerConnector/ConnectorSettings.h"
#include "UnitManagerConnector/UnitManagerConnectionData.h"

namespace {

const char* const sourceName = "UnitManagerConnector/UnitManagerConnectorStateInitial";

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
        if (!openSource(type, opened, context)) {
            connectionData().resetObject();
            return;
        }
    }
    triggerRead(opened);
}

bool UnitManagerConnectorStateInitial::openSource(ConnectorType type, QList<ConnectorType>& opened,
                                                  const LogContext& context) const
{
    const auto status = connectionData().openConnector(type);
    const QStringList settings = connectionData().connectorSettings().value(type);
    if (settings.size() < ConnectorSettings::EntryCount) {
        context.warning() << "Unable to find handling for file type";
        return true;
    }
    const QString& configuration = settings.at(ConnectorSettings::Configuration);
    const bool isMandatory = settings.at(ConnectorSettings::Necessity) == QLatin1String("mandatory");
    const bool isOptional = settings.at(ConnectorSettings::Necessity) == QLatin1String("optional");
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
