#pragma once

#include "UnitNode.h"

/// The worst results of converting values of a unit there and back.
struct RoundTrip
{
    /// The value with the largest relative error, and what it becomes.
    double value = 0;
    double result = 0;
    /// The largest error in relation to the largest number of the calculation.
    double relativeError = 0;
    /// The largest error in units of the last place of that number.
    double ulps = 0;
    /// The largest error in units of the last displayed digit.
    double digits = 0;

    /// Displayed values of a unit of the form c0 + c1 * x: from the last displayed digit to a million.
    static RoundTrip ofLinear(const UnitNode& unit);
    /// Displayed values of another unit, which correspond to base values between two limits.
    static RoundTrip between(const UnitNode& unit, double lowest, double highest);
};
