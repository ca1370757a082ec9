#pragma once

#include "DBusConnectorExport.h"
#include "ErrorContainer.h"

#include <QtCore/QVariant>

class QDBusMessage;

/// The outcome of a blocking call: a value, or an error. A plain value.
class DBUSCONNECTOR_EXPORT DBusReply
{
public:
    /// No reply: an error.
    DBusReply();

    /// @param message what the call returned. Everything but a reply is an error: an error message, a
    /// time-out, a call that could not be sent.
    explicit DBusReply(const QDBusMessage& message);

    bool isError() const;

    /// The reply's first argument as it arrived, whatever its type (structures and dictionaries as
    /// QDBusArgument, to be read with qdbus_cast); invalid for an error and for a reply without arguments.
    QVariant getValue() const;

    /// What went wrong; holds no error when isError() is false.
    ErrorContainer getError() const;

private:
    QVariant m_value;
    ErrorContainer m_error;
};
