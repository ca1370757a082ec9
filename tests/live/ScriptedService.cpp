#include "ScriptedService.h"

#include <QtCore/QUuid>
#include <QtDBus/QDBusConnectionInterface>

#include <algorithm>

#include "WaitUntil.h"

namespace {

const QString synchronization = QStringLiteral("synchronize");

QString busName(const QString& module)
{
    return QLatin1String("org.measuringdevice.") + module;
}

QString path(const SourceName& name)
{
    return QLatin1Char('/') + name.object;
}

QString readText(const SourceName& name, const QDBusMessage& call)
{
    QStringList arguments;
    for (const QVariant& argument : call.arguments())
        arguments.append(argument.toString());
    return QStringLiteral("%1/%2 %3(%4)")
        .arg(name.module, name.object, call.member(), arguments.join(QLatin1String(", ")));
}

bool announceChange(QDBusConnection connection, const SourceName& name, const QVariantList& arguments)
{
    QDBusMessage signal =
        QDBusMessage::createSignal(path(name), QStringLiteral("org.measuringdevice.ConfigurationFileHandler"),
                                   QStringLiteral("configurationChanged"));
    signal.setArguments(arguments);
    return connection.send(signal);
}

} // namespace

ScriptedService::ScriptedService(const QString& address) : m_address(address)
{
    moveToThread(&m_thread);
    m_thread.start();
}

ScriptedService::~ScriptedService()
{
    for (const QString& name : qAsConst(m_connectionNames))
        leave(QDBusConnection(name));
    m_thread.quit();
    m_thread.wait();
}

bool ScriptedService::serve(const World& world, const QString& absentModule)
{
    QStringList modules;
    for (const Source& source : world) {
        m_sources.append({source});
        modules.append(source.name.module);
    }
    modules.removeDuplicates();
    modules.removeOne(absentModule);
    return std::all_of(modules.cbegin(), modules.cend(),
                       [this](const QString& module) { return start(module); });
}

bool ScriptedService::start(const QString& module)
{
    const QString name = module + QLatin1Char(' ') + QUuid::createUuid().toString();
    QDBusConnection connection = QDBusConnection::connectToBus(m_address, name);
    m_connectionNames.insert(module, name);
    for (const ServedSource& served : qAsConst(m_sources)) {
        if (served.source.name.module == module)
            connection.registerVirtualObject(path(served.source.name), this);
    }
    return connection.registerService(busName(module));
}

bool ScriptedService::stop(const QString& module, const QDBusConnection& application)
{
    leave(QDBusConnection(m_connectionNames.take(module)));
    return waitUntil([&] { return !application.interface()->isServiceRegistered(busName(module)); });
}

bool ScriptedService::announce(const SourceName& name, const QVariantList& arguments, int count)
{
    bool isSent = true;
    for (int i = 0; i < count; ++i)
        isSent = announceChange(connection(name.module), name, arguments) && isSent;
    return isSent;
}

void ScriptedService::release(const SourceName& name)
{
    const QMutexLocker locker(&m_mutex);
    QList<QDBusMessage>& held = find(name.module, path(name)).held;
    for (const QDBusMessage& reply : qAsConst(held))
        connection(name.module).send(reply);
    held.clear();
}

void ScriptedService::synchronize(const QDBusConnection& application) const
{
    QStringList synchronized;
    for (const ServedSource& served : m_sources) {
        const SourceName& name = served.source.name;
        if (synchronized.contains(name.module) || !m_connectionNames.contains(name.module))
            continue;
        synchronized.append(name.module);
        QDBusMessage call =
            QDBusMessage::createMethodCall(busName(name.module), path(name), QString(), synchronization);
        call.setAutoStartService(false);
        application.call(call, QDBus::Block, waitLimit);
    }
}

QStringList ScriptedService::reads() const
{
    const QMutexLocker locker(&m_mutex);
    return m_reads;
}

QString ScriptedService::introspect(const QString& /*path*/) const
{
    return {};
}

bool ScriptedService::handleMessage(const QDBusMessage& call, const QDBusConnection& connection)
{
    if (call.member() == synchronization)
        return connection.send(call.createReply());

    const QMutexLocker locker(&m_mutex);
    ServedSource& served = find(connection.name().section(QLatin1Char(' '), 0, 0), call.path());
    m_reads.append(readText(served.source.name, call));
    const QList<Answer>& answers = served.source.answers;
    const Answer& answer = answers.at(std::min(served.reads, answers.size() - 1));
    ++served.reads;
    if (!answer.changed.object.isEmpty())
        announceChange(connection, answer.changed, {answer.changed.configuration});

    const QDBusMessage reply = call.createReply(answer.value);
    switch (answer.kind) {
    case Answer::Value:
        return connection.send(reply);
    case Answer::Error:
        return connection.send(
            call.createErrorReply(QStringLiteral("org.example.Error"), QStringLiteral("as scripted")));
    case Answer::Held:
        served.held.append(reply);
        return true;
    case Answer::Death:
        leave(connection);
        return true;
    case Answer::Never:
        return true;
    }
    return true;
}

void ScriptedService::leave(QDBusConnection connection) const
{
    // One of Qt's own threads closes the connection later, when the service may no longer exist.
    for (const ServedSource& served : m_sources)
        connection.unregisterObject(path(served.source.name));
    QDBusConnection::disconnectFromBus(connection.name());
}

QDBusConnection ScriptedService::connection(const QString& module) const
{
    return QDBusConnection(m_connectionNames.value(module));
}

ScriptedService::ServedSource& ScriptedService::find(const QString& module, const QString& path)
{
    const auto found = std::find_if(m_sources.begin(), m_sources.end(), [&](const ServedSource& served) {
        return served.source.name.module == module && ::path(served.source.name) == path;
    });
    Q_ASSERT(found != m_sources.end());
    return *found;
}
