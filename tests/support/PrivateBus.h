#pragma once

#include <QtCore/QProcess>
#include <QtCore/QString>
#include <QtCore/QTemporaryDir>

#include <memory>

/// A message bus of the test's own: a dbus-daemon with its own configuration in a temporary directory, on an
/// address that stays the same over stop() and start(). The user's buses are never touched. Needs no event
/// loop.
///
///     PrivateBus bus;
///     QVERIFY(bus.start());
///     qputenv("DEVICE_BUS", bus.address().toLocal8Bit());
class PrivateBus
{
public:
    PrivateBus();
    ~PrivateBus();
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;

    /// Starts the daemon, unless it runs, and waits until it listens. @return false when it does not come up
    /// in a minute.
    bool start();
    /// Ends the daemon and waits for its end; the bus is gone for everybody on it.
    void stop();
    /// Stops the daemon in its tracks: what it is asked stays without an answer until resume().
    void halt();
    void resume();

    /// The D-Bus address, whether or not the daemon runs.
    QString address() const;
    /// Lets the bus answer every call of its own operation `member` with the error AccessDenied. Before
    /// start().
    void deny(const QString& member);

    /// A directory for the test's files; removed with this object.
    QString directory() const;

    /// Lets the bus start `command` (a program and its arguments) when `serviceName` is called. Before
    /// start().
    /// @return whether the service file was written.
    bool addActivatableService(const QString& serviceName, const QString& command);

private:
    QString path(const QString& name) const;

    QTemporaryDir m_directory;
    QString m_denied;
    const std::unique_ptr<QProcess> m_daemon;
};
