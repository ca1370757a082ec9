#include "StateMachineStateBase.h"

template class VESKFactories::Factory<StateMachineStateBase, QObject*>;

StateMachineStateBase::StateMachineStateBase(QObject* parent) : QObject(parent) {}

void StateMachineStateBase::postInitialEvent(const StateMachineEvent& /*event*/) {}
