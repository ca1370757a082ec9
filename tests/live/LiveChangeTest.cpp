#include <QtTest/QTest>

#include "Lines.h"
#include "LiveTest.h"
#include "Usual.h"

using namespace Lines;
using namespace Steps;

// Changes of configurations, announced by the service.
class LiveChangeTest : public LiveTest
{
    Q_OBJECT

protected:
    QList<Situation> situations() const override;
};

namespace {

Situation unitsChange()
{
    return Usual::afterStart(
        "change of the units", Usual::changingWorld(),
        {change(Sources::units()), untilChanged(), convert(), kept(), dependents(), untilSettled()},
        QStringList{takenUp, converts(2000), keptConverts(1000), "[connector] dependents: Pressure", quiet} +
            firstReads + QStringList{readUnits, unitsChanged});
}

Situation defaultUnitsChange()
{
    return Usual::afterStart(
        "change of the default units", Usual::changingWorld(),
        {change(Sources::defaultUnits()), untilChanged(), convert(), kept(), dependents(), untilSettled()},
        QStringList{takenUp, "convert: usable: 2000 HectoPascal, 2 bar by default", keptConverts(1000),
                    "[connector] dependents: Pressure", quiet} +
            firstReads + QStringList{readDefaultUnits, defaultUnitsChanged});
}

Situation dependenciesChange()
{
    return Usual::afterStart(
        "change of the dependencies", Usual::changingWorld(),
        {change(Sources::dependencies()), untilChanged(), convert(), kept(), dependents(), untilSettled()},
        QStringList{takenUp, converts(1000), keptConverts(1000), "[connector] dependents: Range", quiet} +
            firstReads + QStringList{readDependencies, dependenciesChanged});
}

// The reads go by the sources' order, whatever that of the announcements.
Situation twoSourcesChange()
{
    return Usual::afterStart("change of two sources", Usual::changingWorld(),
                             {change(Sources::defaultUnits()), change(Sources::units()), untilChanged(),
                              convert(), kept(), dependents(), untilSettled()},
                             QStringList{takenUp, "convert: usable: 4000 HectoPascal, 2 bar by default",
                                         keptConverts(1000), "[connector] dependents: Pressure", quiet} +
                                 firstReads +
                                 QStringList{readUnits, readDefaultUnits,
                                             "[delivered] " + defaultUnitsChanged,
                                             "[delivered] " + unitsChanged, "[polled] " + unitsChanged,
                                             "[polled] " + defaultUnitsChanged});
}

Situation threeSourcesChange()
{
    return Usual::afterStart(
        "change of three sources", Usual::changingWorld(),
        {change(Sources::dependencies()), change(Sources::defaultUnits()), change(Sources::units()),
         untilChanged(), convert(), kept(), dependents(), untilSettled()},
        QStringList{takenUp, "convert: usable: 4000 HectoPascal, 2 bar by default", keptConverts(1000),
                    "[connector] dependents: Range", quiet} +
            firstReads + firstReads +
            QStringList{"[delivered] " + dependenciesChanged, "[delivered] " + defaultUnitsChanged,
                        "[delivered] " + unitsChanged, "[polled] " + unitsChanged,
                        "[polled] " + defaultUnitsChanged, "[polled] " + dependenciesChanged});
}

Situation severalChangesOneAfterTheOther()
{
    return Usual::afterStart(
        "one change after the other", Usual::changingWorld(),
        {change(Sources::units()), untilChanged(), convert(), change(Sources::defaultUnits()), untilChanged(),
         convert(), kept(), untilSettled()},
        QStringList{takenUp, converts(2000), takenUp, "convert: usable: 4000 HectoPascal, 2 bar by default",
                    keptConverts(1000), quiet} +
            firstReads + QStringList{readUnits, readDefaultUnits, unitsChanged, defaultUnitsChanged});
}

Situation anotherName()
{
    return Usual::afterStart("change with another name", Usual::changingWorld(),
                             {changeWith(Sources::units(), {"UnitManager/Other"}),
                              changeWith(Sources::defaultUnits(), {"UnitManager/UnitType"}),
                              changeWith(Sources::units(), {"unitmanager/unittype"}), untilSettled(),
                              changed(), convert()},
                             QStringList{quiet, "changed: false", converts(1000)} + firstReads);
}

Situation wrongArgument()
{
    return Usual::afterStart(
        "change with a wrong argument", Usual::changingWorld(),
        {changeWith(Sources::units(), {42}), untilSettled(), changeWith(Sources::units(), {}), untilSettled(),
         changeWith(Sources::units(), {QVariantMap{{"a", 1}}}), untilSettled(), changed(), convert(),
         change(Sources::units()), untilChanged(), convert()},
        QStringList{quiet, quiet, quiet, "changed: false", converts(1000), takenUp, converts(2000)} +
            firstReads + QStringList{readUnits, unitsChanged});
}

// A slot hears signals of exactly its own signature, the polling handler whatever comes.
Situation oneArgumentMore()
{
    return Usual::afterStart(
        "change with one argument more", Usual::changingWorld(),
        {changeWith(Sources::units(), {"UnitManager/UnitType", "more"}), untilSettled(), changed(),
         convert()},
        QStringList{"[delivered] " + quiet, "[delivered] changed: false", "[delivered] " + converts(1000),
                    "[polled] " + takenUpInPassing, "[polled] changed: true", "[polled] " + converts(2000)} +
            firstReads + QStringList{"[polled] " + readUnits, "[polled] " + unitsChanged});
}

} // namespace

QList<Situation> LiveChangeTest::situations() const
{
    return {unitsChange(),      defaultUnitsChange(), dependenciesChange(),
            twoSourcesChange(), threeSourcesChange(), severalChangesOneAfterTheOther(),
            anotherName(),      wrongArgument(),      oneArgumentMore()};
}

QTEST_GUILESS_MAIN(LiveChangeTest)

#include "LiveChangeTest.moc"
