#include "Stage.h"

#include <QtCore/QCoreApplication>

#include <algorithm>

#include "DBusConnection.h"
#include "DeviceBusEnvironment.h"
#include "Expected.h"
#include "PrivateBus.h"
#include "WaitUntil.h"

namespace {

QString text(bool value)
{
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

/// All lines, those that differ with a marker; see ScenarioFailure.
QStringList difference(const QStringList& actual, const QStringList& expected)
{
    QStringList lines;
    const int lineCount = std::max(actual.size(), expected.size());
    for (int i = 0; i < lineCount; ++i) {
        if (i < actual.size() && i < expected.size() && actual.at(i) == expected.at(i)) {
            lines.append(QLatin1String("  ") + actual.at(i));
            continue;
        }
        if (i < expected.size())
            lines.append(QLatin1String("- ") + expected.at(i));
        if (i < actual.size())
            lines.append(QLatin1String("+ ") + actual.at(i));
    }
    return lines;
}

void compare(const QString& step, const QStringList& actual, const QStringList& expected)
{
    if (actual != expected)
        throw ScenarioFailure{step, difference(actual, expected)};
}

void require(const QString& step, bool isDone)
{
    compare(step, {text(isDone)}, {text(true)});
}

} // namespace

Stage::Stage(const Mode& stageMode, const QString& address) : mode(stageMode), m_service(address)
{
    useDeviceBus(address);
}

void Stage::withoutBus()
{
    useDeviceBus(PrivateBus().address());
}

void Stage::startModule(const QString& module)
{
    require(nextStep("start of " + module), m_service.start(module));
    synchronize();
}

void Stage::stopModule(const QString& module)
{
    require(nextStep("stop of " + module), m_service.stop(module, DBusConnection::getQDBusConnection()));
}

void Stage::announce(const SourceName& name, int count)
{
    announceWith(name, {name.configuration}, count);
}

void Stage::announceWith(const SourceName& name, const QVariantList& arguments, int count)
{
    require(nextStep("announcement by " + name.object), m_service.announce(name, arguments, count));
    synchronize();
}

void Stage::release(const SourceName& name)
{
    synchronize();
    m_service.release(name);
    synchronize();
}

void Stage::start(const Settings& settings, const World& world, const QString& absentModule)
{
    require(nextStep("service"), m_service.serve(world, absentModule));
    start(settings);
}

void Stage::startAllSources(const World& world, const QString& absentModule)
{
    start(Fixtures::allSources, world, absentModule);
    checkUntilIdle(Expected::firstStart(mode));
    expectChanged(true);
    keepUnits();
}

void Stage::start(const Settings& settings)
{
    m_applications.push_back(Application::create(mode, settings, m_recorder));
    m_active = m_applications.size() - 1;
}

void Stage::switchTo(std::size_t index)
{
    m_active = index;
}

Application& Stage::application()
{
    return m_applications.at(m_active);
}

void Stage::checkIdle(const QStringList& events, int count)
{
    checkCount("idle", count, events, count);
}

void Stage::checkNotIdle(const QStringList& events, int count)
{
    checkCount("not idle", count, events, 0);
}

void Stage::checkUntilIdle(const QStringList& events)
{
    checkUntil("idle", events, [this] { return pumpAndCheck(); });
}

void Stage::checkUntilChanged(const QStringList& events)
{
    checkUntil("changed", events, [this] {
        pumpAndCheck();
        return application().hasChanged();
    });
}

void Stage::checkUntilEntered(const QStringList& events)
{
    const QString& state = events.last();
    checkUntil(state, events, [this, &state] {
        if (!m_recorder.events().contains(state))
            pumpAndCheck();
        return m_recorder.events().contains(state);
    });
}

void Stage::checkUntilSettled(const QStringList& events)
{
    int quietChecks = 0;
    checkUntil("settled", events, [this, &quietChecks] {
        const int enteredBefore = m_recorder.enteredStates();
        const bool isQuiet = pumpAndCheck() && m_recorder.enteredStates() == enteredBefore;
        quietChecks = isQuiet ? quietChecks + 1 : 0;
        return quietChecks == 2;
    });
}

void Stage::expectEvents(const QStringList& events)
{
    compareEvents(nextStep("events"), events);
}

void Stage::expectChanged(bool expected)
{
    if (application().hasChanged)
        compare(nextStep("changed"), {text(application().hasChanged())}, {text(expected)});
}

void Stage::expectConversion(const QString& conversion)
{
    m_recorder.update();
    compare(nextStep("conversion"), {application().conversion()}, {conversion});
    // Only the connector's messages are compared, not those of a conversion.
    m_recorder.discardMessages();
}

void Stage::expectDependents(const QString& keys)
{
    if (application().dependents)
        compare(nextStep("dependents"), {application().dependents()}, {keys});
}

void Stage::keepUnits()
{
    m_kept.append(application().units());
}

void Stage::expectKept(const QStringList& conversions)
{
    m_recorder.update();
    QStringList kept;
    for (const QSharedPointer<const UnitManagerDevice>& units : qAsConst(m_kept))
        kept.append(conversionBy(units));
    compare(nextStep("conversions by kept unit managers"), kept, conversions);
    m_recorder.discardMessages();
}

void Stage::expectStart(const QStringList& events, const QString& conversion)
{
    checkUntilIdle(events);
    expectConversion(conversion);
    expectChanged(true);
}

void Stage::expectReload(const QString& conversion)
{
    checkUntilChanged(Expected::reload(mode));
    expectConversion(conversion);
}

void Stage::finishAnnouncement(bool accepted)
{
    using namespace Expected;
    checkUntilSettled(accepted ? reload(mode) + remainsIdle : remainsIdle);
    expectChanged(accepted);
    expectConversion(inHectoPascal(accepted ? 2000 : 1000));
    finish(readAll + onlyIf(accepted, readUnits), onlyIf(accepted, unitsChanged));
}

void Stage::finish(const QStringList& reads, const QStringList& messages)
{
    synchronize();
    m_applications.clear();
    m_active = 0;
    compareEvents(nextStep("events at the end"), {});
    compare(nextStep("reads"), m_service.reads(), reads);
    compare(nextStep("messages"), m_recorder.messages(), messages);
    m_isFinished = true;
}

bool Stage::isFinished() const
{
    return m_isFinished;
}

bool Stage::pumpAndCheck()
{
    if (!mode.isPolled)
        QCoreApplication::processEvents();
    return application().check();
}

void Stage::checkCount(const QString& condition, int count, const QStringList& events, int idleCount)
{
    const QString step = nextStep(QStringLiteral("%1 x check, %2").arg(count).arg(condition));
    int idle = 0;
    for (int i = 0; i < count; ++i)
        idle += pumpAndCheck() ? 1 : 0;
    compareEvents(step, events);
    compare(step + QLatin1String(", idle checks"), {QString::number(idle)}, {QString::number(idleCount)});
}

template <typename Condition>
void Stage::checkUntil(const QString& condition, const QStringList& events, Condition isMet)
{
    const QString step = nextStep("check until " + condition);
    const bool isMetInTime = waitUntil(isMet);
    compareEvents(isMetInTime ? step : step + QLatin1String(", not reached"), events);
    require(step, isMetInTime);
}

void Stage::synchronize()
{
    m_service.synchronize(DBusConnection::getQDBusConnection());
}

QString Stage::nextStep(const QString& operation)
{
    ++m_steps;
    return m_active == 0
               ? QStringLiteral("step %1 (%2)").arg(m_steps).arg(operation)
               : QStringLiteral("step %1 (application %2: %3)").arg(m_steps).arg(m_active + 1).arg(operation);
}

void Stage::compareEvents(const QString& step, const QStringList& expected)
{
    QStringList visible = expected;
    if (mode.level != Mode::Connector) {
        visible.removeAll(Signal::configurationChanged);
        visible.removeAll(Signal::initialized);
    }
    compare(step, m_recorder.takeEvents(), visible);
}
