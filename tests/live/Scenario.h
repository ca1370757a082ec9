#pragma once

#include <QtCore/QMetaType>
#include <QtCore/QString>

#include <functional>

#include "Mode.h"

class Stage;

/// The modes that a scenario runs in.
namespace Modes {

inline bool wrapperOrConnector(const Mode& mode)
{
    return mode.level != Mode::Machine;
}

inline bool blocking(const Mode& mode)
{
    return wrapperOrConnector(mode) && mode.isBlocking;
}

inline bool asynchronous(const Mode& mode)
{
    return wrapperOrConnector(mode) && !mode.isBlocking;
}

} // namespace Modes

/// A sequence of operations of a stage with their expectations. The last operation is Stage::finish().
struct Scenario
{
    QString name;
    std::function<void(Stage&, const Mode&)> run;
    std::function<bool(const Mode&)> runsIn = Modes::wrapperOrConnector;
};

Q_DECLARE_METATYPE(Scenario)
