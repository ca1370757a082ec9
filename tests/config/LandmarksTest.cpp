#include <QtTest/QTest>

#include <cmath>
#include <limits>

#include "ExactText.h"
#include "Row.h"
#include "ShippedCatalogue.h"
#include "TestProgram.h"

/// A value in one unit equals an expected value in another unit of the same type.
struct Landmark
{
    const char* name;
    const char* unitType;
    double value;
    const char* from;
    double expected;
    const char* to;
    /// Largest intermediate number of a conversion that is not exact.
    double scale = 0.0;
};
Q_DECLARE_METATYPE(Landmark)

namespace {

const Landmark landmarksInBothDirections[] = {
    {"bar in hectopascal", "Pressure", 1.0, "Bar", 1000.0, "HectoPascal"},
    {"bar in millibar", "Pressure", 1.0, "Bar", 1000.0, "MilliBar"},
    {"bar in pascal", "Pressure", 1.0, "Bar", 100000.0, "Pascal"},
    {"bar in kilopascal", "Pressure", 1.0, "Bar", 100.0, "KiloPascal"},
    {"bar in megapascal", "Pressure", 1.0, "Bar", 0.1, "MegaPascal"},
    {"ten bar in megapascal", "Pressure", 10.0, "Bar", 1.0, "MegaPascal"},
    {"ten bar in pascal", "Pressure", 10.0, "Bar", 1000000.0, "Pascal"},
    {"megapascal in pascal", "Pressure", 1.0, "MegaPascal", 1000000.0, "Pascal"},
    {"kilopascal in hectopascal", "Pressure", 1.0, "KiloPascal", 10.0, "HectoPascal"},
    {"hectopascal in pascal", "Pressure", 1.0, "HectoPascal", 100.0, "Pascal"},
    {"hectopascal in millibar", "Pressure", 1.0, "HectoPascal", 1.0, "MilliBar"},
    {"standard pressure in hectopascal", "Pressure", 1013.25, "HectoPascal", 1013.25, "MilliBar"},
    {"standard atmosphere in bar", "Pressure", 1.0, "StandardAtmosphere", 1.01325, "Bar"},
    {"standard atmosphere in hectopascal", "Pressure", 1.0, "StandardAtmosphere", 1013.25, "HectoPascal"},
    {"standard atmosphere in pascal", "Pressure", 1.0, "StandardAtmosphere", 101325.0, "Pascal"},
    {"standard atmosphere in kilopascal", "Pressure", 1.0, "StandardAtmosphere", 101.325, "KiloPascal"},
    {"standard atmosphere in megapascal", "Pressure", 1.0, "StandardAtmosphere", 0.101325, "MegaPascal"},
    {"technical atmosphere in bar", "Pressure", 1.0, "KiloGramForcePerSquareCentimeter", 0.980665, "Bar"},
    {"technical atmosphere in hectopascal", "Pressure", 1.0, "KiloGramForcePerSquareCentimeter", 980.665,
     "HectoPascal"},
    {"technical atmosphere in water", "Pressure", 1.0, "KiloGramForcePerSquareCentimeter", 10000.0,
     "MillimeterOfWater"},
    {"pound-force per square inch in bar", "Pressure", 1.0, "PoundForcePerSquareInch", 0.06894757293168362,
     "Bar"},
    {"inch of mercury in hectopascal", "Pressure", 1.0, "InchOfMercury", 33.86388640341, "HectoPascal"},
    {"inch of mercury in pascal", "Pressure", 1.0, "InchOfMercury", 3386.388640341, "Pascal"},
    {"inch of water in pascal", "Pressure", 1.0, "InchOfWater", 249.08891, "Pascal"},
    {"inch of water in hectopascal", "Pressure", 1.0, "InchOfWater", 2.4908891, "HectoPascal"},
    {"millimetre of water in pascal", "Pressure", 1.0, "MillimeterOfWater", 9.80665, "Pascal"},
    {"whole in percent", "Ratio", 1.0, "Fraction", 100.0, "Percentage"},
    {"half in percent", "Ratio", 0.5, "Fraction", 50.0, "Percentage"},
    {"percent as fraction", "Ratio", 1.0, "Percentage", 0.01, "Fraction"},
    {"percent in parts per million", "Ratio", 1.0, "Percentage", 10000.0, "PartsPerMillion"},
    {"percent in parts per billion", "Ratio", 1.0, "Percentage", 10000000.0, "PartsPerBillion"},
    {"whole in parts per million", "Ratio", 1.0, "Fraction", 1000000.0, "PartsPerMillion"},
    {"whole in parts per billion", "Ratio", 1.0, "Fraction", 1000000000.0, "PartsPerBillion"},
    {"gram per kilogram in grains per pound", "MixingRatio", 1.0, "GramPerKiloGram", 7.0, "GrainPerPound"},
    {"ten grams per kilogram in grains per pound", "MixingRatio", 10.0, "GramPerKiloGram", 70.0,
     "GrainPerPound"},
    {"kilogram per kilogram in grains per pound", "MixingRatio", 1.0, "KiloGramPerKiloGram", 7000.0,
     "GrainPerPound"},
    {"gram per kilogram in kilograms per kilogram", "MixingRatio", 1.0, "GramPerKiloGram", 0.001,
     "KiloGramPerKiloGram"},
    {"gram per cubic metre in milligrams", "AbsoluteHumidity", 1.0, "GramPerCubicMeter", 1000.0,
     "MilliGramPerCubicMeter"},
    {"ice point in kelvin", "AbsoluteTemperature", 0.0, "DegreeCelsius", 273.15, "Kelvin"},
    {"ice point in degrees Fahrenheit", "AbsoluteTemperature", 0.0, "DegreeCelsius", 32.0,
     "DegreeFahrenheit"},
    {"ice point from kelvin to degrees Fahrenheit", "AbsoluteTemperature", 273.15, "Kelvin", 32.0,
     "DegreeFahrenheit"},
    {"boiling point in kelvin", "AbsoluteTemperature", 100.0, "DegreeCelsius", 373.15, "Kelvin"},
    {"boiling point in degrees Fahrenheit", "AbsoluteTemperature", 100.0, "DegreeCelsius", 212.0,
     "DegreeFahrenheit"},
    {"boiling point from kelvin to degrees Fahrenheit", "AbsoluteTemperature", 373.15, "Kelvin", 212.0,
     "DegreeFahrenheit"},
    {"absolute zero in kelvin", "AbsoluteTemperature", -273.15, "DegreeCelsius", 0.0, "Kelvin"},
    {"scales meet", "AbsoluteTemperature", -40.0, "DegreeCelsius", -40.0, "DegreeFahrenheit"},
    {"reference temperature 20 in degrees Fahrenheit", "AbsoluteTemperature", 20.0, "DegreeCelsius", 68.0,
     "DegreeFahrenheit"},
    {"reference temperature 20 in kelvin", "AbsoluteTemperature", 20.0, "DegreeCelsius", 293.15, "Kelvin"},
    {"reference temperature 25 in degrees Fahrenheit", "AbsoluteTemperature", 25.0, "DegreeCelsius", 77.0,
     "DegreeFahrenheit"},
    {"reference temperature 25 in kelvin", "AbsoluteTemperature", 25.0, "DegreeCelsius", 298.15, "Kelvin"},
    {"ten degrees in degrees Fahrenheit", "AbsoluteTemperature", 10.0, "DegreeCelsius", 50.0,
     "DegreeFahrenheit"},
    {"ohm in milliohm", "Resistance", 1.0, "Ohm", 1000.0, "MilliOhm"},
    {"kiloohm in ohm", "Resistance", 1.0, "KiloOhm", 1000.0, "Ohm"},
    {"megaohm in kiloohm", "Resistance", 1.0, "MegaOhm", 1000.0, "KiloOhm"},
    {"megaohm in ohm", "Resistance", 1.0, "MegaOhm", 1000000.0, "Ohm"},
    {"megaohm in milliohm", "Resistance", 1.0, "MegaOhm", 1000000000.0, "MilliOhm"},
    {"volt in millivolt", "Voltage", 1.0, "Volt", 1000.0, "MilliVolt"},
    {"ten volt in millivolt", "Voltage", 10.0, "Volt", 10000.0, "MilliVolt"},
    {"volt in microvolt", "Voltage", 1.0, "Volt", 1000000.0, "MicroVolt"},
    {"millivolt in microvolt", "Voltage", 1.0, "MilliVolt", 1000.0, "MicroVolt"},
    {"kilovolt in volt", "Voltage", 1.0, "KiloVolt", 1000.0, "Volt"},
    {"second in milliseconds", "Time", 1.0, "Seconds", 1000.0, "MilliSeconds"},
    {"minute in seconds", "Time", 1.0, "Minutes", 60.0, "Seconds"},
    {"minute in milliseconds", "Time", 1.0, "Minutes", 60000.0, "MilliSeconds"},
    {"hour in minutes", "Time", 1.0, "Hours", 60.0, "Minutes"},
    {"hour in seconds", "Time", 1.0, "Hours", 3600.0, "Seconds"},
    {"day in hours", "Time", 1.0, "Days", 24.0, "Hours"},
    {"day in minutes", "Time", 1.0, "Days", 1440.0, "Minutes"},
    {"day in seconds", "Time", 1.0, "Days", 86400.0, "Seconds"},
    {"week in hours", "Time", 7.0, "Days", 168.0, "Hours"},
    {"kilojoule per kilogram in joules per gram", "SpecificEnthalpy", 1.0, "KiloJoulePerKiloGram", 1.0,
     "JoulePerGram"},
    {"British thermal unit per pound in kilojoules per kilogram", "SpecificEnthalpy", 1.0, "BtuPerPound",
     2.326, "KiloJoulePerKiloGram"},
    {"calorie in joules per gram", "SpecificEnthalpy", 1.0, "KiloCaloriePerKiloGram", 4.1868, "JoulePerGram"},
    {"calorie in British thermal units per pound", "SpecificEnthalpy", 1.0, "KiloCaloriePerKiloGram", 1.8,
     "BtuPerPound"},
    {"five calories in British thermal units per pound", "SpecificEnthalpy", 5.0, "KiloCaloriePerKiloGram",
     9.0, "BtuPerPound"},
};

/// For the inverse conversions see missedLandmarks.
const Landmark landmarksInOneDirection[] = {
    {"millimetre of mercury in bar", "Pressure", 1.0, "MillimeterOfMercury", 0.00133322387415, "Bar"},
    {"millimetre of mercury in pascal, back", "Pressure", 133.322387415, "Pascal", 1.0,
     "MillimeterOfMercury"},
    {"part per million in parts per billion", "Ratio", 1.0, "PartsPerMillion", 1000.0, "PartsPerBillion"},
    {"ice point in degrees Rankine", "AbsoluteTemperature", 0.0, "DegreeCelsius", 491.67, "DegreeRankine"},
    {"ice point from kelvin to degrees Rankine", "AbsoluteTemperature", 273.15, "Kelvin", 491.67,
     "DegreeRankine"},
    {"absolute zero from degrees Rankine", "AbsoluteTemperature", 0.0, "DegreeRankine", 0.0, "Kelvin"},
    {"absolute zero from degrees Rankine to degrees Celsius", "AbsoluteTemperature", 0.0, "DegreeRankine",
     -273.15, "DegreeCelsius"},
    {"body temperature in degrees Fahrenheit, back", "AbsoluteTemperature", 98.6, "DegreeFahrenheit", 37.0,
     "DegreeCelsius"},
    {"minus twenty in degrees Fahrenheit, back", "AbsoluteTemperature", -4.0, "DegreeFahrenheit", -20.0,
     "DegreeCelsius"},
    {"standard atmosphere in torr, back", "Pressure", 760.0, "Torr", 1.0, "StandardAtmosphere"},
    {"technical atmosphere in pascal", "Pressure", 1.0, "KiloGramForcePerSquareCentimeter", 98066.5,
     "Pascal"},
    {"inch of water in millimetres, back", "Pressure", 25.4, "MillimeterOfWater", 1.0, "InchOfWater"},
    {"seven bar in pascal", "Pressure", 7.0, "Bar", 700000.0, "Pascal"},
};

/// Landmarks that the correctly rounded coefficients miss: neither the coefficients nor, in many cases, the
/// landmarks themselves are doubles.
const Landmark missedLandmarks[] = {
    {"millimetre of mercury in pascal", "Pressure", 1.0, "MillimeterOfMercury", 133.322387415, "Pascal",
     133.322387415},
    {"part per million in parts per billion, back", "Ratio", 1000.0, "PartsPerBillion", 1.0,
     "PartsPerMillion", 1.0},
    {"thousand pounds per million cubic feet in grains per cubic foot", "AbsoluteHumidity", 1000.0,
     "PoundPerMillionCubicFoot", 7.0, "GrainPerCubicFoot", 7.0},
    {"ice point in degrees Rankine, back", "AbsoluteTemperature", 491.67, "DegreeRankine", 0.0,
     "DegreeCelsius", 491.67},
    {"absolute zero from degrees Celsius to degrees Fahrenheit", "AbsoluteTemperature", -273.15,
     "DegreeCelsius", -459.67, "DegreeFahrenheit", 491.67},
    {"absolute zero from degrees Celsius to degrees Fahrenheit, back", "AbsoluteTemperature", -459.67,
     "DegreeFahrenheit", -273.15, "DegreeCelsius", 491.67},
    {"body temperature in degrees Fahrenheit", "AbsoluteTemperature", 37.0, "DegreeCelsius", 98.6,
     "DegreeFahrenheit", 491.67},
    {"triple point in kelvin", "AbsoluteTemperature", 0.01, "DegreeCelsius", 273.16, "Kelvin", 273.15},
    {"triple point in kelvin, back", "AbsoluteTemperature", 273.16, "Kelvin", 0.01, "DegreeCelsius", 273.15},
    {"boiling point in degrees Rankine", "AbsoluteTemperature", 100.0, "DegreeCelsius", 671.67,
     "DegreeRankine", 671.67},
    {"minus forty in kelvin", "AbsoluteTemperature", -40.0, "DegreeCelsius", 233.15, "Kelvin", 273.15},
    {"minus forty in kelvin, back", "AbsoluteTemperature", 233.15, "Kelvin", -40.0, "DegreeCelsius", 273.15},
    {"minus twenty in degrees Fahrenheit", "AbsoluteTemperature", -20.0, "DegreeCelsius", -4.0,
     "DegreeFahrenheit", 491.67},
    {"standard atmosphere in torr", "Pressure", 1.0, "StandardAtmosphere", 760.0, "Torr", 760.0},
    {"technical atmosphere in pascal, back", "Pressure", 98066.5, "Pascal", 1.0,
     "KiloGramForcePerSquareCentimeter", 1.0},
    {"inch of mercury in millimetres", "Pressure", 1.0, "InchOfMercury", 25.4, "MillimeterOfMercury", 25.4},
    {"inch of water in millimetres", "Pressure", 1.0, "InchOfWater", 25.4, "MillimeterOfWater", 25.4},
    {"absolute zero in degrees Rankine", "AbsoluteTemperature", 0.0, "Kelvin", 0.0, "DegreeRankine", 491.67},
    {"part per million as fraction", "Ratio", 1.0, "PartsPerMillion", 1e-06, "Fraction", 1e-06},
    {"part per million as fraction, back", "Ratio", 1e-06, "Fraction", 1.0, "PartsPerMillion", 1.0},
    {"seven bar in pascal, back", "Pressure", 700000.0, "Pascal", 7.0, "Bar", 7.0},
};

template <std::size_t Count>
void addRows(const Landmark (&landmarks)[Count])
{
    QTest::addColumn<Landmark>("landmark");
    for (const Landmark& landmark : landmarks)
        row(landmark.name, landmark);
}

} // namespace

