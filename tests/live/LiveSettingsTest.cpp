#include <QtTest/QTest>

#include "Lines.h"
#include "LiveTest.h"
#include "Usual.h"

using namespace Lines;
using namespace Steps;

// Initialisation with other names while the library is at work.
class LiveSettingsTest : public LiveTest
{
    Q_OBJECT

protected:
    QList<Situation> situations() const override;
};

namespace {

const QString readOther = QStringLiteral(
    "read DeviceManager/OtherConfiguration getConfiguration(UnitManager/OtherDefaultUnit, UnitManager, )");

/// The wrapper drops at once what it has; the connector's own objects survive until others are built.
const QStringList droppedByWrapper{"[wrapper] " + raw, "[connector] " + converts(1000)};

World worldWithOtherDefaultUnits()
{
    World world = Usual::changingWorld();
    world.sources << Source{Sources::otherDefaultUnits(),
                            {Usual::defaultUnits("Bar"), Usual::defaultUnits("HectoPascal")}};
    return world;
}

// Subscriptions are closed under the new names, which leaves the old one; what it brings has the wrong name.
Situation otherNames()
{
    return Usual::afterStart(
        "init with other names", worldWithOtherDefaultUnits(),
        {init({Sources::dependencies(), Sources::otherDefaultUnits()}), convert(), changed(), untilIdle(),
         convert(), changed(), kept(), change(Sources::defaultUnits()), untilSettled(),
         change(Sources::otherDefaultUnits()), untilChanged(), convert(), kept()},
        droppedByWrapper +
            QStringList{"changed: false", secondStart, "convert: usable: 4000 HectoPascal, 2 bar by default",
                        "changed: true", keptConverts(1000), quiet, takenUp, converts(2000),
                        keptConverts(1000)} +
            firstReads + QStringList{readUnits, readDependencies, readOther, readOther} +
            QStringList{"[delivered] warning Unable to disconnect connection \"OtherConfiguration\"",
                        defaultUnitsChanged});
}

// The connector's dependencies survive, too, because nothing new takes their place.
Situation fewerSources()
{
    return Usual::afterStart("init with the mandatory source alone", Usual::changingWorld(),
                             {init(Usual::unitsOnly()), convert(), untilIdle(), convert(), dependents(),
                              changed(), change(Sources::defaultUnits()), change(Sources::dependencies()),
                              untilSettled(), change(Sources::units()), untilChanged(), convert(), kept()},
                             droppedByWrapper +
                                 QStringList{secondStart, convertsWithoutDefault(2000),
                                             "[connector] dependents: Pressure", "changed: true", quiet,
                                             takenUp, convertsWithoutDefault(2000), keptConverts(1000)} +
                                 firstReads + QStringList{readUnits, readUnits, unitsChanged});
}

Situation moreSources()
{
    return {"init with more sources",
            Usual::changingWorld(),
            {start(Usual::unitsOnly()), untilIdle(), convert(), dependents(), changed(),
             init(Usual::allSources()), changed(), untilIdle(), convert(), dependents(), changed(),
             change(Sources::dependencies()), untilChanged(), dependents()},
            QStringList{firstStart, convertsWithoutDefault(1000), "[connector] dependents: none",
                        "changed: true", "changed: false", secondStart, converts(2000),
                        "[connector] dependents: Pressure", "changed: true", takenUp,
                        "[connector] dependents: Range", readUnits} +
                firstReads + QStringList{readDependencies, dependenciesChanged}};
}

Situation whileRepliesAreOutstanding()
{
    World world = worldWithOtherDefaultUnits();
    world.sources.first().answers = {Answer::held(Documents::units(1000)), Usual::units(2000)};
    return {"init while a reply is outstanding",
            world,
            {start(Usual::allSources()), untilEntered("WaitForReply"), checks(5),
             init({Sources::dependencies(), Sources::otherDefaultUnits()}), release(Sources::units()),
             convert(), changed(), untilIdle(), convert(), changed()},
            QStringList{"until WaitForReply: {start} ReadConfigurationASynchron WaitForReply = true",
                        "5 checks: = 0 true", raw, "changed: false", secondStart,
                        "convert: usable: 4000 HectoPascal, 2 bar by default", "changed: true"} +
                firstReads + QStringList{readUnits, readDependencies, readOther} +
                QStringList{"[delivered] warning Unable to disconnect connection \"OtherConfiguration\""},
            {"asynchronous wrapper", "asynchronous connector"}};
}

// Whoever asks for the change that is still noted gets the old objects back.
Situation withANotedChange()
{
    return {"init with a change that nobody has asked for",
            Usual::changingWorld(),
            {start(Usual::allSources()), untilIdle(), init(Usual::allSources()), convert(), changed(),
             convert(), changed(), untilIdle(), convert(), changed()},
            QStringList{firstStart} + droppedByWrapper +
                QStringList{"changed: true", converts(1000), "changed: false", secondStart,
                            "convert: usable: 4000 HectoPascal, 2 bar by default", "changed: true"} +
                firstReads + firstReads};
}

Situation withASourceThatIsDown()
{
    World world = Usual::changingWorld();
    world.sources << Source{Sources::remoteDefaultUnits(), {Usual::defaultUnits("Bar")}};
    world.absentModules << "DefaultUnitManager";
    const QString warning = "warning Connection Error to optional file type \"UnitManager/DefaultUnit\"";
    return Usual::afterStart(
        "init with a source that is down", world,
        {init({Sources::dependencies(), Sources::remoteDefaultUnits()}), check(), convert(),
         startModule("DefaultUnitManager"), untilIdle(), convert(), changed()},
        QStringList{"check: Initial = false"} + droppedByWrapper +
            QStringList{"until idle: {read} Update *changed Idle *initialized = true",
                        "convert: usable: 4000 HectoPascal, 2 bar by default", "changed: true"} +
            firstReads +
            QStringList{readUnits, readDependencies,
                        "read DefaultUnitManager/DefaultUnitConfiguration "
                        "getConfiguration(UnitManager/DefaultUnit, UnitManager, )",
                        "[delivered] warning Unable to disconnect connection \"DefaultUnitConfiguration\"",
                        "[blocking] 100 x " + warning, "[asynchronous] " + warning});
}

} // namespace

QList<Situation> LiveSettingsTest::situations() const
{
    return {otherNames(),       fewerSources(),         moreSources(), whileRepliesAreOutstanding(),
            withANotedChange(), withASourceThatIsDown()};
}

QTEST_GUILESS_MAIN(LiveSettingsTest)

#include "LiveSettingsTest.moc"
