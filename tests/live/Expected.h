#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include "Mode.h"

/// The states of the machine.
namespace State {

const QString initial = QStringLiteral("UnitManagerConnectorStateInitial");
const QString readBlocking = QStringLiteral("UnitManagerConnectorStateReadConfigurationSynchron");
const QString readAsynchronous = QStringLiteral("UnitManagerConnectorStateReadConfigurationASynchron");
const QString waitForReply = QStringLiteral("UnitManagerConnectorStateWaitForReply");
const QString update = QStringLiteral("UnitManagerConnectorStateUpdate");
const QString idle = QStringLiteral("UnitManagerConnectorStateIdle");
const QString error = QStringLiteral("UnitManagerConnectorStateError");

} // namespace State

/// The signals of the connector.
namespace Signal {

const QString configurationChanged = QStringLiteral("unitManagerConfigurationChanged()");
const QString initialized = QStringLiteral("unitManagerIsInitialized()");

} // namespace Signal

/// Events, conversions, reads and messages that many scenarios expect.
namespace Expected {

// Events, for checks of Stage.

/// The construction and the initialisation of an application.
QStringList construction(const Mode& mode);
/// A read of all configured sources, or of all changed ones; an asynchronous one up to the wait for replies.
QStringList read(const Mode& mode);
/// New objects are announced, and the library is idle.
const QStringList update{State::update, Signal::configurationChanged, State::idle, Signal::initialized};
/// @p count checks in the idle state.
QStringList idleChecks(int count);
/// The check that detects an announced change.
QStringList changeDetected(const Mode& mode);

/// Construction, read and update.
QStringList firstStart(const Mode& mode);
/// Another start after an error or a reset.
QStringList restart(const Mode& mode);
/// Construction and a read that fails.
QStringList failedStart(const Mode& mode);
/// The texts are read but cannot be loaded.
QStringList unloadableStart(const Mode& mode);
/// An announced change and its read and update.
QStringList reload(const Mode& mode);
/// An announced change and a read that fails.
QStringList failedReload(const Mode& mode);
/// The checks of a library that remains idle, until it has settled.
const QStringList remainsIdle{Signal::initialized, Signal::initialized};

// Conversions of two bar, for Stage::expectConversion().

/// Without a usable unit manager.
const QString unconverted = QStringLiteral("raw: 2 HectoPascal, 2 by default");
/// The default unit is HectoPascal.
QString inHectoPascal(int hectoPascalPerBar);
/// The default unit is Bar, or the base unit is used because there are no default units.
QString inBar(int hectoPascalPerBar);

// Reads, for Stage::finish().

const QString readUnits = QStringLiteral(
    "DeviceManager/UnitManagerConfiguration getConfiguration(UnitManager/UnitType, UnitManager, )");
const QString readDependencies =
    QStringLiteral("DeviceManager/DependencyConfiguration "
                   "getConfigurationDependency(UnitManager/Dependency, UnitManager)");
const QString readDefaultUnits = QStringLiteral(
    "DeviceManager/DefaultUnitConfiguration getConfiguration(UnitManager/DefaultUnit, UnitManager, )");
const QString readRemoteDefaultUnits = QStringLiteral(
    "DefaultUnitManager/DefaultUnitConfiguration getConfiguration(UnitManager/DefaultUnit, UnitManager, )");
const QString readOtherDefaultUnits = QStringLiteral(
    "DeviceManager/OtherConfiguration getConfiguration(UnitManager/OtherDefaultUnit, UnitManager, )");
const QStringList readAll{readUnits, readDependencies, readDefaultUnits};

// Messages, for Stage::finish().

const QString unitsChanged = QStringLiteral("debug unit manager configuration has been changed");
const QString defaultUnitsChanged = QStringLiteral("debug default unit configuration has been changed");
const QString dependenciesChanged = QStringLiteral("debug dependency file has been changed");

const QString unitsUnreachable =
    QStringLiteral("warning Unable to connect to mandantory file type \"UnitManager/UnitType\"");
const QString defaultUnitsUnreachable =
    QStringLiteral("warning Connection Error to optional file type \"UnitManager/DefaultUnit\"");
const QString unitsUnread =
    QStringLiteral("warning Unable to get unitswitch configuration via DBus \"DeviceManager\" "
                   "\"UnitManagerConfiguration\" \"UnitManager/UnitType\"");
const QString defaultUnitsUnread =
    QStringLiteral("warning Unable to get unitswitch configuration via DBus \"DeviceManager\" "
                   "\"DefaultUnitConfiguration\" \"UnitManager/DefaultUnit\"");
const QString unitsEmpty = QStringLiteral("warning Unit switch configuration empty string \"DeviceManager\" "
                                          "\"UnitManagerConfiguration\" \"UnitManager/UnitType\"");
const QString unitsInvalid = QStringLiteral("warning Conversion configuration invalid \"{ broken\"");

/// The line, as a list, if @p condition is true; else nothing.
QStringList onlyIf(bool condition, const QString& line);
/// Logged by @p checks checks that cannot open the sources: one message for each attempt.
QString perAttempt(const Mode& mode, int checks, const QString& message);

} // namespace Expected
