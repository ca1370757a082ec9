// A state machine that enters a selected state at the next step. It implements the platform's header.

#include "StateMachineBase.h"

#include "UnitConversion/Factory.h"

#include <QtCore/QDebug>
#include <QtCore/QLoggingCategory>
#include <QtCore/QMessageLogger>
#include <QtCore/QVariant>

namespace {

// A property, because the header has no member for the key of the selected state.
const char* const selectedState = "selectedState";

} // namespace

StateMachineBase::StateMachineBase(QObject* parent, bool logStates) : QObject(parent), m_logStates(logStates)
{}

bool StateMachineBase::setInitialState(const QString& stateKey, const StateMachineEvent& event)
{
    return setNextState(stateKey, event);
}

bool StateMachineBase::setNextState(const QString& stateKey, const StateMachineEvent& /*event*/)
{
    setProperty(selectedState, stateKey);
    return true;
}

bool StateMachineBase::postEvent(const StateMachineEvent& event)
{
    const QString selected = property(selectedState).toString();
    if (!selected.isEmpty()) {
        setProperty(selectedState, QString());
        m_currentState = createState(selected);
        if (m_logStates)
            doLogEntryStateInitialized(m_currentState);
        m_currentState->postInitialEvent(event);
    }
    m_currentState->postEvent(event);
    return true;
}

QString StateMachineBase::getCurrentStateIdentifier() const
{
    return m_currentState ? QString::fromLatin1(m_currentState->metaObject()->className()) : QString();
}

void StateMachineBase::doLogEntryStateInitialized(QSharedPointer<StateMachineStateBase> state)
{
    static const QLoggingCategory category("device.statemachine", QtInfoMsg);
    QMessageLogger(nullptr, 0, nullptr).debug(category)
        << "State changed to" << QString::fromLatin1(state->metaObject()->className());
}

void StateMachineBase::doLogEntryStateChanged(QSharedPointer<StateMachineStateBase> /*previous*/,
                                              QSharedPointer<StateMachineStateBase> current)
{
    doLogEntryStateInitialized(current);
}

QSharedPointer<StateMachineStateBase> StateMachineBase::createState(const QString& stateKey) const
{
    return QSharedPointer<StateMachineStateBase>(
        VESKFactories::Factory<StateMachineStateBase, QObject*>::instance().create(stateKey, parent()));
}
