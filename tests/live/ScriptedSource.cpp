#include "ScriptedSource.h"

#include <algorithm>

namespace {

QString readText(const SourceName& name, const QDBusMessage& call)
{
    QStringList arguments;
    for (const QVariant& argument : call.arguments())
        arguments.append(argument.toString());
    return QStringLiteral("%1/%2 %3(%4)")
        .arg(name.module, name.object, call.member(), arguments.join(QLatin1String(", ")));
}

} // namespace

QDBusMessage changeSignal(const SourceName& name, const QVariantList& arguments)
{
    QDBusMessage message = QDBusMessage::createSignal(
        name.path(), QStringLiteral("org.measuringdevice.ConfigurationFileHandler"),
        QStringLiteral("configurationChanged"));
    message.setArguments(arguments);
    return message;
}

void ReadLog::append(const QString& read)
{
    const QMutexLocker locker(&m_mutex);
    m_reads.append(read);
}

QStringList ReadLog::reads() const
{
    const QMutexLocker locker(&m_mutex);
    return m_reads;
}

ScriptedSource::ScriptedSource(const Source& source, ReadLog& log, const Death& death)
    : m_source(source), m_log(log), m_death(death)
{}

const SourceName& ScriptedSource::name() const
{
    return m_source.name;
}

QString ScriptedSource::introspect(const QString& /*path*/) const
{
    return {};
}

bool ScriptedSource::handleMessage(const QDBusMessage& message, const QDBusConnection& connection)
{
    if (message.member() == QLatin1String("synchronize"))
        return connection.send(message.createReply());
    m_log.append(readText(m_source.name, message));
    answer(nextAnswer(), message, connection);
    return true;
}

Answer ScriptedSource::nextAnswer()
{
    const int index = std::min(m_reads, m_source.answers.size() - 1);
    ++m_reads;
    return m_source.answers.at(index);
}

void ScriptedSource::answer(const Answer& answer, const QDBusMessage& call, QDBusConnection connection)
{
    if (!answer.changed.object.isEmpty())
        connection.send(changeSignal(answer.changed, {answer.changed.configuration}));
    switch (answer.kind) {
    case Answer::Value:
        connection.send(call.createReply(answer.value));
        return;
    case Answer::Error:
        connection.send(
            call.createErrorReply(QStringLiteral("org.example.Error"), QStringLiteral("as scripted")));
        return;
    case Answer::Never:
        return;
    case Answer::Held: {
        const QMutexLocker locker(&m_mutex);
        m_held.append(call.createReply(answer.value));
        return;
    }
    case Answer::Death:
        m_death(connection);
        return;
    }
}

void ScriptedSource::release(QDBusConnection connection)
{
    const QMutexLocker locker(&m_mutex);
    for (const QDBusMessage& reply : qAsConst(m_held))
        connection.send(reply);
    m_held.clear();
}
