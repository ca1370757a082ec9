#pragma once

#include "StateMachineEvent.h"
#include "StateMachineExport.h"
#include "StateMachineStateBase.h"

#include <QtCore/QObject>
#include <QtCore/QSharedPointer>
#include <QtCore/QString>

/// A state machine that never runs by itself: each postEvent() is one step of the current state.
///
/// A state is selected by its factory key and created through
/// VESKFactories::Factory<StateMachineStateBase, QObject*> with the machine's QObject parent as the argument.
/// It is current from that moment, even when it was selected from inside the running state, whose object
/// lives until its call returns. Used from one thread.
class STATEMACHINE_EXPORT StateMachineBase : public QObject
{
    Q_OBJECT

public:
    /// @param parent QObject parent, and the argument that every state is created with.
    /// @param logStates whether entered states are reported to the logging hooks.
    StateMachineBase(QObject* parent, bool logStates);

    /// Enters the first state: it becomes current, doLogEntryStateInitialized() is told, and its
    /// postInitialEvent() gets the event.
    /// @return false when no state is registered under the key; then nothing changes and a warning names the
    /// key.
    bool setInitialState(const QString& stateKey, const StateMachineEvent& event);

    /// Leaves the current state for another (or for a new object of the same): as setInitialState(), but
    /// doLogEntryStateChanged() is told.
    bool setNextState(const QString& stateKey, const StateMachineEvent& event);

    /// Hands the event to the state that is current now, once.
    /// @return false when there is no current state.
    bool postEvent(const StateMachineEvent& event);

    /// The class name of the current state; empty when there is none.
    QString getCurrentStateIdentifier() const;

protected:
    /// Logs the entered state at debug level in the category "device.statemachine", which is off unless a
    /// logging rule turns it on.
    virtual void doLogEntryStateInitialized(QSharedPointer<StateMachineStateBase> state);

    /// Logs the change as doLogEntryStateInitialized() does. The previous state is null when there was none.
    virtual void doLogEntryStateChanged(QSharedPointer<StateMachineStateBase> previous,
                                        QSharedPointer<StateMachineStateBase> current);

private:
    QSharedPointer<StateMachineStateBase> createState(const QString& stateKey) const;

    QSharedPointer<StateMachineStateBase> m_currentState;
    bool m_logStates;
};
