#include <QtTest/QTest>

#include "Lines.h"
#include "LiveTest.h"
#include "Usual.h"

using namespace Lines;
using namespace Steps;

// What goes wrong when the library is up, and how it comes back.
class LiveRecoveryTest : public LiveTest
{
    Q_OBJECT

protected:
    QList<Situation> situations() const override;
};

namespace {

const QString notConnected = "warning Unitswitch connector: Cannot call method configuration get via DBus";

/// A failing read of changed sources.
const QString failedRead = "until Error: {noticed} {read} Error = true";

// A document that does not load replaces the good one, for the wrapper when it takes it up. The start that
// follows reads everything again.
Situation goodThenBrokenThenGood()
{
    World world =
        Usual::fullWorld({Usual::units(1000), Answer::with(Documents::broken()), Usual::units(3000)});
    return Usual::afterStart(
        "good document, then a broken one, then a good one", world,
        {change(Sources::units()), untilEntered("Error"), convert(), changed(), convert(), kept(),
         dependents(), keep(), untilIdle(), convert(), changed(), kept(), untilSettled()},
        QStringList{"until Error: {noticed} {read} Update *changed Error = true",
                    "[wrapper] " + converts(1000), "[connector] " + raw, "changed: true", raw,
                    keptConverts(1000), "[connector] dependents: Pressure", secondStart, converts(3000),
                    "changed: true", keptConverts(1000), keptIsRaw, quiet} +
            firstReads + QStringList{readUnits} + firstReads + QStringList{unitsChanged, brokenUnits});
}

Situation changeThatCannotBeRead()
{
    return Usual::afterStart(
        "change whose read fails",
        Usual::fullWorld({Usual::units(1000), Answer::of(Answer::Error), Usual::units(3000)}),
        {change(Sources::units()), untilEntered("Error"), convert(), changed(), convert(), untilIdle(),
         convert(), changed(), kept()},
        QStringList{failedRead, converts(1000), "changed: false", converts(1000), secondStart, converts(3000),
                    "changed: true", keptConverts(1000)} +
            firstReads + QStringList{readUnits} + firstReads +
            QStringList{unitsChanged, "[blocking] " + unitsUnread});
}

/// The attempts of one check after an error, while the service is away. The step of the error state makes
/// none; with deferred entry it has been made when the state was entered, and else it is the check's first.
const QStringList attemptsAfterError{"[blocking immediate] 99 x " + unitsUnreachable,
                                     "[blocking deferred] 100 x " + unitsUnreachable,
                                     "[asynchronous deferred] " + unitsUnreachable};

Situation deathDuringTheFirstRead()
{
    return {"service that dies during the first read and comes back",
            Usual::unitsWorld({Answer::of(Answer::Death), Usual::units(2000)}),
            {start(Usual::unitsOnly()), untilEntered("Error"), convert(), check(),
             startModule("DeviceManager"), untilIdle(), convert(), changed()},
            QStringList{failedStart, raw, "check: Initial = false",
                        "until idle: {read} Update *changed Idle *initialized = true",
                        convertsWithoutDefault(2000), "changed: true", readUnits, readUnits,
                        "[blocking] " + unitsUnread} +
                attemptsAfterError};
}

Situation deathDuringALaterRead()
{
    World world = Usual::fullWorld({Usual::units(1000), Answer::of(Answer::Death), Usual::units(3000)});
    return Usual::afterStart(
        "service that dies during a later read and comes back", world,
        {change(Sources::units()), untilEntered("Error"), convert(), changed(), check(), convert(),
         startModule("DeviceManager"), untilIdle(), convert(), changed(), kept()},
        QStringList{failedRead, converts(1000), "changed: false", "check: Initial = false", converts(1000),
                    "until idle: {read} Update *changed Idle *initialized = true", converts(3000),
                    "changed: true", keptConverts(1000)} +
            firstReads + QStringList{readUnits} + firstReads +
            QStringList{unitsChanged, "[blocking] " + unitsUnread} + attemptsAfterError);
}

Situation restartWhileIdle()
{
    return Usual::afterStart("service that is restarted while the library idles", Usual::changingWorld(),
                             {stopModule("DeviceManager"), checks(3), convert(), startModule("DeviceManager"),
                              checks(3), change(Sources::units()), untilChanged(), convert(), kept()},
                             QStringList{"3 checks: *initialized *initialized *initialized = 3 true",
                                         converts(1000),
                                         "3 checks: *initialized *initialized *initialized = 3 true", takenUp,
                                         converts(2000), keptConverts(1000)} +
                                 firstReads + QStringList{readUnits, unitsChanged});
}

Situation deathBetweenChangeAndRead()
{
    return Usual::afterStart(
        "service that dies between a change and its read", Usual::changingWorld(),
        {change(Sources::units()), stopModule("DeviceManager"), untilEntered("Error"), convert(), changed(),
         startModule("DeviceManager"), untilIdle(), convert(), changed()},
        QStringList{"[blocking] " + failedRead,
                    "[asynchronous] until Error: {noticed} ReadConfigurationASynchron Error = true",
                    converts(1000), "changed: false", secondStart,
                    "convert: usable: 4000 HectoPascal, 2 bar by default", "changed: true"} +
            firstReads + firstReads + QStringList{unitsChanged, notConnected});
}

// An optional module that has gone keeps the others from being read again.
Situation optionalModuleGone()
{
    World world = Usual::changingWorld();
    world.sources << Source{Sources::remoteDefaultUnits(), {Usual::defaultUnits()}};
    const QString readRemote = "read DefaultUnitManager/DefaultUnitConfiguration "
                               "getConfiguration(UnitManager/DefaultUnit, UnitManager, )";
    return {"optional module that dies before a change of the units",
            world,
            {start({Sources::none(), Sources::remoteDefaultUnits()}), untilIdle(), changed(),
             stopModule("DefaultUnitManager"), change(Sources::units()), untilEntered("Error"), convert(),
             startModule("DefaultUnitManager"), untilIdle(), convert(), changed()},
            {firstStart, "changed: true", "[blocking] " + failedRead,
             "[asynchronous] until Error: {noticed} ReadConfigurationASynchron Error = true", converts(1000),
             secondStart, converts(2000), "changed: true", readUnits, readRemote, readUnits, readRemote,
             unitsChanged, notConnected}};
}

} // namespace

QList<Situation> LiveRecoveryTest::situations() const
{
    return {goodThenBrokenThenGood(), changeThatCannotBeRead(), deathDuringTheFirstRead(),
            deathDuringALaterRead(),  restartWhileIdle(),       deathBetweenChangeAndRead(),
            optionalModuleGone()};
}

QTEST_GUILESS_MAIN(LiveRecoveryTest)

#include "LiveRecoveryTest.moc"
