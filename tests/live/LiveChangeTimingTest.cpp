#include <QtTest/QTest>

#include "Expected.h"
#include "Fixtures.h"
#include "LiveTest.h"
#include "Stage.h"

using namespace Expected;
using namespace Fixtures;

// Changes during a read, many changes at once, and changes for two applications.
class LiveChangeTimingTest : public LiveTest
{
    Q_OBJECT

protected:
    QList<Scenario> scenarios() const override;
};

namespace {

void conversionsDuringARead(Stage& stage, const Mode& mode)
{
    stage.startAllSources(changingWorld({units(1000), Answer::held(Documents::units(2000))}));
    stage.announce(Sources::units);
    stage.checkUntilEntered(changeDetected(mode) + read(mode));
    stage.checkNotIdle({}, 20);
    stage.expectConversion(inHectoPascal(1000));
    stage.expectUnchanged();
    stage.release(Sources::units);
    stage.checkUntilChanged(update);
    stage.expectConversion(inHectoPascal(2000));
    stage.expectKept({inHectoPascal(1000)});
    stage.finish(readAll + QStringList{readUnits}, {unitsChanged});
}

/// The units are read because of a change. During that read another change is announced.
struct ChangeDuringARead
{
    SourceName source;
    QString conversion; ///< after the other change has been read
    QString read;
    QStringList messages;
};

void changeDuringARead(Stage& stage, const Mode& mode, const ChangeDuringARead& change)
{
    stage.startAllSources(changingWorld(
        {units(1000), Answer::afterChange(change.source, Documents::units(2000)), units(3000)}));
    stage.announce(Sources::units);
    stage.checkUntilChanged(reload(mode));
    stage.expectConversion(inHectoPascal(2000));
    // A change that is delivered while the library waits for replies is discarded by the update. During a
    // blocking read nothing is delivered, and changes are polled in the idle state only.
    const bool isDiscarded = !mode.isBlocking && !mode.isPolled;
    if (isDiscarded) {
        stage.checkUntilSettled(remainsIdle);
        stage.expectConversion(inHectoPascal(2000));
        stage.finish(readAll + QStringList{readUnits}, change.messages);
        return;
    }
    // The idle state polls on entry or in its first check, so that no idle check precedes the read.
    const QStringList secondReload = mode.isPolled ? read(mode) + update : reload(mode);
    stage.checkUntilSettled(secondReload + remainsIdle);
    stage.expectConversion(change.conversion);
    stage.finish(readAll + QStringList{readUnits, change.read}, change.messages);
}

void changeDuringItsOwnRead(Stage& stage, const Mode& mode)
{
    changeDuringARead(
        stage, mode, {Sources::units, inHectoPascal(3000), readUnits, {Recorder::repeated(2, unitsChanged)}});
}

void changeOfAnotherSourceDuringARead(Stage& stage, const Mode& mode)
{
    changeDuringARead(
        stage, mode,
        {Sources::defaultUnits, inBar(2000), readDefaultUnits, {unitsChanged, defaultUnitsChanged}});
}

// Polling returns only the last signal of an object.
void changeFollowedByAnotherName(Stage& stage, const Mode& mode)
{
    stage.startAllSources(changingWorld());
    stage.announce(Sources::units);
    stage.announceWith(Sources::units, {"UnitManager/Other"});
    if (mode.isPolled) {
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

void burstOfChanges(Stage& stage, const Mode& mode)
{
    const int changes = 10000;
    stage.startAllSources(changingWorld());
    stage.announce(Sources::units, changes);
    stage.checkUntilChanged(reload(mode));
    stage.expectConversion(inHectoPascal(2000));
    stage.expectKept({inHectoPascal(1000)});
    stage.checkUntilSettled(remainsIdle);
    stage.finish(readAll + QStringList{readUnits},
                 {Recorder::repeated(mode.isPolled ? 1 : changes, unitsChanged)});
}

void twoApplications(Stage& stage, const Mode& mode)
{
    stage.startAllSources(fullWorld({units(1000), units(1000), units(2000), units(2000), units(3000)}));
    stage.start(allSources);
    stage.checkUntilIdle(firstStart(mode));
    stage.expectChanged();
    stage.expectConversion(inHectoPascal(1000));

    stage.announce(Sources::units);
    stage.switchTo(0);
    stage.checkUntilChanged(reload(mode));
    stage.expectConversion(inHectoPascal(2000));
    stage.switchTo(1);
    stage.expectConversion(inHectoPascal(1000));
    stage.checkUntilChanged(reload(mode));
    stage.expectConversion(inHectoPascal(2000));

    stage.switchTo(0);
    stage.expectKept({inHectoPascal(1000)});
    stage.destroy();
    stage.announce(Sources::units);
    stage.switchTo(1);
    stage.checkUntilChanged(reload(mode));
    stage.expectConversion(inHectoPascal(3000));
    stage.finish(readAll + readAll + QStringList{readUnits, readUnits, readUnits},
                 {Recorder::repeated(3, unitsChanged)});
}

} // namespace

QList<Scenario> LiveChangeTimingTest::scenarios() const
{
    return {{"conversions while changed units are read", conversionsDuringARead, Modes::asynchronous},
            {"change during its own read", changeDuringItsOwnRead},
            {"change of another source during a read", changeOfAnotherSourceDuringARead},
            {"change followed by one with another name", changeFollowedByAnotherName},
            {"10,000 changes in a burst", burstOfChanges},
            {"two applications at once", twoApplications}};
}

QTEST_GUILESS_MAIN(LiveChangeTimingTest)

#include "LiveChangeTimingTest.moc"
