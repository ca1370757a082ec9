#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QThread>
#include <QtCore/QVariantList>
#include <QtDBus/QDBusMessage>

#include <functional>
#include <memory>

/// A peer on a bus that simulates any service: it owns a name, answers every call to every object with a
/// function of the test, and sends signals. It has its own connection and thread, so it answers while the
/// test blocks.
class FakeBusService
{
public:
    /// Creates the answer to a call, on the service's thread. For a default-constructed message, no answer is
    /// sent.
    using Answer = std::function<QDBusMessage(const QDBusMessage& call)>;

    /// Connects and takes the name; isRunning() returns whether that succeeded.
    FakeBusService(const QString& address, const QString& serviceName, const Answer& answer);
    /// Disconnects from the bus.
    ~FakeBusService();
    FakeBusService(const FakeBusService&) = delete;
    FakeBusService& operator=(const FakeBusService&) = delete;

    bool isRunning() const;

    /// Sends a signal from the object at `path`. @return whether it was sent.
    bool sendSignal(const QString& path, const QString& name, const QVariantList& arguments) const;

    /// The calls received so far, of any interface, oldest first.
    QList<QDBusMessage> calls() const;

    /// Answers with one value.
    static Answer withValue(const QVariant& value);
    /// Answers without a value.
    static Answer withoutValue();
    /// Answers with an error.
    static Answer withError(const QString& name);
    /// Never answers.
    static Answer never();

private:
    class Objects;

    QString m_connectionName;
    QThread m_thread;
    std::unique_ptr<Objects> m_objects;
    bool m_isRunning = false;
};
