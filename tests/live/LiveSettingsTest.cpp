// Initialisation with other sources while the library is running.

#include "LiveTest.h"

using namespace Expected;
using namespace Fixtures;

namespace {

const Settings otherDefaultUnitSettings{Sources::dependencies, Sources::otherDefaultUnits};

const Source otherDefaultUnitSource{Sources::otherDefaultUnits,
                                    {defaultUnits("Bar"), defaultUnits("HectoPascal")}};

QString notDisconnected(const char* object)
{
    return QStringLiteral("warning Unable to disconnect connection \"%1\"").arg(QLatin1String(object));
}

/// The wrapper releases its objects immediately; the connector keeps its own until others are built.
QString conversionAfterInit(const Mode& mode)
{
    return mode.isWrapper() ? unconverted : inHectoPascal(1000);
}

// init() unsubscribes with the new names, so that the old subscription remains. The old name in its signals
// is then ignored.
void otherNames(Stage& stage)
{
    stage.startAllSources(changingWorld() << otherDefaultUnitSource);
    stage.application().init(otherDefaultUnitSettings);
    stage.expectConversion(conversionAfterInit(stage.mode));
    stage.expectChanged(false);
    stage.expectStart(restart(stage.mode), inBar(2000));
    stage.expectKept({inHectoPascal(1000)});
    stage.announce(Sources::defaultUnits);
    stage.checkUntilSettled(remainsIdle);
    stage.announce(Sources::otherDefaultUnits);
    stage.expectReload(inHectoPascal(2000));
    stage.expectKept({inHectoPascal(1000)});
    stage.finish(readAll +
                     QStringList{readUnits, readDependencies, readOtherDefaultUnits, readOtherDefaultUnits},
                 onlyIf(!stage.mode.isPolled, notDisconnected("OtherConfiguration")) +
                     QStringList{defaultUnitsChanged});
}

// The connector keeps its dependencies too, because no new ones replace them.
void fewerSources(Stage& stage)
{
    stage.startAllSources(changingWorld());
    stage.application().init(unitsOnly);
    stage.expectConversion(conversionAfterInit(stage.mode));
    stage.expectStart(restart(stage.mode), inBar(2000));
    stage.expectDependents("Pressure");
    stage.announce(Sources::defaultUnits);
    stage.announce(Sources::dependencies);
    stage.checkUntilSettled(remainsIdle);
    stage.announce(Sources::units);
    stage.expectReload(inBar(2000));
    stage.expectKept({inHectoPascal(1000)});
    stage.finish(readAll + QStringList{readUnits, readUnits}, {unitsChanged});
}

void moreSources(Stage& stage)
{
    stage.start(unitsOnly, changingWorld());
    stage.expectStart(firstStart(stage.mode), inBar(1000));
    stage.expectDependents("none");
    stage.application().init(allSources);
    stage.expectChanged(false);
    stage.expectStart(restart(stage.mode), inHectoPascal(2000));
    stage.expectDependents("Pressure");
    stage.announce(Sources::dependencies);
    stage.checkUntilChanged(reload(stage.mode));
    stage.expectDependents("Range");
    stage.finish(QStringList{readUnits} + readAll + QStringList{readDependencies}, {dependenciesChanged});
}

void initWithOutstandingReply(Stage& stage)
{
    stage.start(allSources, changingWorld({held(units(1000)), units(2000)}) << otherDefaultUnitSource);
    stage.checkUntilEntered(construction(stage.mode) + read(stage.mode));
    stage.checkNotIdle({}, 5);
    stage.application().init(otherDefaultUnitSettings);
    stage.release(Sources::units);
    stage.expectConversion(unconverted);
    stage.expectChanged(false);
    stage.expectStart(restart(stage.mode), inBar(2000));
    stage.finish(readAll + QStringList{readUnits, readDependencies, readOtherDefaultUnits},
                 onlyIf(!stage.mode.isPolled, notDisconnected("OtherConfiguration")));
}

// The query for the earlier change returns the old objects.
void initWithUnqueriedChange(Stage& stage)
{
    stage.start(allSources, changingWorld());
    stage.checkUntilIdle(firstStart(stage.mode));
    stage.application().init(allSources);
    stage.expectConversion(conversionAfterInit(stage.mode));
    stage.expectChanged(true);
    stage.expectConversion(inHectoPascal(1000));
    stage.expectChanged(false);
    stage.expectStart(restart(stage.mode), inBar(2000));
    stage.finish(readAll + readAll);
}

void initWithMissingModule(Stage& stage)
{
    stage.startAllSources(changingWorld() << Source{Sources::remoteDefaultUnits, {defaultUnits("Bar")}},
                          Modules::defaultUnitManager);
    stage.application().init({Sources::dependencies, Sources::remoteDefaultUnits});
    stage.checkNotIdle({State::initial});
    stage.expectConversion(conversionAfterInit(stage.mode));
    stage.startModule(Modules::defaultUnitManager);
    stage.expectStart(read(stage.mode) + update, inBar(2000));
    stage.finish(
        readAll + QStringList{readUnits, readDependencies, readRemoteDefaultUnits},
        onlyIf(!stage.mode.isPolled, notDisconnected("DefaultUnitConfiguration")) +
            QStringList{Recorder::repeated(stage.mode.isBlocking ? 100 : 1, defaultUnitsUnreachable)});
}

} // namespace

QList<Scenario> scenarios()
{
    return {{"init with other names", otherNames},
            {"init with the mandatory source alone", fewerSources},
            {"init with more sources", moreSources},
            {"init while a reply is outstanding", initWithOutstandingReply, Modes::asynchronous},
            {"init with a change that has not been queried", initWithUnqueriedChange},
            {"init with a source that is down", initWithMissingModule}};
}
