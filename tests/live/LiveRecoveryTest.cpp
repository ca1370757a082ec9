#include <QtTest/QTest>

#include "Expected.h"
#include "Fixtures.h"
#include "LiveTest.h"
#include "Stage.h"

using namespace Expected;
using namespace Fixtures;

// Failures while the library is running, and the recovery from them.
class LiveRecoveryTest : public LiveTest
{
    Q_OBJECT

protected:
    QList<Scenario> scenarios() const override;
};

namespace {

const QString notConnected =
    QStringLiteral("warning Unitswitch connector: Cannot call method configuration get via DBus");

/// Brings the library from the error state back to the idle state with new documents.
void recover(Stage& stage, const QStringList& events, const QString& conversion)
{
    stage.checkUntilIdle(events);
    stage.expectConversion(conversion);
    stage.expectChanged();
}

// The connector replaces the good document by the one that cannot be loaded, the wrapper does so only when it
// detects the change. The restart after the error reads all sources.
void goodThenBrokenThenGood(Stage& stage, const Mode& mode)
{
    stage.startAllSources(fullWorld({units(1000), Answer::with(Documents::broken()), units(3000)}));
    stage.announce(Sources::units);
    stage.checkUntilEntered(changeDetected(mode) + read(mode) +
                            QStringList{State::update, Signal::configurationChanged, State::error});
    stage.expectConversion(mode.isWrapper() ? inHectoPascal(1000) : unconverted);
    stage.expectChanged();
    stage.expectConversion(unconverted);
    stage.expectKept({inHectoPascal(1000)});
    stage.expectDependents("Pressure");
    stage.keepUnits();
    recover(stage, restart(mode), inHectoPascal(3000));
    stage.expectKept({inHectoPascal(1000), unconverted});
    stage.checkUntilSettled(remainsIdle);
    stage.finish(readAll + QStringList{readUnits} + readAll, {unitsChanged, unitsInvalid});
}

void changeWhoseReadFails(Stage& stage, const Mode& mode)
{
    stage.startAllSources(fullWorld({units(1000), Answer::error(), units(3000)}));
    stage.announce(Sources::units);
    stage.checkUntilEntered(failedReload(mode));
    stage.expectConversion(inHectoPascal(1000));
    stage.expectUnchanged();
    stage.expectConversion(inHectoPascal(1000));
    recover(stage, restart(mode), inHectoPascal(3000));
    stage.expectKept({inHectoPascal(1000)});
    stage.finish(readAll + QStringList{readUnits} + readAll,
                 QStringList{unitsChanged} + onlyIf(mode.isBlocking, unitsUnread));
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

void deathDuringTheFirstRead(Stage& stage, const Mode& mode)
{
    stage.serve(unitsWorld({Answer::death(), units(2000)}));
    stage.start(unitsOnly);
    stage.checkUntilEntered(failedStart(mode));
    stage.expectConversion(unconverted);
    stage.checkNotIdle({State::initial});
    stage.startModule(Modules::deviceManager);
    recover(stage, read(mode) + update, inBar(2000));
    stage.finish({readUnits, readUnits}, onlyIf(mode.isBlocking, unitsUnread) + attemptsAfterError(mode));
}

void deathDuringALaterRead(Stage& stage, const Mode& mode)
{
    stage.startAllSources(fullWorld({units(1000), Answer::death(), units(3000)}));
    stage.announce(Sources::units);
    stage.checkUntilEntered(failedReload(mode));
    stage.expectConversion(inHectoPascal(1000));
    stage.expectUnchanged();
    stage.checkNotIdle({State::initial});
    stage.expectConversion(inHectoPascal(1000));
    stage.startModule(Modules::deviceManager);
    recover(stage, read(mode) + update, inHectoPascal(3000));
    stage.expectKept({inHectoPascal(1000)});
    stage.finish(readAll + QStringList{readUnits} + readAll,
                 QStringList{unitsChanged} + onlyIf(mode.isBlocking, unitsUnread) + attemptsAfterError(mode));
}

void restartWhileIdle(Stage& stage, const Mode& mode)
{
    stage.startAllSources(changingWorld());
    stage.stopModule(Modules::deviceManager);
    stage.checkIdle(idleChecks(3), 3);
    stage.expectConversion(inHectoPascal(1000));
    stage.startModule(Modules::deviceManager);
    stage.checkIdle(idleChecks(3), 3);
    stage.announce(Sources::units);
    stage.checkUntilChanged(reload(mode));
    stage.expectConversion(inHectoPascal(2000));
    stage.expectKept({inHectoPascal(1000)});
    stage.finish(readAll + QStringList{readUnits}, {unitsChanged});
}

/// A reload that fails because a module is not on the bus: an asynchronous read fails at its start.
QStringList unconnectedReload(const Mode& mode)
{
    return changeDetected(mode) +
           QStringList{mode.isBlocking ? State::readBlocking : State::readAsynchronous, State::error};
}

void deathBetweenChangeAndRead(Stage& stage, const Mode& mode)
{
    stage.startAllSources(changingWorld());
    stage.announce(Sources::units);
    stage.stopModule(Modules::deviceManager);
    stage.checkUntilEntered(unconnectedReload(mode));
    stage.expectConversion(inHectoPascal(1000));
    stage.expectUnchanged();
    stage.startModule(Modules::deviceManager);
    recover(stage, restart(mode), inBar(2000));
    stage.finish(readAll + readAll, {unitsChanged, notConnected});
}

// While an optional module is missing, the others are not read either.
void deathOfAnOptionalModule(Stage& stage, const Mode& mode)
{
    stage.serve(changingWorld() << Source{Sources::remoteDefaultUnits, {defaultUnits()}});
    stage.start({Sources::none, Sources::remoteDefaultUnits});
    stage.checkUntilIdle(firstStart(mode));
    stage.expectChanged();
    stage.stopModule(Modules::defaultUnitManager);
    stage.announce(Sources::units);
    stage.checkUntilEntered(unconnectedReload(mode));
    stage.expectConversion(inHectoPascal(1000));
    stage.startModule(Modules::defaultUnitManager);
    recover(stage, restart(mode), inHectoPascal(2000));
    stage.finish({readUnits, readRemoteDefaultUnits, readUnits, readRemoteDefaultUnits},
                 {unitsChanged, notConnected});
}

} // namespace

QList<Scenario> LiveRecoveryTest::scenarios() const
{
    return {{"good document, then a broken one, then a good one", goodThenBrokenThenGood},
            {"change whose read fails", changeWhoseReadFails},
            {"service that dies during the first read and comes back", deathDuringTheFirstRead},
            {"service that dies during a later read and comes back", deathDuringALaterRead},
            {"service that is restarted while the library idles", restartWhileIdle},
            {"service that dies between a change and its read", deathBetweenChangeAndRead},
            {"optional module that dies before a change of the units", deathOfAnOptionalModule}};
}

QTEST_GUILESS_MAIN(LiveRecoveryTest)

#include "LiveRecoveryTest.moc"
