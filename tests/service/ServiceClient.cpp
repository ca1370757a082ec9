#include "ServiceClient.h"

#include <QtCore/QUuid>
#include <QtDBus/QDBusConnection>

namespace {

const int waitLimit = 10000;
const char* const service = "org.measuringdevice.DeviceManager";
const char* const interfaceName = "org.measuringdevice.ConfigurationFileHandler";

struct Question
{
    const char* object;
    const char* method;
    QStringList arguments;
};

Question questionTo(const QString& object)
{
    for (const Question& question :
         {Question{"UnitManagerConfiguration", "getConfiguration", {"UnitManager/UnitType", "Test", ""}},
          Question{"DefaultUnitConfiguration", "getConfiguration", {"UnitManager/DefaultUnit", "Test", ""}},
          Question{
              "DependencyConfiguration", "getConfigurationDependency", {"UnitManager/Dependency", "Test"}}}) {
        if (object == question.object)
            return question;
    }
    return {};
}

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
                       SLOT(hear(QString, QDBusMessage)));
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
    const Question question = questionTo(object);
    const QDBusMessage reply = call(object, question.method, question.arguments);
    if (reply.type() != QDBusMessage::ReplyMessage)
        return "error: " + reply.errorName();
    return reply.arguments().value(0).toString();
}

QStringList ServiceClient::announcements() const
{
    return m_announcements;
}

void ServiceClient::hear(const QString& name, const QDBusMessage& message)
{
    m_announcements.append(message.path().mid(1) + ' ' + name);
}
