#include "UnitConversion/ValueConverterPolynomial.h"

#include <algorithm>
#include <iterator>

#include "Array2dDataTypeWrapper.h"
#include "ConfigurationAndProcessDataTools.h"
#include "UnitConversion/ConverterConfiguration.h"
#include "UnitConversion/PolynomialEvaluation.h"

namespace {

double evaluate(const QVector<double>& coefficients, double x)
{
    return PolynomialEvaluation::evaluate(coefficients.constData(),
                                          static_cast<std::size_t>(coefficients.size()), x);
}

void evaluateArray(const QVector<double>& coefficients, const double* values, double* results,
                   std::size_t count)
{
    PolynomialEvaluation::evaluateArray(
        coefficients.constData(), static_cast<std::size_t>(coefficients.size()), values, results, count);
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
    return evaluate(coefficients, x);
}

double ValueConverterPolynomial::convertValue(double x) const
{
    return evaluate(polynomial, x);
}

double ValueConverterPolynomial::invertValue(double x) const
{
    return evaluate(inversePolynomial, x);
}

void ValueConverterPolynomial::convertValues(const double* values, double* results, std::size_t count) const
{
    evaluateArray(polynomial, values, results, count);
}

void ValueConverterPolynomial::invertValues(const double* values, double* results, std::size_t count) const
{
    evaluateArray(inversePolynomial, values, results, count);
}
