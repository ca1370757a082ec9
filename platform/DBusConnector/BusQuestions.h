#pragma once

#include <QtCore/QMutex>
#include <QtCore/QString>
#include <QtCore/QVariantList>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusError>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusPendingCall>

/// Blocking requests to the bus daemon itself. A bus that does not answer costs a single time-out, not one
/// per request: after a time-out the request is sent once more without waiting and stays outstanding until
/// the bus answers it. Meanwhile every other request fails at once. An error reply counts as an answer; a
/// lost connection also ends the wait. Thread-safe.
class BusQuestions
{
public:
    /// Calls an operation of the bus, and blocks until the answer or the time-out
    /// (DBusConnection::getCallTimeout()).
    /// @param member the operation's name.
    /// @return the answer; an error message after a time-out or a lost connection; an invalid message, at
    /// once, while hasUnanswered().
    QDBusMessage ask(const QDBusConnection& connection, const QString& member, const QVariantList& arguments);

    /// Whether a request that timed out is still outstanding. Never blocks.
    bool hasUnanswered() const;

    /// Discards the outstanding request, for a new connection.
    void forget();

private:
    void setOutstanding(const QDBusPendingCall& question);

    mutable QMutex m_mutex;
    QDBusPendingCall m_outstanding = QDBusPendingCall::fromError(QDBusError());
};
