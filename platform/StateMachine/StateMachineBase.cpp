#include "StateMachineBase.h"

#include <QtCore/QDebug>
#include <QtCore/QLoggingCategory>
#include <QtCore/QMessageLogger>

#include "UnitConversion/Factory.h"

namespace {

const QLoggingCategory& stateMachineCategory()
{
    static const QLoggingCategory category("device.statemachine", QtInfoMsg);
    return category;
}

QString identifierOf(const QSharedPointer<StateMachineStateBase>& state)
{
    return state ? QString::fromLatin1(state->metaObject()->className()) : QString();
}

} // namespace

StateMachineBase::StateMachineBase(QObject* parent, bool logStates) : QObject(parent), m_logStates(logStates)
{}

bool StateMachineBase::setInitialState(const QString& stateKey, const StateMachineEvent& event)
{
    // The local pointer keeps the state alive if its postInitialEvent() selects another one.
    const QSharedPointer<StateMachineStateBase> state = createState(stateKey);
    if (!state)
        return false;

    m_currentState = state;
    if (m_logStates)
        doLogEntryStateInitialized(state);
    state->postInitialEvent(event);
    return true;
}

bool StateMachineBase::setNextState(const QString& stateKey, const StateMachineEvent& event)
{
    const QSharedPointer<StateMachineStateBase> state = createState(stateKey);
    if (!state)
        return false;

    const QSharedPointer<StateMachineStateBase> previous = m_currentState;
    m_currentState = state;
    if (m_logStates)
        doLogEntryStateChanged(previous, state);
    state->postInitialEvent(event);
    return true;
}

bool StateMachineBase::postEvent(const StateMachineEvent& event)
{
    // The local pointer keeps the state alive until its step is finished, even if it selects another one.
    const QSharedPointer<StateMachineStateBase> state = m_currentState;
    if (!state)
        return false;

    state->postEvent(event);
    return true;
}

QString StateMachineBase::getCurrentStateIdentifier() const
{
    return identifierOf(m_currentState);
}

void StateMachineBase::doLogEntryStateInitialized(QSharedPointer<StateMachineStateBase> state)
{
    if (!stateMachineCategory().isDebugEnabled())
        return;
    QMessageLogger("StateMachineBase", __LINE__, Q_FUNC_INFO).debug(stateMachineCategory())
        << "Initial state" << identifierOf(state);
}

void StateMachineBase::doLogEntryStateChanged(QSharedPointer<StateMachineStateBase> previous,
                                              QSharedPointer<StateMachineStateBase> current)
{
    if (!stateMachineCategory().isDebugEnabled())
        return;
    QMessageLogger("StateMachineBase", __LINE__, Q_FUNC_INFO).debug(stateMachineCategory())
        << "State changed from" << identifierOf(previous) << "to" << identifierOf(current);
}

QSharedPointer<StateMachineStateBase> StateMachineBase::createState(const QString& stateKey) const
{
    QSharedPointer<StateMachineStateBase> state(
        VESKFactories::Factory<StateMachineStateBase, QObject*>::instance().create(stateKey, parent()));
    if (!state)
        QMessageLogger("StateMachineBase", __LINE__, Q_FUNC_INFO).warning()
            << "No state is registered under the key" << stateKey;
    return state;
}
