#pragma once

#include <QtCore/QVariant>

#include <cstddef>

class UnitConversionUnitTypeHandler;
class ValueConversionWrapper;

/// Which way values are converted.
enum class ConversionDirection
{
    FromBaseUnit,
    ToBaseUnit
};

/// The conversion of a unit, found once for one value or many. It points into the catalogue: it is valid
/// until something is loaded.
struct FoundConversion
{
    const UnitConversionUnitTypeHandler* unitType = nullptr;
    /// Null where values stay as they are.
    const ValueConversionWrapper* conversion = nullptr;
    ConversionDirection direction = ConversionDirection::FromBaseUnit;
    /// False after a failure, which has been logged. Values then stay as they are.
    bool isKnown = false;
    /// Whether there is a conversion and nothing was logged when it was found: it serves more values.
    bool isReusable = false;

    /// A result without conversion.
    static FoundConversion none(bool isKnown);

    /// Converts @p value in place; the result is a double. The no-input marker stays as it is.
    ///
    /// @return false, with @p value untouched, after a failure and for a value that is not a number, which is
    /// logged here.
    bool convert(QVariant& value) const;

    /// Converts a number that is not the no-input marker.
    double convertNumber(double number) const;

    /// Converts @p count numbers; no-input markers keep all their bits.
    ///
    /// @param results room for @p count numbers; may be @p values itself, but must not overlap it otherwise
    void convertArray(const double* values, double* results, std::size_t count) const;
};
