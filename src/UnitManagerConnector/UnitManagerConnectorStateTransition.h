#pragma once

#include "UnitConversion/Factory.h"
#include "UnitManagerConnector/UnitManagerConnectorStateBase.h"
#include "UnitManagerConnector/UnitManagerStateMachineWrapper.h"

template <typename State>
void UnitManagerConnectorStateBase::moveTo(const StateMachineEvent& event)
{
    m_wrapper->moveToNextState(VESKFactories::createFactoryKey<State>(), event);
}
