#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include "BenchmarkSupport.h"
#include "Competitors.h"
#include "Documents.h"
#include "PeakMemory.h"
#include "Themes.h"

namespace {

using BenchmarkSupport::add;
using BenchmarkSupport::check;

bool parseByQt(const QByteArray& text)
{
    return !QJsonDocument::fromJson(text).object().isEmpty();
}

void addShipped()
{
    add("loading/shipped documents", true, [] {
        UnitManager manager;
        return manager.initByJsonString(Documents::shippedUnits(), Documents::shippedDefaultUnits()) &&
               manager.isValid();
    });
    add("baseline/Qt's parser twice/shipped documents", true,
        [units = Documents::shippedUnits().toUtf8(), defaults = Documents::shippedDefaultUnits().toUtf8()] {
            return parseByQt(units) && parseByQt(defaults) && parseByQt(units) && parseByQt(defaults);
        });
    add("competitor/UDUNITS loads its database", true, [] {
        return Competitors::loadUdunits();
    })->Unit(benchmark::kMillisecond);
}

bool loadsAllUnits(const QString& text, int unitCount)
{
    UnitManager manager;
    return manager.initByJsonString(text, QString()) && Documents::unitCount(manager) == unitCount;
}

void loadGenerated(benchmark::State& state, int unitCount)
{
    const QString text = Documents::generatedUnits(unitCount);
    if (!check(state, loadsAllUnits(text, unitCount)))
        return;
    for (auto iteration : state) {
        Q_UNUSED(iteration)
        UnitManager manager;
        benchmark::DoNotOptimize(manager.initByJsonString(text, QString()));
    }
}

void parseGenerated(benchmark::State& state, int unitCount)
{
    const QByteArray text = Documents::generatedUnits(unitCount).toUtf8();
    BenchmarkSupport::measure(state, true, [&text] { return parseByQt(text) && parseByQt(text); });
}

void addGenerated(const std::string& name, void (*run)(benchmark::State&, int), int unitCount)
{
    auto* const added =
        benchmark::RegisterBenchmark((name + "/" + std::to_string(unitCount)).c_str(), run, unitCount);
    added->Unit(benchmark::kMicrosecond);
    if (unitCount >= 10000)
        added->Repetitions(BenchmarkSupport::fewRepetitions);
}

/// The time is that of a whole process; only the two counters are relevant.
void measurePeak(benchmark::State& state, const QString& loader, int unitCount)
{
    PeakMemory::Figures figures;
    for (auto iteration : state) {
        Q_UNUSED(iteration)
        if (!check(state, PeakMemory::measure(loader, unitCount, figures)))
            return;
    }
    state.counters["peakBytesPerUnit"] = figures.peakBytes / unitCount;
    state.counters["keptBytesPerUnit"] = figures.keptBytes / unitCount;
}

void addPeak(const std::string& name, const QString& loader, int unitCount)
{
    benchmark::RegisterBenchmark((name + "/" + std::to_string(unitCount)).c_str(), measurePeak, loader,
                                 unitCount)
        ->Iterations(1)
        ->Repetitions(BenchmarkSupport::fewRepetitions)
        ->Unit(benchmark::kMillisecond);
}

} // namespace

void Themes::addLoading()
{
    addShipped();
    for (const int unitCount : {100, 1000, 10000, 100000}) {
        addGenerated("loading/units", loadGenerated, unitCount);
        addGenerated("baseline/Qt's parser twice", parseGenerated, unitCount);
        addPeak("memory/units", QStringLiteral("manager"), unitCount);
        addPeak("baseline/memory of Qt's parser", QStringLiteral("qt"), unitCount);
    }
}
