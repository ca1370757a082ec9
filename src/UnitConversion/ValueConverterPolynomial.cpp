#include "UnitConversion/ValueConverterPolynomial.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "Array2dDataTypeWrapper.h"
#include "ConfigurationAndProcessDataTools.h"
#include "UnitConversion/ConverterConfiguration.h"

namespace {

/// Highest power first.
double horner(double x, const QVector<double>& coefficients)
{
    double result = 0.0;
    for (const double coefficient : coefficients)
        result = std::fma(x, result, coefficient);
    return result;
}

void prependColumn(const QList<QVariant>& column, QVector<double>& coefficients, int& degree)
{
    QVector<double> reversed;
    reversed.reserve(column.size() + coefficients.size());
    std::transform(column.crbegin(), column.crend(), std::back_inserter(reversed),
                   [](const QVariant& value) { return value.toDouble(); });
    coefficients = reversed + coefficients;
    degree += column.size() - 1;
}

} // namespace

ValueConverterPolynomial::ValueConverterPolynomial(const BaseClassSharedPointer& node)
{
    const QList<QVariant> forward = ConverterConfiguration::readList(QStringLiteral("Polynomial"), node);
    const QList<QVariant> inverse =
        ConverterConfiguration::readList(QStringLiteral("InversePolynomial"), node);
    const QVariant places =
        ConfigurationAndProcessDataTools::extractConfigValue(QStringLiteral("DecimalPlaces"), node);
    if (places.canConvert(QVariant::UInt))
        decimalPlaces = places.toUInt();
    resetPolynom(forward, inverse);
}

ValueConverterPolynomial::~ValueConverterPolynomial() = default;

bool ValueConverterPolynomial::resetPolynom(const QList<QVariant>& coefficients,
                                            const QList<QVariant>& inverseCoefficients)
{
    Array2dDataTypeWrapper array(coefficients, {});
    prependColumn(array.getColumnValues(0), polynomial, polynomialDegree);

    if (inverseCoefficients.isEmpty()) {
        inversePolynomial.clear();
        inversePolynomialDegree = 0;
        return true;
    }
    array.reset(inverseCoefficients, {});
    prependColumn(array.getColumnValues(0), inversePolynomial, inversePolynomialDegree);
    return true;
}

double ValueConverterPolynomial::evaluatePolynom(double x, QVector<double> coefficients) const
{
    return horner(x, coefficients);
}

double ValueConverterPolynomial::convertValue(double x) const
{
    return horner(x, polynomial);
}

double ValueConverterPolynomial::invertValue(double x) const
{
    return horner(x, inversePolynomial);
}
