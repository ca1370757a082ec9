#pragma once

#include <QtCore/QMutex>
#include <QtCore/QString>

#include "FakeBusService.h"
#include "PrivateBus.h"
#include "ServiceProcess.h"

/// The private buses of the benchmarks, each with a configuration-file service. They start when they are
/// first asked for and end with the application object.
namespace BusWorld {

/// A bus with the shipped service, a process of its own, on the shipped documents.
class Shipped
{
public:
    /// Lets this process, and the processes that it starts, use this bus from now on.
    /// @return null when bus or service do not start
    static Shipped* use();

private:
    bool start();

    PrivateBus m_bus;
    ServiceProcess m_service;
};

/// A bus with a service that changes its default units as fast as it is told.
class Changing
{
public:
    /// As Shipped::use().
    static Changing* use();

    /// Serves @p unit as default unit of pressure, and announces that.
    void change(const QString& unit);

private:
    bool start();
    QDBusMessage answer(const QDBusMessage& call);

    PrivateBus m_bus;
    QMutex m_mutex;
    QString m_unit;
    std::unique_ptr<FakeBusService> m_service;
};

/// The configuration sources, as calls on the bus.
QDBusMessage callForUnits();
QDBusMessage callForDefaultUnits();
QDBusMessage callForDependencies();

} // namespace BusWorld
