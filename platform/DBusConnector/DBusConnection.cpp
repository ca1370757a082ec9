#include "DBusConnection.h"

#include "PropertyManagerConst.h"

#include <QtCore/QMutex>
#include <QtCore/QMutexLocker>
#include <QtCore/QtGlobal>

namespace {

constexpr int defaultCallTimeout = 5000;

// Qt keeps connections by name; one of this name and bus is ours, and no signal of it waits for the main
// thread's event loop as those of QDBusConnection::sessionBus() do.
QDBusConnection openConnection(const QString& bus, const QString& name)
{
    if (bus == QLatin1String("session"))
        return QDBusConnection::connectToBus(QDBusConnection::SessionBus, name);
    if (bus == QLatin1String("system"))
        return QDBusConnection::connectToBus(QDBusConnection::SystemBus, name);
    return QDBusConnection::connectToBus(bus, name);
}

} // namespace

QDBusConnection DBusConnection::getQDBusConnection()
{
    static QMutex mutex;
    const QMutexLocker locker(&mutex);

    QString bus = qEnvironmentVariable("DEVICE_BUS");
    if (bus.isEmpty())
        bus = QStringLiteral("session");

    const QString name = QLatin1String("device-bus ") + bus;
    QDBusConnection connection(name);
    if (connection.isConnected())
        return connection;

    QDBusConnection::disconnectFromBus(name);
    return openConnection(bus, name);
}

int DBusConnection::getCallTimeout()
{
    const int timeout = qEnvironmentVariableIntValue("DEVICE_BUS_TIMEOUT_MS");
    return timeout > 0 ? timeout : defaultCallTimeout;
}

QString DBusConnection::getServiceName(const QString& module)
{
    return PropertyManagerConst::getDBusPrefix() + QLatin1Char('.') + module;
}

QString DBusConnection::getObjectPath(const QString& object)
{
    return QLatin1Char('/') + object;
}
