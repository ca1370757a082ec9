#pragma once

#include <QtCore/QString>

#include "DBusConnectorExport.h"

/// The error of a call on the bus: its D-Bus name ("org.freedesktop.DBus.Error.NoReply") and a text for the
/// log. A default-constructed object holds no error. A plain value.
class DBUSCONNECTOR_EXPORT ErrorContainer
{
public:
    ErrorContainer();
    ErrorContainer(const QString& name, const QString& message);

    /// Whether an error is held, that is, whether its name is not empty.
    bool isError() const;
    QString getName() const;
    QString getMessage() const;

private:
    QString m_name;
    QString m_message;
};
