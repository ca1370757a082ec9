#pragma once

#include <QtCore/QObject>

#include "StateMachineEvent.h"
#include "UnitConversion/Factory.h"

class Q_DECL_EXPORT StateMachineStateBase : public QObject
{
    Q_OBJECT

public:
    StateMachineStateBase(QObject* parent);

    virtual void postInitialEvent(const StateMachineEvent& event);
    virtual void postEvent(const StateMachineEvent& event) = 0;
};

// The one registry of states in the process is located in this library.
extern template class Q_DECL_EXPORT VESKFactories::Factory<StateMachineStateBase, QObject*>;
