#pragma once

#include <QtCore/QProcess>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtDBus/QDBusConnection>

/// Listens to everything that is said on a bus.
class BusMonitor
{
public:
    explicit BusMonitor(const QString& address);
    ~BusMonitor();
    BusMonitor(const BusMonitor&) = delete;
    BusMonitor& operator=(const BusMonitor&) = delete;

    /// Starts to listen. @return false when the bus does not let it within a minute.
    bool start();

    /// What one connection has called since the last takeCalls(), oldest first: each as "<destination>
    /// <member>", followed by the call's first argument when that is a string.
    /// @return a list of one empty entry when the monitor has ended or heard nothing for a minute.
    QStringList takeCalls(const QDBusConnection& caller);

private:
    bool readUntil(const QByteArray& text);

    QProcess m_monitor;
    QByteArray m_heard;
    int m_marks = 0;
};