/// Well-known values, compared to the last bit.
class LandmarksTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void exactInBothDirections_data();
    void exactInBothDirections();
    void exactInOneDirection_data();
    void exactInOneDirection();
    void closeToTheLandmark_data();
    void closeToTheLandmark();
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

void LandmarksTest::exactInBothDirections_data()
{
    addRows(landmarksInBothDirections);
}

void LandmarksTest::exactInBothDirections()
{
    QFETCH(Landmark, landmark);
    QCOMPARE(exactText(convert(landmark)), exactText(QVariant(landmark.expected)));
    QCOMPARE(exactText(m_catalogue.convert(landmark.expected, landmark.unitType, landmark.to, landmark.from)),
             exactText(QVariant(landmark.value)));
}

void LandmarksTest::exactInOneDirection_data()
{
    addRows(landmarksInOneDirection);
}

void LandmarksTest::exactInOneDirection()
{
    QFETCH(Landmark, landmark);
    QCOMPARE(exactText(convert(landmark)), exactText(QVariant(landmark.expected)));
}

void LandmarksTest::closeToTheLandmark_data()
{
    addRows(missedLandmarks);
}

void LandmarksTest::closeToTheLandmark()
{
    QFETCH(Landmark, landmark);
    const double result = convert(landmark).toDouble();
    QVERIFY(result != landmark.expected);
    // Two coefficients and two results are rounded, each by at most half a unit in the last place.
    QVERIFY2(std::abs(result - landmark.expected) <=
                 2 * std::numeric_limits<double>::epsilon() * landmark.scale,
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

static const TestClass<LandmarksTest> testClass;

#include "LandmarksTest.moc"
