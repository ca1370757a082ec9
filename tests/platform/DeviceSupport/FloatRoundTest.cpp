#include "FloatRound.h"

#include <QtTest/QTest>

#include <cmath>
#include <limits>
#include <random>

#include "ExactText.h"
#include "TestProgram.h"

namespace {

const double infinity = std::numeric_limits<double>::infinity();
const double notANumber = std::numeric_limits<double>::quiet_NaN();

/// The definition of the rounding rule, using std::pow.
double roundedByDefinition(double value, unsigned int decimalPlaces)
{
    const double scale = std::pow(10.0, decimalPlaces);
    if (decimalPlaces > 17 || !std::isfinite(value) || std::abs(value) >= std::pow(2.0, 52) / scale)
        return value;
    return std::round(value * scale) / scale;
}

} // namespace

class FloatRoundTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void valueIsRoundedHalfAwayFromZero_data();
    void valueIsRoundedHalfAwayFromZero();
    void valueComesBackUnchanged_data();
    void valueComesBackUnchanged();
    void everyResultIsThatOfTheDefinition();
    void roundingARoundedValueChangesNothing();
};

void FloatRoundTest::valueIsRoundedHalfAwayFromZero_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<unsigned int>("decimalPlaces");
    QTest::addColumn<double>("rounded");

    QTest::newRow("whole number") << 7.0 << 0U << 7.0;
    QTest::newRow("down") << 1.4 << 0U << 1.0;
    QTest::newRow("up") << 1.6 << 0U << 2.0;
    QTest::newRow("negative towards zero") << -1.4 << 0U << -1.0;
    QTest::newRow("negative away from zero") << -1.6 << 0U << -2.0;
    QTest::newRow("half up") << 0.5 << 0U << 1.0;
    QTest::newRow("half of an even number up") << 2.5 << 0U << 3.0;
    QTest::newRow("negative half down") << -0.5 << 0U << -1.0;
    QTest::newRow("negative half of an even number down") << -2.5 << 0U << -3.0;
    QTest::newRow("half at two places") << 0.125 << 2U << 0.13;
    QTest::newRow("negative half at two places") << -0.125 << 2U << -0.13;
    QTest::newRow("the product decides what is a half") << 1.005 << 2U << 1.0;
    QTest::newRow("just below a half") << 0.49999999999999994 << 0U << 0.0;
    QTest::newRow("zero") << 0.0 << 3U << 0.0;
    QTest::newRow("negative zero") << -0.0 << 3U << -0.0;
    QTest::newRow("small negative to negative zero") << -0.2 << 0U << -0.0;
    QTest::newRow("smallest number") << std::numeric_limits<double>::denorm_min() << 17U << 0.0;
    QTest::newRow("three places") << 1.23456 << 3U << 1.235;
    QTest::newRow("hectopascal in bar to one place") << 1.23456 << 1U << 1.2;
    QTest::newRow("larger than an int") << 30000000.5 << 2U << 30000000.5;
    QTest::newRow("larger than an int, half") << 3000000000.125 << 2U << 3000000000.13;
    QTest::newRow("last value with a half") << 4503599627370495.5 << 0U << 4503599627370496.0;
    QTest::newRow("seventeen places") << 0.0123456789012345678 << 17U << 0.01234567890123457;
    QTest::newRow("sixteen places") << -0.12345678901234566 << 16U << -0.1234567890123457;
}

void FloatRoundTest::valueIsRoundedHalfAwayFromZero()
{
    QFETCH(double, value);
    QFETCH(unsigned int, decimalPlaces);
    QFETCH(double, rounded);

    QCOMPARE(exactText(FloatRound::roundValue(value, decimalPlaces)), exactText(rounded));
}

void FloatRoundTest::valueComesBackUnchanged_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<unsigned int>("decimalPlaces");

    QTest::newRow("NaN") << notANumber << 2U;
    QTest::newRow("NaN, more places than the table") << notANumber << 18U;
    QTest::newRow("infinity") << infinity << 0U;
    QTest::newRow("negative infinity") << -infinity << 17U;
    QTest::newRow("largest number, scaling would overflow") << std::numeric_limits<double>::max() << 2U;
    QTest::newRow("lowest number") << std::numeric_limits<double>::lowest() << 17U;
    QTest::newRow("2^52, every number is whole") << 4503599627370496.0 << 0U;
    QTest::newRow("2^52 + 1 would lose its last digit in the product") << 4503599627370497.0 << 1U;
    QTest::newRow("no digit after the second place") << 45035996273704.97 << 2U;
    QTest::newRow("eighteen places") << 0.123456789 << 18U;
    QTest::newRow("the largest number of places") << 0.5 << std::numeric_limits<unsigned int>::max();
}

void FloatRoundTest::valueComesBackUnchanged()
{
    QFETCH(double, value);
    QFETCH(unsigned int, decimalPlaces);

    QCOMPARE(exactText(FloatRound::roundValue(value, decimalPlaces)), exactText(value));
}

void FloatRoundTest::everyResultIsThatOfTheDefinition()
{
    std::mt19937_64 random(20240229);
    std::uniform_real_distribution<double> mantissa(-1.0, 1.0);
    std::uniform_int_distribution<int> exponent(-60, 60);
    for (unsigned int places = 0; places <= 20; ++places) {
        for (int i = 0; i < 5000; ++i) {
            const double value = std::ldexp(mantissa(random), exponent(random));
            QCOMPARE(exactText(FloatRound::roundValue(value, places)),
                     exactText(roundedByDefinition(value, places)));
        }
    }
}

void FloatRoundTest::roundingARoundedValueChangesNothing()
{
    std::mt19937_64 random(7);
    std::uniform_real_distribution<double> values(-1e6, 1e6);
    for (unsigned int places = 0; places <= 9; ++places) {
        for (int i = 0; i < 2000; ++i) {
            const double rounded = FloatRound::roundValue(values(random), places);
            QCOMPARE(exactText(FloatRound::roundValue(rounded, places)), exactText(rounded));
        }
    }
}

static const TestClass<FloatRoundTest> testClass;

#include "FloatRoundTest.moc"
