#pragma once

#include "DBusConnectorExport.h"
#include "DBusPendingReply.h"
#include "DBusReply.h"

#include <QtCore/QObject>
#include <QtCore/QSharedPointer>
#include <QtCore/QString>
#include <QtCore/QVariantList>
#include <QtDBus/QDBusConnection>

class QDBusMessage;
class ServiceOwner;

/// One interface of one object of a module on the device's bus. Starts no service and introspects nothing.
/// Belongs for life to the bus connection that it was built on: when that is lost it stays invalid. Used from
/// the thread that built it, with or without an event loop.
class DBUSCONNECTOR_EXPORT DBusConnectorBase : public QObject
{
    Q_OBJECT

public:
    ~DBusConnectorBase() override;

    /// Whether the bus is connected and the module is on it, as far as the bus has told; no round trip. In
    /// the moment between a module's end and the bus's word of it a call fails although this was true.
    bool isDBusInterfaceValid() const;

protected:
    /// Whether somebody owns the module's name on the bus. One question to the bus, or none while this thread
    /// has a connector to the module already. When the bus does not answer within the time-out
    /// (DBusConnection::getCallTimeout()), further questions fail at once until it answers.
    /// @return false when there is no bus, or the bus does not answer.
    static bool isServiceAvailable(const QString& service);

    /// Watches the module's name, then asks whether it is owned, unless a connector of this thread has done
    /// so.
    /// @param service the module's name, without the device's prefix.
    /// @param object the object's name, without "/".
    /// @param interface the full D-Bus interface name.
    DBusConnectorBase(const QString& service, const QString& object, const QString& interface);

    /// Calls a method and blocks until its reply or the time-out (DBusConnection::getCallTimeout()). A
    /// service that does not reply in time says nothing about the bus: isServiceAvailable() still asks it.
    DBusReply call(const QString& method, const QVariantList& arguments) const;

    /// Calls a method and returns at once.
    /// @return null when the bus is not connected, so that nothing can be sent.
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
