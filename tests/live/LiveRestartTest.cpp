#include <QtTest/QTest>

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
/// With deferred entry the state runs in the step that enters it.
struct Place
{
    QString name;
    QStringList modes;
    World world;
    Script way;
    QStringList seen;
    QStringList reads;                   ///< of the way
    QStringList messages;                ///< of the way
    QStringList lateMessages = {};       ///< of what was under way to the application and reaches it later
    QStringList converted = {raw};       ///< by what the way has built
    QStringList restart = {secondStart}; ///< what is seen of another start
    QStringList restarted = {converts(2000)}; ///< by what that has built
};

/// Lines that are expected in the modes that fulfil @p condition.
QStringList under(const char* condition, const QStringList& lines)
{
    QStringList conditional;
    for (const QString& line : lines)
        conditional.append(QStringLiteral("[%1] %2").arg(QLatin1String(condition), line));
    return conditional;
}

/// The conversion after another start: with deferred entry the first answers have been read before it.
QStringList convertsAfterReadState()
{
    return under("immediate", {converts(1000)}) + under("deferred", {converts(2000)});
}

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
    Place place{"the initial state", beforeTheFirstStep, plainWorld(), {}, {}, {}, {}};
    // With deferred entry only the last of the selections is entered.
    place.restart =
        QStringList{"[immediate] until idle: {start} Initial {read} Update *changed Idle *initialized = true",
                    "[deferred] " + secondStart};
    place.restarted = QStringList{converts(1000)};
    return place;
}

Place reading()
{
    Place place{"the blocking read",
                {"blocking machine"},
                plainWorld(),
                {untilEntered("ReadConfigurationSynchron")},
                {"until ReadConfigurationSynchron: {start} ReadConfigurationSynchron = true"},
                under("deferred", firstReads),
                {}};
    place.restarted = convertsAfterReadState();
    return place;
}

Place startingToRead()
{
    Place place{"the start of the reads",
                {"asynchronous"},
                plainWorld(),
                {untilEntered("ReadConfigurationASynchron")},
                {"until ReadConfigurationASynchron: {start} ReadConfigurationASynchron = true"},
                under("deferred", firstReads),
                {}};
    place.restarted = convertsAfterReadState();
    return place;
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
    Place place{"the update",
                everyStep,
                plainWorld(),
                {untilEntered("Update")},
                {"until Update: {start} {read} Update = true"},
                firstReads,
                {}};
    // With deferred entry the objects are built. A wrapper has not shared them yet: they are announced by the
    // next step, which begins in the update state although it enters another one.
    place.converted = under("immediate", {raw}) + under("deferred wrapper", {raw}) +
                      under("deferred connector", {converts(1000)}) +
                      under("deferred machine", {converts(1000)});
    place.restart = QStringList{"[immediate] " + secondStart,
                                "[deferred] until idle: *changed Initial {read} Update *changed Idle "
                                "*initialized = true"};
    return place;
}

Place idling()
{
    Place place{"the idle state", everyLevel, plainWorld(), {untilIdle()}, {firstStart}, firstReads, {}};
    place.converted = QStringList{converts(1000)};
    return place;
}

Place idlingWithAChange()
{
    Place place = idling();
    place.name = "the idle state with a change announced";
    place.way << change(Sources::units());
    place.lateMessages = under("delivered", {unitsChanged});
    return place;
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

Situation resetIn(const Place& place)
{
    // Nothing that was built gets lost, and what was announced needs no read of its own.
    const QStringList unchanged{"[wrapper] changed: false", "[connector] changed: false"};
    const QStringList changedOnce{"[wrapper] changed: true", "[connector] changed: true"};
    return {"reset in " + place.name, place.world,
            Script{start(Usual::allSources())} + place.way +
                Script{reset(), changed(), convert(), untilIdle()} + Script{convert(), changed()} +
                lateReplies + Script{untilSettled(), convert()},
            place.seen + unchanged + place.converted + place.restart + place.restarted + changedOnce +
                QStringList{"until settled: *initialized *initialized = true"} + place.restarted +
                place.reads + firstReads + place.messages + place.lateMessages,
            place.modes};
}

Situation destructionIn(const Place& place)
{
    QStringList kept = place.converted;
    kept.replaceInStrings("convert: ", "kept: ");
    // With deferred entry nothing is entered before the first step.
    const QStringList end = place.way.isEmpty() ? QStringList{"[immediate] end: {start}"} : QStringList();
    return {"destruction in " + place.name, place.world,
            Script{start(Usual::allSources())} + place.way + Script{keep(), destroy(), Steps::kept()} +
                lateReplies,
            place.seen + kept + end + place.reads + place.messages, place.modes};
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
