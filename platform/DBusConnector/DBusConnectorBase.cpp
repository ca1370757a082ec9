#include "DBusConnectorBase.h"

#include "DBusConnection.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusServiceWatcher>

namespace {

// A message of its own, because QDBusConnectionInterface asks without a time-out that we can set.
bool hasOwner(const QDBusConnection& connection, const QString& serviceName)
{
    QDBusMessage question = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("NameHasOwner"));
    question.setArguments({serviceName});
    const DBusReply reply(connection.call(question, QDBus::Block, DBusConnection::getCallTimeout()));
    return reply.getValue().toBool();
}

} // namespace

bool DBusConnectorBase::isServiceAvailable(const QString& service)
{
    return hasOwner(DBusConnection::getQDBusConnection(), DBusConnection::getServiceName(service));
}

DBusConnectorBase::DBusConnectorBase(const QString& service, const QString& object, const QString& interface)
    : m_serviceName(DBusConnection::getServiceName(service)),
      m_objectPath(DBusConnection::getObjectPath(object)),
      m_interface(interface),
      m_connection(DBusConnection::getQDBusConnection()),
      m_ownerWatch(new QDBusServiceWatcher(m_serviceName, m_connection,
                                           QDBusServiceWatcher::WatchForOwnerChange, this)),
      m_hasOwner(hasOwner(m_connection, m_serviceName))
{
    connect(m_ownerWatch, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString&, const QString&, const QString& newOwner) {
                m_hasOwner = !newOwner.isEmpty();
            });
}

DBusConnectorBase::~DBusConnectorBase() = default;

bool DBusConnectorBase::isDBusInterfaceValid() const
{
    // In a thread without an event loop the owner's changes wait in the queue of the watch.
    QCoreApplication::sendPostedEvents(m_ownerWatch, QEvent::MetaCall);
    return m_hasOwner && m_connection.isConnected();
}

DBusReply DBusConnectorBase::call(const QString& method, const QVariantList& arguments) const
{
    return DBusReply(
        m_connection.call(createCall(method, arguments), QDBus::Block, DBusConnection::getCallTimeout()));
}

QSharedPointer<DBusPendingReply> DBusConnectorBase::callAsynchron(const QString& method,
                                                                  const QVariantList& arguments) const
{
    if (!m_connection.isConnected())
        return {};
    return QSharedPointer<DBusPendingReply>::create(
        m_connection.asyncCall(createCall(method, arguments), DBusConnection::getCallTimeout()));
}

QDBusMessage DBusConnectorBase::createCall(const QString& method, const QVariantList& arguments) const
{
    QDBusMessage message = QDBusMessage::createMethodCall(m_serviceName, m_objectPath, m_interface, method);
    message.setArguments(arguments);
    message.setAutoStartService(false);
    return message;
}
