#include "DocumentStates.h"

#include <QtDBus/QDBusArgument>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusPendingCall>
#include <QtDBus/QDBusServiceWatcher>

#include "DBusConnection.h"
#include "DeviceManagerDefinitions.h"

namespace {

const char* const configurations = "org.measuringdevice.ConfigurationFileHandler";
const char* const properties = "org.freedesktop.DBus.Properties";

QString service()
{
    return DBusConnection::getServiceName(DeviceManagerDefinitions::getModuleName());
}

} // namespace

DocumentStates::DocumentStates() : m_bus(DBusConnection::getQDBusConnection())
{
    m_bus.connect(service(), QString(), properties, "PropertiesChanged", this, SLOT(read()));
    auto* starts = new QDBusServiceWatcher(service(), m_bus, QDBusServiceWatcher::WatchForRegistration, this);
    connect(starts, &QDBusServiceWatcher::serviceRegistered, this, &DocumentStates::read);
    read();
}

QString DocumentStates::refusal() const
{
    for (const QString& refusal : m_refusals) {
        if (!refusal.isEmpty())
            return refusal;
    }
    return {};
}

void DocumentStates::read()
{
    for (const char* object :
         {"/UnitManagerConfiguration", "/DefaultUnitConfiguration", "/DependencyConfiguration"}) {
        QDBusMessage call = QDBusMessage::createMethodCall(service(), object, properties, "Get");
        call.setArguments({QString(configurations), QString("lastRefusal")});
        call.setAutoStartService(false);
        const auto* reply = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
        connect(reply, &QDBusPendingCallWatcher::finished, this,
                [this, object = QString(object)](QDBusPendingCallWatcher* finished) {
                    adopt(object, *finished);
                    finished->deleteLater();
                });
    }
}

void DocumentStates::adopt(const QString& object, const QDBusPendingCallWatcher& reply)
{
    const QVariant value = qvariant_cast<QDBusVariant>(reply.reply().arguments().value(0)).variant();
    // Without the path, which is of no use to the person at the device.
    const QString text = value.toString();
    m_refusals[object] = text.mid(text.lastIndexOf('/', text.indexOf(": ")) + 1);
    Q_EMIT refusalChanged();
}
