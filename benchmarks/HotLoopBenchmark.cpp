#include <cmath>
#include <cstring>
#include <memory>
#include <vector>

#include "Baselines.h"
#include "BenchmarkSupport.h"
#include "Competitors.h"
#include "Documents.h"
#include "Themes.h"
#include "UnitManager.h"

namespace {

/// Registers @p convert(in, out), which converts @p count numbers from bar to hectopascal.
template <typename Convert>
void addLoop(const std::string& name, std::size_t count, const Convert& convert)
{
    benchmark::RegisterBenchmark((name + "/" + std::to_string(count)).c_str(), [=](benchmark::State& state) {
        std::vector<double> in(count);
        for (std::size_t index = 0; index < count; ++index)
            in[index] = static_cast<double>(index) + 0.5;
        std::vector<double> out(count);
        convert(in.data(), out.data());
        bool isRight = true;
        for (std::size_t index = 0; index < count; ++index)
            isRight = isRight && std::abs(out[index] - in[index] * 1000.0) <= in[index] * 1e-9;
        if (!BenchmarkSupport::check(state, isRight))
            return;
        for (auto iteration : state) {
            Q_UNUSED(iteration)
            convert(in.data(), out.data());
            benchmark::ClobberMemory();
        }
    });
}

/// Registers a plain copy, the lower bound of any operation on an array.
void addCopy(std::size_t count)
{
    benchmark::RegisterBenchmark(("baseline/memcpy/" + std::to_string(count)).c_str(),
                                 [=](benchmark::State& state) {
                                     const std::vector<double> in(count, 0.5);
                                     std::vector<double> out(count);
                                     for (auto iteration : state) {
                                         Q_UNUSED(iteration)
                                         std::memcpy(out.data(), in.data(), count * sizeof(double));
                                         benchmark::ClobberMemory();
                                     }
                                     BenchmarkSupport::check(state, out == in);
                                 });
}

void addLoops(std::size_t count)
{
    const QString unitType = Documents::pressure();
    const QString unit = Documents::hectoPascal();
    const UnitManager manager = Documents::shippedManager();
    addLoop("hot loop/run", count, [=](const double* in, double* out) {
        manager.fromBaseUnitArray(in, out, count, unitType, unit);
    });
    addLoop("hot loop/conversion found once", count, [=](const double* in, double* out) {
        ValueConversionWrapper conversion;
        manager.getConversion(unitType, unit, conversion);
        for (std::size_t index = 0; index < count; ++index)
            out[index] = conversion.convertValue(in[index]);
    });
    addLoop("hot loop/single conversions", count, [=](const double* in, double* out) {
        for (std::size_t index = 0; index < count; ++index)
            out[index] = manager.fromBaseUnitRaw(in[index], unitType, unit).toDouble();
    });

    const std::vector<double> coefficients = Baselines::instance().find(unitType, unit)->polynomial;
    addLoop("baseline/plain loop", count, [coefficients, count](const double* in, double* out) {
        Baselines::polynomials(coefficients, in, out, count);
    });
    addCopy(count);
    const auto converter = std::make_shared<const Competitors::UdunitsConverter>("bar", "hPa");
    addLoop("competitor/UDUNITS array", count,
            [converter, count](const double* in, double* out) { converter->convert(in, out, count); });
}

} // namespace

void Themes::addHotLoops()
{
    for (const std::size_t count : {std::size_t{10}, std::size_t{1000}, std::size_t{1000000}})
        addLoops(count);
}
