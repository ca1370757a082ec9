#pragma once

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QMutex>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

#include <memory>

#include "FakeBusService.h"
#include "PrivateBus.h"

/// The settings of the sources: those of the unit switch are fixed, the others are what the tests choose.
namespace TestSource {

const QString module = QStringLiteral("DeviceManager");
/// A module that is never on the bus.
const QString absentModule = QStringLiteral("Absent");

const QString unitSwitchObject = QStringLiteral("UnitManagerConfiguration");
const QString unitSwitchName = QStringLiteral("UnitManager/UnitType");
const QString dependencyObject = QStringLiteral("DependencyObject");
const QString dependencyName = QStringLiteral("Test/Dependency");
const QString defaultUnitObject = QStringLiteral("DefaultUnitObject");
const QString defaultUnitName = QStringLiteral("Test/DefaultUnit");

} // namespace TestSource

/// What the service serves unless told otherwise.
namespace TestDocument {

/// Pressure in Bar and HectoPascal.
QString units();
/// HectoPascal for Pressure.
QString defaultUnits();
/// "Pressure" depends on "PressureUnit".
QString dependencies();
/// A text that is no document.
QString broken();

} // namespace TestDocument

/// The device's configuration-file service on a bus of the test's own, which becomes the device's bus for as
/// long as this object lives. All sources have their object in one module.
class ConfigurationService
{
public:
    ConfigurationService();
    ~ConfigurationService();
    ConfigurationService(const ConfigurationService&) = delete;
    ConfigurationService& operator=(const ConfigurationService&) = delete;

    /// Starts the bus, unless it runs, and the service. @return whether both run.
    bool start();
    /// The service leaves the bus.
    void stop();
    PrivateBus& bus();

    /// Sets how requests for a configuration are answered from now on.
    void setAnswer(const QString& configuration, const FakeBusService::Answer& answer);

    /// The calls that have arrived since the last time, oldest first: "/Object member(argument, argument)".
    QStringList takeCalls();
    /// Waits until @p count calls have arrived since the last takeCalls().
    bool waitForCalls(int count) const;

    /// Sends the change signal of an object. When this returns, the signal has reached all subscriptions that
    /// were made before, and waits for them in their threads' event queues.
    /// @return whether it was sent.
    bool announce(const QString& object, const QVariant& parameter);
    /// The same for a signal with any arguments.
    bool announceWith(const QString& object, const QVariantList& arguments);

    /// Waits until the bus and a service have seen everything that this process has sent them, and this
    /// process everything that the service has sent.
    static bool settle(const QString& answeringName);

private:
    QDBusMessage answerTo(const QDBusMessage& call) const;
    QList<QDBusMessage> calls() const;

    PrivateBus m_bus;
    mutable QMutex m_mutex;
    QHash<QString, FakeBusService::Answer> m_answers;
    int m_takenCalls = 0;
    std::unique_ptr<FakeBusService> m_service;
};
