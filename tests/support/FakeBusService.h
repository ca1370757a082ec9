#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QThread>
#include <QtCore/QVariantList>
#include <QtDBus/QDBusMessage>

#include <functional>
#include <memory>

/// A peer on a bus that plays any service: it owns a name, answers every call to every object by a function
/// of the test, and sends signals. It has a connection and a thread of its own, so it answers while the test
/// blocks.
class FakeBusService
{
public:
    /// Makes the answer to a call, on the service's thread; a default message means that no answer is ever
    /// sent.
    using Answer = std::function<QDBusMessage(const QDBusMessage& call)>;

    /// Connects and takes the name; isRunning() tells whether that worked.
    FakeBusService(const QString& address, const QString& serviceName, const Answer& answer);
    /// Leaves the bus.
    ~FakeBusService();
    FakeBusService(const FakeBusService&) = delete;
    FakeBusService& operator=(const FakeBusService&) = delete;

    bool isRunning() const;

    /// Sends a signal from the object at `path`. @return whether it was sent.
    bool sendSignal(const QString& path, const QString& name, const QVariantList& arguments) const;

    /// The calls that have arrived, of whatever interface, oldest first.
    QList<QDBusMessage> calls() const;

    /// An answer with one value.
    static Answer withValue(const QVariant& value);
    /// An answer without a value.
    static Answer withoutValue();
    /// An error as the answer.
    static Answer withError(const QString& name);
    /// No answer, ever.
    static Answer never();

private:
    class Objects;

    QString m_connectionName;
    QThread m_thread;
    std::unique_ptr<Objects> m_objects;
    bool m_isRunning = false;
};
