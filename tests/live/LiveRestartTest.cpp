#include <QtTest/QtTest>

#include "Lines.h"
#include "LiveTest.h"
#include "Usual.h"

using namespace Lines;
using namespace Steps;

// Reset and destruction in each state, and new settings.
class LiveRestartTest : public LiveTest
{
    Q_OBJECT

protected:
    QList<Situation> situations() const override;
};

namespace {

const QStringList everyLevel{"wrapper", "connector", "machine"};
// Between two checks that block, only these levels stand in any state but initial, idle and error.
const QStringList everyStep{"asynchronous wrapper", "asynchronous connector", "machine"};
// A wrapper that hears of changes by the event loop has left the initial state when it is built.
const QStringList beforeTheFirstStep{"polled wrapper", "connector", "machine"};

/// A start that is brought to a state, with what was seen of it; from there the first replies may be held.
struct Place
{
    QString name;
    QStringList modes;
    World world;
    Script way;
    QStringList seen;
    QStringList reads;             ///< of the way
    QStringList messages;          ///< of the way
    QStringList lateMessages = {}; ///< of what was under way to the application and reaches it later
};

World heldWorld()
{
    return Usual::fullWorld({Answer::held(Documents::units(1000)), Usual::units(2000)},
                            {Answer::held(Documents::dependencies("Pressure")), Usual::dependencies("Range")},
                            {Answer::held(Documents::defaultUnits("Bar")), Usual::defaultUnits()});
}

World plainWorld()
{
    return Usual::fullWorld({Usual::units(1000), Usual::units(2000)},
                            {Usual::dependencies("Pressure"), Usual::dependencies("Range")});
}

Place initial()
{
    return {"the initial state", beforeTheFirstStep, plainWorld(), {}, {}, {}, {}};
}

Place reading()
{
    return {"the blocking read",
            {"blocking machine"},
            plainWorld(),
            {untilEntered("ReadConfigurationSynchron")},
            {"until ReadConfigurationSynchron: {start} ReadConfigurationSynchron = true"},
            {},
            {}};
}

Place startingToRead()
{
    return {"the start of the reads",
            {"asynchronous"},
            plainWorld(),
            {untilEntered("ReadConfigurationASynchron")},
            {"until ReadConfigurationASynchron: {start} ReadConfigurationASynchron = true"},
            {},
            {}};
}

Place waiting()
{
    return {
        "the wait for replies",
        {"asynchronous"},
        heldWorld(),
        {untilEntered("WaitForReply"), checks(5)},
        {"until WaitForReply: {start} ReadConfigurationASynchron WaitForReply = true", "5 checks: = 0 true"},
        firstReads,
        {}};
}

Place waitingForTheLast()
{
    return {
        "the wait for the last reply",
        {"asynchronous"},
        heldWorld(),
        {untilEntered("WaitForReply"), release(Sources::units()), release(Sources::dependencies()), check()},
        {"until WaitForReply: {start} ReadConfigurationASynchron WaitForReply = true", "check: = false"},
        firstReads,
        {}};
}

Place updating()
{
    return {"the update",
            everyStep,
            plainWorld(),
            {untilEntered("Update")},
            {"until Update: {start} {read} Update = true"},
            firstReads,
            {}};
}

Place idling()
{
    return {"the idle state", everyLevel, plainWorld(), {untilIdle()}, {firstStart}, firstReads, {}};
}

Place idlingWithAChange()
{
    return {"the idle state with a change announced",
            everyLevel,
            plainWorld(),
            {untilIdle(), change(Sources::units())},
            {firstStart},
            firstReads,
            {},
            {"[delivered] " + unitsChanged}};
}

Place failed()
{
    return {"the error state",
            everyLevel,
            Usual::fullWorld({Answer::of(Answer::Error), Usual::units(2000)}, {Usual::dependencies("Range")}),
            {untilEntered("Error")},
            {failedStart},
            firstReads,
            {"[blocking] " + unitsUnread}};
}

QList<Place> places()
{
    return {initial(),  reading(), startingToRead(),    waiting(), waitingForTheLast(),
            updating(), idling(),  idlingWithAChange(), failed()};
}

/// Late replies of the calls that were given up; none is held at most places.
const Script lateReplies{release(Sources::units()), release(Sources::dependencies()),
                         release(Sources::defaultUnits())};

/// The next reads of the place's world, which are its first at some places.
QString unitsAfter(const Place& place)
{
    return place.reads.isEmpty() ? converts(1000) : converts(2000);
}

Situation resetIn(const Place& place)
{
    // Nothing that was built gets lost, and what was announced needs no read of its own.
    const bool isBuilt = place.seen.contains(firstStart);
    const QStringList afterReset{"[wrapper] changed: false", "[connector] changed: false",
                                 isBuilt ? converts(1000) : raw};
    const QStringList afterStart{"until idle: Initial {read} Update *changed Idle *initialized = true",
                                 unitsAfter(place),
                                 "[wrapper] changed: true",
                                 "[connector] changed: true",
                                 "until settled: *initialized *initialized = true",
                                 unitsAfter(place)};
    const QString startFromInitial =
        "until idle: {start} Initial {read} Update *changed Idle *initialized = true";
    QStringList record = place.seen + afterReset + afterStart;
    if (place.way.isEmpty())
        record.replaceInStrings(afterStart.first(), startFromInitial);
    return {"reset in " + place.name, place.world,
            Script{start(Usual::allSources())} + place.way +
                Script{reset(), changed(), convert(), untilIdle()} + Script{convert(), changed()} +
                lateReplies + Script{untilSettled(), convert()},
            record + place.reads + firstReads + place.messages + place.lateMessages, place.modes};
}

Situation destructionIn(const Place& place)
{
    const bool isBuilt = place.seen.contains(firstStart);
    return {"destruction in " + place.name, place.world,
            Script{start(Usual::allSources())} + place.way + Script{keep(), destroy(), kept()} + lateReplies,
            place.seen + QStringList{isBuilt ? keptConverts(1000) : keptIsRaw} +
                (place.way.isEmpty() ? QStringList{"end: {start}"} : QStringList()) + place.reads +
                place.messages,
            place.modes};
}

} // namespace

QList<Situation> LiveRestartTest::situations() const
{
    QList<Situation> list;
    for (const Place& place : places())
        list << resetIn(place) << destructionIn(place);
    return list;
}

QTEST_GUILESS_MAIN(LiveRestartTest)

#include "LiveRestartTest.moc"
