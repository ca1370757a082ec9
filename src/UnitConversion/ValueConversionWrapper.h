#pragma once

#include <QtCore/QSharedPointer>

#include <cstddef>

#include "ConfigurationAndProcessDataBase.h"
#include "UnitConversion/ValueConverterBase.h"
#include "UnitManagerExport.h"

/// Handle on one unit's conversion. Copies are cheap and share the converter, which is never changed; a copy
/// keeps it alive.
class UNITMANAGER_EXPORT ValueConversionWrapper
{
public:
    /// A handle without converter.
    ValueConversionWrapper();
    /// A handle on the converter that @p node describes; test with isValid().
    ValueConversionWrapper(const BaseClassSharedPointer& node);
    virtual ~ValueConversionWrapper();

    /// Replaces the converter by the one that @p node describes: the first of the children "Polynomial",
    /// "ArbitraryTable" and "EquidistantTable" that exists names its kind. Earlier copies keep theirs.
    ///
    /// @return false, with no converter held, for a null node or one without such a child. Nothing is logged.
    bool init(const BaseClassSharedPointer& node);

    /// @param x value in the base unit
    /// @return the value in this unit; @p x itself without a converter.
    double convertValue(double x) const
    {
        return converter ? converter->convertValue(x) : x;
    }

    /// @param x value in this unit
    /// @return the value in the base unit; @p x itself without a converter.
    double invertValue(double x) const
    {
        return converter ? converter->invertValue(x) : x;
    }

    /// convertValue() of each number in an array, bit by bit the same, except that a NaN is copied with all
    /// its bits.
    ///
    /// @param values @p count numbers in the base unit
    /// @param results room for @p count numbers in this unit; may be @p values itself, but must not overlap
    /// it otherwise
    void convertValues(const double* values, double* results, std::size_t count) const;

    /// invertValue() of each number in an array; parameters and treatment of NaN as for convertValues(), with
    /// the units exchanged.
    void invertValues(const double* values, double* results, std::size_t count) const;

    /// Stores the number of decimal places with which values of the unit are shown.
    ///
    /// @return false, with @p decimalPlaces untouched and a warning logged, without a converter.
    bool getDecimalPlacesForUnit(unsigned int& decimalPlaces) const;

    /// Whether there is a converter.
    bool isValid() const;
    operator bool() const;

private:
    QSharedPointer<ValueConverterBase> converter;
};
