#pragma once

#include "DeviceSupportExport.h"

/// Rounding of shown values.
class DEVICESUPPORT_EXPORT FloatRound
{
public:
    FloatRound() = delete;

    /// Rounds @p value to @p decimalPlaces digits after the decimal point, halves away from zero.
    ///
    /// What counts as a half is the `double` that `value * 10^decimalPlaces` gives.
    ///
    /// @return the rounded value; @p value itself when it is a NaN or an infinity, when it has no digit to
    /// round off (its magnitude is 2^52 / 10^decimalPlaces or more), or when @p decimalPlaces is larger
    /// than 17.
    static double roundValue(double value, unsigned int decimalPlaces);
};
