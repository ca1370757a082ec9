#include "FakeBusService.h"

#include <QtCore/QMutex>
#include <QtCore/QMutexLocker>
#include <QtCore/QUuid>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusVirtualObject>

/// Implements all objects of the service.
class FakeBusService::Objects : public QDBusVirtualObject
{
public:
    explicit Objects(const Answer& answer) : m_answer(answer) {}

    QString introspect(const QString& /*path*/) const override
    {
        return {};
    }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
    {
        {
            const QMutexLocker locker(&m_mutex);
            m_calls.append(message);
        }
        const QDBusMessage answer = m_answer(message);
        if (answer.type() != QDBusMessage::InvalidMessage)
            connection.send(answer);
        return true;
    }

    QList<QDBusMessage> calls() const
    {
        const QMutexLocker locker(&m_mutex);
        return m_calls;
    }

private:
    const Answer m_answer;
    mutable QMutex m_mutex;
    QList<QDBusMessage> m_calls;
};

FakeBusService::FakeBusService(const QString& address, const QString& serviceName, const Answer& answer)
    : m_connectionName(QUuid::createUuid().toString()), m_objects(new Objects(answer))
{
    QDBusConnection connection = QDBusConnection::connectToBus(address, m_connectionName);
    m_isRunning =
        connection.registerVirtualObject(QStringLiteral("/"), m_objects.get(), QDBusConnection::SubPath);
    m_objects->moveToThread(&m_thread);
    m_thread.start();
    m_isRunning = m_isRunning && connection.registerService(serviceName);
}

FakeBusService::~FakeBusService()
{
    // The connection may still access the object while it closes.
    QDBusConnection(m_connectionName).unregisterObject(QStringLiteral("/"), QDBusConnection::UnregisterTree);
    QDBusConnection::disconnectFromBus(m_connectionName);
    m_thread.quit();
    m_thread.wait();
}

bool FakeBusService::isRunning() const
{
    return m_isRunning;
}

bool FakeBusService::sendSignal(const QString& path, const QString& name, const QVariantList& arguments) const
{
    QDBusMessage message = QDBusMessage::createSignal(
        path, QStringLiteral("org.measuringdevice.ConfigurationFileHandler"), name);
    message.setArguments(arguments);
    return QDBusConnection(m_connectionName).send(message);
}

QList<QDBusMessage> FakeBusService::calls() const
{
    return m_objects->calls();
}

FakeBusService::Answer FakeBusService::withValue(const QVariant& value)
{
    return [value](const QDBusMessage& call) {
        return call.createReply(value);
    };
}

FakeBusService::Answer FakeBusService::withoutValue()
{
    return [](const QDBusMessage& call) {
        return call.createReply();
    };
}

FakeBusService::Answer FakeBusService::withError(const QString& name)
{
    return [name](const QDBusMessage& call) {
        return call.createErrorReply(name, QStringLiteral("as asked"));
    };
}

FakeBusService::Answer FakeBusService::never()
{
    return [](const QDBusMessage& /*call*/) {
        return QDBusMessage();
    };
}
