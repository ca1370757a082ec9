#include "StateMachineBase.h"

template class VESKFactories::Factory<StateMachineStateBase, QObject*>;

StateMachineEvent::StateMachineEvent() = default;

StateMachineEvent::StateMachineEvent(const QString& /*name*/, const QVariant& /*data*/) {}

QVariant StateMachineEvent::getData() const
{
    return {};
}

void StateMachineEvent::setData(const QVariant& /*data*/) {}

StateMachineStateBase::StateMachineStateBase(QObject* parent) : QObject(parent) {}

void StateMachineStateBase::postInitialEvent(const StateMachineEvent& /*event*/) {}

StateMachineBase::StateMachineBase(QObject* parent, bool /*logStates*/) : QObject(parent) {}

void StateMachineBase::setInitialState(const QString& /*stateKey*/, const StateMachineEvent& /*event*/) {}

void StateMachineBase::setNextState(const QString& /*stateKey*/, const StateMachineEvent& /*event*/) {}

void StateMachineBase::postEvent(const StateMachineEvent& /*event*/) {}

QString StateMachineBase::getCurrentStateIdentifier() const
{
    return {};
}

void StateMachineBase::doLogEntryStateInitialized(QSharedPointer<StateMachineStateBase> /*state*/) {}

void StateMachineBase::doLogEntryStateChanged(QSharedPointer<StateMachineStateBase> /*previous*/,
                                              QSharedPointer<StateMachineStateBase> /*current*/)
{}
