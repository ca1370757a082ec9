#pragma once

#include <QtCore/QVariant>

#include <cstddef>

class UnitConversionUnitTypeHandler;
class ValueConversionWrapper;

/// Direction of a conversion.
enum class ConversionDirection
{
    FromBaseUnit,
    ToBaseUnit
};

/// The result of looking up the conversion of a unit, for one value or many. It points into the catalogue and
/// is valid until the next load.
struct FoundConversion
{
    /// The unit type of the unit; null without a conversion.
    const UnitConversionUnitTypeHandler* unitType = nullptr;
    /// Null when values stay unchanged.
    const ValueConversionWrapper* conversion = nullptr;
    /// The direction in which convert() and its relatives work.
    ConversionDirection direction = ConversionDirection::FromBaseUnit;
    /// False after a failure, which has been logged. Values then stay unchanged.
    bool isKnown = false;
    /// True if there is a conversion and the look-up logged nothing; the result may then be reused for other
    /// values.
    bool isReusable = false;

    /// Creates a result without a conversion.
    static FoundConversion none(bool isKnown);

    /// Converts @p value in place; the result is a double. The no-input marker stays unchanged.
    ///
    /// @return false, with @p value unchanged, after a failed look-up and for a value that is not a number;
    /// this function logs the latter.
    bool convert(QVariant& value) const;

    /// Converts a number. Callers must not pass the no-input marker.
    double convertNumber(double number) const;

    /// Converts an array of numbers; no-input markers keep all their bits.
    ///
    /// @param values the numbers
    /// @param results room for @p count numbers; may be equal to @p values, but must not overlap it otherwise
    /// @param count number of values
    void convertArray(const double* values, double* results, std::size_t count) const;
};
