#pragma once

#include <QtCore/QString>
#include <QtCore/QVariant>

class StateMachineEvent
{
public:
    StateMachineEvent();
    StateMachineEvent(const QString& name, const QVariant& data = QVariant());

    QVariant getData() const;
    void setData(const QVariant& data);
};
