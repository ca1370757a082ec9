#pragma once

#include <QtCore/QObject>
#include <QtCore/QString>

/// An object of the store.
class DBusConnectorBase : public QObject
{
    Q_OBJECT

public:
    /// Whether the store still has the object.
    bool isDBusInterfaceValid() const;

protected:
    explicit DBusConnectorBase(const QString& object);

    const QString m_object;
};
