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

// Qt keeps connections by name; one of this name and bus is ours, and no signal of it waits for the main
// thread's event loop as those of QDBusConnection::sessionBus() do.
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
    // Never destroyed, because threads and static objects may use the bus while the process ends.
    static auto& buses = *new std::map<QString, DeviceBus>;
    const QString bus = environmentOr("DEVICE_BUS", sessionBus);
    const QMutexLocker locker(&mutex);
    return buses.try_emplace(bus, bus).first->second;
}

DeviceBus::DeviceBus(const QString& bus) : m_bus(bus), m_connectionName(QLatin1String("device-bus ") + bus) {}

QDBusConnection DeviceBus::connection()
{
    const QMutexLocker locker(&m_openingMutex);
    QDBusConnection connection(m_connectionName);
    if (connection.isConnected())
        return connection;

    QDBusConnection::disconnectFromBus(m_connectionName);
    m_questions.forget();
    return openConnection(m_bus, m_connectionName);
}

QDBusMessage DeviceBus::ask(const QString& member, const QVariantList& arguments)
{
    return m_questions.ask(connection(), member, arguments);
}
