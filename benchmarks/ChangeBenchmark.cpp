#include <QtCore/QDeadlineTimer>
#include <QtCore/QThread>

#include <chrono>

#include "BenchmarkSupport.h"
#include "BusWorld.h"
#include "Clients.h"
#include "Documents.h"
#include "Themes.h"
#include "UnitManagerDevice/UnitManagerDevice.h"
#include "WaitLimit.h"

namespace {

using BenchmarkSupport::check;
using Clock = std::chrono::steady_clock;

const int changesOfStorm = 20;

/// Steps until the wrapper is idle with @p unit as default unit of pressure.
bool stepUntilAdopted(UnitManagerWrapper& units, const QString& unit)
{
    const QDeadlineTimer deadline(waitLimit);
    while (!units.checkInitialized() ||
           units.getUnitManager()->getDefaultUnit(Documents::pressure()) != unit) {
        if (deadline.hasExpired())
            return false;
        QThread::yieldCurrentThread();
    }
    return true;
}

/// From the announcement of changed default units until they are active.
void rebuild(benchmark::State& state, bool useAsynchronInterface)
{
    const BenchmarkSupport::SilentLog silence;
    BusWorld::Changing* const world = BusWorld::Changing::use();
    if (!check(state, world))
        return;
    const auto units = Clients::makeWrapper(useAsynchronInterface);
    const QString names[] = {QStringLiteral("MilliBar"), QStringLiteral("Pascal")};
    world->change(names[0]);
    if (!check(state, stepUntilAdopted(*units, names[0])))
        return;
    bool isRight = true;
    std::size_t next = 0;
    for (auto iteration : state) {
        Q_UNUSED(iteration)
        next ^= 1U;
        world->change(names[next]);
        isRight = stepUntilAdopted(*units, names[next]) && isRight;
    }
    check(state, isRight);
}

/// From the first of many changes, announced at once, until every client process has adopted the last one.
void storm(benchmark::State& state)
{
    BusWorld::Changing* const world = BusWorld::Changing::use();
    if (!check(state, world))
        return;
    world->change(Documents::hectoPascal());
    const auto clientCount = static_cast<int>(state.range(0));
    Clients::Processes clients(clientCount);
    if (!check(state, clients.waitFor(Documents::hectoPascal())))
        return;
    const int before = clients.adoptedConfigurations();
    for (auto iteration : state) {
        Q_UNUSED(iteration)
        const Clock::time_point start = Clock::now();
        for (int change = 1; change < changesOfStorm; ++change)
            world->change(change % 2 == 0 ? QStringLiteral("MilliBar") : QStringLiteral("Pascal"));
        world->change(QStringLiteral("KiloPascal"));
        if (!check(state, clients.waitFor(QStringLiteral("KiloPascal"))))
            return;
        state.SetIterationTime(std::chrono::duration<double>(Clock::now() - start).count());
    }
    state.counters["rebuildsPerClient"] =
        static_cast<double>(clients.adoptedConfigurations() - before) / clientCount;
}

} // namespace

void Themes::addChanges()
{
    for (const bool isAsynchronous : {false, true}) {
        const std::string manner = isAsynchronous ? "asynchronous" : "blocking";
        benchmark::RegisterBenchmark(("start/rebuild/" + manner).c_str(), rebuild, isAsynchronous)
            ->UseRealTime()
            ->Unit(benchmark::kMicrosecond);
    }
    benchmark::RegisterBenchmark("start/storm", storm)
        ->Arg(1)
        ->Arg(10)
        ->Arg(50)
        ->Iterations(1)
        ->Repetitions(BenchmarkSupport::fewRepetitions)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond);
}
