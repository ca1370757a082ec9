#include <QtTest/QTest>

#include "Expected.h"
#include "Fixtures.h"
#include "LiveTest.h"
#include "Stage.h"

using namespace Expected;
using namespace Fixtures;

// From the construction to a usable unit manager, also when parts of the service are missing.
class LiveStartTest : public LiveTest
{
    Q_OBJECT

protected:
    QList<Scenario> scenarios() const override;
};

namespace {

void threeSources(Stage& stage, const Mode& mode)
{
    stage.serve(fullWorld());
    stage.start(allSources);
    const bool startsInConstructor = mode.isWrapper() && mode.isBlocking && !mode.isPolled;
    stage.expectConversion(startsInConstructor ? inHectoPascal(1000) : unconverted);
    stage.checkUntilIdle(firstStart(mode));
    stage.expectConversion(inHectoPascal(1000));
    stage.expectDependents("Pressure");
    stage.expectChanged();
    stage.expectUnchanged();
    stage.checkUntilSettled(remainsIdle);
    stage.finish(readAll);
}

void onlyTheMandatorySource(Stage& stage, const Mode& mode)
{
    stage.serve(fullWorld());
    stage.start(unitsOnly);
    stage.checkUntilIdle(firstStart(mode));
    stage.expectConversion(inBar(1000));
    stage.expectDependents("none");
    stage.expectChanged();
    stage.expectUnchanged();
    stage.finish({readUnits});
}

void startWithoutDependencies(Stage& stage, const Mode& mode, const SourceName& dependencySource)
{
    stage.serve(fullWorld());
    stage.start({dependencySource, Sources::defaultUnits});
    stage.checkUntilIdle(firstStart(mode));
    stage.expectConversion(inHectoPascal(1000));
    stage.expectDependents("none");
    stage.expectChanged();
    stage.finish({readUnits, readDefaultUnits});
}

void noDependencies(Stage& stage, const Mode& mode)
{
    startWithoutDependencies(stage, mode, Sources::none);
}

void optionalSourceWithoutName(Stage& stage, const Mode& mode)
{
    startWithoutDependencies(stage, mode, {"DeviceManager", "DependencyConfiguration", ""});
}

void checkTwiceInVain(Stage& stage, const Mode& mode)
{
    stage.start(allSources);
    stage.checkNotIdle(construction(mode));
    stage.expectConversion(unconverted);
    stage.checkNotIdle({});
    stage.expectUnchanged();
    stage.finish({}, {perAttempt(mode, 2, unitsUnreachable)});
}

void noBus(Stage& stage, const Mode& mode)
{
    stage.withoutBus();
    checkTwiceInVain(stage, mode);
}

void busWithoutService(Stage& stage, const Mode& mode)
{
    checkTwiceInVain(stage, mode);
}

/// A start in which one module of the service is missing until after the first check.
void startWithLateModule(Stage& stage, const Mode& mode, const Settings& settings, const QString& module)
{
    stage.start(settings);
    stage.checkNotIdle(construction(mode));
    stage.expectConversion(unconverted);
    stage.startModule(module);
    stage.checkUntilIdle(read(mode) + update);
    stage.expectConversion(inHectoPascal(1000));
    stage.expectChanged();
}

void serviceAppearsLater(Stage& stage, const Mode& mode)
{
    stage.serve(fullWorld(), Modules::deviceManager);
    startWithLateModule(stage, mode, allSources, Modules::deviceManager);
    stage.finish(readAll, {perAttempt(mode, 1, unitsUnreachable)});
}

void serviceWithoutTheObject(Stage& stage, const Mode& mode)
{
    stage.serve({{Sources::dependencies, {dependencies()}}});
    stage.start(unitsOnly);
    stage.checkUntilEntered(failedStart(mode));
    stage.expectConversion(unconverted);
    stage.checkUntilEntered(QStringList{State::initial} + read(mode) + QStringList{State::error});
    stage.expectUnchanged();
    stage.finish({}, onlyIf(mode.isBlocking, Recorder::repeated(2, unitsUnread)));
}

void optionalSourceAppearsLater(Stage& stage, const Mode& mode)
{
    stage.serve(fullWorld() << Source{Sources::remoteDefaultUnits, {defaultUnits()}},
                Modules::defaultUnitManager);
    startWithLateModule(stage, mode, {Sources::dependencies, Sources::remoteDefaultUnits},
                        Modules::defaultUnitManager);
    stage.finish({readUnits, readDependencies, readRemoteDefaultUnits},
                 {perAttempt(mode, 1, defaultUnitsUnreachable)});
}

} // namespace

QList<Scenario> LiveStartTest::scenarios() const
{
    return {{"all three sources", threeSources},
            {"only the mandatory source", onlyTheMandatorySource},
            {"no dependencies configured", noDependencies},
            {"an optional source with an empty name", optionalSourceWithoutName},
            {"no bus", noBus},
            {"bus without service", busWithoutService},
            {"service that appears later", serviceAppearsLater},
            {"service without the object", serviceWithoutTheObject},
            {"an optional source down, which appears later", optionalSourceAppearsLater}};
}

QTEST_GUILESS_MAIN(LiveStartTest)

#include "LiveStartTest.moc"
