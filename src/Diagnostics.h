#pragma once

#include <QtCore/QDebug>
#include <QtCore/QMessageLogger>

/// Where a message comes from. Given explicitly, so that release builds carry it too, and by the function
/// that logs: helpers which log for several callers take it from them.
struct LogContext
{
    const char* file; ///< path below src/ without extension
    int line;         ///< part of the interface where it is a fixed number: device logs are searched by it
    const char* function; ///< Q_FUNC_INFO of the function that reports

    /// Stream of a warning in the default category; it is logged when the stream is destroyed.
    QDebug warning() const
    {
        return QMessageLogger(file, line, function).warning();
    }

    /// Stream of a debug line in the default category; it is logged when the stream is destroyed.
    QDebug debug() const
    {
        return QMessageLogger(file, line, function).debug();
    }
};
