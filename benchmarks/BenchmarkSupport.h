#pragma once

#include <QtCore/QMessageLogContext>
#include <QtCore/QString>
#include <QtCore/QtGlobal>

#include <benchmark/benchmark.h>

#include <string>

/// Shared by all benchmarks: a result is checked before the operation is timed.
namespace BenchmarkSupport {

/// Repetitions of slow benchmarks.
constexpr int fewRepetitions = 5;

/// Drops all messages during its lifetime. Their texts are still formatted.
class SilentLog
{
public:
    SilentLog()
        : m_previous(qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {}))
    {}
    ~SilentLog()
    {
        qInstallMessageHandler(m_previous);
    }
    SilentLog(const SilentLog&) = delete;
    SilentLog& operator=(const SilentLog&) = delete;

private:
    QtMessageHandler m_previous;
};

/// Ends the benchmark with an error unless @p isRight. @return @p isRight
inline bool check(benchmark::State& state, bool isRight)
{
    if (!isRight)
        state.SkipWithError("wrong result");
    return isRight;
}

/// Times @p call after checking that its first result equals @p expected.
template <typename Result, typename Call>
void measure(benchmark::State& state, const Result& expected, const Call& call)
{
    if (!check(state, call() == expected))
        return;
    for (auto iteration : state) {
        Q_UNUSED(iteration)
        benchmark::DoNotOptimize(call());
    }
}

/// Registers a benchmark @p name that measures a copy of @p call; see measure().
template <typename Result, typename Call>
benchmark::internal::Benchmark* add(const std::string& name, const Result& expected, const Call& call)
{
    return benchmark::RegisterBenchmark(
        name.c_str(), [expected, call](benchmark::State& state) { measure(state, expected, call); });
}

} // namespace BenchmarkSupport
