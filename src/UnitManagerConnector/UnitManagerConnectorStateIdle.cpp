#include "UnitManagerConnector/UnitManagerConnectorStateIdle.h"

#include "UnitManagerConnector/UnitManagerConnectionData.h"

UnitManagerConnectorStateIdle::UnitManagerConnectorStateIdle(QObject* parent)
    : UnitManagerConnectorStateBase(parent)
{}

UnitManagerConnectorStateIdle::~UnitManagerConnectorStateIdle() = default;

void UnitManagerConnectorStateIdle::postInitialEvent(const StateMachineEvent& /*event*/) {}

void UnitManagerConnectorStateIdle::postEvent(const StateMachineEvent& /*event*/)
{
    if (!m_wrapper || !connectionData().pollChangeFlags())
        return;
    const QMap<ConnectorType, QString> changes = connectionData().getConfigurationChangeMap();
    QList<ConnectorType> changed;
    for (auto change = changes.begin(); change != changes.end(); ++change) {
        if (!change.value().isEmpty())
            changed.append(change.key());
    }
    triggerRead(changed);
}
