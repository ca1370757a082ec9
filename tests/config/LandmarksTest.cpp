#include <QtTest/QTest>

#include <cmath>
#include <limits>

#include "ExactText.h"
#include "Row.h"
#include "ShippedCatalogue.h"

/// A value in one unit is an expected value in another unit of the same type.
struct Landmark
{
    QString unitType;
    double value;
    QString from;
    double expected;
    QString to;

    Landmark inverse() const
    {
        return {unitType, expected, to, value, from};
    }
};
Q_DECLARE_METATYPE(Landmark)

namespace {

/// A function that adds a row: a landmark of the unit type, then values for further columns.
auto rowsOf(const char* unitType)
{
    return [unitType](const char* name, double value, const char* from, double expected, const char* to,
                      const auto&... more) {
        row(name, Landmark{unitType, value, from, expected, to}, more...);
    };
}

} // namespace

/// Well-known values, compared to the last bit.
class LandmarksTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void exactInBothDirections_data();
    void exactInBothDirections();
    void exactInOneDirection_data();
    void exactInOneDirection();
    void besideTheLandmark_data();
    void besideTheLandmark();
    void baseUnitKeepsEveryBit_data();
    void baseUnitKeepsEveryBit();

private:
    QVariant convert(const Landmark& landmark) const;

    ShippedCatalogue m_catalogue;
};

void LandmarksTest::initTestCase()
{
    QVERIFY(m_catalogue.isLoaded());
}

QVariant LandmarksTest::convert(const Landmark& landmark) const
{
    return m_catalogue.convert(landmark.value, landmark.unitType, landmark.from, landmark.to);
}

