#include <QtTest/QTest>

#include "Lines.h"
#include "LiveTest.h"
#include "Usual.h"

using namespace Lines;
using namespace Steps;

// What the service may answer to a read.
class LiveReplyTest : public LiveTest
{
    Q_OBJECT

protected:
    QList<Situation> situations() const override;
};

namespace {

const QStringList blocking{"blocking wrapper", "blocking connector"};
const QStringList asynchronous{"asynchronous wrapper", "asynchronous connector"};

/// A first read that fails, and a second one that succeeds.
Situation failingFirstRead(const QString& name, const Answer& answer, const QString& warning)
{
    return {name,
            Usual::unitsWorld({answer, Usual::units()}),
            {start(Usual::unitsOnly()), untilEntered("Error"), convert(), changed(), untilIdle(), convert(),
             changed()},
            {failedStart, raw, "changed: false", secondStart, convertsWithoutDefault(1000), "changed: true",
             readUnits, readUnits, warning}};
}

/// A first text that is read, but does not load.
Situation unloadableFirstText(const QString& name, const QVariant& value, const QString& warning)
{
    return {name,
            Usual::unitsWorld({Answer::with(value), Usual::units()}),
            {start(Usual::unitsOnly()), untilEntered("Error"), convert(), changed(), convert(), untilIdle(),
             convert(), changed()},
            {"until Error: {start} {read} Update *changed Error = true", raw, "changed: true", raw,
             secondStart, convertsWithoutDefault(1000), "changed: true", readUnits, readUnits, warning}};
}

/// A first reply that counts as no text when reading does not block; @p checks are three of them and those
/// until the library idles.
Situation absentFirstText(const QString& name, const QVariant& value, const QStringList& checks)
{
    return {
        name,
        Usual::unitsWorld({Answer::held(value), Usual::units()}),
        {start(Usual::unitsOnly()), untilEntered("WaitForReply"), release(Sources::units()), check(), check(),
         check(), untilIdle(), convert(), changed(), change(Sources::units()), untilChanged(), convert()},
        QStringList{"until WaitForReply: {start} ReadConfigurationASynchron WaitForReply = true"} + checks +
            QStringList{raw, "changed: true", takenUp, convertsWithoutDefault(1000), readUnits, readUnits},
        asynchronous};
}

Situation errorReply()
{
    return failingFirstRead("error reply", Answer::of(Answer::Error), "[blocking] " + unitsUnread);
}

Situation replyThatNeverComes()
{
    Situation situation =
        failingFirstRead("reply that never comes", Answer::of(Answer::Never), "[blocking] " + unitsUnread);
    situation.world.callTimeout = 500;
    situation.script.insert(2, callTimeout(60000));
    return situation;
}

Situation emptyTextForBlockingRead()
{
    Situation situation = failingFirstRead("empty text", Answer::with(""), unitsEmpty);
    situation.modes = blocking;
    return situation;
}

Situation mapForBlockingRead()
{
    Situation situation =
        failingFirstRead("a map as reply", Answer::with(QVariantMap{{"text", "{}"}}), unitsEmpty);
    situation.modes = blocking;
    return situation;
}

/// What a wrapper logs that finds no unit manager at @p idleChecks checks, before the units change. With
/// deferred entry it idles once more after the change, in the check that finds it.
QStringList missedUnitManager(const char* entry, int idleChecks)
{
    const QString times = idleChecks == 1 ? QString() : QStringLiteral("%1 x ").arg(idleChecks);
    const QString condition = QStringLiteral("[wrapper %1] ").arg(QLatin1String(entry));
    return {condition + times + notInitialized, condition + notChanged};
}

const QString idlesOnceMore = "[wrapper deferred] " + notInitialized;

// The first check collects the reply, the second one updates.
Situation emptyTextForAsynchronousRead()
{
    Situation situation = absentFirstText(
        "empty text", "",
        {"[immediate] check: Update = false", "[immediate] check: *changed Idle *initialized = true",
         "[immediate] check: *initialized = true", "[immediate] until idle: *initialized = true",
         "[deferred] check: = false", "[deferred] check: Update = false",
         "[deferred] check: *changed Idle *initialized = true",
         "[deferred] until idle: *initialized = true"});
    situation.record += missedUnitManager("immediate", 3) + missedUnitManager("deferred", 2) +
                        QStringList{unitsChanged, idlesOnceMore};
    return situation;
}

// A reply that is no text costs one more check.
Situation mapForAsynchronousRead()
{
    Situation situation =
        absentFirstText("a map as reply", QVariantMap{{"text", "{}"}},
                        {"[immediate] check: = false", "[immediate] check: Update = false",
                         "[immediate] check: *changed Idle *initialized = true",
                         "[immediate] until idle: *initialized = true", "[deferred] check: = false",
                         "[deferred] check: = false", "[deferred] check: Update = false",
                         "[deferred] until idle: *changed Idle *initialized = true"});
    situation.record += missedUnitManager("immediate", 2) + missedUnitManager("deferred", 1) +
                        QStringList{unitsChanged, idlesOnceMore};
    return situation;
}

/// All three sources are asked although one of them fails.
Situation oneOfThreeFails(const QString& name, const World& world, const QString& warning)
{
    return {name,
            world,
            {start(Usual::allSources()), untilEntered("Error"), convert(), untilIdle(), convert(), changed()},
            {failedStart, raw, secondStart, converts(1000), "changed: true", readUnits, readDependencies,
             readDefaultUnits, readUnits, readDependencies, readDefaultUnits, "[blocking] " + warning}};
}

Situation firstOfThreeFails()
{
    return oneOfThreeFails("error reply of the first of three",
                           Usual::fullWorld({Answer::of(Answer::Error), Usual::units()}), unitsUnread);
}

Situation lastOfThreeFails()
{
    return oneOfThreeFails("error reply of the last of three",
                           Usual::fullWorld({Usual::units()}, {Usual::dependencies()},
                                            {Answer::of(Answer::Error), Usual::defaultUnits()}),
                           defaultUnitsUnread);
}

Situation emptyDefaultUnits()
{
    return {"empty text of an optional source",
            Usual::fullWorld({Usual::units()}, {Usual::dependencies()}, {Answer::with("")}),
            {start(Usual::allSources()), untilIdle(), convert(), dependents(), changed()},
            {firstStart, convertsWithoutDefault(1000), "[connector] dependents: Pressure", "changed: true",
             readUnits, readDependencies, readDefaultUnits},
            asynchronous};
}

Situation brokenDependencies()
{
    return {"text of the dependencies that does not parse",
            Usual::fullWorld({Usual::units()}, {Answer::with("[]"), Usual::dependencies()}),
            {start(Usual::allSources()), untilEntered("Error"), changed(), convert(), dependents(),
             untilIdle(), convert(), dependents(), changed()},
            {"until Error: {start} {read} Update *changed Error = true", "changed: true", converts(1000),
             "[connector] dependents: none", secondStart, converts(1000), "[connector] dependents: Pressure",
             "changed: true", readUnits, readDependencies, readDefaultUnits, readUnits, readDependencies,
             readDefaultUnits,
             "warning Dependency configuration invalid: \"the document is not an object\""}};
}

/// Three held replies, released one a check.
Situation releasedOneByOne(const QString& name, const QList<SourceName>& order)
{
    const Answer heldUnits = Answer::held(Documents::units(1000));
    const Answer heldDependencies = Answer::held(Documents::dependencies("Pressure"));
    const Answer heldDefaultUnits = Answer::held(Documents::defaultUnits("HectoPascal"));
    return {name,
            Usual::fullWorld({heldUnits}, {heldDependencies}, {heldDefaultUnits}),
            {start(Usual::allSources()), untilEntered("WaitForReply"), checks(20), release(order.at(0)),
             check(), release(order.at(1)), check(), release(order.at(2)), check(), convert(), check(),
             untilIdle(), convert(), dependents(), changed()},
            {"until WaitForReply: {start} ReadConfigurationASynchron WaitForReply = true",
             "20 checks: = 0 true", "check: = false", "check: = false", "[immediate] check: Update = false",
             "[deferred] check: = false", raw, "[immediate] check: *changed Idle *initialized = true",
             "[immediate] until idle: *initialized = true", "[deferred] check: Update = false",
             "[deferred] until idle: *changed Idle *initialized = true", converts(1000),
             "[connector] dependents: Pressure", "changed: true", readUnits, readDependencies,
             readDefaultUnits},
            asynchronous};
}

Situation failureBeforeAnOutstandingReply()
{
    return {"error reply ahead of a reply that is outstanding",
            Usual::fullWorld({Answer::of(Answer::Error)}, {Usual::dependencies()},
                             {Answer::held(Documents::defaultUnits("Bar"))}),
            {start(Usual::allSources()), untilEntered("Error"), changed()},
            {failedStart, "changed: false", readUnits, readDependencies, readDefaultUnits},
            asynchronous};
}

Situation failureBehindAnOutstandingReply()
{
    return {"error reply behind a reply that is outstanding",
            Usual::fullWorld({Answer::held(Documents::units(1000))}, {Usual::dependencies()},
                             {Answer::of(Answer::Error)}),
            {start(Usual::allSources()), untilEntered("WaitForReply"), checks(20), release(Sources::units()),
             untilEntered("Error"), changed()},
            {"until WaitForReply: {start} ReadConfigurationASynchron WaitForReply = true",
             "20 checks: = 0 true", "until Error: Error = true", "changed: false", readUnits,
             readDependencies, readDefaultUnits},
            asynchronous};
}

} // namespace

QList<Situation> LiveReplyTest::situations() const
{
    const QList<SourceName> order{Sources::units(), Sources::dependencies(), Sources::defaultUnits()};
    const QList<SourceName> reverse{order.at(2), order.at(1), order.at(0)};
    return {errorReply(),
            replyThatNeverComes(),
            emptyTextForBlockingRead(),
            emptyTextForAsynchronousRead(),
            unloadableFirstText("text that does not parse", Documents::broken(), brokenUnits),
            unloadableFirstText("a number as reply", 42, "warning Conversion configuration invalid \"42\""),
            mapForBlockingRead(),
            mapForAsynchronousRead(),
            firstOfThreeFails(),
            lastOfThreeFails(),
            emptyDefaultUnits(),
            brokenDependencies(),
            releasedOneByOne("replies one per step", order),
            releasedOneByOne("replies one per step in reverse order", reverse),
            failureBeforeAnOutstandingReply(),
            failureBehindAnOutstandingReply()};
}

QTEST_GUILESS_MAIN(LiveReplyTest)

#include "LiveReplyTest.moc"
