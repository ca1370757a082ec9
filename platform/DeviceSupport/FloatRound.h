#pragma once

#include "DeviceSupportExport.h"

/// Rounding of displayed values.
class DEVICESUPPORT_EXPORT FloatRound
{
public:
    FloatRound() = delete;

    /// Rounds @p value to @p decimalPlaces digits after the decimal point, halves away from zero.
    ///
    /// A value is a half if the `double` result of `value * 10^decimalPlaces` is one.
    ///
    /// @return the rounded value; @p value unchanged when it is a NaN or an infinity, when it has no digit to
    /// round off (its magnitude is 2^52 / 10^decimalPlaces or more), or when @p decimalPlaces is larger than
    /// 17.
    static double roundValue(double value, unsigned int decimalPlaces);
};
