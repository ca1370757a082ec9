#include "ServiceOwner.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtCore/QHash>
#include <QtCore/QWeakPointer>
#include <QtDBus/QDBusServiceWatcher>

#include "DBusConnection.h"
#include "DBusReply.h"
#include "DeviceBus.h"

namespace {

QWeakPointer<ServiceOwner>& entry(const QString& serviceName)
{
    thread_local QHash<QString, QWeakPointer<ServiceOwner>> owners;
    return owners[DBusConnection::getQDBusConnection().name() + QLatin1Char(' ') + serviceName];
}

} // namespace

bool ServiceOwner::isOnBus(const QString& serviceName)
{
    const DBusReply reply(DeviceBus::current().ask(QStringLiteral("NameHasOwner"), {serviceName}));
    return reply.getValue().toBool();
}

QSharedPointer<ServiceOwner> ServiceOwner::watched(const QString& serviceName)
{
    const QSharedPointer<ServiceOwner> owner = entry(serviceName);
    return owner && owner->m_connection.isConnected() ? owner : QSharedPointer<ServiceOwner>();
}

QSharedPointer<ServiceOwner> ServiceOwner::watch(const QString& serviceName)
{
    QSharedPointer<ServiceOwner> owner = watched(serviceName);
    if (!owner) {
        owner.reset(new ServiceOwner(serviceName));
        entry(serviceName) = owner;
    }
    return owner;
}

ServiceOwner::ServiceOwner(const QString& serviceName)
    : m_connection(DBusConnection::getQDBusConnection()),
      m_watcher(
          new QDBusServiceWatcher(serviceName, m_connection, QDBusServiceWatcher::WatchForOwnerChange, this)),
      m_hasOwner(isOnBus(serviceName))
{
    connect(m_watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString&, const QString&, const QString& newOwner) {
                m_hasOwner = !newOwner.isEmpty();
            });
}

ServiceOwner::~ServiceOwner() = default;

bool ServiceOwner::isPresent() const
{
    // In a thread without an event loop, owner changes stay queued for the watcher.
    QCoreApplication::sendPostedEvents(m_watcher, QEvent::MetaCall);
    return m_hasOwner && m_connection.isConnected();
}
