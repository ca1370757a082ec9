#include "DeviceBus.h"

#include <QtCore/QMutexLocker>
#include <QtCore/QtGlobal>

#include <map>

namespace {

const QLatin1String sessionBus("session");
const QLatin1String systemBus("system");

QString environmentOr(const char* variable, const QString& fallback)
{
    const QString value = qEnvironmentVariable(variable);
    return value.isEmpty() ? fallback : value;
}

// The address of a bus, found by the rules of D-Bus.
QString addressOf(const QString& bus)
{
    if (bus == sessionBus)
        return environmentOr("DBUS_SESSION_BUS_ADDRESS",
                             QStringLiteral("unix:path=%1/bus").arg(qEnvironmentVariable("XDG_RUNTIME_DIR")));
    if (bus == systemBus)
        return environmentOr("DBUS_SYSTEM_BUS_ADDRESS",
                             QStringLiteral("unix:path=/var/run/dbus/system_bus_socket"));
    return bus;
}

// Opens a connection of our own, or returns the open one of that name. Its signals do not wait for the main
// thread's event loop, unlike those of QDBusConnection::sessionBus().
QDBusConnection openConnection(const QString& bus, const QString& name)
{
    if (bus == sessionBus)
        return QDBusConnection::connectToBus(QDBusConnection::SessionBus, name);
    if (bus == systemBus)
        return QDBusConnection::connectToBus(QDBusConnection::SystemBus, name);
    return QDBusConnection::connectToBus(bus, name);
}

} // namespace

DeviceBus& DeviceBus::current()
{
    static QMutex mutex;
    // Never destroyed, because threads and static objects may use the bus during process exit.
    static auto& buses = *new std::map<QString, DeviceBus>;
    const QString bus = environmentOr("DEVICE_BUS", sessionBus);
    const QMutexLocker locker(&mutex);
    return buses.try_emplace(bus, bus).first->second;
}

DeviceBus::DeviceBus(const QString& bus)
    : m_bus(bus),
      m_connectionName(QLatin1String("device-bus ") + bus),
      m_greetingName(QLatin1String("device-bus-greeting ") + bus)
{}

QDBusConnection DeviceBus::connection()
{
    const QMutexLocker locker(&m_openingMutex);
    QDBusConnection connection(m_connectionName);
    if (connection.isConnected())
        return connection;

    QDBusConnection::disconnectFromBus(m_connectionName);
    m_questions.forget();
    return answers() ? openConnection(m_bus, m_connectionName) : connection;
}

QDBusMessage DeviceBus::ask(const QString& member, const QVariantList& arguments)
{
    return m_questions.ask(connection(), member, arguments);
}

// Checks on a temporary connection: connectToBus() waits for its first answer without a limit, and blocks
// every connection of the process meanwhile.
bool DeviceBus::answers()
{
    if (m_greeting.hasUnanswered())
        return false;

    QDBusConnection::disconnectFromPeer(m_greetingName);
    m_greeting.ask(QDBusConnection::connectToPeer(addressOf(m_bus), m_greetingName), QStringLiteral("Hello"),
                   {});
    if (m_greeting.hasUnanswered())
        return false;

    QDBusConnection::disconnectFromPeer(m_greetingName);
    return true;
}
