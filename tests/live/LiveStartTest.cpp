// From the construction to a usable unit manager, also when parts of the service are missing.

#include "LiveTest.h"

using namespace Expected;
using namespace Fixtures;

namespace {

void threeSources(Stage& stage)
{
    stage.start(allSources, fullWorld());
    const bool startsInConstructor = stage.mode.isWrapper() && stage.mode.isBlocking && !stage.mode.isPolled;
    stage.expectConversion(startsInConstructor ? inHectoPascal(1000) : unconverted);
    stage.expectStart(firstStart(stage.mode), inHectoPascal(1000));
    stage.expectDependents("Pressure");
    stage.expectChanged(false);
    stage.checkUntilSettled(remainsIdle);
    stage.finish(readAll);
}

void onlyTheMandatorySource(Stage& stage)
{
    stage.start(unitsOnly, fullWorld());
    stage.expectStart(firstStart(stage.mode), inBar(1000));
    stage.expectDependents("none");
    stage.expectChanged(false);
    stage.finish({readUnits});
}

void startWithoutDependencies(Stage& stage, const SourceName& dependencySource)
{
    stage.start({dependencySource, Sources::defaultUnits}, fullWorld());
    stage.expectStart(firstStart(stage.mode), inHectoPascal(1000));
    stage.expectDependents("none");
    stage.finish({readUnits, readDefaultUnits});
}

void checkTwiceInVain(Stage& stage)
{
    stage.start(allSources);
    stage.checkNotIdle(construction(stage.mode));
    stage.expectConversion(unconverted);
    stage.checkNotIdle({});
    stage.expectChanged(false);
    stage.finish({}, {perAttempt(stage.mode, 2, unitsUnreachable)});
}

void noBus(Stage& stage)
{
    stage.withoutBus();
    checkTwiceInVain(stage);
}

/// A module of the service is missing until the first check has failed.
void startWithLateModule(Stage& stage, const Settings& settings, const World& world, const QString& module)
{
    stage.start(settings, world, module);
    stage.checkNotIdle(construction(stage.mode));
    stage.expectConversion(unconverted);
    stage.startModule(module);
    stage.expectStart(read(stage.mode) + update, inHectoPascal(1000));
}

void serviceAppearsLater(Stage& stage)
{
    startWithLateModule(stage, allSources, fullWorld(), Modules::deviceManager);
    stage.finish(readAll, {perAttempt(stage.mode, 1, unitsUnreachable)});
}

void optionalSourceAppearsLater(Stage& stage)
{
    startWithLateModule(stage, {Sources::dependencies, Sources::remoteDefaultUnits},
                        fullWorld() << Source{Sources::remoteDefaultUnits, {defaultUnits()}},
                        Modules::defaultUnitManager);
    stage.finish({readUnits, readDependencies, readRemoteDefaultUnits},
                 {perAttempt(stage.mode, 1, defaultUnitsUnreachable)});
}

void serviceWithoutTheObject(Stage& stage)
{
    stage.start(unitsOnly, {{Sources::dependencies, {dependencies()}}});
    stage.checkUntilEntered(failedStart(stage.mode));
    stage.expectConversion(unconverted);
    stage.checkUntilEntered(QStringList{State::initial} + read(stage.mode) + QStringList{State::error});
    stage.expectChanged(false);
    stage.finish({}, onlyIf(stage.mode.isBlocking, Recorder::repeated(2, unitsUnread)));
}

} // namespace

QList<Scenario> scenarios()
{
    const SourceName unnamed{Modules::deviceManager, "DependencyConfiguration", ""};
    return {{"all three sources", threeSources},
            {"only the mandatory source", onlyTheMandatorySource},
            {"no dependencies configured", with(startWithoutDependencies, Sources::none)},
            {"an optional source with an empty name", with(startWithoutDependencies, unnamed)},
            {"no bus", noBus},
            {"bus without service", checkTwiceInVain},
            {"service that appears later", serviceAppearsLater},
            {"service without the object", serviceWithoutTheObject},
            {"an optional source down, which appears later", optionalSourceAppearsLater}};
}
