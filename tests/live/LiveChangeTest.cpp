// Changes of configurations, announced by the service.

#include "LiveTest.h"

using namespace Expected;
using namespace Fixtures;

namespace {

/// Announced changes of the changing world, and what they lead to.
///
/// The sources are read in a fixed order, regardless of the order of the announcements. Delivered changes are
/// logged in the order of the announcements, polled ones in the order of polling.
struct Change
{
    QList<SourceName> announced;
    QString conversion;
    QString dependents;
    QStringList reads;
    QStringList deliveredMessages;
    QStringList polledMessages;
};

void reloadOnce(Stage& stage, const Change& change)
{
    stage.startAllSources(changingWorld());
    for (const SourceName& source : change.announced)
        stage.announce(source);
    stage.expectReload(change.conversion);
    stage.expectKept({inHectoPascal(1000)});
    stage.expectDependents(change.dependents);
    stage.checkUntilSettled(remainsIdle);
    stage.finish(readAll + change.reads,
                 stage.mode.isPolled ? change.polledMessages : change.deliveredMessages);
}

void oneChangeAfterTheOther(Stage& stage)
{
    stage.startAllSources(changingWorld());
    stage.announce(Sources::units);
    stage.expectReload(inHectoPascal(2000));
    stage.announce(Sources::defaultUnits);
    stage.expectReload(inBar(2000));
    stage.expectKept({inHectoPascal(1000)});
    stage.checkUntilSettled(remainsIdle);
    stage.finish(readAll + QStringList{readUnits, readDefaultUnits}, {unitsChanged, defaultUnitsChanged});
}

void changeWithAnotherName(Stage& stage)
{
    stage.startAllSources(changingWorld());
    stage.announceWith(Sources::units, {"UnitManager/Other"});
    stage.announceWith(Sources::defaultUnits, {"UnitManager/UnitType"});
    stage.announceWith(Sources::units, {"unitmanager/unittype"});
    stage.finishAnnouncement(false);
}

void changeWithAWrongArgument(Stage& stage)
{
    stage.startAllSources(changingWorld());
    for (const QVariantList& arguments :
         {QVariantList{42}, QVariantList(), QVariantList{QVariantMap{{"a", 1}}}}) {
        stage.announceWith(Sources::units, arguments);
        stage.checkUntilSettled(remainsIdle);
    }
    stage.expectChanged(false);
    stage.expectConversion(inHectoPascal(1000));
    stage.announce(Sources::units);
    stage.expectReload(inHectoPascal(2000));
    stage.finish(readAll + QStringList{readUnits}, {unitsChanged});
}

// A slot receives only signals of exactly its own signature, the polling handler receives all.
void changeWithAnExtraArgument(Stage& stage)
{
    stage.startAllSources(changingWorld());
    stage.announceWith(Sources::units, {"UnitManager/UnitType", "more"});
    stage.finishAnnouncement(stage.mode.isPolled);
}

} // namespace

QList<Scenario> scenarios()
{
    const Change ofUnits{{Sources::units}, inHectoPascal(2000), "Pressure",
                         {readUnits},      {unitsChanged},      {unitsChanged}};
    const Change ofDefaultUnits{{Sources::defaultUnits}, inBar(1000),           "Pressure",
                                {readDefaultUnits},      {defaultUnitsChanged}, {defaultUnitsChanged}};
    const Change ofDependencies{{Sources::dependencies}, inHectoPascal(1000),   "Range",
                                {readDependencies},      {dependenciesChanged}, {dependenciesChanged}};
    const Change ofTwo{{Sources::defaultUnits, Sources::units},
                       inBar(2000),
                       "Pressure",
                       {readUnits, readDefaultUnits},
                       {defaultUnitsChanged, unitsChanged},
                       {unitsChanged, defaultUnitsChanged}};
    const Change ofThree{{Sources::dependencies, Sources::defaultUnits, Sources::units},
                         inBar(2000),
                         "Range",
                         readAll,
                         {dependenciesChanged, defaultUnitsChanged, unitsChanged},
                         {unitsChanged, defaultUnitsChanged, dependenciesChanged}};
    return {{"change of the units", with(reloadOnce, ofUnits)},
            {"change of the default units", with(reloadOnce, ofDefaultUnits)},
            {"change of the dependencies", with(reloadOnce, ofDependencies)},
            {"change of two sources", with(reloadOnce, ofTwo)},
            {"change of three sources", with(reloadOnce, ofThree)},
            {"one change after the other", oneChangeAfterTheOther},
            {"change with another name", changeWithAnotherName},
            {"change with a wrong argument", changeWithAWrongArgument},
            {"change with one argument more", changeWithAnExtraArgument}};
}
