#pragma once

#include <QtCore/QList>
#include <QtCore/QString>

#include "LogCapture.h"

/// Takes all messages out of the log. @return those of the source file @p file; the platform may log its own
/// when it reads a document
inline QList<LoggedMessage> takeMessagesOf(const QString& file, LogCapture& log)
{
    QList<LoggedMessage> messages;
    for (const LoggedMessage& message : log.take()) {
        if (message.file == file)
            messages.append(message);
    }
    return messages;
}
