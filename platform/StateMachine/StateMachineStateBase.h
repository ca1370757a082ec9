#pragma once

#include <QtCore/QObject>

#include "StateMachineEvent.h"
#include "StateMachineExport.h"
#include "UnitConversion/Factory.h"

/// One state of a StateMachineBase. The class name of a state is its identifier, so every state class
/// contains Q_OBJECT and is not in a namespace. States are created through
/// VESKFactories::Factory<StateMachineStateBase, QObject*> and owned by the machine that entered them.
class STATEMACHINE_EXPORT StateMachineStateBase : public QObject
{
    Q_OBJECT

public:
    /// @param parent the QObject parent; states that belong to a machine pass null.
    StateMachineStateBase(QObject* parent);

    /// Called once when the machine enters the state, with the event that selected it. Does nothing by
    /// default.
    virtual void postInitialEvent(const StateMachineEvent& event);

    /// Performs one step of the machine while this state is current. The state may select the next one; this
    /// object is not destroyed before the call returns.
    virtual void postEvent(const StateMachineEvent& event) = 0;
};

// The registry of states is located in this library and shared by the whole process.
extern template class STATEMACHINE_EXPORT VESKFactories::Factory<StateMachineStateBase, QObject*>;
