#include <cmath>
#include <vector>

#include "Baselines.h"
#include "BenchmarkSupport.h"
#include "Competitors.h"
#include "Documents.h"
#include "Themes.h"

namespace {

using BenchmarkSupport::add;
using Operation = QVariant (UnitManager::*)(const QVariant&, const QString&, const QString&) const;
using Baseline = QVariant (Baselines::*)(const QVariant&, const QString&, const QString&) const;

/// One query and its four results: rounded and raw, from and to the base unit.
struct Scenario
{
    std::string name;
    QString unitType;
    QString unit;
    double from;
    double fromRaw;
    double to;
    double toRaw;
};

const double bars = 1.01325;
const double hectoPascals = 1013.25;

/// Compares with the result of a competitor, whose last digit may differ.
struct Near
{
    double number;
};

bool operator==(double result, const Near& expected)
{
    return std::abs(result - expected.number) <= std::abs(expected.number) * 1e-12;
}

std::vector<Scenario> scenarios()
{
    const QString unknown = QStringLiteral("Cubit");
    return {
        {"unit", Documents::pressure(), Documents::hectoPascal(), 1013.3, 1013.25, 1.0, 1.01325},
        {"default unit", Documents::pressure(), QString(), 1013.3, 1013.25, 1.0, 1.01325},
        {"fixed unit", Documents::pressureInBar(), QString(), 1.013, 1.01325, 1013.25, 1013.25},
        {"unknown unit", Documents::pressure(), unknown, 1.01325, 1.01325, 1013.25, 1013.25},
    };
}

void addOperation(const std::string& name, Operation operation, const QVariant& value,
                  const Scenario& scenario, double expected)
{
    benchmark::RegisterBenchmark(("conversion/" + name + "/" + scenario.name).c_str(),
                                 [=](benchmark::State& state) {
                                     const BenchmarkSupport::SilentLog silence;
                                     const UnitManager& manager = Documents::shippedManager();
                                     BenchmarkSupport::measure(state, QVariant(expected), [&] {
                                         return (manager.*operation)(value, scenario.unitType, scenario.unit);
                                     });
                                 });
}

void addBaseline(const std::string& name, Baseline baseline, const QVariant& value, const Scenario& scenario,
                 double expected)
{
    const Baselines& baselines = Baselines::instance();
    add("baseline/" + name + "/" + scenario.name, QVariant(expected),
        [=, &baselines] { return (baselines.*baseline)(value, scenario.unitType, scenario.unit); });
}

/// Converts one value to every unit in turn, so that branch prediction and cached lines do not help.
template <typename Convert>
void addEveryUnit(const std::string& name, const Convert& convert)
{
    benchmark::RegisterBenchmark((name + "/every unit").c_str(), [convert](benchmark::State& state) {
        const UnitManager& manager = Documents::shippedManager();
        const QVariant value(bars);
        std::vector<std::pair<QString, QString>> keys;
        bool isRight = true;
        for (const QString& unitType : manager.getListofUnitTypes()) {
            for (const QString& unit : manager.getListofUnits(unitType)) {
                keys.emplace_back(unitType, unit);
                isRight = isRight && convert(value, unitType, unit) ==
                                         Baselines::instance().literalFromBaseUnit(value, unitType, unit);
            }
        }
        if (!BenchmarkSupport::check(state, isRight && keys.size() > 40))
            return;
        std::size_t next = 0;
        for (auto iteration : state) {
            Q_UNUSED(iteration)
            benchmark::DoNotOptimize(convert(value, keys[next].first, keys[next].second));
            next = next + 1 == keys.size() ? 0 : next + 1;
        }
    });
}

void addBaselines()
{
    const Baselines& baselines = Baselines::instance();
    const QString& type = Documents::pressure();
    const QString& unit = Documents::hectoPascal();
    const std::vector<double> coefficients = baselines.find(type, unit)->polynomial;
    add("baseline/polynomial", hectoPascals, [=] { return Baselines::polynomial(coefficients, bars); });
    add("baseline/polynomial with hardware fma", hectoPascals,
        [=] { return Baselines::hardwarePolynomial(coefficients, bars); });
    add("baseline/hash of both keys", qHash(type, 1) ^ qHash(unit, 1),
        [&] { return Baselines::hashKeys(type, unit); });
    add("baseline/nested look-up", hectoPascals, [&] { return baselines.nested(bars, type, unit); });
    const QVariant value(bars);
    add("baseline/nested look-up of variants", QVariant(hectoPascals),
        [&baselines, value, &type, &unit] { return baselines.nestedVariant(value, type, unit); });

    for (const Scenario& scenario : scenarios()) {
        addBaseline("literal fromBaseUnit", &Baselines::literalFromBaseUnit, bars, scenario, scenario.from);
        addBaseline("literal toBaseUnit", &Baselines::literalToBaseUnit, hectoPascals, scenario, scenario.to);
    }
    const Scenario named = scenarios().front();
    addBaseline("one-look-up fromBaseUnit", &Baselines::resolvedFromBaseUnit, bars, named, named.from);
    addBaseline("one-look-up toBaseUnit", &Baselines::resolvedToBaseUnit, hectoPascals, named, named.to);
    const Scenario fixed = scenarios().at(2);
    addBaseline("one-look-up fromBaseUnit", &Baselines::resolvedFixedUnit, bars, fixed, fixed.from);
    addBaseline("one-look-up toBaseUnit", &Baselines::resolvedFixedUnit, hectoPascals, fixed, fixed.to);
    add("baseline/default unit", QStringLiteral("HectoPascal"), [&] { return baselines.defaultUnit(type); });

    addEveryUnit("baseline/literal fromBaseUnit",
                 [&baselines](const QVariant& number, const QString& unitType, const QString& toUnit) {
                     return baselines.literalFromBaseUnit(number, unitType, toUnit);
                 });
    addEveryUnit("baseline/one-look-up fromBaseUnit",
                 [&baselines](const QVariant& number, const QString& unitType, const QString& toUnit) {
                     return baselines.resolvedFromBaseUnit(number, unitType, toUnit);
                 });
}

void addCompetitors()
{
    const QString bar = QStringLiteral("bar");
    const QString hPa = QStringLiteral("hPa");
    add("competitor/KUnitConversion by names", Near{hectoPascals},
        [=] { return Competitors::convertByKUnitConversion(bars, bar, hPa); });
    add("competitor/UDUNITS by names", Near{hectoPascals},
        [] { return Competitors::convertByUdunits(bars, "bar", "hPa"); });
    const auto converter = std::make_shared<const Competitors::UdunitsConverter>("bar", "hPa");
    add("competitor/UDUNITS converter", Near{hectoPascals}, [converter] { return converter->convert(bars); });
}

/// Converts one value with a conversion that was found before.
void addResolved()
{
    ValueConversionWrapper conversion;
    Documents::shippedManager().getConversion(Documents::pressure(), Documents::hectoPascal(), conversion);
    add("conversion/resolved", hectoPascals, [conversion] { return conversion.convertValue(bars); });
}

} // namespace

void Themes::addConversions()
{
    addResolved();
    for (const Scenario& scenario : scenarios()) {
        addOperation("fromBaseUnit", &UnitManager::fromBaseUnit, bars, scenario, scenario.from);
        addOperation("fromBaseUnitRaw", &UnitManager::fromBaseUnitRaw, bars, scenario, scenario.fromRaw);
        addOperation("toBaseUnit", &UnitManager::toBaseUnit, hectoPascals, scenario, scenario.to);
        addOperation("toBaseUnitRaw", &UnitManager::toBaseUnitRaw, hectoPascals, scenario, scenario.toRaw);
    }
    addEveryUnit("conversion/fromBaseUnit",
                 [](const QVariant& value, const QString& unitType, const QString& unit) {
                     return Documents::shippedManager().fromBaseUnit(value, unitType, unit);
                 });
    addBaselines();
    addCompetitors();
}
