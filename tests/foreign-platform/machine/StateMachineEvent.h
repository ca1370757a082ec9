#pragma once

#include <QtCore/QString>
#include <QtCore/QVariant>

/// A name and data.
class StateMachineEvent
{
public:
    StateMachineEvent();
    StateMachineEvent(const QString& name, const QVariant& data = QVariant());

    QString getName() const;
    QVariant getData() const;
    void setData(const QVariant& data);

private:
    QString m_name;
    QVariant m_data;
};
