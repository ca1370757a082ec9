#include "SystemBus.h"

#include "TestFiles.h"
#include "WaitLimit.h"

namespace {

const char* const rulesOfTheSystem =
    R"(<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>system</type>
  <listen>unix:path=%1/socket</listen>
  <auth>EXTERNAL</auth>
  <policy context="default">
    <allow user="*"/>
    <deny own="*"/>
    <deny send_type="method_call"/>
    <allow send_type="signal"/>
    <allow send_requested_reply="true" send_type="method_return"/>
    <allow send_requested_reply="true" send_type="error"/>
    <allow receive_type="method_call"/>
    <allow receive_type="method_return"/>
    <allow receive_type="error"/>
    <allow receive_type="signal"/>
    <allow send_destination="org.freedesktop.DBus" send_interface="org.freedesktop.DBus"/>
  </policy>
  <include>rules.conf</include>
</busconfig>
)";

} // namespace

bool SystemBus::setRules(const QString& rules)
{
    return TestFiles::replace(m_directory.filePath("rules.conf"), rules.toUtf8());
}

bool SystemBus::start()
{
    const QString file = m_directory.filePath("bus.conf");
    if (!TestFiles::write(file, QString(rulesOfTheSystem).arg(m_directory.path()).toUtf8()))
        return false;
    m_daemon.start("dbus-daemon", {"--config-file=" + file, "--nofork", "--nopidfile", "--print-address"});
    // The daemon prints its address once it is listening.
    return m_daemon.waitForReadyRead(waitLimit);
}

QString SystemBus::address() const
{
    return "unix:path=" + m_directory.filePath("socket");
}
