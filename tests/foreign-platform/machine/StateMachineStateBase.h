#pragma once

#include <QtCore/QObject>

#include "StateMachineEvent.h"
#include "UnitConversion/Factory.h"

/// A state; its class name identifies it.
class Q_DECL_EXPORT StateMachineStateBase : public QObject
{
    Q_OBJECT

public:
    StateMachineStateBase(QObject* parent);

    /// Called when the machine enters the state, with the event that selected it.
    virtual void postInitialEvent(const StateMachineEvent& event);
    /// One step.
    virtual void postEvent(const StateMachineEvent& event) = 0;
};

// The one registry of states in the process is located in this library.
extern template class Q_DECL_EXPORT VESKFactories::Factory<StateMachineStateBase, QObject*>;
