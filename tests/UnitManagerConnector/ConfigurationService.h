#pragma once

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QMutex>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

#include <memory>

#include "FakeBusService.h"
#include "PrivateBus.h"
#include "UnitManagerConnector/UnitManagerConnectorDefinitions.h"

/// The sources and their settings: those of the unit switch are fixed, the tests choose the others.
namespace TestSource {

const auto units = UnitManagerConnectorDefinitions::UnitSwitch;
const auto dependencies = UnitManagerConnectorDefinitions::DependencyFile;
const auto defaults = UnitManagerConnectorDefinitions::DefaultUnit;

const QString module = QStringLiteral("DeviceManager");
/// A module that is never on the bus.
const QString absentModule = QStringLiteral("Absent");

const QString unitSwitchObject = QStringLiteral("UnitManagerConfiguration");
const QString unitSwitchName = QStringLiteral("UnitManager/UnitType");
const QString dependencyObject = QStringLiteral("DependencyObject");
const QString dependencyName = QStringLiteral("Test/Dependency");
const QString defaultUnitObject = QStringLiteral("DefaultUnitObject");
const QString defaultUnitName = QStringLiteral("Test/DefaultUnit");

/// Module, object and configuration of each source.
QMap<UnitManagerConnectorDefinitions::ConnectorType, QStringList> settings();

} // namespace TestSource

/// The calls that read the sources, as ConfigurationService::takeCalls() returns them.
namespace TestCall {

const QString units =
    QStringLiteral("/UnitManagerConfiguration getConfiguration(UnitManager/UnitType, UnitManager, )");
const QString dependencies =
    QStringLiteral("/DependencyObject getConfigurationDependency(Test/Dependency, UnitManager)");
const QString defaults =
    QStringLiteral("/DefaultUnitObject getConfiguration(Test/DefaultUnit, UnitManager, )");

} // namespace TestCall

/// Documents of the service, in addition to TestDocuments.
namespace TestDocument {

/// "Pressure" depends on "PressureUnit", and "Dependent" on "Value".
QString dependencies();
/// A text that is not a document.
QString broken();

} // namespace TestDocument

/// Gives the process a device's bus that does not exist.
void useNoBus();

/// The device's configuration-file service on a private bus, which is the device's bus during the lifetime of
/// this object. The objects of all sources are in one module. Serves the units and default units of
/// TestDocuments and the dependencies of TestDocument.
class ConfigurationService
{
public:
    ConfigurationService();
    ~ConfigurationService();
    ConfigurationService(const ConfigurationService&) = delete;
    ConfigurationService& operator=(const ConfigurationService&) = delete;

    /// Starts the service, and the bus unless it runs. @return whether both run.
    bool start();
    /// Disconnects the service, and waits until the bus no longer knows it.
    void stop();
    PrivateBus& bus();

    /// Sets the answer to requests for a configuration from now on. Nothing is announced.
    void setAnswer(const QString& configuration, const FakeBusService::Answer& answer);
    /// Sets a value as the answer, which need not be a text; see setAnswer().
    void setDocument(const QString& configuration, const QVariant& document);

    /// The calls that this process has sent since the last takeCalls(), oldest first: "/Object
    /// member(argument, argument)". Waits until the service has received them.
    /// @return a list with one empty entry if the service does not answer within a minute.
    QStringList takeCalls();

    /// Sends the change signal of a source. On return, the signal has reached all existing subscriptions and
    /// is queued in the event loops of their threads.
    /// @return whether it was sent.
    bool announce(UnitManagerConnectorDefinitions::ConnectorType source);
    /// Sends a change signal of any object, with any arguments; see announce().
    bool announceWith(const QString& object, const QVariantList& arguments);

    /// Waits until the bus and a service have processed everything that this process has sent, and this
    /// process has received everything that the service has sent.
    /// @return false after a minute.
    static bool settle(const QString& answeringName);
    /// Does the same with this service.
    static bool settle();

private:
    QDBusMessage answerTo(const QDBusMessage& call) const;
    QList<QDBusMessage> calls() const;

    PrivateBus m_bus;
    mutable QMutex m_mutex;
    QHash<QString, FakeBusService::Answer> m_answers;
    int m_takenCalls = 0;
    std::unique_ptr<FakeBusService> m_service;
};
