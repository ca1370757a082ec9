#include "DBusReply.h"

#include <QtDBus/QDBusError>
#include <QtDBus/QDBusMessage>

DBusReply::DBusReply() : DBusReply(QDBusMessage()) {}

DBusReply::DBusReply(const QDBusMessage& message)
{
    if (message.type() == QDBusMessage::ReplyMessage)
        m_value = message.arguments().value(0);
    else if (message.type() == QDBusMessage::ErrorMessage)
        m_error = ErrorContainer(message.errorName(), message.errorMessage());
    else
        m_error =
            ErrorContainer(QDBusError::errorString(QDBusError::NoReply), QStringLiteral("There is no reply"));
}

bool DBusReply::isError() const
{
    return m_error.isError();
}

QVariant DBusReply::getValue() const
{
    return m_value;
}

ErrorContainer DBusReply::getError() const
{
    return m_error;
}
