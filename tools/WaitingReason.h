#pragma once

#include <QtCore/QDeadlineTimer>
#include <QtCore/QString>
#include <QtCore/QVector>
#include <QtDBus/QDBusPendingCall>

#include <optional>

/// Finds out why the documents of the running service are not ready. Does not wait for the service's answers.
class WaitingReason
{
public:
    /// @param bus "session", "system" or a D-Bus address
    explicit WaitingReason(const QString& bus);

    /// Continues asking; call regularly. @return the last answer; no value before the first one
    std::optional<QString> poll();
    /// Forgets the answer.
    void reset();

private:
    void ask();
    bool isAnswered() const;

    const QString m_bus;
    std::optional<QString> m_reason;
    /// Requests for the state of every document; empty between two answers.
    QVector<QDBusPendingCall> m_requests;
    QDeadlineTimer m_pause;
};
