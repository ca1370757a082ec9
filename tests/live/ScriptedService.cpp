#include "ScriptedService.h"

#include <QtCore/QSet>
#include <QtCore/QUuid>
#include <QtDBus/QDBusConnectionInterface>

#include <algorithm>

#include "WaitUntil.h"

namespace {

QString busName(const QString& module)
{
    return QLatin1String("org.measuringdevice.") + module;
}

} // namespace

ScriptedService::ScriptedService(const QString& address) : m_address(address)
{
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
        m_sources.push_back(std::make_unique<ScriptedSource>(
            source, m_log, [this](const QDBusConnection& connection) { leave(connection); }));
        m_sources.back()->moveToThread(&m_thread);
        modules.append(source.name.module);
    }
    modules.removeDuplicates();
    modules.removeOne(absentModule);
    return std::all_of(modules.cbegin(), modules.cend(),
                       [this](const QString& module) { return start(module); });
}

bool ScriptedService::start(const QString& module)
{
    const QString name = QUuid::createUuid().toString();
    QDBusConnection connection = QDBusConnection::connectToBus(m_address, name);
    m_connectionNames.insert(module, name);
    for (const auto& source : m_sources) {
        if (source->name().module == module)
            connection.registerVirtualObject(source->name().path(), source.get());
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
    const QDBusConnection sender = connection(name.module);
    const QDBusMessage signal = changeSignal(name, arguments);
    bool isSent = true;
    for (int i = 0; i < count; ++i)
        isSent = sender.send(signal) && isSent;
    return isSent;
}

void ScriptedService::release(const SourceName& name)
{
    source(name).release(connection(name.module));
}

void ScriptedService::synchronize(const QDBusConnection& application) const
{
    QSet<QString> synchronized;
    for (const auto& source : m_sources) {
        const QString& module = source->name().module;
        if (synchronized.contains(module) || !m_connectionNames.contains(module))
            continue;
        synchronized.insert(module);
        QDBusMessage call = QDBusMessage::createMethodCall(busName(module), source->name().path(), QString(),
                                                           QStringLiteral("synchronize"));
        call.setAutoStartService(false);
        application.call(call, QDBus::Block, waitLimit);
    }
}

QStringList ScriptedService::reads() const
{
    return m_log.reads();
}

ScriptedSource& ScriptedService::source(const SourceName& name) const
{
    const auto found = std::find_if(m_sources.begin(), m_sources.end(),
                                    [&name](const auto& source) { return source->name() == name; });
    Q_ASSERT(found != m_sources.end());
    return **found;
}

QDBusConnection ScriptedService::connection(const QString& module) const
{
    return QDBusConnection(m_connectionNames.value(module));
}

// One of Qt's own threads closes the connection later, when the objects may no longer exist.
void ScriptedService::leave(QDBusConnection connection) const
{
    for (const auto& source : m_sources)
        connection.unregisterObject(source->name().path());
    QDBusConnection::disconnectFromBus(connection.name());
}
