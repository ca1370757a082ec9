#pragma once

#include <QtCore/QDebug>
#include <QtCore/QMessageLogger>

/// Source location of a log message. It is passed explicitly, so that release builds log it too. Functions
/// that log for several callers receive it from them.
struct LogContext
{
    const char* file;     ///< path below src/, without the extension
    int line;             ///< where it is a literal, it must not change: device logs are searched by it
    const char* function; ///< Q_FUNC_INFO of the function that reports

    /// Stream for a warning in the default category. The message is logged when the stream is destroyed.
    QDebug warning() const
    {
        return QMessageLogger(file, line, function).warning();
    }

    /// Stream for a debug message in the default category. The message is logged when the stream is
    /// destroyed.
    QDebug debug() const
    {
        return QMessageLogger(file, line, function).debug();
    }
};
