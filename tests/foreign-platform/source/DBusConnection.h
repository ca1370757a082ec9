#pragma once

#include <QtDBus/QDBusConnection>

/// This device has no bus.
class DBusConnection
{
public:
    /// @return a connection that is never connected, so that subscriptions to delivered signals fail.
    static QDBusConnection getQDBusConnection();
};
