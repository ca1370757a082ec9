#include <QtTest/QTest>

#include "Expected.h"
#include "Fixtures.h"
#include "LiveTest.h"
#include "Stage.h"

using namespace Expected;
using namespace Fixtures;

// Initialisation with other sources while the library is running.
class LiveSettingsTest : public LiveTest
{
    Q_OBJECT

protected:
    QList<Scenario> scenarios() const override;
};

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
void otherNames(Stage& stage, const Mode& mode)
{
    stage.startAllSources(changingWorld() << otherDefaultUnitSource);
    stage.init(otherDefaultUnitSettings);
    stage.expectConversion(conversionAfterInit(mode));
    stage.expectUnchanged();
    stage.checkUntilIdle(restart(mode));
    stage.expectConversion(inBar(2000));
    stage.expectChanged();
    stage.expectKept({inHectoPascal(1000)});
    stage.announce(Sources::defaultUnits);
    stage.checkUntilSettled(remainsIdle);
    stage.announce(Sources::otherDefaultUnits);
    stage.checkUntilChanged(reload(mode));
    stage.expectConversion(inHectoPascal(2000));
    stage.expectKept({inHectoPascal(1000)});
    stage.finish(
        readAll + QStringList{readUnits, readDependencies, readOtherDefaultUnits, readOtherDefaultUnits},
        onlyIf(!mode.isPolled, notDisconnected("OtherConfiguration")) + QStringList{defaultUnitsChanged});
}

// The connector keeps its dependencies too, because no new ones replace them.
void fewerSources(Stage& stage, const Mode& mode)
{
    stage.startAllSources(changingWorld());
    stage.init(unitsOnly);
    stage.expectConversion(conversionAfterInit(mode));
    stage.checkUntilIdle(restart(mode));
    stage.expectConversion(inBar(2000));
    stage.expectDependents("Pressure");
    stage.expectChanged();
    stage.announce(Sources::defaultUnits);
    stage.announce(Sources::dependencies);
    stage.checkUntilSettled(remainsIdle);
    stage.announce(Sources::units);
    stage.checkUntilChanged(reload(mode));
    stage.expectConversion(inBar(2000));
    stage.expectKept({inHectoPascal(1000)});
    stage.finish(readAll + QStringList{readUnits, readUnits}, {unitsChanged});
}

void moreSources(Stage& stage, const Mode& mode)
{
    stage.serve(changingWorld());
    stage.start(unitsOnly);
    stage.checkUntilIdle(firstStart(mode));
    stage.expectConversion(inBar(1000));
    stage.expectDependents("none");
    stage.expectChanged();
    stage.init(allSources);
    stage.expectUnchanged();
    stage.checkUntilIdle(restart(mode));
    stage.expectConversion(inHectoPascal(2000));
    stage.expectDependents("Pressure");
    stage.expectChanged();
    stage.announce(Sources::dependencies);
    stage.checkUntilChanged(reload(mode));
    stage.expectDependents("Range");
    stage.finish(QStringList{readUnits} + readAll + QStringList{readDependencies}, {dependenciesChanged});
}

void initWithOutstandingReply(Stage& stage, const Mode& mode)
{
    stage.serve(changingWorld({Answer::held(Documents::units(1000)), units(2000)}) << otherDefaultUnitSource);
    stage.start(allSources);
    stage.checkUntilEntered(startUntilWaiting(mode));
    stage.checkNotIdle({}, 5);
    stage.init(otherDefaultUnitSettings);
    stage.release(Sources::units);
    stage.expectConversion(unconverted);
    stage.expectUnchanged();
    stage.checkUntilIdle(restart(mode));
    stage.expectConversion(inBar(2000));
    stage.expectChanged();
    stage.finish(readAll + QStringList{readUnits, readDependencies, readOtherDefaultUnits},
                 onlyIf(!mode.isPolled, notDisconnected("OtherConfiguration")));
}

// The query for the earlier change returns the old objects.
void initWithUnqueriedChange(Stage& stage, const Mode& mode)
{
    stage.serve(changingWorld());
    stage.start(allSources);
    stage.checkUntilIdle(firstStart(mode));
    stage.init(allSources);
    stage.expectConversion(conversionAfterInit(mode));
    stage.expectChanged();
    stage.expectConversion(inHectoPascal(1000));
    stage.expectUnchanged();
    stage.checkUntilIdle(restart(mode));
    stage.expectConversion(inBar(2000));
    stage.expectChanged();
    stage.finish(readAll + readAll);
}

void initWithMissingModule(Stage& stage, const Mode& mode)
{
    stage.startAllSources(changingWorld() << Source{Sources::remoteDefaultUnits, {defaultUnits("Bar")}},
                          Modules::defaultUnitManager);
    stage.init({Sources::dependencies, Sources::remoteDefaultUnits});
    stage.checkNotIdle({State::initial});
    stage.expectConversion(conversionAfterInit(mode));
    stage.startModule(Modules::defaultUnitManager);
    stage.checkUntilIdle(read(mode) + update);
    stage.expectConversion(inBar(2000));
    stage.expectChanged();
    stage.finish(readAll + QStringList{readUnits, readDependencies, readRemoteDefaultUnits},
                 onlyIf(!mode.isPolled, notDisconnected("DefaultUnitConfiguration")) +
                     QStringList{Recorder::repeated(mode.isBlocking ? 100 : 1, defaultUnitsUnreachable)});
}

} // namespace

QList<Scenario> LiveSettingsTest::scenarios() const
{
    return {{"init with other names", otherNames},
            {"init with the mandatory source alone", fewerSources},
            {"init with more sources", moreSources},
            {"init while a reply is outstanding", initWithOutstandingReply, Modes::asynchronous},
            {"init with a change that has not been queried", initWithUnqueriedChange},
            {"init with a source that is down", initWithMissingModule}};
}

QTEST_GUILESS_MAIN(LiveSettingsTest)

#include "LiveSettingsTest.moc"
