#pragma once

#include <QtCore/QVariant>

#include "DBusConnectorExport.h"
#include "ErrorContainer.h"

class QDBusMessage;

/// The result of a blocking call: a value or an error. A plain value.
class DBUSCONNECTOR_EXPORT DBusReply
{
public:
    /// Creates an error: no reply.
    DBusReply();

    /// @param message the result of the call. Anything other than a reply is an error: an error message, a
    /// time-out, a call that could not be sent.
    explicit DBusReply(const QDBusMessage& message);

    bool isError() const;

    /// The reply's first argument, unconverted, of any type (structures and dictionaries as QDBusArgument, to
    /// be read with qdbus_cast); invalid for an error and for a reply without arguments.
    QVariant getValue() const;

    /// The error; holds no error when isError() is false.
    ErrorContainer getError() const;

private:
    QVariant m_value;
    ErrorContainer m_error;
};
