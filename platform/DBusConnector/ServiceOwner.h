#pragma once

#include <QtCore/QObject>
#include <QtCore/QSharedPointer>
#include <QtCore/QString>
#include <QtDBus/QDBusConnection>

class QDBusServiceWatcher;

/// Tracks whether a name on the device's bus has an owner. All connectors of one thread to one service share
/// one object, so that the bus is queried and subscribed to once.
class ServiceOwner : public QObject
{
    Q_OBJECT

public:
    /// Queries the bus, without watching anything. @return false without a bus, or when the bus does not
    /// answer; for the time this takes see BusQuestions.
    static bool isOnBus(const QString& serviceName);

    /// The object that is in use in this thread for the name on the present connection; null when there is
    /// none.
    static QSharedPointer<ServiceOwner> watched(const QString& serviceName);
    /// Returns the object given by watched(), or creates one: it watches the name first and then queries its
    /// owner.
    static QSharedPointer<ServiceOwner> watch(const QString& serviceName);

    ~ServiceOwner() override;

    /// Whether the name has an owner, according to the bus's last notification; no round trip, and no event
    /// loop needed. False when the connection is lost.
    bool isPresent() const;

private:
    explicit ServiceOwner(const QString& serviceName);

    QDBusConnection m_connection;
    QDBusServiceWatcher* const m_watcher;
    bool m_hasOwner;
};
