#pragma once

#include <QtCore/QList>
#include <QtCore/QVariant>
#include <QtCore/QVector>

#include <cstddef>

#include "ConfigurationAndProcessDataBase.h"
#include "UnitConversion/ValueConverterBase.h"
#include "UnitManagerExport.h"

/// Converts with two independently configured polynomials: one from the base unit to the unit, one for the
/// opposite direction.
class UNITMANAGER_EXPORT ValueConverterPolynomial : public ValueConverterBase
{
public:
    /// Reads "Polynomial", "InversePolynomial" (one-column arrays, constant term first) and "DecimalPlaces"
    /// from a unit's node. Missing or wrongly typed values are not logged; a converter without coefficients
    /// returns 0.0.
    ValueConverterPolynomial(const BaseClassSharedPointer& node);
    ~ValueConverterPolynomial() override;

    /// Inserts the coefficients, given with the constant term first, before those already stored. An empty
    /// inverse list removes the inverse coefficients.
    ///
    /// @return true.
    bool resetPolynom(const QList<QVariant>& coefficients, const QList<QVariant>& inverseCoefficients);

    /// @param x the number to evaluate at
    /// @param coefficients highest power first
    /// @return the value of the polynomial at @p x, by Horner's scheme with fused multiply-add; 0.0 without
    /// coefficients.
    double evaluatePolynom(double x, QVector<double> coefficients) const;

    double convertValue(double x) const override;
    double invertValue(double x) const override;

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

protected:
    QVector<double> polynomial;        ///< highest power first
    int polynomialDegree = 0;          ///< degree of the polynomial
    QVector<double> inversePolynomial; ///< highest power first
    int inversePolynomialDegree = 0;   ///< degree of the polynomial
};
