#include <QtTest/QTest>

#include "Expected.h"
#include "Fixtures.h"
#include "LiveTest.h"
#include "Stage.h"
#include "WaitLimit.h"

using namespace Expected;
using namespace Fixtures;

// The possible answers of the service to a read.
class LiveReplyTest : public LiveTest
{
    Q_OBJECT

protected:
    QList<Scenario> scenarios() const override;
};

namespace {

/// The restart after a first answer that is not usable.
void restartWithUnits(Stage& stage, const Mode& mode, const QStringList& messages)
{
    stage.checkUntilIdle(restart(mode));
    stage.expectConversion(inBar(1000));
    stage.expectChanged();
    stage.finish({readUnits, readUnits}, messages);
}

void firstReadFails(Stage& stage, const Mode& mode, const Answer& answer, const QStringList& messages)
{
    stage.serve(unitsWorld({answer, units()}));
    stage.start(unitsOnly);
    stage.checkUntilEntered(failedStart(mode));
    stage.setCallTimeout(waitLimit); // undoes the short one of missingReply()
    stage.expectConversion(unconverted);
    stage.expectUnchanged();
    restartWithUnits(stage, mode, messages);
}

void errorReply(Stage& stage, const Mode& mode)
{
    firstReadFails(stage, mode, Answer::error(), onlyIf(mode.isBlocking, unitsUnread));
}

void missingReply(Stage& stage, const Mode& mode)
{
    stage.setCallTimeout(500);
    firstReadFails(stage, mode, Answer::never(), onlyIf(mode.isBlocking, unitsUnread));
}

void emptyTextForBlockingRead(Stage& stage, const Mode& mode)
{
    firstReadFails(stage, mode, Answer::with(""), {unitsEmpty});
}

const QVariantMap map{{"text", "{}"}};

void mapForBlockingRead(Stage& stage, const Mode& mode)
{
    firstReadFails(stage, mode, Answer::with(map), {unitsEmpty});
}

/// The first text is read, but cannot be loaded.
void firstTextIsUnloadable(Stage& stage, const Mode& mode, const QVariant& value, const QString& warning)
{
    stage.serve(unitsWorld({Answer::with(value), units()}));
    stage.start(unitsOnly);
    stage.checkUntilEntered(unloadableStart(mode));
    stage.expectConversion(unconverted);
    stage.expectChanged();
    stage.expectConversion(unconverted);
    restartWithUnits(stage, mode, {warning});
}

void textThatDoesNotParse(Stage& stage, const Mode& mode)
{
    firstTextIsUnloadable(stage, mode, Documents::broken(), unitsInvalid);
}

void numberAsReply(Stage& stage, const Mode& mode)
{
    firstTextIsUnloadable(stage, mode, 42, "warning Conversion configuration invalid \"42\"");
}

/// The check after the one in the update state.
const QStringList updated{Signal::configurationChanged, State::idle, Signal::initialized};

/// Asynchronous reads accept a first reply without a text. Then there is no unit manager until the units
/// change.
/// @param collectingChecks the number of checks that collect the reply, without the one that enters the
/// update
void firstTextIsAbsent(Stage& stage, const Mode& mode, const QVariant& value, int collectingChecks)
{
    stage.serve(unitsWorld({Answer::held(value), units()}));
    stage.start(unitsOnly);
    stage.checkUntilEntered(startUntilWaiting(mode));
    stage.release(Sources::units);
    stage.checkNotIdle({}, mode.isDeferred ? collectingChecks + 1 : collectingChecks);
    stage.checkNotIdle({State::update});
    stage.checkIdle(updated);
    stage.checkIdle(idleChecks(2), 2);
    stage.expectConversion(unconverted);
    stage.expectChanged();
    stage.announce(Sources::units);
    stage.checkUntilChanged(reload(mode));
    stage.expectConversion(inBar(1000));

    // A wrapper logs each idle check that finds no unit manager; so is the one that detects the change.
    const QString notInitialized = QStringLiteral("warning Unable to initialize UnitManager");
    const QStringList missing{Recorder::repeated(3, notInitialized),
                              QStringLiteral("warning Unable to change configuration of UnitManager")};
    stage.finish({readUnits, readUnits}, (mode.isWrapper() ? missing : QStringList()) +
                                             QStringList{unitsChanged} +
                                             onlyIf(mode.isWrapper() && mode.isDeferred, notInitialized));
}

void emptyTextForAsynchronousRead(Stage& stage, const Mode& mode)
{
    firstTextIsAbsent(stage, mode, "", 0);
}

// A reply that is not a text costs one more check.
void mapForAsynchronousRead(Stage& stage, const Mode& mode)
{
    firstTextIsAbsent(stage, mode, map, 1);
}

/// All three sources are read although one of them fails.
void oneOfThreeFails(Stage& stage, const Mode& mode, const World& world, const QString& warning)
{
    stage.serve(world);
    stage.start(allSources);
    stage.checkUntilEntered(failedStart(mode));
    stage.expectConversion(unconverted);
    stage.checkUntilIdle(restart(mode));
    stage.expectConversion(inHectoPascal(1000));
    stage.expectChanged();
    stage.finish(readAll + readAll, onlyIf(mode.isBlocking, warning));
}

void firstOfThreeFails(Stage& stage, const Mode& mode)
{
    oneOfThreeFails(stage, mode, fullWorld({Answer::error(), units()}), unitsUnread);
}

void lastOfThreeFails(Stage& stage, const Mode& mode)
{
    oneOfThreeFails(stage, mode, fullWorld({units()}, {dependencies()}, {Answer::error(), defaultUnits()}),
                    defaultUnitsUnread);
}

void emptyDefaultUnits(Stage& stage, const Mode& mode)
{
    stage.serve(fullWorld({units()}, {dependencies()}, {Answer::with("")}));
    stage.start(allSources);
    stage.checkUntilIdle(firstStart(mode));
    stage.expectConversion(inBar(1000));
    stage.expectDependents("Pressure");
    stage.expectChanged();
    stage.finish(readAll);
}

void dependenciesThatDoNotParse(Stage& stage, const Mode& mode)
{
    stage.serve(fullWorld({units()}, {Answer::with("[]"), dependencies()}));
    stage.start(allSources);
    stage.checkUntilEntered(unloadableStart(mode));
    stage.expectChanged();
    stage.expectConversion(inHectoPascal(1000));
    stage.expectDependents("none");
    stage.checkUntilIdle(restart(mode));
    stage.expectConversion(inHectoPascal(1000));
    stage.expectDependents("Pressure");
    stage.expectChanged();
    stage.finish(readAll + readAll,
                 {"warning Dependency configuration invalid: \"the document is not an object\""});
}

/// Three replies are held; each of three checks receives one.
void repliesOneByOne(Stage& stage, const Mode& mode, const QList<SourceName>& order)
{
    stage.serve(fullWorld({Answer::held(Documents::units(1000))},
                          {Answer::held(Documents::dependencies("Pressure"))},
                          {Answer::held(Documents::defaultUnits("HectoPascal"))}));
    stage.start(allSources);
    stage.checkUntilEntered(startUntilWaiting(mode));
    stage.checkNotIdle({}, 20);
    stage.release(order.at(0));
    stage.checkNotIdle({});
    stage.release(order.at(1));
    stage.checkNotIdle({});
    stage.release(order.at(2));
    stage.checkNotIdle(onlyIf(!mode.isDeferred, State::update));
    stage.expectConversion(unconverted);
    if (mode.isDeferred)
        stage.checkNotIdle({State::update});
    stage.checkIdle(updated);
    stage.checkIdle(idleChecks(1));
    stage.expectConversion(inHectoPascal(1000));
    stage.expectDependents("Pressure");
    stage.expectChanged();
    stage.finish(readAll);
}

void repliesInOrder(Stage& stage, const Mode& mode)
{
    repliesOneByOne(stage, mode, {Sources::units, Sources::dependencies, Sources::defaultUnits});
}

void repliesInReverseOrder(Stage& stage, const Mode& mode)
{
    repliesOneByOne(stage, mode, {Sources::defaultUnits, Sources::dependencies, Sources::units});
}

void errorBeforeAnOutstandingReply(Stage& stage, const Mode& mode)
{
    stage.serve(
        fullWorld({Answer::error()}, {dependencies()}, {Answer::held(Documents::defaultUnits("Bar"))}));
    stage.start(allSources);
    stage.checkUntilEntered(failedStart(mode));
    stage.expectUnchanged();
    stage.finish(readAll);
}

void errorAfterAnOutstandingReply(Stage& stage, const Mode& mode)
{
    stage.serve(fullWorld({Answer::held(Documents::units(1000))}, {dependencies()}, {Answer::error()}));
    stage.start(allSources);
    stage.checkUntilEntered(startUntilWaiting(mode));
    stage.checkNotIdle({}, 20);
    stage.release(Sources::units);
    stage.checkUntilEntered({State::error});
    stage.expectUnchanged();
    stage.finish(readAll);
}

} // namespace

