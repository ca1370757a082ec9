#include <QtTest/QTest>

#include "Lines.h"
#include "LiveTest.h"
#include "Usual.h"

using namespace Lines;
using namespace Steps;

// Changes that come when another is being dealt with, too many at once, or to two applications.
class LiveChangeTimingTest : public LiveTest
{
    Q_OBJECT

protected:
    QList<Situation> situations() const override;
};

namespace {

const int burst = 10000;

/// A read of units that have changed, during which @p changed is announced to have changed; that is read
/// next, if it is.
///
/// What is heard while replies are awaited is forgotten by the update. Nothing is heard while a read blocks,
/// nor before the idle state polls.
Situation changeDuringARead(const QString& name, const SourceName& changed, const QString& conversion,
                            const QString& read, const QStringList& messages)
{
    World world = Usual::changingWorld();
    world.sources.first().answers = {Usual::units(1000), Answer::afterChange(changed, Documents::units(2000)),
                                     Usual::units(3000)};
    // The idle state has polled already when it was entered, or else polls at once.
    const QString pollsAndTakesUp =
        "until settled: {read} Update *changed Idle *initialized *initialized *initialized = true";
    return Usual::afterStart(
        name, world, {change(Sources::units()), untilChanged(), convert(), untilSettled(), convert()},
        QStringList{takenUp, converts(2000), "[asynchronous delivered] " + quiet,
                    "[asynchronous delivered] " + converts(2000), "[blocking delivered] " + takenUpInPassing,
                    "[blocking delivered] " + conversion, "[polled] " + pollsAndTakesUp,
                    "[polled] " + conversion} +
            firstReads + QStringList{readUnits, "[blocking delivered] " + read, "[polled] " + read} +
            messages);
}

Situation changeDuringItsOwnRead()
{
    return changeDuringARead("change during its own read", Sources::units(), converts(3000), readUnits,
                             {"2 x " + unitsChanged});
}

Situation changeOfAnotherSourceDuringARead()
{
    return changeDuringARead("change of another source during a read", Sources::defaultUnits(),
                             "convert: usable: 4000 HectoPascal, 2 bar by default", readDefaultUnits,
                             {unitsChanged, defaultUnitsChanged});
}

Situation conversionsDuringARead()
{
    World world = Usual::changingWorld();
    world.sources.first().answers = {Usual::units(1000), Answer::held(Documents::units(2000))};
    Situation situation = Usual::afterStart(
        "conversions while changed units are read", world,
        {change(Sources::units()), untilEntered("WaitForReply"), checks(20), convert(), changed(),
         release(Sources::units()), untilChanged(), convert(), kept()},
        QStringList{"until WaitForReply: {noticed} {read} = true", "20 checks: = 0 true", converts(1000),
                    "changed: false", "until changed: Update *changed Idle *initialized = true",
                    converts(2000), keptConverts(1000)} +
            firstReads + QStringList{readUnits, unitsChanged});
    situation.modes = QStringList{"asynchronous wrapper", "asynchronous connector"};
    return situation;
}

// Polling knows only the last signal of an object.
Situation changeOvertakenByAnotherName()
{
    return Usual::afterStart("change followed by one with another name", Usual::changingWorld(),
                             {change(Sources::units()), changeWith(Sources::units(), {"UnitManager/Other"}),
                              untilSettled(), changed(), convert()},
                             QStringList{"[delivered] " + takenUpInPassing, "[delivered] changed: true",
                                         "[delivered] " + converts(2000), "[polled] " + quiet,
                                         "[polled] changed: false", "[polled] " + converts(1000)} +
                                 firstReads +
                                 QStringList{"[delivered] " + readUnits, "[delivered] " + unitsChanged});
}

Situation burstOfChanges()
{
    return Usual::afterStart(
        "10,000 changes in a burst", Usual::changingWorld(),
        {change(Sources::units(), burst), untilChanged(), convert(), kept(), untilSettled()},
        QStringList{takenUp, converts(2000), keptConverts(1000), quiet} + firstReads +
            QStringList{readUnits, QStringLiteral("[delivered] %1 x ").arg(burst) + unitsChanged,
                        "[polled] " + unitsChanged});
}

Situation twoApplications()
{
    World world = Usual::fullWorld(
        {Usual::units(1000), Usual::units(1000), Usual::units(2000), Usual::units(2000), Usual::units(3000)});
    const QString second = "application 2 ";
    return Usual::afterStart(
        "two applications at once", world,
        {start(Usual::allSources()), untilIdle(), changed(), convert(), change(Sources::units()), switchTo(0),
         untilChanged(), convert(), switchTo(1), convert(), untilChanged(), convert(), switchTo(0), kept(),
         destroy(), change(Sources::units()), switchTo(1), untilChanged(), convert()},
        QStringList{second + firstStart, second + "changed: true", second + converts(1000), takenUp,
                    converts(2000), second + converts(1000), second + takenUp, second + converts(2000),
                    keptConverts(1000), second + takenUp, second + converts(3000)} +
            firstReads + firstReads + QStringList{readUnits, readUnits, readUnits, "3 x " + unitsChanged});
}

} // namespace

QList<Situation> LiveChangeTimingTest::situations() const
{
    return {conversionsDuringARead(),       changeDuringItsOwnRead(), changeOfAnotherSourceDuringARead(),
            changeOvertakenByAnotherName(), burstOfChanges(),         twoApplications()};
}

QTEST_GUILESS_MAIN(LiveChangeTimingTest)

#include "LiveChangeTimingTest.moc"
