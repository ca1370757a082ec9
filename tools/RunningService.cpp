#include "RunningService.h"

#include <QtCore/QVariantMap>
#include <QtDBus/QDBusArgument>
#include <QtDBus/QDBusError>
#include <QtDBus/QDBusMessage>

#include <algorithm>
#include <vector>

#include "DBusConnection.h"
#include "DeviceManagerDefinitions.h"
#include "PropertyManagerConst.h"

namespace {

const QString interfaceName = "org.measuringdevice.ConfigurationFileHandler";
const QString propertiesInterface = "org.freedesktop.DBus.Properties";
const QString busName = "org.freedesktop.DBus";

/// Where the service serves a document.
struct Place
{
    DocumentKind kind;
    QString name;
    QString object;
    QString method;
    QVariantList arguments;
};

const std::vector<Place>& places()
{
    const QString module = "unitmanager";
    static const std::vector<Place> table = {
        {DocumentKind::Units, "units",
         '/' + DeviceManagerDefinitions::getObjectNameUnitManagerConfiguration(), "getConfiguration",
         QVariantList{"UnitManager/UnitType", module, ""}},
        {DocumentKind::DefaultUnits, "default-units", "/DefaultUnitConfiguration", "getConfiguration",
         QVariantList{"UnitManager/DefaultUnit", module, ""}},
        {DocumentKind::Dependencies, "dependencies", "/DependencyConfiguration", "getConfigurationDependency",
         QVariantList{"UnitManager/Dependency", module}}};
    return table;
}

const Place& placeOf(DocumentKind kind)
{
    return *std::find_if(places().begin(), places().end(),
                         [kind](const Place& place) { return place.kind == kind; });
}

QString serviceName()
{
    return PropertyManagerConst::getDBusPrefix() + '.' + DeviceManagerDefinitions::getModuleName();
}

/// The limit of a call in milliseconds.
int callTimeout()
{
    const int timeout = qEnvironmentVariableIntValue("DEVICE_BUS_TIMEOUT_MS");
    return timeout > 0 ? timeout : 5000;
}

Failure unanswered(const QDBusMessage& reply)
{
    return {"the configuration service does not answer: " + reply.errorMessage()};
}

/// Why there is no connection. Without an attempt to connect, because the bus does not answer, Qt has no
/// reason.
QString reasonOf(const QDBusError& error)
{
    return error.type() == QDBusError::Disconnected ? "it does not answer" : error.message();
}

QDBusMessage send(const QDBusConnection& connection, QDBusMessage call, const QVariantList& arguments)
{
    call.setArguments(arguments);
    call.setAutoStartService(false);
    return connection.call(call, QDBus::Block, callTimeout());
}

} // namespace

QStringList RunningService::documentNames()
{
    QStringList names;
    for (const Place& place : places())
        names.append(place.name);
    return names;
}

QString RunningService::documentName(DocumentKind kind)
{
    return placeOf(kind).name;
}

std::optional<DocumentKind> RunningService::kindNamed(const QString& name)
{
    for (const Place& place : places()) {
        if (place.name == name)
            return place.kind;
    }
    return std::nullopt;
}

RunningService::RunningService(const QDBusConnection& connection) : m_connection(connection) {}

Result<RunningService> RunningService::find(const QString& bus)
{
    qputenv("DEVICE_BUS", bus.toLocal8Bit());
    const QDBusConnection connection = DBusConnection::getQDBusConnection();
    if (!connection.isConnected())
        return Failure{"cannot reach the bus " + bus + ": " + reasonOf(connection.lastError())};

    const QDBusMessage question =
        QDBusMessage::createMethodCall(busName, "/org/freedesktop/DBus", busName, "NameHasOwner");
    const QDBusMessage reply = send(connection, question, {serviceName()});
    if (reply.type() != QDBusMessage::ReplyMessage)
        return Failure{"the bus " + bus + " does not answer: " + reply.errorMessage()};
    if (!reply.arguments().value(0).toBool())
        return Failure{"no configuration service on the bus " + bus};
    return RunningService(connection);
}

Result<QString> RunningService::text(DocumentKind kind) const
{
    const Place& place = placeOf(kind);
    const QDBusMessage reply = call(place.object, interfaceName, place.method, place.arguments);
    if (reply.type() == QDBusMessage::ReplyMessage)
        return reply.arguments().value(0).toString();
    if (reply.errorName() == interfaceName + ".Error.NoConfiguration")
        return missing(kind);
    return unanswered(reply);
}

Result<RunningService::State> RunningService::state(DocumentKind kind) const
{
    const QDBusMessage reply = call(placeOf(kind).object, propertiesInterface, "GetAll", {interfaceName});
    if (reply.type() != QDBusMessage::ReplyMessage)
        return unanswered(reply);
    const auto values = qdbus_cast<QVariantMap>(reply.arguments().value(0));
    return State{values.value("version").toString(), values.value("state").toString(),
                 values.value("checksum").toString(), values.value("lastRefusal").toString()};
}

Failure RunningService::missing(DocumentKind kind) const
{
    const QString reason =
        "the configuration service has no valid document \"" + placeOf(kind).name + "\" yet";
    const auto known = state(kind);
    return {known && !known->lastRefusal.isEmpty() ? reason + ": " + known->lastRefusal : reason};
}

QDBusMessage RunningService::call(const QString& object, const QString& interface, const QString& method,
                                  const QVariantList& arguments) const
{
    return send(m_connection, QDBusMessage::createMethodCall(serviceName(), object, interface, method),
                arguments);
}
