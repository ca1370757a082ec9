#include "FilesBus.h"

#include "DeviceBusEnvironment.h"

FilesBus::FilesBus()
{
    useDeviceBus(address());
}

bool FilesBus::startService(const FakeBusService::Answer& answer)
{
    if (!start())
        return false;
    m_service = std::make_unique<FakeBusService>(address(), serviceName(), answer);
    return m_service->isRunning();
}

void FilesBus::stopService()
{
    m_service.reset();
}

const FakeBusService& FilesBus::service() const
{
    return *m_service;
}

QString FilesBus::serviceName()
{
    return QStringLiteral("org.measuringdevice.Files");
}

QString FilesBus::question()
{
    return QStringLiteral("org.freedesktop.DBus NameHasOwner ") + serviceName();
}

QSharedPointer<ConfigurationFileHandlerDBusConnector> FilesBus::createConnector()
{
    return ConfigurationFileHandlerDBusConnector::createAndConnect(QStringLiteral("Files"),
                                                                   QStringLiteral("Object"));
}
