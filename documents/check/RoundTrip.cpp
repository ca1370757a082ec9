#include "RoundTrip.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

const int largestExponent = 6;
const int steps = 100;
const double noticeablyWorse = 1 + 1e-9;

/// The distance from a positive number to the next larger one.
double ulpOf(double number)
{
    return std::nextafter(number, std::numeric_limits<double>::infinity()) - number;
}

/// Compares the results of several values.
class Comparison
{
public:
    explicit Comparison(int decimalPlaces) : m_digitsPerUnit(std::pow(10.0, decimalPlaces)) {}

    /// @param scale the largest number of the calculation
    void add(double value, double result, double scale)
    {
        const double difference = std::abs(result - value);
        if (difference == 0)
            return;
        // A result that is not finite is as wrong as can be.
        const double error = std::isfinite(difference) ? difference : std::numeric_limits<double>::infinity();
        m_worst.digits = std::max(m_worst.digits, error * m_digitsPerUnit);
        m_worst.ulps = std::max(m_worst.ulps, error / ulpOf(scale));
        // The first one of equally wrong values is the simplest example.
        if (error / scale > m_worst.relativeError * noticeablyWorse) {
            m_worst.relativeError = error / scale;
            m_worst.value = value;
            m_worst.result = result;
        }
    }

    const RoundTrip& worst() const
    {
        return m_worst;
    }

private:
    const double m_digitsPerUnit;
    RoundTrip m_worst;
};

/// The largest number in the conversion of a displayed value into the base unit and back.
double scaleOf(const UnitNode& unit, double value)
{
    return std::max({std::abs(value), std::abs(unit.coefficients[0]),
                     std::abs(unit.coefficients[1] * unit.inverseCoefficients[0]),
                     std::numeric_limits<double>::min()});
}

} // namespace

RoundTrip RoundTrip::ofLinear(const UnitNode& unit)
{
    const int decimalPlaces = unit.decimalPlaces.value_or(0);
    Comparison comparison(decimalPlaces);
    double power = std::pow(10.0, -decimalPlaces);
    for (int exponent = -decimalPlaces; exponent <= largestExponent; ++exponent) {
        for (const double value : {power, 3.7 * power, -power, -3.7 * power}) {
            const double base = unit.conversion.invertValue(value);
            comparison.add(value, unit.conversion.convertValue(base), scaleOf(unit, value));
        }
        power *= 10;
    }
    return comparison.worst();
}

RoundTrip RoundTrip::between(const UnitNode& unit, double lowest, double highest)
{
    const double span =
        std::abs(unit.conversion.convertValue(highest) - unit.conversion.convertValue(lowest));
    Comparison comparison(unit.decimalPlaces.value_or(0));
    for (int step = 0; step <= steps; ++step) {
        const double value = unit.conversion.convertValue(lowest + (highest - lowest) * step / steps);
        comparison.add(value, unit.conversion.convertValue(unit.conversion.invertValue(value)), span);
    }
    return comparison.worst();
}
