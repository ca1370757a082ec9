#pragma once

/// Rounding of displayed values.
class FloatRound
{
public:
    /// Rounds halves away from zero; a value without digits to round off, or not finite, stays unchanged.
    static double roundValue(double value, unsigned int decimalPlaces);
};