/// Conversions that are exact in both directions.
void LandmarksTest::exactInBothDirections_data()
{
    QTest::addColumn<Landmark>("landmark");
    const auto pressure = rowsOf("Pressure");
    const auto ratio = rowsOf("Ratio");
    const auto mixingRatio = rowsOf("MixingRatio");
    const auto humidity = rowsOf("AbsoluteHumidity");
    const auto temperature = rowsOf("AbsoluteTemperature");
    const auto resistance = rowsOf("Resistance");
    const auto voltage = rowsOf("Voltage");
    const auto time = rowsOf("Time");
    const auto enthalpy = rowsOf("SpecificEnthalpy");

    pressure("bar in hectopascal", 1.0, "Bar", 1000.0, "HectoPascal");
    pressure("bar in millibar", 1.0, "Bar", 1000.0, "MilliBar");
    pressure("bar in pascal", 1.0, "Bar", 100000.0, "Pascal");
    pressure("bar in kilopascal", 1.0, "Bar", 100.0, "KiloPascal");
    pressure("bar in megapascal", 1.0, "Bar", 0.1, "MegaPascal");
    pressure("ten bar in megapascal", 10.0, "Bar", 1.0, "MegaPascal");
    pressure("ten bar in pascal", 10.0, "Bar", 1000000.0, "Pascal");
    pressure("megapascal in pascal", 1.0, "MegaPascal", 1000000.0, "Pascal");
    pressure("kilopascal in hectopascal", 1.0, "KiloPascal", 10.0, "HectoPascal");
    pressure("hectopascal in pascal", 1.0, "HectoPascal", 100.0, "Pascal");
    pressure("hectopascal in millibar", 1.0, "HectoPascal", 1.0, "MilliBar");
    pressure("standard pressure in hectopascal", 1013.25, "HectoPascal", 1013.25, "MilliBar");
    pressure("standard atmosphere in bar", 1.0, "StandardAtmosphere", 1.01325, "Bar");
    pressure("standard atmosphere in hectopascal", 1.0, "StandardAtmosphere", 1013.25, "HectoPascal");
    pressure("standard atmosphere in pascal", 1.0, "StandardAtmosphere", 101325.0, "Pascal");
    pressure("standard atmosphere in kilopascal", 1.0, "StandardAtmosphere", 101.325, "KiloPascal");
    pressure("standard atmosphere in megapascal", 1.0, "StandardAtmosphere", 0.101325, "MegaPascal");
    pressure("technical atmosphere in bar", 1.0, "KiloGramForcePerSquareCentimeter", 0.980665, "Bar");
    pressure("technical atmosphere in hectopascal", 1.0, "KiloGramForcePerSquareCentimeter", 980.665,
             "HectoPascal");
    pressure("technical atmosphere in water", 1.0, "KiloGramForcePerSquareCentimeter", 10000.0,
             "MillimeterOfWater");
    pressure("pound-force per square inch in bar", 1.0, "PoundForcePerSquareInch", 0.06894757293168362,
             "Bar");
    pressure("inch of mercury in hectopascal", 1.0, "InchOfMercury", 33.86388640341, "HectoPascal");
    pressure("inch of mercury in pascal", 1.0, "InchOfMercury", 3386.388640341, "Pascal");
    pressure("inch of water in pascal", 1.0, "InchOfWater", 249.08891, "Pascal");
    pressure("inch of water in hectopascal", 1.0, "InchOfWater", 2.4908891, "HectoPascal");
    pressure("millimetre of water in pascal", 1.0, "MillimeterOfWater", 9.80665, "Pascal");
    ratio("whole in percent", 1.0, "Fraction", 100.0, "Percentage");
    ratio("half in percent", 0.5, "Fraction", 50.0, "Percentage");
    ratio("percent as fraction", 1.0, "Percentage", 0.01, "Fraction");
    ratio("percent in parts per million", 1.0, "Percentage", 10000.0, "PartsPerMillion");
    ratio("percent in parts per billion", 1.0, "Percentage", 10000000.0, "PartsPerBillion");
    ratio("whole in parts per million", 1.0, "Fraction", 1000000.0, "PartsPerMillion");
    ratio("whole in parts per billion", 1.0, "Fraction", 1000000000.0, "PartsPerBillion");
    mixingRatio("gram per kilogram in grains per pound", 1.0, "GramPerKiloGram", 7.0, "GrainPerPound");
    mixingRatio("ten grams per kilogram in grains per pound", 10.0, "GramPerKiloGram", 70.0, "GrainPerPound");
    mixingRatio("kilogram per kilogram in grains per pound", 1.0, "KiloGramPerKiloGram", 7000.0,
                "GrainPerPound");
    mixingRatio("gram per kilogram in kilograms per kilogram", 1.0, "GramPerKiloGram", 0.001,
                "KiloGramPerKiloGram");
    humidity("gram per cubic metre in milligrams", 1.0, "GramPerCubicMeter", 1000.0,
             "MilliGramPerCubicMeter");
    temperature("ice point in kelvin", 0.0, "DegreeCelsius", 273.15, "Kelvin");
    temperature("ice point in degrees Fahrenheit", 0.0, "DegreeCelsius", 32.0, "DegreeFahrenheit");
    temperature("ice point from kelvin to degrees Fahrenheit", 273.15, "Kelvin", 32.0, "DegreeFahrenheit");
    temperature("boiling point in kelvin", 100.0, "DegreeCelsius", 373.15, "Kelvin");
    temperature("boiling point in degrees Fahrenheit", 100.0, "DegreeCelsius", 212.0, "DegreeFahrenheit");
    temperature("boiling point from kelvin to degrees Fahrenheit", 373.15, "Kelvin", 212.0,
                "DegreeFahrenheit");
    temperature("absolute zero in kelvin", -273.15, "DegreeCelsius", 0.0, "Kelvin");
    temperature("scales meet", -40.0, "DegreeCelsius", -40.0, "DegreeFahrenheit");
    temperature("reference temperature 20 in degrees Fahrenheit", 20.0, "DegreeCelsius", 68.0,
                "DegreeFahrenheit");
    temperature("reference temperature 20 in kelvin", 20.0, "DegreeCelsius", 293.15, "Kelvin");
    temperature("reference temperature 25 in degrees Fahrenheit", 25.0, "DegreeCelsius", 77.0,
                "DegreeFahrenheit");
    temperature("reference temperature 25 in kelvin", 25.0, "DegreeCelsius", 298.15, "Kelvin");
    temperature("ten degrees in degrees Fahrenheit", 10.0, "DegreeCelsius", 50.0, "DegreeFahrenheit");
    resistance("ohm in milliohm", 1.0, "Ohm", 1000.0, "MilliOhm");
    resistance("kiloohm in ohm", 1.0, "KiloOhm", 1000.0, "Ohm");
    resistance("megaohm in kiloohm", 1.0, "MegaOhm", 1000.0, "KiloOhm");
    resistance("megaohm in ohm", 1.0, "MegaOhm", 1000000.0, "Ohm");
    resistance("megaohm in milliohm", 1.0, "MegaOhm", 1000000000.0, "MilliOhm");
    voltage("volt in millivolt", 1.0, "Volt", 1000.0, "MilliVolt");
    voltage("ten volt in millivolt", 10.0, "Volt", 10000.0, "MilliVolt");
    voltage("volt in microvolt", 1.0, "Volt", 1000000.0, "MicroVolt");
    voltage("millivolt in microvolt", 1.0, "MilliVolt", 1000.0, "MicroVolt");
    voltage("kilovolt in volt", 1.0, "KiloVolt", 1000.0, "Volt");
    time("second in milliseconds", 1.0, "Seconds", 1000.0, "MilliSeconds");
    time("minute in seconds", 1.0, "Minutes", 60.0, "Seconds");
    time("minute in milliseconds", 1.0, "Minutes", 60000.0, "MilliSeconds");
    time("hour in minutes", 1.0, "Hours", 60.0, "Minutes");
    time("hour in seconds", 1.0, "Hours", 3600.0, "Seconds");
    time("day in hours", 1.0, "Days", 24.0, "Hours");
    time("day in minutes", 1.0, "Days", 1440.0, "Minutes");
    time("day in seconds", 1.0, "Days", 86400.0, "Seconds");
    time("week in hours", 7.0, "Days", 168.0, "Hours");
    enthalpy("kilojoule per kilogram in joules per gram", 1.0, "KiloJoulePerKiloGram", 1.0, "JoulePerGram");
    enthalpy("British thermal unit per pound in kilojoules per kilogram", 1.0, "BtuPerPound", 2.326,
             "KiloJoulePerKiloGram");
    enthalpy("calorie in joules per gram", 1.0, "KiloCaloriePerKiloGram", 4.1868, "JoulePerGram");
    enthalpy("calorie in British thermal units per pound", 1.0, "KiloCaloriePerKiloGram", 1.8, "BtuPerPound");
    enthalpy("five calories in British thermal units per pound", 5.0, "KiloCaloriePerKiloGram", 9.0,
             "BtuPerPound");
}

