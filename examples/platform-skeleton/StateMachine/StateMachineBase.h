#pragma once

#include <QtCore/QObject>
#include <QtCore/QSharedPointer>
#include <QtCore/QString>

#include "StateMachineEvent.h"
#include "StateMachineStateBase.h"

class StateMachineBase : public QObject
{
    Q_OBJECT

public:
    StateMachineBase(QObject* parent, bool logStates);

    void setInitialState(const QString& stateKey, const StateMachineEvent& event);
    void setNextState(const QString& stateKey, const StateMachineEvent& event);
    /// One step. Any return type is allowed.
    void postEvent(const StateMachineEvent& event);
    QString getCurrentStateIdentifier() const;

protected:
    virtual void doLogEntryStateInitialized(QSharedPointer<StateMachineStateBase> state);
    virtual void doLogEntryStateChanged(QSharedPointer<StateMachineStateBase> previous,
                                        QSharedPointer<StateMachineStateBase> current);
};
