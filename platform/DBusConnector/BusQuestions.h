#pragma once

#include <QtCore/QMutex>
#include <QtCore/QString>
#include <QtCore/QVariantList>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusError>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusPendingCall>

/// Blocking questions to a bus itself. A bus that does not answer costs one time-out, not one for each
/// question: after a time-out the question is sent once more without waiting and stays outstanding until the
/// bus answers it. Meanwhile every other question fails at once. An error reply is an answer; a lost
/// connection ends the wait too. May be used from any thread.
class BusQuestions
{
public:
    /// Calls an operation of the bus, and blocks until the answer or the time-out
    /// (DBusConnection::getCallTimeout()).
    /// @param member the operation's name.
    /// @return the answer; an error message when the time is up or the connection is lost; an invalid
    /// message, at once, while hasUnanswered().
    QDBusMessage ask(const QDBusConnection& connection, const QString& member, const QVariantList& arguments);

    /// Whether a question that has timed out is still outstanding. Never blocks.
    bool hasUnanswered() const;

    /// Drops the outstanding question, for a new connection.
    void forget();

private:
    void setOutstanding(const QDBusPendingCall& question);

    mutable QMutex m_mutex;
    QDBusPendingCall m_outstanding = QDBusPendingCall::fromError(QDBusError());
};
