#include "DBusConnection.h"

#include <QtCore/QtGlobal>

#include "DeviceBus.h"
#include "PropertyManagerConst.h"

namespace {

constexpr int defaultCallTimeout = 5000;

} // namespace

QDBusConnection DBusConnection::getQDBusConnection()
{
    return DeviceBus::current().connection();
}

int DBusConnection::getCallTimeout()
{
    const int timeout = qEnvironmentVariableIntValue("DEVICE_BUS_TIMEOUT_MS");
    return timeout > 0 ? timeout : defaultCallTimeout;
}

QString DBusConnection::getServiceName(const QString& module)
{
    return PropertyManagerConst::getDBusPrefix() + QLatin1Char('.') + module;
}

QString DBusConnection::getObjectPath(const QString& object)
{
    return QLatin1Char('/') + object;
}
