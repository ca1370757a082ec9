#include "ServiceClient.h"

#include <QtCore/QUuid>
#include <QtDBus/QDBusArgument>
#include <QtDBus/QDBusConnection>

#include "ConfigurationFileHandlerProxy.h"
#include "WaitLimit.h"

namespace {

const char* const service = "org.measuringdevice.DeviceManager";
const char* const propertiesInterface = "org.freedesktop.DBus.Properties";
const char* const interfaceName = "org.measuringdevice.ConfigurationFileHandler";

QVariantList variants(const QStringList& texts)
{
    QVariantList list;
    for (const QString& text : texts)
        list.append(text);
    return list;
}

} // namespace

ServiceClient::ServiceClient(const QString& address) : m_connectionName(QUuid::createUuid().toString())
{
    QDBusConnection connection = QDBusConnection::connectToBus(address, m_connectionName);
    connection.connect(service, QString(), interfaceName, "configurationChanged", this,
                       SLOT(receive(QString, QDBusMessage)));
    connection.connect(service, QString(), propertiesInterface, "PropertiesChanged", this,
                       SLOT(receiveProperties(QDBusMessage)));
}

ServiceClient::~ServiceClient()
{
    QDBusConnection::disconnectFromBus(m_connectionName);
}

QDBusMessage ServiceClient::call(const QString& object, const QString& method,
                                 const QStringList& arguments) const
{
    return call(service, '/' + object, interfaceName, method, variants(arguments));
}

QDBusMessage ServiceClient::call(const QString& program, const QString& object, const QString& interface,
                                 const QString& method, const QVariantList& arguments) const
{
    QDBusMessage message = QDBusMessage::createMethodCall(program, object, interface, method);
    message.setArguments(arguments);
    return QDBusConnection(m_connectionName).call(message, QDBus::Block, waitLimit);
}

QString ServiceClient::text(const QString& object) const
{
    ConfigurationFileHandlerProxy proxy(service, '/' + object, QDBusConnection(m_connectionName));
    proxy.setTimeout(waitLimit);
    QDBusPendingReply<QString> reply;
    if (object == ServiceObject::units)
        reply = proxy.getConfiguration("UnitManager/UnitType", "Test", "");
    else if (object == ServiceObject::defaultUnits)
        reply = proxy.getConfiguration("UnitManager/DefaultUnit", "Test", "");
    else
        reply = proxy.getConfigurationDependency("UnitManager/Dependency", "Test");
    reply.waitForFinished();
    return reply.isError() ? "error: " + reply.error().name() : reply.value();
}

QVariantMap ServiceClient::state(const QString& object) const
{
    const QDBusMessage reply =
        call(service, '/' + object, propertiesInterface, "GetAll", {QString(interfaceName)});
    return qdbus_cast<QVariantMap>(reply.arguments().value(0));
}

QList<ServiceClient::PropertyChange> ServiceClient::propertyChanges() const
{
    return m_propertyChanges;
}

QStringList ServiceClient::announcements() const
{
    return m_announcements;
}

void ServiceClient::receive(const QString& name, const QDBusMessage& message)
{
    m_announcements.append(message.path().mid(1) + ' ' + name);
}

void ServiceClient::receiveProperties(const QDBusMessage& message)
{
    const QVariantList arguments = message.arguments();
    const bool isRegular = message.signature() == "sa{sv}as" && arguments[0] == interfaceName &&
                           qdbus_cast<QStringList>(arguments[2]).isEmpty();
    const QVariantMap values = isRegular ? qdbus_cast<QVariantMap>(arguments[1]) : QVariantMap();
    m_propertyChanges.append({message.path().mid(1), values, m_announcements.size()});
}
