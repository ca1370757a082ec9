#pragma once

#include <QtCore/QMessageLogContext>
#include <QtCore/QString>
#include <QtCore/QtGlobal>

#include <benchmark/benchmark.h>

#include <string>

/// What all benchmarks share: a result is checked before its making is timed.
namespace BenchmarkSupport {

/// Repetitions of what takes long.
constexpr int fewRepetitions = 5;

/// Drops all messages while it lives. Making their texts still costs what it costs.
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

/// Times @p call, once its first result is found equal to @p expected.
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

/// Registers measure() of @p call, which is copied, under @p name.
template <typename Result, typename Call>
benchmark::internal::Benchmark* add(const std::string& name, const Result& expected, const Call& call)
{
    return benchmark::RegisterBenchmark(
        name.c_str(), [expected, call](benchmark::State& state) { measure(state, expected, call); });
}

} // namespace BenchmarkSupport
