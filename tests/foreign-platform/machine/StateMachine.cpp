#include "StateMachineBase.h"

template class VESKFactories::Factory<StateMachineStateBase, QObject*>;

StateMachineEvent::StateMachineEvent() = default;

StateMachineEvent::StateMachineEvent(const QString& name, const QVariant& data) : m_name(name), m_data(data)
{}

QString StateMachineEvent::getName() const
{
    return m_name;
}

QVariant StateMachineEvent::getData() const
{
    return m_data;
}

void StateMachineEvent::setData(const QVariant& data)
{
    m_data = data;
}

StateMachineStateBase::StateMachineStateBase(QObject* parent) : QObject(parent) {}

void StateMachineStateBase::postInitialEvent(const StateMachineEvent& /*event*/) {}

StateMachineBase::StateMachineBase(QObject* parent, bool logStates) : QObject(parent), m_logStates(logStates)
{}

void StateMachineBase::setInitialState(const QString& stateKey, const StateMachineEvent& event)
{
    setNextState(stateKey, event);
}

void StateMachineBase::setNextState(const QString& stateKey, const StateMachineEvent& event)
{
    m_selectedKey = stateKey;
    m_selectingEvent = event;
}

void StateMachineBase::postEvent(const StateMachineEvent& event)
{
    if (!m_selectedKey.isEmpty())
        enterSelectedState();
    if (m_state)
        m_state->postEvent(event);
}

void StateMachineBase::enterSelectedState()
{
    const QSharedPointer<StateMachineStateBase> previous = m_state;
    m_state.reset(
        VESKFactories::Factory<StateMachineStateBase, QObject*>::instance().create(m_selectedKey, parent()));
    m_selectedKey.clear();
    if (!m_state)
        return;
    if (m_logStates && previous)
        doLogEntryStateChanged(previous, m_state);
    else if (m_logStates)
        doLogEntryStateInitialized(m_state);
    m_state->postInitialEvent(m_selectingEvent);
}

QString StateMachineBase::getCurrentStateIdentifier() const
{
    return m_state ? QString::fromLatin1(m_state->metaObject()->className()) : QString();
}

void StateMachineBase::doLogEntryStateInitialized(QSharedPointer<StateMachineStateBase> /*state*/) {}

void StateMachineBase::doLogEntryStateChanged(QSharedPointer<StateMachineStateBase> /*previous*/,
                                              QSharedPointer<StateMachineStateBase> /*current*/)
{}
