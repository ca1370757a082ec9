#pragma once

#include <QtCore/QSharedPointer>

#include <cstddef>

#include "ConfigurationAndProcessDataBase.h"
#include "UnitConversion/ValueConverterBase.h"
#include "UnitManagerExport.h"

/// Handle to the conversion of one unit. Copies are cheap and share the converter, which is immutable; each
/// copy keeps it alive.
class UNITMANAGER_EXPORT ValueConversionWrapper
{
public:
    /// Creates a handle without a converter.
    ValueConversionWrapper();
    /// Creates a handle to the converter that @p node describes; check the result with isValid().
    ValueConversionWrapper(const BaseClassSharedPointer& node);
    virtual ~ValueConversionWrapper();

    /// Replaces the converter by the one that @p node describes. Its kind is given by the first of the
    /// children "Polynomial", "ArbitraryTable" and "EquidistantTable" that exists. Earlier copies keep their
    /// converter.
    ///
    /// @return false, with no converter held, for a null node or a node without such a child. Nothing is
    /// logged.
    bool init(const BaseClassSharedPointer& node);

    /// @param x value in the base unit
    /// @return the value in this unit; @p x unchanged without a converter.
    double convertValue(double x) const
    {
        return converter ? converter->convertValue(x) : x;
    }

    /// @param x value in this unit
    /// @return the value in the base unit; @p x unchanged without a converter.
    double invertValue(double x) const
    {
        return converter ? converter->invertValue(x) : x;
    }

    /// Converts each number of an array like convertValue(), with bitwise equal results, except that a NaN is
    /// copied with all its bits.
    ///
    /// @param values @p count numbers in the base unit
    /// @param results room for @p count numbers in this unit; may be equal to @p values, but must not overlap
    /// it otherwise
    /// @param count number of values
    void convertValues(const double* values, double* results, std::size_t count) const;

    /// Converts each number of an array like invertValue(); for parameters and NaN see convertValues(), with
    /// the units exchanged.
    void invertValues(const double* values, double* results, std::size_t count) const;

    /// Stores the number of decimal places with which values of the unit are shown.
    ///
    /// @return false, with @p decimalPlaces unchanged and a warning logged, without a converter.
    bool getDecimalPlacesForUnit(unsigned int& decimalPlaces) const;

    /// Whether there is a converter.
    bool isValid() const;
    /// Same as isValid().
    operator bool() const;

private:
    QSharedPointer<ValueConverterBase> converter;
};
