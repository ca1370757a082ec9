#pragma once

#include "DBusConnectorExport.h"

#include <QtCore/QString>
#include <QtDBus/QDBusConnection>

/// The process's connection to the device's bus, and how the device's modules are addressed on it.
///
/// The environment variable DEVICE_BUS names the bus: "session" (the default), "system", or a D-Bus address
/// ("unix:path=/run/device/bus"). DEVICE_BUS_TIMEOUT_MS sets how long a call, or the opening of the bus, may
/// take. Both are read at each use. All operations may be called from any thread; a QCoreApplication must
/// exist.
class DBUSCONNECTOR_EXPORT DBusConnection
{
public:
    /// The connection to the device's bus. It is opened on first use and shared from then on; when it has
    /// been lost it is opened anew, with nothing subscribed on it.
    ///
    /// Opening takes no longer than a call may (getCallTimeout()): the bus must first answer on a connection
    /// that is made for this only. When it does not, further attempts fail at once until it answers. There is
    /// no limit for a bus that stops answering just after this answer, and for a session bus that is found
    /// neither by DBUS_SESSION_BUS_ADDRESS nor in XDG_RUNTIME_DIR.
    ///
    /// @return a connection that is not connected when the bus cannot be reached or does not answer; the next
    /// call tries again.
    static QDBusConnection getQDBusConnection();

    /// How long a call waits for its reply, and the opening of the bus for its answer, in milliseconds: 5000
    /// unless DEVICE_BUS_TIMEOUT_MS holds another positive number.
    static int getCallTimeout();

    /// The name that a module owns on the bus: the device's prefix, "." and the module.
    static QString getServiceName(const QString& module);

    /// The path of a module's object: "/" and the object's name.
    static QString getObjectPath(const QString& object);
};
