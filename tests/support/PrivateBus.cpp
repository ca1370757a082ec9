#include "PrivateBus.h"

#include <QtCore/QDir>

#include <csignal>

#include "TestFiles.h"
#include "WaitLimit.h"

namespace {

// The limits of the usual session bus; the daemon's built-in limits are meant for the system bus.
QString configuration(const QString& socket, const QString& serviceDirectory, const QString& denied)
{
    return QStringLiteral(R"(<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>unix:path=%1</listen>
  <auth>EXTERNAL</auth>
  <servicedir>%2</servicedir>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
    %3
  </policy>
  <limit name="max_incoming_bytes">1000000000</limit>
  <limit name="max_outgoing_bytes">1000000000</limit>
  <limit name="max_message_size">1000000000</limit>
  <limit name="max_match_rules_per_connection">50000</limit>
  <limit name="max_replies_per_connection">50000</limit>
</busconfig>
)")
        .arg(socket, serviceDirectory, denied);
}

} // namespace

// A short name, because the length of a socket path is limited to about a hundred characters.
PrivateBus::PrivateBus() : m_directory(QDir::tempPath() + QStringLiteral("/bus-XXXXXX"))
{
    m_daemon.setProgram(QStringLiteral("dbus-daemon"));
    m_daemon.setArguments({QStringLiteral("--config-file=") + path(QStringLiteral("bus.conf")),
                           QStringLiteral("--nofork"), QStringLiteral("--nopidfile"),
                           QStringLiteral("--print-address")});
    m_daemon.setProcessChannelMode(QProcess::SeparateChannels);
    m_daemon.setStandardErrorFile(QProcess::nullDevice());
}

bool PrivateBus::start()
{
    if (m_daemon.state() == QProcess::Running)
        return true;

    const QString services = path(QStringLiteral("services"));
    if (!QDir().mkpath(services) ||
        !TestFiles::write(path(QStringLiteral("bus.conf")),
                          configuration(path(QStringLiteral("socket")), services, m_denied).toUtf8()))
        return false;

    m_daemon.start(QIODevice::ReadOnly);
    // The daemon prints its address once it is listening.
    return m_daemon.waitForReadyRead(waitLimit);
}

void PrivateBus::stop()
{
    if (m_daemon.state() == QProcess::NotRunning)
        return;
    m_daemon.kill();
    m_daemon.waitForFinished(waitLimit);
}

void PrivateBus::halt()
{
    ::kill(static_cast<pid_t>(m_daemon.processId()), SIGSTOP);
}

void PrivateBus::resume()
{
    ::kill(static_cast<pid_t>(m_daemon.processId()), SIGCONT);
}

QString PrivateBus::address() const
{
    return QStringLiteral("unix:path=") + path(QStringLiteral("socket"));
}

QString PrivateBus::directory() const
{
    return m_directory.path();
}

bool PrivateBus::addActivatableService(const QString& serviceName, const QString& command)
{
    const QString services = path(QStringLiteral("services"));
    return QDir().mkpath(services) &&
           TestFiles::write(
               services + QLatin1Char('/') + serviceName + QStringLiteral(".service"),
               QStringLiteral("[D-BUS Service]\nName=%1\nExec=%2\n").arg(serviceName, command).toUtf8());
}

void PrivateBus::deny(const QString& member)
{
    m_denied =
        QStringLiteral("<deny send_interface=\"org.freedesktop.DBus\" send_member=\"%1\"/>").arg(member);
}

QString PrivateBus::path(const QString& name) const
{
    return m_directory.filePath(name);
}
