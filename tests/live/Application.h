#pragma once

#include <QtCore/QSharedPointer>
#include <QtCore/QString>

#include <memory>
#include <optional>

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

/// An application that uses the library at the level of its mode.
class Application
{
public:
    virtual ~Application() = default;

    /// Creates and initialises the application. A wrapper to which changes are delivered makes its first
    /// attempt to read the configurations here.
    /// @param recorder receives the connector's signals, at the connector level only
    static std::unique_ptr<Application> create(const Mode& mode, const Settings& settings,
                                               Recorder& recorder);

    virtual void init(const Settings& settings) = 0;
    virtual void reset() = 0;
    /// Advances the library by one call. @return whether the library is idle.
    virtual bool check() = 0;
    /// Whether the configuration has changed since the last call; no value at the machine level.
    virtual std::optional<bool> hasChanged() = 0;
    /// The current unit manager; null when there is none.
    virtual QSharedPointer<const UnitManagerDevice> units() = 0;
    /// Result of the conversion of two bar, see Conversion.h.
    virtual QString converted() = 0;
    /// The keys that depend on "PressureUnit"; no value at the wrapper level.
    virtual std::optional<QString> dependents() = 0;
};
