#pragma once

#include <QtCore/QObject>
#include <QtCore/QSharedPointer>
#include <QtCore/QString>

#include "StateMachineEvent.h"
#include "StateMachineStateBase.h"

/// A machine that enters a selected state at its next step.
class StateMachineBase : public QObject
{
    Q_OBJECT

public:
    /// @param parent given to every state when it is created
    StateMachineBase(QObject* parent, bool logStates);

    void setInitialState(const QString& stateKey, const StateMachineEvent& event);
    void setNextState(const QString& stateKey, const StateMachineEvent& event);
    /// Enters the selected state, if there is one, and gives the event to the current state.
    void postEvent(const StateMachineEvent& event);
    /// The class name of the state that the last step entered; empty before the first step.
    QString getCurrentStateIdentifier() const;

protected:
    virtual void doLogEntryStateInitialized(QSharedPointer<StateMachineStateBase> state);
    virtual void doLogEntryStateChanged(QSharedPointer<StateMachineStateBase> previous,
                                        QSharedPointer<StateMachineStateBase> current);

private:
    void enterSelectedState();

    const bool m_logStates;
    QString m_selectedKey;
    StateMachineEvent m_selectingEvent;
    QSharedPointer<StateMachineStateBase> m_state;
};
