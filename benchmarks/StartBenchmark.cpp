#include <QtCore/QDeadlineTimer>
#include <QtCore/QJsonDocument>
#include <QtCore/QThread>
#include <QtDBus/QDBusPendingCall>
#include <QtDBus/QDBusPendingReply>

#include "BenchmarkSupport.h"
#include "BusWorld.h"
#include "Clients.h"
#include "DBusConnection.h"
#include "DependencyWalker.h"
#include "Documents.h"
#include "Themes.h"
#include "UnitManagerDevice/UnitManagerDevice.h"
#include "WaitLimit.h"

namespace {

using BenchmarkSupport::check;
using BenchmarkSupport::SilentLog;

/// Steps until the connector is idle. A blocking one needs one step.
bool stepToIdle(UnitManagerWrapper& units)
{
    const QDeadlineTimer deadline(waitLimit);
    while (!units.checkInitialized()) {
        if (deadline.hasExpired())
            return false;
        QThread::yieldCurrentThread();
    }
    return true;
}

bool isStarted(const UnitManagerWrapper& units)
{
    return units && units.getUnitManager()->fromBaseUnit(1.01325, Documents::pressure(), QString()) == 1013.3;
}

void startToIdle(benchmark::State& state, bool useAsynchronInterface)
{
    const SilentLog silence;
    if (!check(state, BusWorld::Shipped::use()))
        return;
    const auto first = Clients::makeWrapper(useAsynchronInterface);
    if (!check(state, stepToIdle(*first) && isStarted(*first)))
        return;
    bool isRight = true;
    for (auto iteration : state) {
        Q_UNUSED(iteration)
        auto units = Clients::makeWrapper(useAsynchronInterface);
        isRight = stepToIdle(*units) && isRight;
        state.PauseTiming();
        isRight = isRight && isStarted(*units);
        units.reset();
        state.ResumeTiming();
    }
    check(state, isRight);
}

void idleStep(benchmark::State& state, bool useAsynchronInterface)
{
    const SilentLog silence;
    if (!check(state, BusWorld::Shipped::use()))
        return;
    const auto units = Clients::makeWrapper(useAsynchronInterface);
    if (!check(state, stepToIdle(*units) && isStarted(*units)))
        return;
    BenchmarkSupport::measure(state, true, [&units] { return units->checkInitialized(); });
}

/// The texts that several calls return, blocking or asynchronous.
using Texts = QStringList;
using Calls = QList<QDBusMessage>;

Texts callBlocking(const Calls& calls)
{
    const QDBusConnection connection = DBusConnection::getQDBusConnection();
    Texts texts;
    for (const QDBusMessage& call : calls)
        texts.append(connection.call(call, QDBus::Block, DBusConnection::getCallTimeout())
                         .arguments()
                         .value(0)
                         .toString());
    return texts;
}

Texts callAsynchronous(const Calls& calls)
{
    const QDBusConnection connection = DBusConnection::getQDBusConnection();
    QList<QDBusPendingCall> pending;
    for (const QDBusMessage& call : calls)
        pending.append(connection.asyncCall(call, DBusConnection::getCallTimeout()));
    Texts texts;
    for (const QDBusPendingCall& call : qAsConst(pending)) {
        while (!call.isFinished())
            QThread::yieldCurrentThread();
        texts.append(QDBusPendingReply<QString>(call).value());
    }
    return texts;
}

bool parseByQt(const Texts& texts)
{
    bool areParsed = true;
    for (const QString& text : texts)
        areParsed = areParsed && !QJsonDocument::fromJson(text.toUtf8()).isNull();
    return areParsed;
}

bool loadByLibrary(const Texts& texts)
{
    UnitManagerDevice manager;
    DependencyWalker walker;
    return manager.initByJsonString(texts.value(0), texts.value(1)) &&
           walker.initDependencyGraphByJsonString(texts.value(2));
}

/// @param use processes the texts; returns whether it succeeded
void addCalls(const std::string& name, Texts (*call)(const Calls&), const Calls& calls, const Texts& expected,
              bool (*use)(const Texts&))
{
    benchmark::RegisterBenchmark(name.c_str(),
                                 [=](benchmark::State& state) {
                                     if (!check(state, BusWorld::Shipped::use() && call(calls) == expected))
                                         return;
                                     BenchmarkSupport::measure(state, true, [=] { return use(call(calls)); });
                                 })
        ->UseRealTime()
        ->Unit(benchmark::kMicrosecond);
}

bool ignore(const Texts& /*texts*/)
{
    return true;
}

void addBaselines(const std::string& manner, Texts (*call)(const Calls&))
{
    const Calls all = {BusWorld::callForUnits(), BusWorld::callForDefaultUnits(),
                       BusWorld::callForDependencies()};
    const Texts texts = {Documents::shippedUnits(), Documents::shippedDefaultUnits(),
                         Documents::shippedDependencies()};
    addCalls("baseline/one call/" + manner, call, all.mid(0, 1), texts.mid(0, 1), &ignore);
    addCalls("baseline/three calls/" + manner, call, all, texts, &ignore);
    addCalls("baseline/three calls and Qt's parser/" + manner, call, all, texts, &parseByQt);
    addCalls("baseline/three calls and loading/" + manner, call, all, texts, &loadByLibrary);
}

} // namespace

void Themes::addStart()
{
    for (const bool isAsynchronous : {false, true}) {
        const std::string manner = isAsynchronous ? "asynchronous" : "blocking";
        benchmark::RegisterBenchmark(("start/to idle/" + manner).c_str(), startToIdle, isAsynchronous)
            ->UseRealTime()
            ->Unit(benchmark::kMicrosecond);
        benchmark::RegisterBenchmark(("start/idle step/" + manner).c_str(), idleStep, isAsynchronous);
        addBaselines(manner, isAsynchronous ? &callAsynchronous : &callBlocking);
    }
}
