#include "UnitConversion/PolynomialEvaluation.h"

#include <QtTest/QTest>

#include <cmath>
#include <limits>

#include "DoubleBits.h"
#include "TestProgram.h"

using PolynomialEvaluation::Variant;

Q_DECLARE_METATYPE(Variant)

/// Compares every variant that this processor supports with the definition: Horner's scheme with std::fma.
class PolynomialEvaluationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void baselineIsLast();
    void everyVariantGivesTheSameBits_data();
    void everyVariantGivesTheSameBits();
    void arrayIsEvaluatedInPlace_data();
    void arrayIsEvaluatedInPlace();
    void fastestVariantGivesTheSameBits();
};

namespace {

using Numbers = std::vector<double>;

double expectedValue(const Numbers& coefficients, double x)
{
    double result = 0.0;
    for (const double coefficient : coefficients)
        result = std::fma(x, result, coefficient);
    return result;
}

/// Array conversions keep the bits of a NaN.
Numbers expectedValues(const Numbers& coefficients, const Numbers& values)
{
    Numbers results;
    for (const double x : values)
        results.push_back(std::isnan(x) ? x : expectedValue(coefficients, x));
    return results;
}

/// Numbers of every kind, ordered so that neighbours differ.
Numbers samples(std::size_t count)
{
    const double infinity = std::numeric_limits<double>::infinity();
    const double quietNan = doubleFromBits(0x7FF8000000000ABCU);
    const double negativeSignallingNan = doubleFromBits(0xFFF0000000000001U);
    const Numbers kinds = {
        1.01325,   -0.0,      infinity, 5e-324,   quietNan, -273.15, 1e308, 0.1, negativeSignallingNan,
        -infinity, 1.0 / 3.0, 0.0,      -2.5e-300};
    Numbers values;
    for (std::size_t index = 0; index < count; ++index) {
        const double kind = kinds[index % kinds.size()];
        values.push_back(index < kinds.size() || std::isnan(kind) ? kind
                                                                  : kind * (1.0 + 0.001 * double(index)));
    }
    return values;
}

Numbers coefficientsOf(std::size_t count)
{
    const Numbers kinds = {0.001, -3.7, 1e3, 0.0, -0.0, 1.0 / 7.0, 273.15};
    Numbers coefficients;
    for (std::size_t index = 0; index < count; ++index)
        coefficients.push_back(kinds[index % kinds.size()]);
    return coefficients;
}

/// Describes the first difference and its index; empty if all bits are equal.
QString difference(const Numbers& actual, const Numbers& expected)
{
    if (actual.size() != expected.size())
        return QStringLiteral("%1 instead of %2 numbers").arg(actual.size()).arg(expected.size());
    for (std::size_t index = 0; index < actual.size(); ++index) {
        if (bitsOf(actual[index]) != bitsOf(expected[index]))
            return QStringLiteral("number %1: %2 instead of %3")
                .arg(index)
                .arg(bitsOf(actual[index]), 16, 16, QLatin1Char('0'))
                .arg(bitsOf(expected[index]), 16, 16, QLatin1Char('0'));
    }
    return {};
}

const std::size_t coefficientCounts[] = {0, 1, 2, 3, 4, 5, 8, 9, 13};
/// Around the lengths of vectors, and of the blocks in which polynomials of many coefficients are evaluated.
const std::size_t lengths[] = {0, 1, 2, 3, 4, 5, 7, 8, 9, 15, 16, 17, 31, 33, 100, 511, 512, 513, 1030};

void addVariants()
{
    QTest::addColumn<Variant>("variant");
    QTest::addColumn<std::size_t>("coefficientCount");
    for (const Variant& variant : PolynomialEvaluation::supportedVariants()) {
        for (const std::size_t count : coefficientCounts)
            QTest::addRow("%s, %zu coefficients", variant.name, count) << variant << count;
    }
}

} // namespace

Q_DECLARE_METATYPE(std::size_t)

void PolynomialEvaluationTest::baselineIsLast()
{
    const std::vector<Variant> variants = PolynomialEvaluation::supportedVariants();
    QVERIFY(!variants.empty());
    QCOMPARE(variants.back().name, "baseline");
#ifdef __x86_64__
    const bool hasFma = __builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma");
    const bool hasAvx512 = hasFma && __builtin_cpu_supports("avx512f");
    QCOMPARE(variants.size(), std::size_t(1) + (hasFma ? 1 : 0) + (hasAvx512 ? 1 : 0));
#else
    QCOMPARE(variants.size(), std::size_t(1));
#endif
}

void PolynomialEvaluationTest::everyVariantGivesTheSameBits_data()
{
    addVariants();
}

void PolynomialEvaluationTest::everyVariantGivesTheSameBits()
{
    QFETCH(Variant, variant);
    QFETCH(std::size_t, coefficientCount);
    const Numbers coefficients = coefficientsOf(coefficientCount);

    for (const double x : samples(100)) {
        if (!std::isnan(x))
            QCOMPARE(bitsOf(variant.evaluate(coefficients.data(), coefficients.size(), x)),
                     bitsOf(expectedValue(coefficients, x)));
    }
    for (const std::size_t length : lengths) {
        const Numbers values = samples(length);
        // The element after the last one must stay unchanged.
        Numbers results(length + 1, 77.0);
        variant.evaluateArray(coefficients.data(), coefficients.size(), values.data(), results.data(),
                              length);
        QCOMPARE(results.back(), 77.0);
        results.pop_back();
        QCOMPARE(difference(results, expectedValues(coefficients, values)), QString());
    }
}

void PolynomialEvaluationTest::arrayIsEvaluatedInPlace_data()
{
    addVariants();
}

void PolynomialEvaluationTest::arrayIsEvaluatedInPlace()
{
    QFETCH(Variant, variant);
    QFETCH(std::size_t, coefficientCount);
    const Numbers coefficients = coefficientsOf(coefficientCount);
    for (const std::size_t length : lengths) {
        Numbers values = samples(length);
        const Numbers expected = expectedValues(coefficients, values);
        variant.evaluateArray(coefficients.data(), coefficients.size(), values.data(), values.data(), length);
        QCOMPARE(difference(values, expected), QString());
    }
}

void PolynomialEvaluationTest::fastestVariantGivesTheSameBits()
{
    const Numbers coefficients = coefficientsOf(2);
    Numbers values = samples(100);
    const Numbers expected = expectedValues(coefficients, values);
    for (const double x : values) {
        if (!std::isnan(x))
            QCOMPARE(bitsOf(PolynomialEvaluation::evaluate(coefficients.data(), coefficients.size(), x)),
                     bitsOf(expectedValue(coefficients, x)));
    }
    PolynomialEvaluation::evaluateArray(coefficients.data(), coefficients.size(), values.data(),
                                        values.data(), values.size());
    QCOMPARE(difference(values, expected), QString());
}

static const TestClass<PolynomialEvaluationTest> testClass;

#include "PolynomialEvaluationTest.moc"
