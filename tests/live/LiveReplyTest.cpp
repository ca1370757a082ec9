// The possible answers of the service to a read.

#include "DeviceBusEnvironment.h"
#include "LiveTest.h"

using namespace Expected;
using namespace Fixtures;

namespace {

/// The restart after a first answer that is not usable.
void restartWithUnits(Stage& stage, const QStringList& messages)
{
    stage.expectStart(restart(stage.mode), inBar(1000));
    stage.finish({readUnits, readUnits}, messages);
}

/// Only blocking reads log the failure.
void firstReadFails(Stage& stage, const Answer& answer, const QString& warning)
{
    stage.start(unitsOnly, unitsWorld({answer, units()}));
    stage.checkUntilEntered(failedStart(stage.mode));
    setCallTimeout(waitLimit); // undoes the short one of missingReply()
    stage.expectConversion(unconverted);
    stage.expectChanged(false);
    restartWithUnits(stage, onlyIf(stage.mode.isBlocking, warning));
}

void missingReply(Stage& stage)
{
    setCallTimeout(1000);
    firstReadFails(stage, {Answer::Never}, unitsUnread);
}

/// The first text is read, but cannot be loaded.
void firstTextIsUnloadable(Stage& stage, const Answer& answer, const QString& warning)
{
    stage.start(unitsOnly, unitsWorld({answer, units()}));
    stage.checkUntilEntered(unloadableStart(stage.mode));
    stage.expectConversion(unconverted);
    stage.expectChanged(true);
    stage.expectConversion(unconverted);
    restartWithUnits(stage, {warning});
}

/// The check after the one in the update state.
const QStringList updated{Signal::configurationChanged, State::idle, Signal::initialized};

/// Asynchronous reads accept a first reply without a text. The unit manager is then missing until the units
/// change.
/// @param collectingChecks with immediate entry, the number of checks before the one that enters the update
void firstTextIsAbsent(Stage& stage, const Answer& answer, int collectingChecks)
{
    stage.start(unitsOnly, unitsWorld({held(answer), units()}));
    stage.checkUntilEntered(construction(stage.mode) + read(stage.mode));
    stage.release(Sources::units);
    stage.checkNotIdle({}, stage.mode.isDeferred ? collectingChecks + 1 : collectingChecks);
    stage.checkNotIdle({State::update});
    stage.checkIdle(updated);
    stage.checkIdle(idleChecks(2), 2);
    stage.expectConversion(unconverted);
    stage.expectChanged(true);
    stage.announce(Sources::units);
    stage.expectReload(inBar(1000));

    // A wrapper logs each idle check without a unit manager. With deferred entry, the check that detects the
    // change is one of these.
    const QString notInitialized = QStringLiteral("warning Unable to initialize UnitManager");
    const QStringList missing{Recorder::repeated(3, notInitialized),
                              QStringLiteral("warning Unable to change configuration of UnitManager")};
    stage.finish({readUnits, readUnits},
                 (stage.mode.isWrapper() ? missing : QStringList()) + QStringList{unitsChanged} +
                     onlyIf(stage.mode.isWrapper() && stage.mode.isDeferred, notInitialized));
}

/// All three sources are read although one of them fails.
void oneOfThreeFails(Stage& stage, const World& world, const QString& warning)
{
    stage.start(allSources, world);
    stage.checkUntilEntered(failedStart(stage.mode));
    stage.expectConversion(unconverted);
    stage.expectStart(restart(stage.mode), inHectoPascal(1000));
    stage.finish(readAll + readAll, onlyIf(stage.mode.isBlocking, warning));
}

void emptyDefaultUnits(Stage& stage)
{
    stage.start(allSources, fullWorld({units()}, {dependencies()}, {{Answer::Value, ""}}));
    stage.expectStart(firstStart(stage.mode), inBar(1000));
    stage.expectDependents("Pressure");
    stage.finish(readAll);
}

void dependenciesThatDoNotParse(Stage& stage)
{
    stage.start(allSources, fullWorld({units()}, {{Answer::Value, "[]"}, dependencies()}));
    stage.checkUntilEntered(unloadableStart(stage.mode));
    stage.expectChanged(true);
    stage.expectConversion(inHectoPascal(1000));
    stage.expectDependents("none");
    stage.expectStart(restart(stage.mode), inHectoPascal(1000));
    stage.expectDependents("Pressure");
    stage.finish(
        readAll + readAll,
        {R"(warning Dependency configuration invalid: "line 1, column 1: expected \"{\" at the start of the document")"});
}

/// Three replies are held; each of three checks receives one.
void repliesOneByOne(Stage& stage, const QList<SourceName>& order)
{
    stage.start(allSources, fullWorld({held(units(1000))}, {held(dependencies("Pressure"))},
                                      {held(defaultUnits("HectoPascal"))}));
    stage.checkUntilEntered(construction(stage.mode) + read(stage.mode));
    stage.checkNotIdle({}, 20);
    stage.release(order.at(0));
    stage.checkNotIdle({});
    stage.release(order.at(1));
    stage.checkNotIdle({});
    stage.release(order.at(2));
    stage.checkNotIdle(onlyIf(!stage.mode.isDeferred, State::update));
    stage.expectConversion(unconverted);
    if (stage.mode.isDeferred)
        stage.checkNotIdle({State::update});
    stage.checkIdle(updated);
    stage.checkIdle(idleChecks(1));
    stage.expectConversion(inHectoPascal(1000));
    stage.expectDependents("Pressure");
    stage.expectChanged(true);
    stage.finish(readAll);
}

void errorBeforeAnOutstandingReply(Stage& stage)
{
    stage.start(allSources, fullWorld({{Answer::Error}}, {dependencies()}, {held(defaultUnits("Bar"))}));
    stage.checkUntilEntered(failedStart(stage.mode));
    stage.expectChanged(false);
    stage.finish(readAll);
}

void errorAfterAnOutstandingReply(Stage& stage)
{
    stage.start(allSources, fullWorld({held(units(1000))}, {dependencies()}, {{Answer::Error}}));
    stage.checkUntilEntered(construction(stage.mode) + read(stage.mode));
    stage.checkNotIdle({}, 20);
    stage.release(Sources::units);
    stage.checkUntilEntered({State::error});
    stage.expectChanged(false);
    stage.finish(readAll);
}

} // namespace

QList<Scenario> scenarios()
{
    const Answer emptyText{Answer::Value, ""};
    const Answer number{Answer::Value, 42};
    const Answer map{Answer::Value, QVariantMap{{"text", "{}"}}};
    const QString invalidNumber = QStringLiteral("warning Conversion configuration invalid \"42\"");
    const World firstFails = fullWorld({{Answer::Error}, units()});
    const World lastFails = fullWorld({units()}, {dependencies()}, {{Answer::Error}, defaultUnits()});
    const QList<SourceName> order{Sources::units, Sources::dependencies, Sources::defaultUnits};
    const QList<SourceName> reverse{order.at(2), order.at(1), order.at(0)};
    return {{"error reply", with(firstReadFails, Answer{Answer::Error}, unitsUnread)},
            {"reply that never comes", missingReply},
            {"empty text", with(firstReadFails, emptyText, unitsEmpty), Modes::blocking},
            {"empty text", with(firstTextIsAbsent, emptyText, 0), Modes::asynchronous},
            {"text that does not parse", with(firstTextIsUnloadable, brokenUnits(), unitsInvalid)},
            {"a number as reply", with(firstTextIsUnloadable, number, invalidNumber)},
            {"a map as reply", with(firstReadFails, map, unitsEmpty), Modes::blocking},
            // A reply that is not a text costs one more check.
            {"a map as reply", with(firstTextIsAbsent, map, 1), Modes::asynchronous},
            {"error reply of the first of three", with(oneOfThreeFails, firstFails, unitsUnread)},
            {"error reply of the last of three", with(oneOfThreeFails, lastFails, defaultUnitsUnread)},
            {"empty text of an optional source", emptyDefaultUnits, Modes::asynchronous},
            {"text of the dependencies that does not parse", dependenciesThatDoNotParse},
            {"replies one per step", with(repliesOneByOne, order), Modes::asynchronous},
            {"replies one per step in reverse order", with(repliesOneByOne, reverse), Modes::asynchronous},
            {"error reply before an outstanding reply", errorBeforeAnOutstandingReply, Modes::asynchronous},
            {"error reply after an outstanding reply", errorAfterAnOutstandingReply, Modes::asynchronous}};
}
