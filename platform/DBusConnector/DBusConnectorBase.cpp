#include "DBusConnectorBase.h"

#include <QtDBus/QDBusMessage>

#include "DBusConnection.h"
#include "ServiceOwner.h"

bool DBusConnectorBase::isServiceAvailable(const QString& service)
{
    const QString serviceName = DBusConnection::getServiceName(service);
    const QSharedPointer<ServiceOwner> owner = ServiceOwner::watched(serviceName);
    return owner ? owner->isPresent() : ServiceOwner::isOnBus(serviceName);
}

DBusConnectorBase::DBusConnectorBase(const QString& service, const QString& object, const QString& interface)
    : m_serviceName(DBusConnection::getServiceName(service)),
      m_objectPath(DBusConnection::getObjectPath(object)),
      m_interface(interface),
      m_connection(DBusConnection::getQDBusConnection()),
      m_owner(ServiceOwner::watch(m_serviceName))
{}

DBusConnectorBase::~DBusConnectorBase() = default;

bool DBusConnectorBase::isDBusInterfaceValid() const
{
    return m_owner->isPresent();
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
