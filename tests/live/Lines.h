#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

/// Lines of the records of many situations.
namespace Lines {

const QString readUnits = QStringLiteral(
    "read DeviceManager/UnitManagerConfiguration getConfiguration(UnitManager/UnitType, UnitManager, )");
const QString readDependencies =
    QStringLiteral("read DeviceManager/DependencyConfiguration "
                   "getConfigurationDependency(UnitManager/Dependency, UnitManager)");
const QString readDefaultUnits = QStringLiteral(
    "read DeviceManager/DefaultUnitConfiguration getConfiguration(UnitManager/DefaultUnit, UnitManager, )");

const QString defaultUnitsUnread =
    QStringLiteral("warning Unable to get unitswitch configuration via DBus \"DeviceManager\" "
                   "\"DefaultUnitConfiguration\" \"UnitManager/DefaultUnit\"");

/// Construction, a read of all configured sources and the first idle step.
const QString firstStart =
    QStringLiteral("until idle: {start} {read} Update *changed Idle *initialized = true");
/// A fresh start after an error.
const QString secondStart =
    QStringLiteral("until idle: Initial {read} Update *changed Idle *initialized = true");
/// A start whose read fails.
const QString failedStart = QStringLiteral("until Error: {start} {read} Error = true");
/// A read of changed sources up to the announcement.
const QString takenUp =
    QStringLiteral("until changed: {noticed} {read} Update *changed Idle *initialized = true");
/// Nothing happens.
const QString quiet = QStringLiteral("until settled: *initialized *initialized = true");

/// Conversion with so many hectopascal in a bar, HectoPascal being the default unit.
inline QString converts(int hectoPascalPerBar)
{
    return QStringLiteral("convert: usable: %1 HectoPascal, %1 hPa by default").arg(2 * hectoPascalPerBar);
}
/// Conversion without default units: the label is that of the base unit.
inline QString convertsWithoutDefault(int hectoPascalPerBar)
{
    return QStringLiteral("convert: usable: %1 HectoPascal, 2 bar by default").arg(2 * hectoPascalPerBar);
}
/// The conversion of a unit manager that was kept.
inline QString keptConverts(int hectoPascalPerBar)
{
    return QStringLiteral("kept: usable: %1 HectoPascal, %1 hPa by default").arg(2 * hectoPascalPerBar);
}
const QString keptIsRaw = QStringLiteral("kept: raw: 2 HectoPascal, 2 by default");
/// Without a usable unit manager.
const QString raw = QStringLiteral("convert: raw: 2 HectoPascal, 2 by default");

const QString unitsChanged = QStringLiteral("debug unit manager configuration has been changed");
const QString defaultUnitsChanged = QStringLiteral("debug default unit configuration has been changed");
const QString dependenciesChanged = QStringLiteral("debug dependency file has been changed");

const QString unitsUnreachable =
    QStringLiteral("warning Unable to connect to mandantory file type \"UnitManager/UnitType\"");
const QString unitsUnread =
    QStringLiteral("warning Unable to get unitswitch configuration via DBus \"DeviceManager\" "
                   "\"UnitManagerConfiguration\" \"UnitManager/UnitType\"");
const QString unitsEmpty = QStringLiteral("warning Unit switch configuration empty string \"DeviceManager\" "
                                          "\"UnitManagerConfiguration\" \"UnitManager/UnitType\"");
const QString notInitialized = QStringLiteral("warning Unable to initialize UnitManager");
const QString notChanged = QStringLiteral("warning Unable to change configuration of UnitManager");
const QString brokenUnits = QStringLiteral("warning Conversion configuration invalid \"{ broken\"");

const QStringList firstReads{readUnits, readDependencies, readDefaultUnits};

/// Taken up while it settles.
const QString takenUpInPassing = QStringLiteral(
    "until settled: {noticed} {read} Update *changed Idle *initialized *initialized *initialized = true");

/// A message of each attempt to open the sources, in a number of checks: one attempt each when reading does
/// not block, else 100; a wrapper that hears of changes by the event loop has made one more when it was
/// built.
inline QStringList perAttempt(int checks, const QString& message)
{
    const auto line = [&message](const char* mode, int count) {
        const QString times = count == 1 ? QString() : QStringLiteral("%1 x ").arg(count);
        return QStringLiteral("[%1] %2").arg(QLatin1String(mode), times + message);
    };
    return {line("blocking delivered wrapper", 100 * checks + 100),
            line("blocking delivered connector", 100 * checks),
            line("blocking polled", 100 * checks),
            line("asynchronous delivered wrapper", checks + 1),
            line("asynchronous delivered connector", checks),
            line("asynchronous polled", checks)};
}

} // namespace Lines
