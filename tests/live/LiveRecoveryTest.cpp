// Failures while the library is running, and the recovery from them.

#include "LiveTest.h"

using namespace Expected;
using namespace Fixtures;

namespace {

const QString notConnected =
    QStringLiteral("warning Unitswitch connector: Cannot call method configuration get via DBus");

// The connector replaces the good document by the one that cannot be loaded, the wrapper does so only when it
// detects the change. The restart after the error reads all sources.
void goodThenBrokenThenGood(Stage& stage)
{
    stage.startAllSources(fullWorld({units(1000), brokenUnits(), units(3000)}));
    stage.announce(Sources::units);
    stage.checkUntilEntered(changeDetected(stage.mode) + read(stage.mode) +
                            QStringList{State::update, Signal::configurationChanged, State::error});
    stage.expectConversion(stage.mode.isWrapper() ? inHectoPascal(1000) : unconverted);
    stage.expectChanged(true);
    stage.expectConversion(unconverted);
    stage.expectKept({inHectoPascal(1000)});
    stage.expectDependents("Pressure");
    stage.keepUnits();
    stage.expectStart(restart(stage.mode), inHectoPascal(3000));
    stage.expectKept({inHectoPascal(1000), unconverted});
    stage.checkUntilSettled(remainsIdle);
    stage.finish(readAll + QStringList{readUnits} + readAll, {unitsChanged, unitsInvalid});
}

void changeWhoseReadFails(Stage& stage)
{
    stage.startAllSources(fullWorld({units(1000), {Answer::Error}, units(3000)}));
    stage.announce(Sources::units);
    stage.checkUntilEntered(failedReload(stage.mode));
    stage.expectConversion(inHectoPascal(1000));
    stage.expectChanged(false);
    stage.expectConversion(inHectoPascal(1000));
    stage.expectStart(restart(stage.mode), inHectoPascal(3000));
    stage.expectKept({inHectoPascal(1000)});
    stage.finish(readAll + QStringList{readUnits} + readAll,
                 QStringList{unitsChanged} + onlyIf(stage.mode.isBlocking, unitsUnread));
}

/// Logged by the first check after an error while the service is away. The error state itself makes no
/// attempt: with immediate entry its step is the first one of the check, with deferred entry it has already
/// run.
QStringList attemptsAfterError(const Mode& mode)
{
    if (mode.isBlocking)
        return {Recorder::repeated(mode.isDeferred ? 100 : 99, unitsUnreachable)};
    return onlyIf(mode.isDeferred, unitsUnreachable);
}

void deathDuringTheFirstRead(Stage& stage)
{
    stage.start(unitsOnly, unitsWorld({{Answer::Death}, units(2000)}));
    stage.checkUntilEntered(failedStart(stage.mode));
    stage.expectConversion(unconverted);
    stage.checkNotIdle({State::initial});
    stage.startModule(Modules::deviceManager);
    stage.expectStart(read(stage.mode) + update, inBar(2000));
    stage.finish({readUnits, readUnits},
                 onlyIf(stage.mode.isBlocking, unitsUnread) + attemptsAfterError(stage.mode));
}

void deathDuringALaterRead(Stage& stage)
{
    stage.startAllSources(fullWorld({units(1000), {Answer::Death}, units(3000)}));
    stage.announce(Sources::units);
    stage.checkUntilEntered(failedReload(stage.mode));
    stage.expectConversion(inHectoPascal(1000));
    stage.expectChanged(false);
    stage.checkNotIdle({State::initial});
    stage.expectConversion(inHectoPascal(1000));
    stage.startModule(Modules::deviceManager);
    stage.expectStart(read(stage.mode) + update, inHectoPascal(3000));
    stage.expectKept({inHectoPascal(1000)});
    stage.finish(readAll + QStringList{readUnits} + readAll, QStringList{unitsChanged} +
                                                                 onlyIf(stage.mode.isBlocking, unitsUnread) +
                                                                 attemptsAfterError(stage.mode));
}

void restartWhileIdle(Stage& stage)
{
    stage.startAllSources(changingWorld());
    stage.stopModule(Modules::deviceManager);
    stage.checkIdle(idleChecks(3), 3);
    stage.expectConversion(inHectoPascal(1000));
    stage.startModule(Modules::deviceManager);
    stage.checkIdle(idleChecks(3), 3);
    stage.announce(Sources::units);
    stage.expectReload(inHectoPascal(2000));
    stage.expectKept({inHectoPascal(1000)});
    stage.finish(readAll + QStringList{readUnits}, {unitsChanged});
}

/// A reload that fails because a module is not on the bus: an asynchronous read fails at its start.
QStringList unconnectedReload(const Mode& mode)
{
    return changeDetected(mode) +
           QStringList{mode.isBlocking ? State::readBlocking : State::readAsynchronous, State::error};
}

void deathBetweenChangeAndRead(Stage& stage)
{
    stage.startAllSources(changingWorld());
    stage.announce(Sources::units);
    stage.stopModule(Modules::deviceManager);
    stage.checkUntilEntered(unconnectedReload(stage.mode));
    stage.expectConversion(inHectoPascal(1000));
    stage.expectChanged(false);
    stage.startModule(Modules::deviceManager);
    stage.expectStart(restart(stage.mode), inBar(2000));
    stage.finish(readAll + readAll, {unitsChanged, notConnected});
}

// While an optional module is missing, the others are not read either.
void deathOfAnOptionalModule(Stage& stage)
{
    stage.start({Sources::none, Sources::remoteDefaultUnits},
                changingWorld() << Source{Sources::remoteDefaultUnits, {defaultUnits()}});
    stage.checkUntilIdle(firstStart(stage.mode));
    stage.expectChanged(true);
    stage.stopModule(Modules::defaultUnitManager);
    stage.announce(Sources::units);
    stage.checkUntilEntered(unconnectedReload(stage.mode));
    stage.expectConversion(inHectoPascal(1000));
    stage.startModule(Modules::defaultUnitManager);
    stage.expectStart(restart(stage.mode), inHectoPascal(2000));
    stage.finish({readUnits, readRemoteDefaultUnits, readUnits, readRemoteDefaultUnits},
                 {unitsChanged, notConnected});
}

} // namespace

QList<Scenario> scenarios()
{
    return {{"good document, then a broken one, then a good one", goodThenBrokenThenGood},
            {"change whose read fails", changeWhoseReadFails},
            {"service that dies during the first read and comes back", deathDuringTheFirstRead},
            {"service that dies during a later read and comes back", deathDuringALaterRead},
            {"service that is restarted while the library idles", restartWhileIdle},
            {"service that dies between a change and its read", deathBetweenChangeAndRead},
            {"optional module that dies before a change of the units", deathOfAnOptionalModule}};
}
