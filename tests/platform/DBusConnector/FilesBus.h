#pragma once

#include <QtCore/QSharedPointer>
#include <QtCore/QString>

#include <memory>

#include "ConfigurationFileHandlerDBusConnector.h"
#include "FakeBusService.h"
#include "PrivateBus.h"

/// The device's bus, not started yet, for the service of the module "Files".
class FilesBus : public PrivateBus
{
public:
    FilesBus();

    /// Starts the bus, unless it runs, and the service. @return whether both are running
    bool startService(const FakeBusService::Answer& answer);
    /// Takes the service off the bus.
    void stopService();

    /// The running service.
    const FakeBusService& service() const;

    /// The service's name on the bus.
    static QString serviceName();
    /// The call, in the form of BusMonitor::takeCalls(), that asks the bus whether the service is there.
    static QString question();

    /// Creates a connector to an object of the service. @return null if that fails
    static QSharedPointer<ConfigurationFileHandlerDBusConnector> createConnector();

private:
    std::unique_ptr<FakeBusService> m_service;
};
