#include "StateMachineStateBase.h"

StateMachineStateBase::StateMachineStateBase(QObject* parent) : QObject(parent) {}

void StateMachineStateBase::postInitialEvent(const StateMachineEvent& /*event*/) {}
