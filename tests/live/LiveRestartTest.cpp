#include <QtTest/QTest>

#include "Expected.h"
#include "Fixtures.h"
#include "LiveTest.h"
#include "Stage.h"

using namespace Expected;
using namespace Fixtures;

// Reset and destruction in each state of the machine.
class LiveRestartTest : public LiveTest
{
    Q_OBJECT

protected:
    QList<Scenario> scenarios() const override;
};

namespace {

/// What is expected after a start has been brought to a state.
struct Reached
{
    QStringList reads;        ///< so far
    QStringList messages;     ///< so far
    QStringList lateMessages; ///< when the application runs on
    QString conversion = unconverted;
    QStringList restart; ///< events of a start after a reset
    QString restartConversion = inHectoPascal(2000);
};

/// A state, and the way to it from the construction of an application with all sources.
///
/// With immediate entry, the last state of the way has been entered but not been stepped yet. With deferred
/// entry, a state is stepped when it is entered.
struct Place
{
    QString name;
    std::function<bool(const Mode&)> runsIn;
    std::function<Reached(Stage&, const Mode&)> reach;
};

bool everyLevel(const Mode& /*mode*/)
{
    return true;
}

bool asynchronous(const Mode& mode)
{
    return !mode.isBlocking;
}

bool blockingMachine(const Mode& mode)
{
    return mode.isBlocking && mode.level == Mode::Machine;
}

// A blocking check of the wrapper or the connector ends in the initial, idle or error state.
bool stopsInEveryState(const Mode& mode)
{
    return asynchronous(mode) || mode.level == Mode::Machine;
}

// A wrapper to which changes are delivered leaves the initial state in its constructor.
bool startsInInitialState(const Mode& mode)
{
    return !mode.isWrapper() || mode.isPolled;
}

World plainWorld()
{
    return fullWorld({units(1000), units(2000)}, {dependencies("Pressure"), dependencies("Range")});
}

World heldWorld()
{
    return fullWorld({Answer::held(Documents::units(1000)), units(2000)},
                     {Answer::held(Documents::dependencies("Pressure")), dependencies("Range")},
                     {Answer::held(Documents::defaultUnits("Bar")), defaultUnits()});
}

void serveAndStart(Stage& stage, const World& world)
{
    stage.serve(world);
    stage.start(allSources);
}

Reached initial(Stage& stage, const Mode& mode)
{
    serveAndStart(stage, plainWorld());
    // With deferred entry nothing is entered before the first step.
    stage.expectEvents(mode.isDeferred ? QStringList() : construction(mode));
    Reached reached{{}, {}, {}, unconverted, restart(mode)};
    reached.restartConversion = inHectoPascal(1000);
    return reached;
}

/// The start of the reads: with deferred entry, the state has sent them.
Reached reading(Stage& stage, const Mode& mode)
{
    serveAndStart(stage, plainWorld());
    stage.checkUntilEntered(construction(mode) + QStringList{read(mode).first()});
    Reached reached{mode.isDeferred ? readAll : QStringList(), {}, {}, unconverted, restart(mode)};
    reached.restartConversion = inHectoPascal(mode.isDeferred ? 2000 : 1000);
    return reached;
}

Reached waiting(Stage& stage, const Mode& mode)
{
    serveAndStart(stage, heldWorld());
    stage.checkUntilEntered(startUntilWaiting(mode));
    stage.checkNotIdle({}, 5);
    return {readAll, {}, {}, unconverted, restart(mode)};
}

Reached waitingForLastReply(Stage& stage, const Mode& mode)
{
    serveAndStart(stage, heldWorld());
    stage.checkUntilEntered(startUntilWaiting(mode));
    stage.release(Sources::units);
    stage.release(Sources::dependencies);
    stage.checkNotIdle({});
    return {readAll, {}, {}, unconverted, restart(mode)};
}

// With deferred entry the objects have been built. A wrapper has not got them yet: the next step, which
// begins in the update state although it enters another one, announces them.
Reached updating(Stage& stage, const Mode& mode)
{
    serveAndStart(stage, plainWorld());
    stage.checkUntilEntered(construction(mode) + read(mode) + QStringList{State::update});
    if (!mode.isDeferred)
        return {readAll, {}, {}, unconverted, restart(mode)};
    return {readAll,
            {},
            {},
            mode.isWrapper() ? unconverted : inHectoPascal(1000),
            QStringList{Signal::configurationChanged} + restart(mode)};
}

Reached idling(Stage& stage, const Mode& mode)
{
    serveAndStart(stage, plainWorld());
    stage.checkUntilIdle(firstStart(mode));
    return {readAll, {}, {}, inHectoPascal(1000), restart(mode)};
}

Reached idlingWithChange(Stage& stage, const Mode& mode)
{
    Reached reached = idling(stage, mode);
    stage.announce(Sources::units);
    reached.lateMessages = onlyIf(!mode.isPolled, unitsChanged);
    return reached;
}

Reached failed(Stage& stage, const Mode& mode)
{
    serveAndStart(stage, fullWorld({Answer::error(), units(2000)}, {dependencies("Range")}));
    stage.checkUntilEntered(failedStart(mode));
    return {readAll, onlyIf(mode.isBlocking, unitsUnread), {}, unconverted, restart(mode)};
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
void resetIn(const Place& place, Stage& stage, const Mode& mode)
{
    const Reached reached = place.reach(stage, mode);
    stage.reset();
    stage.expectUnchanged();
    stage.expectConversion(reached.conversion);
    stage.checkUntilIdle(reached.restart);
    stage.expectConversion(reached.restartConversion);
    stage.expectChanged();
    releaseAll(stage);
    stage.checkUntilSettled(remainsIdle);
    stage.expectConversion(reached.restartConversion);
    stage.finish(reached.reads + readAll, reached.messages + reached.lateMessages);
}

void destructionIn(const Place& place, Stage& stage, const Mode& mode)
{
    const Reached reached = place.reach(stage, mode);
    stage.keepUnits();
    stage.destroy();
    stage.expectKept({reached.conversion});
    releaseAll(stage);
    stage.finish(reached.reads, reached.messages);
}

} // namespace

QList<Scenario> LiveRestartTest::scenarios() const
{
    const QList<Place> places{{"the initial state", startsInInitialState, initial},
                              {"the blocking read", blockingMachine, reading},
                              {"the start of the reads", asynchronous, reading},
                              {"the wait for replies", asynchronous, waiting},
                              {"the wait for the last reply", asynchronous, waitingForLastReply},
                              {"the update", stopsInEveryState, updating},
                              {"the idle state", everyLevel, idling},
                              {"the idle state with a change announced", everyLevel, idlingWithChange},
                              {"the error state", everyLevel, failed}};
    QList<Scenario> list;
    for (const Place& place : places) {
        list.append({"reset in " + place.name,
                     [place](Stage& stage, const Mode& mode) { resetIn(place, stage, mode); }, place.runsIn});
        list.append({"destruction in " + place.name,
                     [place](Stage& stage, const Mode& mode) { destructionIn(place, stage, mode); },
                     place.runsIn});
    }
    return list;
}

QTEST_GUILESS_MAIN(LiveRestartTest)

#include "LiveRestartTest.moc"
