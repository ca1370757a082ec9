#include "UnitManagerConnector/UnitManagerConnectorStateError.h"

#include "UnitManagerConnector/UnitManagerConnectionData.h"
#include "UnitManagerConnector/UnitManagerConnectorStateInitial.h"

UnitManagerConnectorStateError::UnitManagerConnectorStateError(QObject* parent)
    : UnitManagerConnectorStateBase(parent)
{}

UnitManagerConnectorStateError::~UnitManagerConnectorStateError() = default;

void UnitManagerConnectorStateError::postInitialEvent(const StateMachineEvent& /*event*/) {}

void UnitManagerConnectorStateError::postEvent(const StateMachineEvent& event)
{
    connectionData().resetObject();
    moveTo<UnitManagerConnectorStateInitial>(event);
}
