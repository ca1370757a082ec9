#include <QtTest/QTest>

#include "Lines.h"
#include "LiveTest.h"
#include "Usual.h"

using namespace Lines;
using namespace Steps;

// From the construction to a unit manager, with all that may be missing on the way.
class LiveStartTest : public LiveTest
{
    Q_OBJECT

protected:
    QList<Situation> situations() const override;
};

namespace {

Situation allThreeSources()
{
    return {"all three sources",
            Usual::fullWorld(),
            {start(Usual::allSources()), convert(), untilIdle(), convert(), dependents(), changed(),
             changed(), untilSettled()},
            {"[blocking delivered wrapper] " + converts(1000), "[asynchronous delivered wrapper] " + raw,
             "[polled wrapper] " + raw, "[connector] " + raw, firstStart, converts(1000),
             "[connector] dependents: Pressure", "changed: true", "changed: false", quiet, readUnits,
             readDependencies, readDefaultUnits}};
}

Situation onlyTheMandatorySource()
{
    return {"only the mandatory source",
            Usual::fullWorld(),
            {start(Usual::unitsOnly()), untilIdle(), convert(), dependents(), changed(), changed()},
            {firstStart, convertsWithoutDefault(1000), "[connector] dependents: none", "changed: true",
             "changed: false", readUnits}};
}

Situation oneOptionalSource()
{
    return {
        "no dependencies configured",
        Usual::fullWorld(),
        {start({Sources::none(), Sources::defaultUnits()}), untilIdle(), convert(), dependents(), changed()},
        {firstStart, converts(1000), "[connector] dependents: none", "changed: true", readUnits,
         readDefaultUnits}};
}

Situation optionalSourceWithoutAName()
{
    const SourceName unnamed{"DeviceManager", "DependencyConfiguration", ""};
    return {"an optional source with an empty name",
            Usual::fullWorld(),
            {start({unnamed, Sources::defaultUnits()}), untilIdle(), convert(), dependents(), changed()},
            {firstStart, converts(1000), "[connector] dependents: none", "changed: true", readUnits,
             readDefaultUnits}};
}

Situation noBus()
{
    World world;
    world.hasBus = false;
    return {"no bus",
            world,
            {start(Usual::allSources()), check(), convert(), check(), changed()},
            QStringList{"check: {start} = false", raw, "check: = false", "changed: false"} +
                perAttempt(2, unitsUnreachable)};
}

Situation busWithoutService()
{
    return {"bus without service",
            World(),
            {start(Usual::allSources()), check(), convert(), check(), changed()},
            QStringList{"check: {start} = false", raw, "check: = false", "changed: false"} +
                perAttempt(2, unitsUnreachable)};
}

Situation serviceThatAppearsLater()
{
    World world = Usual::fullWorld();
    world.absentModules << "DeviceManager";
    return {"service that appears later",
            world,
            {start(Usual::allSources()), check(), convert(), startModule("DeviceManager"), untilIdle(),
             convert(), changed()},
            QStringList{"check: {start} = false", raw,
                        "until idle: {read} Update *changed Idle *initialized = true", converts(1000),
                        "changed: true", readUnits, readDependencies, readDefaultUnits} +
                perAttempt(1, unitsUnreachable)};
}

Situation serviceWithoutTheObject()
{
    World world;
    world.sources << Source{Sources::dependencies(), {Usual::dependencies()}};
    return {"service without the object",
            world,
            {start(Usual::unitsOnly()), untilEntered("Error"), convert(), untilEntered("Error"), changed()},
            {"until Error: {start} {read} Error = true", raw, "until Error: Initial {read} Error = true",
             "changed: false", "[blocking] 2 x " + unitsUnread}};
}

Situation optionalSourceDown()
{
    World world = Usual::fullWorld();
    world.sources << Source{Sources::remoteDefaultUnits(), {Usual::defaultUnits()}};
    world.absentModules << "DefaultUnitManager";
    return {"an optional source down, which appears later",
            world,
            {start({Sources::dependencies(), Sources::remoteDefaultUnits()}), check(), convert(),
             startModule("DefaultUnitManager"), untilIdle(), convert(), changed()},
            QStringList{"check: {start} = false", raw,
                        "until idle: {read} Update *changed Idle *initialized = true", converts(1000),
                        "changed: true", readUnits, readDependencies,
                        "read DefaultUnitManager/DefaultUnitConfiguration "
                        "getConfiguration(UnitManager/DefaultUnit, UnitManager, )"} +
                perAttempt(1, "warning Connection Error to optional file type \"UnitManager/DefaultUnit\"")};
}

} // namespace

QList<Situation> LiveStartTest::situations() const
{
    return {allThreeSources(),
            onlyTheMandatorySource(),
            oneOptionalSource(),
            optionalSourceWithoutAName(),
            noBus(),
            busWithoutService(),
            serviceThatAppearsLater(),
            serviceWithoutTheObject(),
            optionalSourceDown()};
}

QTEST_GUILESS_MAIN(LiveStartTest)

#include "LiveStartTest.moc"
