#include "RoundTrip.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

const double largestValue = 1e6;
const int steps = 100;

/// The distance from a positive number to the next larger one.
double ulpOf(double number)
{
    return std::nextafter(number, std::numeric_limits<double>::infinity()) - number;
}

double errorOf(double value, double result)
{
    const double difference = std::abs(result - value);
    // A result that is not finite is as wrong as can be.
    return std::isfinite(difference) ? difference : std::numeric_limits<double>::infinity();
}

/// @param scale the largest number of the calculation
RoundTrip compare(double value, double result, double scale)
{
    const double error = errorOf(value, result);
    return {value, result, error / scale, error / ulpOf(scale), 0};
}

void keepWorse(RoundTrip& worst, const RoundTrip& other)
{
    if (other.relativeError > worst.relativeError)
        worst = other;
}

/// Converts a displayed value into the base unit and back.
RoundTrip ofDisplayedValue(const UnitNode& unit, double value)
{
    const double base = unit.conversion.invertValue(value);
    const double scale = std::max({std::abs(value), std::abs(unit.coefficients[0]),
                                   std::abs(unit.coefficients[1] * unit.inverseCoefficients[0]),
                                   std::numeric_limits<double>::min()});
    return compare(value, unit.conversion.convertValue(base), scale);
}

} // namespace

RoundTrip RoundTrip::ofLinear(const UnitNode& unit)
{
    RoundTrip worst;
    double power = std::pow(10.0, -unit.decimalPlaces.value_or(0));
    for (; power <= largestValue; power *= 10) {
        for (const double digit : {1.0, 3.7, -1.0, -3.7})
            keepWorse(worst, ofDisplayedValue(unit, digit * power));
    }
    worst.digits = errorOf(worst.value, worst.result) * std::pow(10.0, unit.decimalPlaces.value_or(0));
    return worst;
}

RoundTrip RoundTrip::between(const UnitNode& unit, double lowest, double highest)
{
    const double first = unit.conversion.convertValue(lowest);
    const double span = std::abs(unit.conversion.convertValue(highest) - first);
    RoundTrip worst;
    for (int step = 0; step <= steps; ++step) {
        const double base = lowest + (highest - lowest) * step / steps;
        const double value = unit.conversion.convertValue(base);
        const double result = unit.conversion.convertValue(unit.conversion.invertValue(value));
        keepWorse(worst, compare(value, result, span));
    }
    worst.digits = errorOf(worst.value, worst.result) * std::pow(10.0, unit.decimalPlaces.value_or(0));
    return worst;
}
