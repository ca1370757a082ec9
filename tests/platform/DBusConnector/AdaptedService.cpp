#include "AdaptedService.h"

#include <QtDBus/QDBusConnection>

#include "ConfigurationFileHandlerObject.h"
#include "WaitLimit.h"
#include "configurationfilehandleradaptor.h"

AdaptedService::AdaptedService(const QString& address, const QString& serviceName, const QString& path)
    : m_address(address), m_serviceName(serviceName), m_path(path)
{
    start();
    m_started.tryAcquire(1, waitLimit);
}

AdaptedService::~AdaptedService()
{
    quit();
    wait();
}

bool AdaptedService::isRunning() const
{
    return m_isRunning;
}

void AdaptedService::run()
{
    const QString connectionName = QStringLiteral("adapted service");
    ConfigurationFileHandlerObject object;
    new ConfigurationFileHandlerAdaptor(&object); // belongs to the object
    QDBusConnection connection = QDBusConnection::connectToBus(m_address, connectionName);
    m_isRunning = connection.registerObject(m_path, &object) && connection.registerService(m_serviceName);
    m_started.release();
    exec();
    QDBusConnection::disconnectFromBus(connectionName);
}
