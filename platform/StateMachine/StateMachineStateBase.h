#pragma once

#include "StateMachineEvent.h"
#include "StateMachineExport.h"
#include "UnitConversion/Factory.h"

#include <QtCore/QObject>

/// One state of a StateMachineBase. The class name of a state is its identifier, so every state class carries
/// Q_OBJECT and stands in no namespace. States are created through
/// VESKFactories::Factory<StateMachineStateBase, QObject*> and owned by the machine that entered them.
class STATEMACHINE_EXPORT StateMachineStateBase : public QObject
{
    Q_OBJECT

public:
    /// @param parent the QObject parent; a state that belongs to a machine passes none on.
    StateMachineStateBase(QObject* parent);

    /// Called once when the machine enters the state, with the event that selected it. Does nothing here.
    virtual void postInitialEvent(const StateMachineEvent& event);

    /// One step of the machine while this state is current. The state may select the next one; this object
    /// lives on until the call returns.
    virtual void postEvent(const StateMachineEvent& event) = 0;
};

// The registry of the states belongs to this library, which serves it to the whole process.
extern template class STATEMACHINE_EXPORT VESKFactories::Factory<StateMachineStateBase, QObject*>;
