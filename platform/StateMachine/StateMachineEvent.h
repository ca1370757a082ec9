#pragma once

#include <QtCore/QString>
#include <QtCore/QVariant>

#include "StateMachineExport.h"

/// An event that a state machine delivers to its current state: a name and data of any type. A plain value.
class STATEMACHINE_EXPORT StateMachineEvent
{
public:
    /// Creates an event without a name and without data.
    StateMachineEvent();
    StateMachineEvent(const QString& name, const QVariant& data = QVariant());

    QString getName() const;
    void setName(const QString& name);

    /// The data; invalid when there is none.
    QVariant getData() const;
    void setData(const QVariant& data);

private:
    QString m_name;
    QVariant m_data;
};
