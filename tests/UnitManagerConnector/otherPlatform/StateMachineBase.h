#pragma once

#include <QtCore/QObject>
#include <QtCore/QSharedPointer>
#include <QtCore/QString>

#include "StateMachineEvent.h"
#include "StateMachineStateBase.h"

/// The state machine of another platform, used instead of the one in platform/: a step returns
/// POST_EVENT_RESULT.
class StateMachineBase : public QObject
{
    Q_OBJECT

public:
    StateMachineBase(QObject* parent, bool logStates);

    void setInitialState(const QString& stateKey, const StateMachineEvent& event);
    void setNextState(const QString& stateKey, const StateMachineEvent& event);
    POST_EVENT_RESULT postEvent(const StateMachineEvent& event);
    QString getCurrentStateIdentifier() const;

protected:
    virtual void doLogEntryStateInitialized(QSharedPointer<StateMachineStateBase> state);
    virtual void doLogEntryStateChanged(QSharedPointer<StateMachineStateBase> previous,
                                        QSharedPointer<StateMachineStateBase> current);
};
