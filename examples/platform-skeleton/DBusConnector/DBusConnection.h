#pragma once

#include <QtDBus/QDBusConnection>

class DBusConnection
{
public:
    static QDBusConnection getQDBusConnection();
};
