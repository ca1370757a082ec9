#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtDBus/QDBusConnection>

#include "ChildProcess.h"

/// Receives all messages on a bus.
class BusMonitor
{
public:
    explicit BusMonitor(const QString& address);

    /// Starts monitoring. @return false if the bus does not permit it within a minute.
    bool start();

    /// The calls of one connection since the last takeCalls(), oldest first: each as "<destination>
    /// <member>", followed by the call's first argument if it is a string.
    /// @return a list with one empty entry if the monitor has ended or received nothing for a minute.
    QStringList takeCalls(const QDBusConnection& caller);

private:
    bool readUntil(const QByteArray& text);

    ChildProcess m_monitor;
    QByteArray m_received;
    int m_marks = 0;
};
