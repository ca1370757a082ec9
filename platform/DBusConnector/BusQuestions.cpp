#include "BusQuestions.h"

#include <QtCore/QMutexLocker>

#include <limits>

#include "DBusConnection.h"

namespace {

// D-Bus interprets this value as no time-out.
constexpr int withoutTimeout = std::numeric_limits<int>::max();

QDBusMessage createQuestion(const QString& member, const QVariantList& arguments)
{
    QDBusMessage question = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"),
                                                           QStringLiteral("/org/freedesktop/DBus"),
                                                           QStringLiteral("org.freedesktop.DBus"), member);
    question.setArguments(arguments);
    return question;
}

bool isTimeout(const QDBusMessage& reply)
{
    return reply.errorName() == QDBusError::errorString(QDBusError::NoReply);
}

} // namespace

QDBusMessage BusQuestions::ask(const QDBusConnection& connection, const QString& member,
                               const QVariantList& arguments)
{
    if (hasUnanswered())
        return {};

    // Sent as a separate message, because the time-out of QDBusConnectionInterface cannot be set.
    const QDBusMessage question = createQuestion(member, arguments);
    const QDBusMessage reply = connection.call(question, QDBus::Block, DBusConnection::getCallTimeout());
    if (isTimeout(reply))
        setOutstanding(connection.asyncCall(question, withoutTimeout));
    return reply;
}

bool BusQuestions::hasUnanswered() const
{
    const QMutexLocker locker(&m_mutex);
    return !m_outstanding.isFinished();
}

void BusQuestions::forget()
{
    setOutstanding(QDBusPendingCall::fromError(QDBusError()));
}

void BusQuestions::setOutstanding(const QDBusPendingCall& question)
{
    const QMutexLocker locker(&m_mutex);
    m_outstanding = question;
}
