#pragma once

#include <QtCore/QMutex>
#include <QtCore/QString>

#include "FakeBusService.h"
#include "PrivateBus.h"
#include "ServiceProcess.h"

/// The private buses of the benchmarks, each with a configuration-file service. They start on first use and
/// stop with the application object.
namespace BusWorld {

/// A bus with the shipped service, in a separate process, on the shipped documents.
class Shipped
{
public:
    /// Directs this process, and the processes that it starts, to this bus.
    /// @return null if the bus or the service does not start
    static Shipped* use();

private:
    bool start();

    PrivateBus m_bus;
    ServiceProcess m_service;
};

/// A bus with a service that changes its default units without delay.
class Changing
{
public:
    /// Directs this process, and the processes that it starts, to this bus. @return null on failure
    static Changing* use();

    /// Serves @p unit as default unit of pressure and announces the change.
    void change(const QString& unit);

private:
    bool start();
    QDBusMessage answer(const QDBusMessage& call);

    PrivateBus m_bus;
    QMutex m_mutex;
    QString m_unit;
    std::unique_ptr<FakeBusService> m_service;
};

/// The D-Bus calls that read the configuration sources.
QDBusMessage callForUnits();
QDBusMessage callForDefaultUnits();
QDBusMessage callForDependencies();

} // namespace BusWorld
