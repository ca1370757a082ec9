#include "ConversionResults.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <random>

#include "Array2dDataTypeWrapper.h"
#include "DoubleBits.h"
#include "RecordingValueNode.h"
#include "UnitConversion/ValueConversionWrapper.h"

namespace ConversionResults {

namespace {

const QString valueKey = QStringLiteral("Value");

using ByName = QVariant (UnitManager::*)(const QVariant&, const QString&, const QString&) const;
using OfArray = bool (UnitManager::*)(const double*, double*, std::size_t, const QString&,
                                      const QString&) const;
using OfFoundConversion = double (ValueConversionWrapper::*)(double) const;

template <ByName convert>
Numbers singly(const UnitManager& units, const UnitName& name, const Numbers& numbers)
{
    Numbers results;
    results.reserve(numbers.size());
    for (const double number : numbers)
        results.push_back((units.*convert)(number, name.unitType, name.unit).toDouble());
    return results;
}

template <OfArray convert>
Numbers asArray(const UnitManager& units, const UnitName& name, const Numbers& numbers)
{
    Numbers results(numbers.size());
    const bool done =
        (units.*convert)(numbers.data(), results.data(), numbers.size(), name.unitType, name.unit);
    return done ? results : Numbers();
}

template <OfFoundConversion convert>
Numbers withFoundConversion(const UnitManager& units, const UnitName& name, const Numbers& numbers)
{
    ValueConversionWrapper conversion;
    if (!units.getConversion(name.unitType, name.unit, conversion))
        return {};
    Numbers results;
    results.reserve(numbers.size());
    for (const double number : numbers)
        results.push_back((conversion.*convert)(number));
    return results;
}

Numbers nodesRead(const UnitManager& units, const UnitName& name, const Numbers& numbers)
{
    Numbers results;
    results.reserve(numbers.size());
    for (const double number : numbers) {
        const auto node = RecordingValueNode::parentOf(RecordingValueNode::number(number, name.unitType));
        results.push_back(units.getValue(valueKey, node, name.unit).toDouble());
    }
    return results;
}

Numbers nodesWritten(const UnitManager& units, const UnitName& name, const Numbers& numbers)
{
    Numbers results;
    results.reserve(numbers.size());
    for (const double number : numbers) {
        const auto child = RecordingValueNode::number(0.0, name.unitType);
        units.setValueStatus(valueKey, RecordingValueNode::parentOf(child), number, name.unit);
        results.push_back(child->value().toDouble());
    }
    return results;
}

QVariantList asList(const Numbers& numbers)
{
    return {numbers.cbegin(), numbers.cend()};
}

Numbers fromList(const QVariantList& list)
{
    Numbers numbers;
    numbers.reserve(static_cast<std::size_t>(list.size()));
    for (const QVariant& number : list)
        numbers.push_back(number.toDouble());
    return numbers;
}

Array2dDataTypeWrapper row(const Numbers& numbers, const QString& unitType)
{
    const QVariantList cells = asList(numbers);
    QVariantList unitTypes;
    std::fill_n(std::back_inserter(unitTypes), cells.size(), unitType);
    return {QVariantList{QVariant(cells)}, unitTypes};
}

Numbers rowRead(const UnitManager& units, const UnitName& name, const Numbers& numbers)
{
    const auto columns = static_cast<unsigned int>(numbers.size());
    return fromList(units.getValueArray(row(numbers, name.unitType), 0, 0, columns, name.unit));
}

Numbers rowWritten(const UnitManager& units, const UnitName& name, const Numbers& numbers)
{
    const auto columns = static_cast<unsigned int>(numbers.size());
    Array2dDataTypeWrapper array = row(Numbers(numbers.size()), name.unitType);
    const bool done = units.setValueArray(array, 0, 0, columns, asList(numbers), name.unit);
    return done ? fromList(array.getRowValues(0)) : Numbers();
}

/// The standard library's generators give the same numbers everywhere, its distributions do not.
class RandomNumbers
{
public:
    double any()
    {
        return doubleFromBits(m_generator());
    }

    /// A number of either sign whose biased exponent is one of @p count from @p first on.
    double withExponent(quint64 first, quint64 count = 1)
    {
        const quint64 digitsAndSign = m_generator() & 0x800FFFFFFFFFFFFFU;
        const quint64 exponent = first + m_generator() % count;
        return doubleFromBits(digitsAndSign | (exponent << 52U));
    }

private:
    std::mt19937_64 m_generator{20240229};
};

Numbers makeNumbers()
{
    const std::size_t count = 10000;
    const double infinity = std::numeric_limits<double>::infinity();
    Numbers numbers = {1.01325,
                       -0.0,
                       0.5,
                       std::numeric_limits<double>::denorm_min(),
                       std::numeric_limits<double>::max(),
                       infinity,
                       -infinity,
                       doubleFromBits(0x7FF8000000000ABCU),
                       0.0,
                       std::numeric_limits<double>::min(),
                       std::numeric_limits<double>::lowest(),
                       doubleFromBits(0xFFF0000000000001U)};
    for (int half = -1000; half < 1000; ++half) {
        const std::array<double, 5> scales = {1.0, 10.0, 100.0, 1000.0, 10000.0};
        numbers.push_back((half + 0.5) / scales[static_cast<std::size_t>(half + 1000) % scales.size()]);
    }
    RandomNumbers random;
    while (numbers.size() < count) {
        numbers.push_back(random.withExponent(0));        // subnormal
        numbers.push_back(random.withExponent(1983, 64)); // huge
        numbers.push_back(random.withExponent(2047));     // NaN
        numbers.push_back(random.any());
        for (int sample = 0; sample < 4; ++sample)
            numbers.push_back(random.withExponent(1003, 40)); // from one millionth to a million
    }
    numbers.resize(count);
    return numbers;
}

} // namespace

const Numbers& numbers()
{
    static const Numbers list = makeNumbers();
    return list;
}

const std::vector<Form>& forms()
{
    static const std::vector<Form> list = {
        {"fromBaseUnit", &singly<&UnitManager::fromBaseUnit>},
        {"toBaseUnit", &singly<&UnitManager::toBaseUnit>},
        {"fromBaseUnitRaw", &singly<&UnitManager::fromBaseUnitRaw>},
        {"toBaseUnitRaw", &singly<&UnitManager::toBaseUnitRaw>},
        {"fromBaseUnitArray", &asArray<&UnitManager::fromBaseUnitArray>},
        {"toBaseUnitArray", &asArray<&UnitManager::toBaseUnitArray>},
        {"convertValue", &withFoundConversion<&ValueConversionWrapper::convertValue>},
        {"invertValue", &withFoundConversion<&ValueConversionWrapper::invertValue>},
        {"getValue", &nodesRead},
        {"setValueStatus", &nodesWritten},
        {"getValueArray", &rowRead},
        {"setValueArray", &rowWritten},
    };
    return list;
}

std::vector<UnitName> unitNames(const UnitManager& units)
{
    std::vector<UnitName> names;
    QStringList types = units.getListofUnitTypes();
    types.sort();
    for (const QString& type : types) {
        if (!units.getDefaultUnit(type).isEmpty())
            names.push_back({type, QString()});
        QStringList unitsOfType = units.getListofUnits(type);
        unitsOfType.sort();
        for (const QString& unit : unitsOfType) {
            names.push_back({type, unit});
            names.push_back({type + QLatin1Char('/') + unit, QString()});
        }
    }
    return names;
}

QByteArray hexadecimal(double number)
{
    return QByteArray::number(bitsOf(number), 16).rightJustified(16, '0');
}

} // namespace ConversionResults
