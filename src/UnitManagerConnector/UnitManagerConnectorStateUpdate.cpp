#include "UnitManagerConnector/UnitManagerConnectorStateUpdate.h"

#include "UnitManagerConnector/UnitManagerConnectionData.h"
#include "UnitManagerConnector/UnitManagerConnectorStateError.h"
#include "UnitManagerConnector/UnitManagerConnectorStateIdle.h"

UnitManagerConnectorStateUpdate::UnitManagerConnectorStateUpdate(QObject* parent)
    : UnitManagerConnectorStateBase(parent)
{}

UnitManagerConnectorStateUpdate::~UnitManagerConnectorStateUpdate() = default;

void UnitManagerConnectorStateUpdate::postInitialEvent(const StateMachineEvent& /*event*/) {}

void UnitManagerConnectorStateUpdate::postEvent(const StateMachineEvent& event)
{
    if (connectionData().updateObjects())
        moveTo<UnitManagerConnectorStateIdle>(event);
    else
        moveTo<UnitManagerConnectorStateError>(event);
}
