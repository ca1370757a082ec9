// Reset and destruction in each state of the machine.

#include "LiveTest.h"

using namespace Expected;
using namespace Fixtures;

namespace {

/// What is expected after an application with all sources has been brought to a state.
struct Reached
{
    QStringList reads = {}; ///< so far
    QString conversion = unconverted;
    QString restartConversion = inHectoPascal(2000);
    QStringList eventsBeforeRestart = {};
    QStringList messages = {};     ///< so far
    QStringList lateMessages = {}; ///< when the application continues
};

/// A state, and the way to it from the start of an application.
///
/// With immediate entry, the state has been entered, but its step is still to come. With deferred entry, the
/// step has been made as well.
struct Place
{
    QString name;
    std::function<bool(const Mode&)> runsIn;
    std::function<Reached(Stage&)> reach;
};

const auto everyLevel = [](const Mode& /*mode*/) {
    return true;
};
const auto asynchronous = [](const Mode& mode) {
    return !mode.isBlocking;
};
const auto blockingMachine = [](const Mode& mode) {
    return mode.isBlocking && mode.level == Mode::Machine;
};
// A blocking check of the wrapper or the connector ends in the initial, idle or error state.
const auto stopsInEveryState = [](const Mode& mode) {
    return !mode.isBlocking || mode.level == Mode::Machine;
};
// A wrapper to which changes are delivered leaves the initial state in its constructor.
const auto startsInInitialState = [](const Mode& mode) {
    return !mode.isWrapper() || mode.isPolled;
};

World plainWorld()
{
    return fullWorld({units(1000), units(2000)}, {dependencies("Pressure"), dependencies("Range")});
}

World heldWorld()
{
    return fullWorld({held(units(1000)), units(2000)},
                     {held(dependencies("Pressure")), dependencies("Range")},
                     {held(defaultUnits("Bar")), defaultUnits()});
}

Reached initial(Stage& stage)
{
    stage.start(allSources, plainWorld());
    // With deferred entry nothing is entered before the first step.
    stage.expectEvents(stage.mode.isDeferred ? QStringList() : construction(stage.mode));
    return {{}, unconverted, inHectoPascal(1000)};
}

Reached startingToRead(Stage& stage)
{
    stage.start(allSources, plainWorld());
    stage.checkUntilEntered(construction(stage.mode) + QStringList{read(stage.mode).first()});
    if (stage.mode.isDeferred)
        return {readAll};
    return {{}, unconverted, inHectoPascal(1000)};
}

Reached waiting(Stage& stage)
{
    stage.start(allSources, heldWorld());
    stage.checkUntilEntered(construction(stage.mode) + read(stage.mode));
    stage.checkNotIdle({}, 5);
    return {readAll};
}

Reached waitingForLastReply(Stage& stage)
{
    stage.start(allSources, heldWorld());
    stage.checkUntilEntered(construction(stage.mode) + read(stage.mode));
    stage.release(Sources::units);
    stage.release(Sources::dependencies);
    stage.checkNotIdle({});
    return {readAll};
}

Reached updating(Stage& stage)
{
    stage.start(allSources, plainWorld());
    stage.checkUntilEntered(construction(stage.mode) + read(stage.mode) + QStringList{State::update});
    if (!stage.mode.isDeferred)
        return {readAll};
    // The objects have been built. They are announced by the next step, which begins in the update state
    // although it enters another one; until then the wrapper has none.
    return {readAll,
            stage.mode.isWrapper() ? unconverted : inHectoPascal(1000),
            inHectoPascal(2000),
            {Signal::configurationChanged}};
}

Reached idling(Stage& stage)
{
    stage.start(allSources, plainWorld());
    stage.checkUntilIdle(firstStart(stage.mode));
    return {readAll, inHectoPascal(1000)};
}

Reached idlingWithChange(Stage& stage)
{
    Reached reached = idling(stage);
    stage.announce(Sources::units);
    reached.lateMessages = onlyIf(!stage.mode.isPolled, unitsChanged);
    return reached;
}

Reached failed(Stage& stage)
{
    stage.start(allSources, fullWorld({{Answer::Error}, units(2000)}, {dependencies("Range")}));
    stage.checkUntilEntered(failedStart(stage.mode));
    Reached reached{readAll};
    reached.messages = onlyIf(stage.mode.isBlocking, unitsUnread);
    return reached;
}

/// Late replies to the calls that were given up; at most places there are none.
void releaseAll(Stage& stage)
{
    stage.release(Sources::units);
    stage.release(Sources::dependencies);
    stage.release(Sources::defaultUnits);
}

// The objects that were built remain until others replace them, and an announced change needs no read of its
// own.
void resetIn(Stage& stage, const Place& place)
{
    const Reached reached = place.reach(stage);
    stage.application().reset();
    stage.expectChanged(false);
    stage.expectConversion(reached.conversion);
    stage.expectStart(reached.eventsBeforeRestart + restart(stage.mode), reached.restartConversion);
    releaseAll(stage);
    stage.checkUntilSettled(remainsIdle);
    stage.expectConversion(reached.restartConversion);
    stage.finish(reached.reads + readAll, reached.messages + reached.lateMessages);
}

void destructionIn(Stage& stage, const Place& place)
{
    const Reached reached = place.reach(stage);
    stage.keepUnits();
    stage.application() = {};
    stage.expectKept({reached.conversion});
    releaseAll(stage);
    stage.finish(reached.reads, reached.messages);
}

} // namespace

QList<Scenario> scenarios()
{
    const QList<Place> places{{"the initial state", startsInInitialState, initial},
                              {"the blocking read", blockingMachine, startingToRead},
                              {"the start of the reads", asynchronous, startingToRead},
                              {"the wait for replies", asynchronous, waiting},
                              {"the wait for the last reply", asynchronous, waitingForLastReply},
                              {"the update", stopsInEveryState, updating},
                              {"the idle state", everyLevel, idling},
                              {"the idle state with a change announced", everyLevel, idlingWithChange},
                              {"the error state", everyLevel, failed}};
    QList<Scenario> list;
    for (const Place& place : places) {
        list.append({"reset in " + place.name, with(resetIn, place), place.runsIn});
        list.append({"destruction in " + place.name, with(destructionIn, place), place.runsIn});
    }
    return list;
}
