#pragma once

#include <QtCore/QObject>
#include <QtCore/QSharedPointer>
#include <QtCore/QString>
#include <QtCore/QVariantList>
#include <QtDBus/QDBusConnection>

#include "DBusConnectorExport.h"
#include "DBusPendingReply.h"
#include "DBusReply.h"

class QDBusMessage;
class ServiceOwner;

/// One interface of one object of a module on the device's bus. Does not start or introspect the service. It
/// is bound to the bus connection on which it was created: when that is lost it stays invalid. Must be used
/// from the thread that created it, with or without an event loop.
class DBUSCONNECTOR_EXPORT DBusConnectorBase : public QObject
{
    Q_OBJECT

public:
    ~DBusConnectorBase() override;

    /// Whether the bus is connected and the module is on it, according to the bus's last notification; no
    /// round trip. Between the end of a module and that notification a call fails although this returns true.
    bool isDBusInterfaceValid() const;

protected:
    /// Whether the module's name has an owner on the bus. Sends one request to the bus, or none if this
    /// thread already has a connector to the module. When the bus does not answer within the time-out
    /// (DBusConnection::getCallTimeout()), further requests fail at once until it answers.
    /// @return false without a bus, or when the bus does not answer.
    static bool isServiceAvailable(const QString& service);

    /// Watches the module's name, then queries its owner, unless another connector of this thread has already
    /// done so.
    /// @param service the module's name, without the device's prefix.
    /// @param object the object's name, without "/".
    /// @param interface the full D-Bus interface name.
    DBusConnectorBase(const QString& service, const QString& object, const QString& interface);

    /// Calls a method and blocks until its reply or the time-out (DBusConnection::getCallTimeout()). A
    /// time-out of the service does not count as one of the bus: isServiceAvailable() still queries it.
    DBusReply call(const QString& method, const QVariantList& arguments) const;

    /// Calls a method and returns at once.
    /// @return null when the bus is not connected and nothing can be sent.
    QSharedPointer<DBusPendingReply> callAsynchron(const QString& method,
                                                   const QVariantList& arguments) const;

private:
    QDBusMessage createCall(const QString& method, const QVariantList& arguments) const;

    const QString m_serviceName;
    const QString m_objectPath;
    const QString m_interface;
    QDBusConnection m_connection;
    const QSharedPointer<ServiceOwner> m_owner;
};
