#pragma once

#include <QtCore/QSharedPointer>
#include <QtCore/QString>

#include <functional>

#include "Mode.h"
#include "World.h"

class Recorder;
class UnitManagerDevice;

/// The configurations that an application names in addition to the units.
struct Settings
{
    SourceName dependencies;
    SourceName defaultUnits;
};

/// The operations of an application that uses the library at the level of its mode. Owns the objects that it
/// uses; a default-constructed application has none.
struct Application
{
    std::function<void(const Settings& settings)> init;
    std::function<void()> reset;
    /// Advances the library by one call. @return whether the library is idle.
    std::function<bool()> check;
    /// The current unit manager; null when there is none.
    std::function<QSharedPointer<const UnitManagerDevice>()> units;
    /// The conversion of two bar, see conversionBy().
    std::function<QString()> conversion;
    /// Whether the configuration has changed since the last call; not at the machine level.
    std::function<bool()> hasChanged;
    /// The keys that depend on "PressureUnit", or "none"; not at the wrapper level.
    std::function<QString()> dependents;

    /// Creates and initialises an application. A wrapper to which changes are delivered makes its first
    /// attempt to read the configurations here.
    /// @param recorder receives the connector's signals, at the connector level only
    static Application create(const Mode& mode, const Settings& settings, Recorder& recorder);
};

/// The conversion of two bar as a line of text: whether the unit manager is usable, the value in HectoPascal,
/// and the value and the label in the default unit; "usable: 2000 HectoPascal, 2 bar by default". If @p units
/// is null or invalid, nothing is converted and there is no label.
QString conversionBy(const QSharedPointer<const UnitManagerDevice>& units);
