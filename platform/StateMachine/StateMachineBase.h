#pragma once

#include <QtCore/QObject>
#include <QtCore/QSharedPointer>
#include <QtCore/QString>

#include "StateMachineEvent.h"
#include "StateMachineExport.h"
#include "StateMachineStateBase.h"

/// A state machine that never runs by itself: each postEvent() is one step of the current state.
///
/// A state is selected by its factory key and created through VESKFactories::Factory<StateMachineStateBase,
/// QObject*> with the machine's QObject parent as the argument. It is current from that moment, even when the
/// running state selects it; the running state's object is not destroyed before its call returns. Must be
/// used from one thread.
class STATEMACHINE_EXPORT StateMachineBase : public QObject
{
    Q_OBJECT

public:
    /// @param parent QObject parent, and the argument that every state is created with.
    /// @param logStates whether the logging hooks are called for entered states.
    StateMachineBase(QObject* parent, bool logStates);

    /// Enters the first state: it becomes current, doLogEntryStateInitialized() is called, and its
    /// postInitialEvent() receives the event.
    /// @return false when no state is registered under the key; nothing changes and a warning names the key.
    bool setInitialState(const QString& stateKey, const StateMachineEvent& event);

    /// Replaces the current state by another one (or by a new object of the same class). Works like
    /// setInitialState(), but calls doLogEntryStateChanged().
    bool setNextState(const QString& stateKey, const StateMachineEvent& event);

    /// Delivers the event once, to the state that is current at the time of the call.
    /// @return false when there is no current state.
    bool postEvent(const StateMachineEvent& event);

    /// The class name of the current state; empty when there is none.
    QString getCurrentStateIdentifier() const;

protected:
    /// Logs the entered state at debug level in the category "device.statemachine", which is off unless a
    /// logging rule enables it.
    virtual void doLogEntryStateInitialized(QSharedPointer<StateMachineStateBase> state);

    /// Logs the change; see doLogEntryStateInitialized(). The previous state is null when there was none.
    virtual void doLogEntryStateChanged(QSharedPointer<StateMachineStateBase> previous,
                                        QSharedPointer<StateMachineStateBase> current);

private:
    QSharedPointer<StateMachineStateBase> createState(const QString& stateKey) const;

    QSharedPointer<StateMachineStateBase> m_currentState;
    bool m_logStates;
};
