#pragma once

#include <QtCore/QString>
#include <QtDBus/QDBusConnection>

#include "DBusConnectorExport.h"

/// The process's connection to the device's bus, and the addresses of the device's modules on it.
///
/// The environment variable DEVICE_BUS names the bus: "session" (the default), "system", or a D-Bus address
/// ("unix:path=/run/device/bus"). DEVICE_BUS_TIMEOUT_MS sets the time-out, in milliseconds, of a call and of
/// opening the bus. Both are read at each use. All operations are thread-safe; a QCoreApplication must exist.
class DBUSCONNECTOR_EXPORT DBusConnection
{
public:
    /// The connection to the device's bus. It is opened on first use and shared from then on. A lost
    /// connection is reopened without any subscriptions.
    ///
    /// Opening takes no longer than a call (getCallTimeout()): the bus must first answer on a temporary
    /// connection. If it does not, further attempts fail at once until it answers. There is no time limit for
    /// a bus that stops answering just after this check, and for a session bus that is found neither by
    /// DBUS_SESSION_BUS_ADDRESS nor in XDG_RUNTIME_DIR.
    ///
    /// @return a connection that is not connected when the bus cannot be reached or does not answer; the next
    /// call tries again.
    static QDBusConnection getQDBusConnection();

    /// Time-out, in milliseconds, of a call and of opening the bus: 5000 unless DEVICE_BUS_TIMEOUT_MS holds
    /// another positive number.
    static int getCallTimeout();

    /// The bus name of a module: the device's prefix, "." and the module's name.
    static QString getServiceName(const QString& module);

    /// The path of a module's object: "/" and the object's name.
    static QString getObjectPath(const QString& object);
};