void LandmarksTest::exactInBothDirections()
{
    QFETCH(Landmark, landmark);
    QCOMPARE(exactText(convert(landmark)), exactText(QVariant(landmark.expected)));
    QCOMPARE(exactText(convert(landmark.inverse())), exactText(QVariant(landmark.value)));
}

/// For the inverse conversions see besideTheLandmark_data().
void LandmarksTest::exactInOneDirection_data()
{
    QTest::addColumn<Landmark>("landmark");
    const auto pressure = rowsOf("Pressure");
    const auto ratio = rowsOf("Ratio");
    const auto temperature = rowsOf("AbsoluteTemperature");

    pressure("millimetre of mercury in bar", 1.0, "MillimeterOfMercury", 0.00133322387415, "Bar");
    pressure("millimetre of mercury in pascal, back", 133.322387415, "Pascal", 1.0, "MillimeterOfMercury");
    ratio("part per million in parts per billion", 1.0, "PartsPerMillion", 1000.0, "PartsPerBillion");
    temperature("ice point in degrees Rankine", 0.0, "DegreeCelsius", 491.67, "DegreeRankine");
    temperature("ice point from kelvin to degrees Rankine", 273.15, "Kelvin", 491.67, "DegreeRankine");
    temperature("absolute zero from degrees Rankine", 0.0, "DegreeRankine", 0.0, "Kelvin");
    temperature("absolute zero from degrees Rankine to degrees Celsius", 0.0, "DegreeRankine", -273.15,
                "DegreeCelsius");
    temperature("body temperature in degrees Fahrenheit, back", 98.6, "DegreeFahrenheit", 37.0,
                "DegreeCelsius");
    temperature("minus twenty in degrees Fahrenheit, back", -4.0, "DegreeFahrenheit", -20.0, "DegreeCelsius");
    pressure("standard atmosphere in torr, back", 760.0, "Torr", 1.0, "StandardAtmosphere");
    pressure("technical atmosphere in pascal", 1.0, "KiloGramForcePerSquareCentimeter", 98066.5, "Pascal");
    pressure("inch of water in millimetres, back", 25.4, "MillimeterOfWater", 1.0, "InchOfWater");
    pressure("seven bar in pascal", 7.0, "Bar", 700000.0, "Pascal");
}

void LandmarksTest::exactInOneDirection()
{
    QFETCH(Landmark, landmark);
    QCOMPARE(exactText(convert(landmark)), exactText(QVariant(landmark.expected)));
}

