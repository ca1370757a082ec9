#include "UnitManagerConnector/UnitManagerConnectorStateMachine.h"

UnitManagerConnectorStateMachine::UnitManagerConnectorStateMachine(QObject* parent)
    : StateMachineBase(parent, true)
{}
