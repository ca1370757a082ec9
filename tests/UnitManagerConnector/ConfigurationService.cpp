#include "ConfigurationService.h"

#include <QtCore/QMutexLocker>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusConnectionInterface>

#include "DBusConnection.h"
#include "DeviceBusEnvironment.h"
#include "TestDocuments.h"
#include "WaitLimit.h"
#include "WaitUntil.h"

namespace {

const QString serviceName = QStringLiteral("org.measuringdevice.DeviceManager");
/// The method that settle() calls.
const QString settlingMember = QStringLiteral("settle");

QString callText(const QDBusMessage& call)
{
    QStringList arguments;
    for (const QVariant& argument : call.arguments())
        arguments.append(argument.toString());
    return QStringLiteral("%1 %2(%3)").arg(call.path(), call.member(), arguments.join(QLatin1String(", ")));
}

} // namespace

QMap<UnitManagerConnectorDefinitions::ConnectorType, QStringList> TestSource::settings()
{
    return {{units, {module, unitSwitchObject, unitSwitchName}},
            {dependencies, {module, dependencyObject, dependencyName}},
            {defaults, {module, defaultUnitObject, defaultUnitName}}};
}

QString TestDocument::dependencies()
{
    return QStringLiteral(R"json({ "PressureUnit": ["Pressure"], "Value": ["Dependent"] })json");
}

QString TestDocument::broken()
{
    return QStringLiteral("{ \"Pressure\"");
}

void useNoBus()
{
    useDeviceBus(QStringLiteral("unix:path=/nonexistent/bus"));
}

ConfigurationService::ConfigurationService()
    : m_answers{{TestSource::unitSwitchName, FakeBusService::withValue(TestDocuments::units())},
                {TestSource::dependencyName, FakeBusService::withValue(TestDocument::dependencies())},
                {TestSource::defaultUnitName, FakeBusService::withValue(TestDocuments::defaultUnits())}}
{
    useDeviceBus(m_bus.address());
}

ConfigurationService::~ConfigurationService()
{
    qunsetenv("DEVICE_BUS");
    qunsetenv("DEVICE_BUS_TIMEOUT_MS");
}

bool ConfigurationService::start()
{
    if (!m_bus.start())
        return false;
    m_takenCalls = 0;
    m_service = std::make_unique<FakeBusService>(m_bus.address(), serviceName,
                                                 [this](const QDBusMessage& call) { return answerTo(call); });
    return m_service->isRunning();
}

void ConfigurationService::stop()
{
    m_service.reset();
    // The bus notices it asynchronously. A separate connection, because the tests observe the device's own.
    const QString name = QStringLiteral("observer");
    {
        const QDBusConnection observer = QDBusConnection::connectToBus(m_bus.address(), name);
        waitUntil([&] {
            return !observer.isConnected() || !observer.interface()->isServiceRegistered(serviceName);
        });
    }
    QDBusConnection::disconnectFromBus(name);
}

PrivateBus& ConfigurationService::bus()
{
    return m_bus;
}

void ConfigurationService::setAnswer(const QString& configuration, const FakeBusService::Answer& answer)
{
    const QMutexLocker locker(&m_mutex);
    m_answers[configuration] = answer;
}

void ConfigurationService::setDocument(const QString& configuration, const QVariant& document)
{
    setAnswer(configuration, FakeBusService::withValue(document));
}

QStringList ConfigurationService::takeCalls()
{
    if (!settle())
        return {QString()};
    QStringList texts;
    for (const QDBusMessage& call : calls().mid(m_takenCalls))
        texts.append(callText(call));
    m_takenCalls += texts.size();
    return texts;
}

bool ConfigurationService::announce(UnitManagerConnectorDefinitions::ConnectorType source)
{
    const QStringList settings = TestSource::settings().value(source);
    return announceWith(settings.at(1), {settings.at(2)});
}

bool ConfigurationService::announceWith(const QString& object, const QVariantList& arguments)
{
    return settle() &&
           m_service->sendSignal(QLatin1Char('/') + object, QStringLiteral("configurationChanged"),
                                 arguments) &&
           settle();
}

bool ConfigurationService::settle(const QString& answeringName)
{
    // Messages from one peer arrive in the order in which they were sent.
    const QDBusMessage call = QDBusMessage::createMethodCall(
        answeringName, QStringLiteral("/"), QStringLiteral("org.example.Test"), settlingMember);
    const QDBusMessage answer = DBusConnection::getQDBusConnection().call(call, QDBus::Block, waitLimit);
    return answer.type() == QDBusMessage::ReplyMessage;
}

bool ConfigurationService::settle()
{
    return settle(serviceName);
}

QList<QDBusMessage> ConfigurationService::calls() const
{
    QList<QDBusMessage> calls;
    for (const QDBusMessage& call : m_service->calls()) {
        if (call.member() != settlingMember)
            calls.append(call);
    }
    return calls;
}

QDBusMessage ConfigurationService::answerTo(const QDBusMessage& call) const
{
    if (call.member() == settlingMember)
        return call.createReply();
    FakeBusService::Answer answer;
    {
        const QMutexLocker locker(&m_mutex);
        answer = m_answers.value(call.arguments().value(0).toString(),
                                 FakeBusService::withError(QStringLiteral("org.example.Unknown")));
    }
    return answer(call);
}
