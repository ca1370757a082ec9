#pragma once

#include <QtCore/QString>
#include <QtCore/QTemporaryDir>

#include "ChildProcess.h"

/// A private message bus: a dbus-daemon with its own configuration in a temporary directory, on an address
/// that remains the same across stop() and start(). Never accesses the user's buses. Needs no event loop. See
/// startDeviceBus() to make it the device's bus.
class PrivateBus
{
public:
    PrivateBus();

    /// Starts the daemon, unless it runs, and waits until it listens. @return false if it does not start
    /// within a minute.
    bool start();
    /// Ends the daemon and waits for its end; all clients are disconnected.
    void stop();
    /// Suspends the daemon: calls remain unanswered until resume().
    void halt();
    void resume();

    /// The D-Bus address, also while the daemon is not running.
    QString address() const;
    /// Makes the bus answer every call of its own method `member` with the error AccessDenied. Call before
    /// start().
    void deny(const QString& member);

    /// A directory for files of the test; removed with this object.
    QString directory() const;

    /// Lets the bus start `command` (a program and its arguments) when `serviceName` is called. Call before
    /// start().
    /// @return whether the service file was written.
    bool addActivatableService(const QString& serviceName, const QString& command);

private:
    QString path(const QString& name) const;

    QTemporaryDir m_directory;
    QString m_denied;
    ChildProcess m_daemon;
};
