#pragma once

#include <QtCore/QString>
#include <QtCore/QVariant>

/// The answer to a read: a text or an error.
class DBusReply
{
public:
    /// An error.
    DBusReply();
    explicit DBusReply(const QString& text);

    bool isError() const;
    QVariant getValue() const;

private:
    QVariant m_value;
};
