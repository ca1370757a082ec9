#include <QtCore/QCoreApplication>
#include <QtCore/QFile>

#include <benchmark/benchmark.h>

#include <clocale>
#include <vector>

#include "Clients.h"
#include "Documents.h"
#include "PeakMemory.h"
#include "Themes.h"

namespace {

std::string processorName()
{
    QFile file(QStringLiteral("/proc/cpuinfo"));
    if (!file.open(QIODevice::ReadOnly))
        return "unknown";
    for (const QByteArray& line : file.readAll().split('\n')) {
        if (line.startsWith("model name"))
            return line.mid(line.indexOf(':') + 1).trimmed().toStdString();
    }
    return "unknown";
}

/// Records the properties of the machine that affect the figures, for the table.
void describeMachine()
{
    benchmark::AddCustomContext("processor", processorName());
    benchmark::AddCustomContext("architecture", QSysInfo::currentCpuArchitecture().toStdString());
    benchmark::AddCustomContext("system", QSysInfo::prettyProductName().toStdString());
    benchmark::AddCustomContext("compiler", __VERSION__);
    benchmark::AddCustomContext("qt", qVersion());
    benchmark::AddCustomContext("build_type", UNITMANAGER_BUILD_TYPE);
}

/// Adds defaults before the arguments of the command line, which override them. Repetitions run in random
/// order, so that a temporary disturbance of the machine affects all benchmarks alike.
std::vector<char*> withOwnDefaults(int argc, char* argv[])
{
    static char defaults[][64] = {"--benchmark_repetitions=101",
                                  "--benchmark_enable_random_interleaving=true", "--benchmark_min_time=0.005",
                                  "--benchmark_display_aggregates_only=true"};
    std::vector<char*> arguments = {argv[0]};
    for (char* argument : defaults)
        arguments.push_back(argument);
    arguments.insert(arguments.end(), argv + 1, argv + argc);
    return arguments;
}

void addAll()
{
    Themes::addConversions();
    Themes::addNodes();
    Themes::addHotLoops();
    Themes::addLabels();
    Themes::addLoading();
    Themes::addStart();
    Themes::addChanges();
    Themes::addSharing();
}

int runBenchmarks(int argc, char* argv[])
{
    if (!Documents::shippedManager()) {
        qCritical("The shipped documents do not load");
        return 1;
    }
    std::vector<char*> arguments = withOwnDefaults(argc, argv);
    auto count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data()))
        return 2;
    describeMachine();
    addAll();
    const bool hasRun = benchmark::RunSpecifiedBenchmarks() != 0;
    benchmark::Shutdown();
    return hasRun ? 0 : 1;
}

} // namespace

/// The benchmarks. Some of them start this program with --client or --peak-memory.
int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1String("--client"))
        return Clients::runProcess();
    if (arguments.value(1) == QLatin1String("--peak-memory"))
        return PeakMemory::runProcess(arguments.mid(2));
    return runBenchmarks(argc, argv);
}
