#pragma once

#include <QtCore/QList>
#include <QtCore/QMetaType>
#include <QtCore/QString>

#include <functional>

// Everything that scenarios are written with.
#include "Expected.h"
#include "Fixtures.h"
#include "Mode.h"
#include "Stage.h"

/// The modes that a scenario runs in.
namespace Modes {

const auto wrapperOrConnector = [](const Mode& mode) {
    return mode.level != Mode::Machine;
};
const auto blocking = [](const Mode& mode) {
    return wrapperOrConnector(mode) && mode.isBlocking;
};
const auto asynchronous = [](const Mode& mode) {
    return wrapperOrConnector(mode) && !mode.isBlocking;
};

} // namespace Modes

/// Operations of a stage in order, with their expectations. The last one is Stage::finish().
struct Scenario
{
    QString name;
    std::function<void(Stage&)> run;
    std::function<bool(const Mode&)> runsIn = Modes::wrapperOrConnector;
};

Q_DECLARE_METATYPE(Scenario)

/// Scenario::run of a function that has more parameters than the stage.
template <typename Function, typename... Arguments>
std::function<void(Stage&)> with(Function function, Arguments... arguments)
{
    return [=](Stage& stage) {
        function(stage, arguments...);
    };
}

/// The scenarios of a test program, which runs each of them in each of its modes; defined in the file of the
/// program's name.
QList<Scenario> scenarios();
