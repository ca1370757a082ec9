#include "FloatRound.h"

#include <array>
#include <cmath>

namespace {

// All are exactly representable as a double.
constexpr std::array<double, 18> powersOfTen = {1e0, 1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,
                                                1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15, 1e16, 1e17};

// Every double of this magnitude or more is an integer.
constexpr double wholeNumbers = 4503599627370496.0;

/// For each number of decimal places, the magnitude from which a double has no digit to round off.
constexpr std::array<double, powersOfTen.size()> exactNumbers = [] {
    std::array<double, powersOfTen.size()> bounds{};
    for (std::size_t places = 0; places < bounds.size(); ++places)
        bounds[places] = wholeNumbers / powersOfTen[places];
    return bounds;
}();

} // namespace

double FloatRound::roundValue(double value, unsigned int decimalPlaces)
{
    if (decimalPlaces >= powersOfTen.size())
        return value;
    // Negated comparison, so that a NaN takes this branch as well.
    if (!(std::abs(value) < exactNumbers[decimalPlaces]))
        return value;
    const double scale = powersOfTen[decimalPlaces];
    return std::round(value * scale) / scale;
}
