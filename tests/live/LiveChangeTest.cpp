#include <QtTest/QTest>

#include "Expected.h"
#include "Fixtures.h"
#include "LiveTest.h"
#include "Stage.h"

using namespace Expected;
using namespace Fixtures;

// Changes of configurations, announced by the service.
class LiveChangeTest : public LiveTest
{
    Q_OBJECT

protected:
    QList<Scenario> scenarios() const override;
};

namespace {

/// What a change of the changing world leads to.
struct Change
{
    QList<SourceName> announced;
    QString conversion;
    QString dependents;
    QStringList reads;
    QStringList messages;
};

void reloadOnce(Stage& stage, const Mode& mode, const Change& change)
{
    stage.startAllSources(changingWorld());
    for (const SourceName& source : change.announced)
        stage.announce(source);
    stage.checkUntilChanged(reload(mode));
    stage.expectConversion(change.conversion);
    stage.expectKept({inHectoPascal(1000)});
    stage.expectDependents(change.dependents);
    stage.checkUntilSettled(remainsIdle);
    stage.finish(readAll + change.reads, change.messages);
}

void changeOfUnits(Stage& stage, const Mode& mode)
{
    reloadOnce(stage, mode, {{Sources::units}, inHectoPascal(2000), "Pressure", {readUnits}, {unitsChanged}});
}

void changeOfDefaultUnits(Stage& stage, const Mode& mode)
{
    reloadOnce(stage, mode,
               {{Sources::defaultUnits}, inBar(1000), "Pressure", {readDefaultUnits}, {defaultUnitsChanged}});
}

void changeOfDependencies(Stage& stage, const Mode& mode)
{
    reloadOnce(
        stage, mode,
        {{Sources::dependencies}, inHectoPascal(1000), "Range", {readDependencies}, {dependenciesChanged}});
}

// The sources are read in a fixed order, regardless of the order of the announcements. Delivered changes are
// logged in the order of the announcements, polled ones in that of polling.
void changeOfTwoSources(Stage& stage, const Mode& mode)
{
    reloadOnce(stage, mode,
               {{Sources::defaultUnits, Sources::units},
                inBar(2000),
                "Pressure",
                {readUnits, readDefaultUnits},
                mode.isPolled ? QStringList{unitsChanged, defaultUnitsChanged}
                              : QStringList{defaultUnitsChanged, unitsChanged}});
}

void changeOfThreeSources(Stage& stage, const Mode& mode)
{
    reloadOnce(stage, mode,
               {{Sources::dependencies, Sources::defaultUnits, Sources::units},
                inBar(2000),
                "Range",
                readAll,
                mode.isPolled ? QStringList{unitsChanged, defaultUnitsChanged, dependenciesChanged}
                              : QStringList{dependenciesChanged, defaultUnitsChanged, unitsChanged}});
}

void oneChangeAfterTheOther(Stage& stage, const Mode& mode)
{
    stage.startAllSources(changingWorld());
    stage.announce(Sources::units);
    stage.checkUntilChanged(reload(mode));
    stage.expectConversion(inHectoPascal(2000));
    stage.announce(Sources::defaultUnits);
    stage.checkUntilChanged(reload(mode));
    stage.expectConversion(inBar(2000));
    stage.expectKept({inHectoPascal(1000)});
    stage.checkUntilSettled(remainsIdle);
    stage.finish(readAll + QStringList{readUnits, readDefaultUnits}, {unitsChanged, defaultUnitsChanged});
}

void changeWithAnotherName(Stage& stage, const Mode& /*mode*/)
{
    stage.startAllSources(changingWorld());
    stage.announceWith(Sources::units, {"UnitManager/Other"});
    stage.announceWith(Sources::defaultUnits, {"UnitManager/UnitType"});
    stage.announceWith(Sources::units, {"unitmanager/unittype"});
    stage.checkUntilSettled(remainsIdle);
    stage.expectUnchanged();
    stage.expectConversion(inHectoPascal(1000));
    stage.finish(readAll);
}

void changeWithAWrongArgument(Stage& stage, const Mode& mode)
{
    stage.startAllSources(changingWorld());
    for (const QVariantList& arguments :
         {QVariantList{42}, QVariantList(), QVariantList{QVariantMap{{"a", 1}}}}) {
        stage.announceWith(Sources::units, arguments);
        stage.checkUntilSettled(remainsIdle);
    }
    stage.expectUnchanged();
    stage.expectConversion(inHectoPascal(1000));
    stage.announce(Sources::units);
    stage.checkUntilChanged(reload(mode));
    stage.expectConversion(inHectoPascal(2000));
    stage.finish(readAll + QStringList{readUnits}, {unitsChanged});
}

// A slot receives only signals of exactly its own signature, the polling handler receives all.
void changeWithAnExtraArgument(Stage& stage, const Mode& mode)
{
    stage.startAllSources(changingWorld());
    stage.announceWith(Sources::units, {"UnitManager/UnitType", "more"});
    if (!mode.isPolled) {
        stage.checkUntilSettled(remainsIdle);
        stage.expectUnchanged();
        stage.expectConversion(inHectoPascal(1000));
        stage.finish(readAll);
        return;
    }
    stage.checkUntilSettled(reload(mode) + remainsIdle);
    stage.expectChanged();
    stage.expectConversion(inHectoPascal(2000));
    stage.finish(readAll + QStringList{readUnits}, {unitsChanged});
}

} // namespace

QList<Scenario> LiveChangeTest::scenarios() const
{
    return {{"change of the units", changeOfUnits},
            {"change of the default units", changeOfDefaultUnits},
            {"change of the dependencies", changeOfDependencies},
            {"change of two sources", changeOfTwoSources},
            {"change of three sources", changeOfThreeSources},
            {"one change after the other", oneChangeAfterTheOther},
            {"change with another name", changeWithAnotherName},
            {"change with a wrong argument", changeWithAWrongArgument},
            {"change with one argument more", changeWithAnExtraArgument}};
}

QTEST_GUILESS_MAIN(LiveChangeTest)

#include "LiveChangeTest.moc"
