// A state machine that enters a selected state only at the next step: it stands in for the platform's, with
// the platform's own header.

#include "StateMachineBase.h"

#include "UnitConversion/Factory.h"

#include <QtCore/QDebug>
#include <QtCore/QLoggingCategory>
#include <QtCore/QMessageLogger>

namespace {

// Kept as a property of the machine, because the header is the platform's.
const char* const selectedState = "selectedState";

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
        const QSharedPointer<StateMachineStateBase> previous = m_currentState;
        m_currentState = createState(selected);
        if (m_logStates)
            doLogEntryStateChanged(previous, m_currentState);
        m_currentState->postInitialEvent(event);
    }
    m_currentState->postEvent(event);
    return true;
}

QString StateMachineBase::getCurrentStateIdentifier() const
{
    return identifierOf(m_currentState);
}

void StateMachineBase::doLogEntryStateInitialized(QSharedPointer<StateMachineStateBase> state)
{
    doLogEntryStateChanged({}, state);
}

void StateMachineBase::doLogEntryStateChanged(QSharedPointer<StateMachineStateBase> previous,
                                              QSharedPointer<StateMachineStateBase> current)
{
    QMessageLogger(nullptr, 0, nullptr).debug(stateMachineCategory())
        << "State changed from" << identifierOf(previous) << "to" << identifierOf(current);
}

QSharedPointer<StateMachineStateBase> StateMachineBase::createState(const QString& stateKey) const
{
    return QSharedPointer<StateMachineStateBase>(
        VESKFactories::Factory<StateMachineStateBase, QObject*>::instance().create(stateKey, parent()));
}