QList<Scenario> LiveReplyTest::scenarios() const
{
    return {{"error reply", errorReply},
            {"reply that never comes", missingReply},
            {"empty text", emptyTextForBlockingRead, Modes::blocking},
            {"empty text", emptyTextForAsynchronousRead, Modes::asynchronous},
            {"text that does not parse", textThatDoesNotParse},
            {"a number as reply", numberAsReply},
            {"a map as reply", mapForBlockingRead, Modes::blocking},
            {"a map as reply", mapForAsynchronousRead, Modes::asynchronous},
            {"error reply of the first of three", firstOfThreeFails},
            {"error reply of the last of three", lastOfThreeFails},
            {"empty text of an optional source", emptyDefaultUnits, Modes::asynchronous},
            {"text of the dependencies that does not parse", dependenciesThatDoNotParse},
            {"replies one per step", repliesInOrder, Modes::asynchronous},
            {"replies one per step in reverse order", repliesInReverseOrder, Modes::asynchronous},
            {"error reply before an outstanding reply", errorBeforeAnOutstandingReply, Modes::asynchronous},
            {"error reply after an outstanding reply", errorAfterAnOutstandingReply, Modes::asynchronous}};
}

QTEST_GUILESS_MAIN(LiveReplyTest)

#include "LiveReplyTest.moc"
