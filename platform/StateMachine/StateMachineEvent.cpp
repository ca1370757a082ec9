#include "StateMachineEvent.h"

StateMachineEvent::StateMachineEvent() = default;

StateMachineEvent::StateMachineEvent(const QString& name, const QVariant& data) : m_name(name), m_data(data)
{}

QString StateMachineEvent::getName() const
{
    return m_name;
}

void StateMachineEvent::setName(const QString& name)
{
    m_name = name;
}

QVariant StateMachineEvent::getData() const
{
    return m_data;
}

void StateMachineEvent::setData(const QVariant& data)
{
    m_data = data;
}
