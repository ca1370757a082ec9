#include "DBusPendingReply.h"

#include <QtDBus/QDBusMessage>

#include "DBusReply.h"

DBusPendingReply::DBusPendingReply(const QDBusPendingCall& call) : m_call(call) {}

int DBusPendingReply::isFinished(ErrorContainer& error) const
{
    if (!m_call.isFinished())
        return Outstanding;

    const DBusReply reply(m_call.reply());
    if (!reply.isError())
        return Arrived;
    error = reply.getError();
    return Failed;
}

QVariant DBusPendingReply::getReply() const
{
    return m_call.isFinished() ? DBusReply(m_call.reply()).getValue() : QVariant();
}
