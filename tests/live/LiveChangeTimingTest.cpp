// Changes during a read, many changes at once, and changes for two applications.

#include "LiveTest.h"

using namespace Expected;
using namespace Fixtures;

namespace {

void conversionsDuringARead(Stage& stage)
{
    stage.startAllSources(changingWorld({units(1000), held(units(2000))}));
    stage.announce(Sources::units);
    stage.checkUntilEntered(changeDetected(stage.mode) + read(stage.mode));
    stage.checkNotIdle({}, 20);
    stage.expectConversion(inHectoPascal(1000));
    stage.expectChanged(false);
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

void changeDuringARead(Stage& stage, const ChangeDuringARead& change)
{
    stage.startAllSources(changingWorld({units(1000), afterChange(change.source, units(2000)), units(3000)}));
    stage.announce(Sources::units);
    stage.expectReload(inHectoPascal(2000));
    // A change that is delivered while the library waits for replies is discarded by the update. During a
    // blocking read nothing is delivered, and changes are polled in the idle state only.
    const bool isDiscarded = !stage.mode.isBlocking && !stage.mode.isPolled;
    if (isDiscarded) {
        stage.checkUntilSettled(remainsIdle);
        stage.expectConversion(inHectoPascal(2000));
        stage.finish(readAll + QStringList{readUnits}, change.messages);
        return;
    }
    // The idle state polls on entry or in its first check, so that no idle check precedes the read.
    const QStringList secondReload = stage.mode.isPolled ? read(stage.mode) + update : reload(stage.mode);
    stage.checkUntilSettled(secondReload + remainsIdle);
    stage.expectConversion(change.conversion);
    stage.finish(readAll + QStringList{readUnits, change.read}, change.messages);
}

// Polling returns only the last signal of an object.
void changeFollowedByAnotherName(Stage& stage)
{
    stage.startAllSources(changingWorld());
    stage.announce(Sources::units);
    stage.announceWith(Sources::units, {"UnitManager/Other"});
    stage.finishAnnouncement(!stage.mode.isPolled);
}

void burstOfChanges(Stage& stage)
{
    const int changes = 10000;
    stage.startAllSources(changingWorld());
    stage.announce(Sources::units, changes);
    stage.expectReload(inHectoPascal(2000));
    stage.expectKept({inHectoPascal(1000)});
    stage.checkUntilSettled(remainsIdle);
    stage.finish(readAll + QStringList{readUnits},
                 {Recorder::repeated(stage.mode.isPolled ? 1 : changes, unitsChanged)});
}

void twoApplications(Stage& stage)
{
    stage.startAllSources(fullWorld({units(1000), units(1000), units(2000), units(2000), units(3000)}));
    stage.start(allSources);
    stage.expectStart(firstStart(stage.mode), inHectoPascal(1000));

    stage.announce(Sources::units);
    stage.switchTo(0);
    stage.expectReload(inHectoPascal(2000));
    stage.switchTo(1);
    stage.expectConversion(inHectoPascal(1000));
    stage.expectReload(inHectoPascal(2000));

    stage.switchTo(0);
    stage.expectKept({inHectoPascal(1000)});
    stage.application() = {};
    stage.announce(Sources::units);
    stage.switchTo(1);
    stage.expectReload(inHectoPascal(3000));
    stage.finish(readAll + readAll + QStringList{readUnits, readUnits, readUnits},
                 {Recorder::repeated(3, unitsChanged)});
}

} // namespace

QList<Scenario> scenarios()
{
    const ChangeDuringARead ofUnits{
        Sources::units, inHectoPascal(3000), readUnits, {Recorder::repeated(2, unitsChanged)}};
    const ChangeDuringARead ofDefaultUnits{
        Sources::defaultUnits, inBar(2000), readDefaultUnits, {unitsChanged, defaultUnitsChanged}};
    return {{"conversions while changed units are read", conversionsDuringARead, Modes::asynchronous},
            {"change during its own read", with(changeDuringARead, ofUnits)},
            {"change of another source during a read", with(changeDuringARead, ofDefaultUnits)},
            {"change followed by one with another name", changeFollowedByAnotherName},
            {"10,000 changes in a burst", burstOfChanges},
            {"two applications at once", twoApplications}};
}
