#include "FloatRound.h"

#include <cmath>

double FloatRound::roundValue(double value, unsigned int decimalPlaces)
{
    double scale = 1.0;
    for (unsigned int place = 0; place < decimalPlaces && place < 18; ++place)
        scale *= 10.0;
    const double scaled = std::abs(value) * scale;
    // Also true for a NaN and an infinity.
    if (decimalPlaces > 17 || !(scaled < 4503599627370496.0))
        return value;
    const double whole = std::floor(scaled);
    return std::copysign((scaled - whole < 0.5 ? whole : whole + 1.0) / scale, value);
}
