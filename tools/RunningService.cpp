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

/// A call that does not start its receiver.
QDBusMessage callTo(const QString& service, const QString& object, const QString& interface,
                    const QString& method, const QVariantList& arguments)
{
    QDBusMessage call = QDBusMessage::createMethodCall(service, object, interface, method);
    call.setArguments(arguments);
    call.setAutoStartService(false);
    return call;
}

QDBusMessage ownerQuestion()
{
    const QString bus = "org.freedesktop.DBus";
    return callTo(bus, "/org/freedesktop/DBus", bus, "NameHasOwner", {serviceName()});
}

QDBusMessage textQuestion(const Place& place)
{
    return callTo(serviceName(), place.object, interfaceName, place.method, place.arguments);
}

QDBusMessage stateQuestion(const Place& place)
{
    return callTo(serviceName(), place.object, "org.freedesktop.DBus.Properties", "GetAll", {interfaceName});
}

QDBusMessage ask(const QDBusConnection& connection, const QDBusMessage& question)
{
    return connection.call(question, QDBus::Block, callTimeout());
}

} // namespace

QVector<DocumentKind> RunningService::documentKinds()
{
    QVector<DocumentKind> kinds;
    for (const Place& place : places())
        kinds.append(place.kind);
    return kinds;
}

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

Result<RunningService> RunningService::connect(const QString& bus)
{
    qputenv("DEVICE_BUS", bus.toLocal8Bit());
    const QDBusConnection connection = DBusConnection::getQDBusConnection();
    if (!connection.isConnected())
        return Failure{"cannot reach the bus " + bus + ": " + reasonOf(connection.lastError())};
    return RunningService(connection);
}

Result<RunningService> RunningService::find(const QString& bus)
{
    const auto service = connect(bus);
    if (!service)
        return service.error();
    const QDBusMessage reply = ask(service->m_connection, ownerQuestion());
    if (reply.type() != QDBusMessage::ReplyMessage)
        return Failure{"the bus " + bus + " does not answer: " + reply.errorMessage()};
    return reply.arguments().value(0).toBool() ? service : notOnBus(bus);
}

Result<QString> RunningService::text(DocumentKind kind) const
{
    const QDBusMessage reply = ask(m_connection, textQuestion(placeOf(kind)));
    if (reply.type() == QDBusMessage::ReplyMessage)
        return reply.arguments().value(0).toString();
    if (reply.errorName() != interfaceName + ".Error.NoConfiguration")
        return unanswered(reply);
    const auto known = state(kind);
    return missing(kind, known ? known->lastRefusal : QString());
}

Result<JsonDocument> RunningService::document(DocumentKind kind) const
{
    const auto served = text(kind);
    if (!served)
        return served.error();
    DocumentProblem problem;
    const auto document = JsonDocument::read(served->toUtf8(), problem);
    return document ? Result<JsonDocument>(*document)
                    : Failure{problem.inFile("active " + documentName(kind))};
}

Result<RunningService::State> RunningService::state(DocumentKind kind) const
{
    return stateFrom(ask(m_connection, stateQuestion(placeOf(kind))));
}

QDBusPendingCall RunningService::requestState(DocumentKind kind) const
{
    return m_connection.asyncCall(stateQuestion(placeOf(kind)), callTimeout());
}

Result<RunningService::State> RunningService::stateFrom(const QDBusMessage& reply)
{
    if (reply.type() != QDBusMessage::ReplyMessage)
        return unanswered(reply);
    const auto values = qdbus_cast<QVariantMap>(reply.arguments().value(0));
    return State{values.value("version").toString(), values.value("state").toString(),
                 values.value("checksum").toString(), values.value("lastRefusal").toString()};
}

Failure RunningService::notOnBus(const QString& bus)
{
    return {"no configuration service on the bus " + bus};
}

Failure RunningService::missing(DocumentKind kind, const QString& refusal)
{
    const QString reason =
        "the configuration service has no valid document \"" + documentName(kind) + "\" yet";
    return {refusal.isEmpty() ? reason : reason + ": " + refusal};
}
