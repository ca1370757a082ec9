#pragma once

#include <QtCore/QSharedPointer>
#include <QtCore/QString>

#include <memory>
#include <optional>

#include "Mode.h"
#include "World.h"

class UnitManagerDevice;

/// Which configurations an application names besides the units.
struct Settings
{
    SourceName dependencies;
    SourceName defaultUnits;
};

/// An application of the library at one of its levels.
class Application
{
public:
    virtual ~Application() = default;

    /// Builds the application of a mode; one that hears of changes by the event loop makes its first attempt
    /// here when it holds a wrapper.
    static std::unique_ptr<Application> create(const Mode& mode, const Settings& settings);

    virtual void init(const Settings& settings) = 0;
    virtual void reset() = 0;
    /// One call that advances the library. @return whether it idles.
    virtual bool check() = 0;
    /// Whether the configuration has changed since the last call; nothing at a level that does not know.
    virtual std::optional<bool> hasChanged() = 0;
    /// The unit manager in use; null when there is none.
    virtual QSharedPointer<const UnitManagerDevice> units() = 0;
    /// What is converted and said of two bar.
    virtual QString converted() = 0;
    /// The keys that depend on "PressureUnit"; nothing at a level that does not tell.
    virtual std::optional<QString> dependents() = 0;
};