/// Landmarks that the correctly rounded coefficients miss: neither the coefficients nor, in many cases, the
/// landmarks themselves are doubles. The scale is the largest intermediate number.
void LandmarksTest::besideTheLandmark_data()
{
    QTest::addColumn<Landmark>("landmark");
    QTest::addColumn<double>("scale");
    const auto pressure = rowsOf("Pressure");
    const auto ratio = rowsOf("Ratio");
    const auto humidity = rowsOf("AbsoluteHumidity");
    const auto temperature = rowsOf("AbsoluteTemperature");

    pressure("millimetre of mercury in pascal", 1.0, "MillimeterOfMercury", 133.322387415, "Pascal",
             133.322387415);
    ratio("part per million in parts per billion, back", 1000.0, "PartsPerBillion", 1.0, "PartsPerMillion",
          1.0);
    humidity("thousand pounds per million cubic feet in grains per cubic foot", 1000.0,
             "PoundPerMillionCubicFoot", 7.0, "GrainPerCubicFoot", 7.0);
    temperature("ice point in degrees Rankine, back", 491.67, "DegreeRankine", 0.0, "DegreeCelsius", 491.67);
    temperature("absolute zero from degrees Celsius to degrees Fahrenheit", -273.15, "DegreeCelsius", -459.67,
                "DegreeFahrenheit", 491.67);
    temperature("absolute zero from degrees Celsius to degrees Fahrenheit, back", -459.67, "DegreeFahrenheit",
                -273.15, "DegreeCelsius", 491.67);
    temperature("body temperature in degrees Fahrenheit", 37.0, "DegreeCelsius", 98.6, "DegreeFahrenheit",
                491.67);
    temperature("triple point in kelvin", 0.01, "DegreeCelsius", 273.16, "Kelvin", 273.15);
    temperature("triple point in kelvin, back", 273.16, "Kelvin", 0.01, "DegreeCelsius", 273.15);
    temperature("boiling point in degrees Rankine", 100.0, "DegreeCelsius", 671.67, "DegreeRankine", 671.67);
    temperature("minus forty in kelvin", -40.0, "DegreeCelsius", 233.15, "Kelvin", 273.15);
    temperature("minus forty in kelvin, back", 233.15, "Kelvin", -40.0, "DegreeCelsius", 273.15);
    temperature("minus twenty in degrees Fahrenheit", -20.0, "DegreeCelsius", -4.0, "DegreeFahrenheit",
                491.67);
    pressure("standard atmosphere in torr", 1.0, "StandardAtmosphere", 760.0, "Torr", 760.0);
    pressure("technical atmosphere in pascal, back", 98066.5, "Pascal", 1.0,
             "KiloGramForcePerSquareCentimeter", 1.0);
    pressure("inch of mercury in millimetres", 1.0, "InchOfMercury", 25.4, "MillimeterOfMercury", 25.4);
    pressure("inch of water in millimetres", 1.0, "InchOfWater", 25.4, "MillimeterOfWater", 25.4);
    temperature("absolute zero in degrees Rankine", 0.0, "Kelvin", 0.0, "DegreeRankine", 491.67);
    ratio("part per million as fraction", 1.0, "PartsPerMillion", 1e-06, "Fraction", 1e-06);
    ratio("part per million as fraction, back", 1e-06, "Fraction", 1.0, "PartsPerMillion", 1.0);
    pressure("seven bar in pascal, back", 700000.0, "Pascal", 7.0, "Bar", 7.0);
}

void LandmarksTest::besideTheLandmark()
{
    QFETCH(Landmark, landmark);
    QFETCH(double, scale);
    const double result = convert(landmark).toDouble();
    QVERIFY(result != landmark.expected);
    // Two coefficients and two results are rounded, each by at most half a unit in the last place.
    QVERIFY2(std::abs(result - landmark.expected) <= 2 * std::numeric_limits<double>::epsilon() * scale,
             qPrintable(exactText(result)));
}

void LandmarksTest::baseUnitKeepsEveryBit_data()
{
    QTest::addColumn<double>("value");
    row("zero", 0.0);
    row("third", 1.0 / 3.0);
    row("negative", -987.654);
    row("smallest", std::numeric_limits<double>::denorm_min());
    row("largest", std::numeric_limits<double>::max());
}

void LandmarksTest::baseUnitKeepsEveryBit()
{
    QFETCH(double, value);
    int baseUnits = 0;
    for (const QString& unitType : m_catalogue.manager().getListofUnitTypes()) {
        const QString baseUnit = m_catalogue.manager().getBaseUnit(unitType).section(QLatin1Char('/'), -1);
        const QVariant result =
            m_catalogue.convert(value, unitType.section(QLatin1Char('/'), -1), baseUnit, baseUnit);
        QCOMPARE(exactText(result), exactText(QVariant(value)));
        ++baseUnits;
    }
    QCOMPARE(baseUnits, 11);
}

QTEST_GUILESS_MAIN(LandmarksTest)

#include "LandmarksTest.moc"
