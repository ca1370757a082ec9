#include <QtTest/QTest>

#include <cmath>
#include <limits>

#include "ExactText.h"
#include "Row.h"
#include "ShippedCatalogue.h"

namespace {

/// "Type/Unit", which keeps the rows readable.
QString typeOf(const QString& unit)
{
    return unit.section(QLatin1Char('/'), 0, 0);
}

QString nameOf(const QString& unit)
{
    return unit.section(QLatin1Char('/'), 1);
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
    static void addColumns();
    QVariant convert(double value, const QString& from, const QString& to) const;

    ShippedCatalogue m_catalogue;
};

void LandmarksTest::initTestCase()
{
    QVERIFY(m_catalogue.isLoaded());
}

void LandmarksTest::addColumns()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("from");
    QTest::addColumn<double>("expected");
    QTest::addColumn<QString>("to");
}

QVariant LandmarksTest::convert(double value, const QString& from, const QString& to) const
{
    return m_catalogue.convert(value, typeOf(from), nameOf(from), nameOf(to));
}

/// Conversions that are exact in both directions.
void LandmarksTest::exactInBothDirections_data()
{
    addColumns();
    row("bar in hectopascal", 1.0, "Pressure/Bar", 1000.0, "Pressure/HectoPascal");
    row("bar in millibar", 1.0, "Pressure/Bar", 1000.0, "Pressure/MilliBar");
    row("bar in pascal", 1.0, "Pressure/Bar", 100000.0, "Pressure/Pascal");
    row("bar in kilopascal", 1.0, "Pressure/Bar", 100.0, "Pressure/KiloPascal");
    row("bar in megapascal", 1.0, "Pressure/Bar", 0.1, "Pressure/MegaPascal");
    row("ten bar in megapascal", 10.0, "Pressure/Bar", 1.0, "Pressure/MegaPascal");
    row("ten bar in pascal", 10.0, "Pressure/Bar", 1000000.0, "Pressure/Pascal");
    row("megapascal in pascal", 1.0, "Pressure/MegaPascal", 1000000.0, "Pressure/Pascal");
    row("kilopascal in hectopascal", 1.0, "Pressure/KiloPascal", 10.0, "Pressure/HectoPascal");
    row("hectopascal in pascal", 1.0, "Pressure/HectoPascal", 100.0, "Pressure/Pascal");
    row("hectopascal in millibar", 1.0, "Pressure/HectoPascal", 1.0, "Pressure/MilliBar");
    row("standard pressure in hectopascal", 1013.25, "Pressure/HectoPascal", 1013.25, "Pressure/MilliBar");
    row("standard atmosphere in bar", 1.0, "Pressure/StandardAtmosphere", 1.01325, "Pressure/Bar");
    row("standard atmosphere in hectopascal", 1.0, "Pressure/StandardAtmosphere", 1013.25,
        "Pressure/HectoPascal");
    row("standard atmosphere in pascal", 1.0, "Pressure/StandardAtmosphere", 101325.0, "Pressure/Pascal");
    row("standard atmosphere in kilopascal", 1.0, "Pressure/StandardAtmosphere", 101.325,
        "Pressure/KiloPascal");
    row("standard atmosphere in megapascal", 1.0, "Pressure/StandardAtmosphere", 0.101325,
        "Pressure/MegaPascal");
    row("technical atmosphere in bar", 1.0, "Pressure/KiloGramForcePerSquareCentimeter", 0.980665,
        "Pressure/Bar");
    row("technical atmosphere in hectopascal", 1.0, "Pressure/KiloGramForcePerSquareCentimeter", 980.665,
        "Pressure/HectoPascal");
    row("technical atmosphere in water", 1.0, "Pressure/KiloGramForcePerSquareCentimeter", 10000.0,
        "Pressure/MillimeterOfWater");
    row("pound-force per square inch in bar", 1.0, "Pressure/PoundForcePerSquareInch", 0.06894757293168362,
        "Pressure/Bar");
    row("inch of mercury in hectopascal", 1.0, "Pressure/InchOfMercury", 33.86388640341,
        "Pressure/HectoPascal");
    row("inch of mercury in pascal", 1.0, "Pressure/InchOfMercury", 3386.388640341, "Pressure/Pascal");
    row("inch of water in pascal", 1.0, "Pressure/InchOfWater", 249.08891, "Pressure/Pascal");
    row("inch of water in hectopascal", 1.0, "Pressure/InchOfWater", 2.4908891, "Pressure/HectoPascal");
    row("millimetre of water in pascal", 1.0, "Pressure/MillimeterOfWater", 9.80665, "Pressure/Pascal");
    row("whole in percent", 1.0, "Ratio/Fraction", 100.0, "Ratio/Percentage");
    row("half in percent", 0.5, "Ratio/Fraction", 50.0, "Ratio/Percentage");
    row("percent as fraction", 1.0, "Ratio/Percentage", 0.01, "Ratio/Fraction");
    row("percent in parts per million", 1.0, "Ratio/Percentage", 10000.0, "Ratio/PartsPerMillion");
    row("percent in parts per billion", 1.0, "Ratio/Percentage", 10000000.0, "Ratio/PartsPerBillion");
    row("whole in parts per million", 1.0, "Ratio/Fraction", 1000000.0, "Ratio/PartsPerMillion");
    row("whole in parts per billion", 1.0, "Ratio/Fraction", 1000000000.0, "Ratio/PartsPerBillion");
    row("gram per kilogram in grains per pound", 1.0, "MixingRatio/GramPerKiloGram", 7.0,
        "MixingRatio/GrainPerPound");
    row("ten grams per kilogram in grains per pound", 10.0, "MixingRatio/GramPerKiloGram", 70.0,
        "MixingRatio/GrainPerPound");
    row("kilogram per kilogram in grains per pound", 1.0, "MixingRatio/KiloGramPerKiloGram", 7000.0,
        "MixingRatio/GrainPerPound");
    row("gram per kilogram in kilograms per kilogram", 1.0, "MixingRatio/GramPerKiloGram", 0.001,
        "MixingRatio/KiloGramPerKiloGram");
    row("gram per cubic metre in milligrams", 1.0, "AbsoluteHumidity/GramPerCubicMeter", 1000.0,
        "AbsoluteHumidity/MilliGramPerCubicMeter");
    row("ice point in kelvin", 0.0, "AbsoluteTemperature/DegreeCelsius", 273.15,
        "AbsoluteTemperature/Kelvin");
    row("ice point in degrees Fahrenheit", 0.0, "AbsoluteTemperature/DegreeCelsius", 32.0,
        "AbsoluteTemperature/DegreeFahrenheit");
    row("ice point from kelvin to degrees Fahrenheit", 273.15, "AbsoluteTemperature/Kelvin", 32.0,
        "AbsoluteTemperature/DegreeFahrenheit");
    row("boiling point in kelvin", 100.0, "AbsoluteTemperature/DegreeCelsius", 373.15,
        "AbsoluteTemperature/Kelvin");
    row("boiling point in degrees Fahrenheit", 100.0, "AbsoluteTemperature/DegreeCelsius", 212.0,
        "AbsoluteTemperature/DegreeFahrenheit");
    row("boiling point from kelvin to degrees Fahrenheit", 373.15, "AbsoluteTemperature/Kelvin", 212.0,
        "AbsoluteTemperature/DegreeFahrenheit");
    row("absolute zero in kelvin", -273.15, "AbsoluteTemperature/DegreeCelsius", 0.0,
        "AbsoluteTemperature/Kelvin");
    row("scales meet", -40.0, "AbsoluteTemperature/DegreeCelsius", -40.0,
        "AbsoluteTemperature/DegreeFahrenheit");
    row("reference temperature 20 in degrees Fahrenheit", 20.0, "AbsoluteTemperature/DegreeCelsius", 68.0,
        "AbsoluteTemperature/DegreeFahrenheit");
    row("reference temperature 20 in kelvin", 20.0, "AbsoluteTemperature/DegreeCelsius", 293.15,
        "AbsoluteTemperature/Kelvin");
    row("reference temperature 25 in degrees Fahrenheit", 25.0, "AbsoluteTemperature/DegreeCelsius", 77.0,
        "AbsoluteTemperature/DegreeFahrenheit");
    row("reference temperature 25 in kelvin", 25.0, "AbsoluteTemperature/DegreeCelsius", 298.15,
        "AbsoluteTemperature/Kelvin");
    row("ten degrees in degrees Fahrenheit", 10.0, "AbsoluteTemperature/DegreeCelsius", 50.0,
        "AbsoluteTemperature/DegreeFahrenheit");
    row("ohm in milliohm", 1.0, "Resistance/Ohm", 1000.0, "Resistance/MilliOhm");
    row("kiloohm in ohm", 1.0, "Resistance/KiloOhm", 1000.0, "Resistance/Ohm");
    row("megaohm in kiloohm", 1.0, "Resistance/MegaOhm", 1000.0, "Resistance/KiloOhm");
    row("megaohm in ohm", 1.0, "Resistance/MegaOhm", 1000000.0, "Resistance/Ohm");
    row("megaohm in milliohm", 1.0, "Resistance/MegaOhm", 1000000000.0, "Resistance/MilliOhm");
    row("volt in millivolt", 1.0, "Voltage/Volt", 1000.0, "Voltage/MilliVolt");
    row("ten volt in millivolt", 10.0, "Voltage/Volt", 10000.0, "Voltage/MilliVolt");
    row("volt in microvolt", 1.0, "Voltage/Volt", 1000000.0, "Voltage/MicroVolt");
    row("millivolt in microvolt", 1.0, "Voltage/MilliVolt", 1000.0, "Voltage/MicroVolt");
    row("kilovolt in volt", 1.0, "Voltage/KiloVolt", 1000.0, "Voltage/Volt");
    row("second in milliseconds", 1.0, "Time/Seconds", 1000.0, "Time/MilliSeconds");
    row("minute in seconds", 1.0, "Time/Minutes", 60.0, "Time/Seconds");
    row("minute in milliseconds", 1.0, "Time/Minutes", 60000.0, "Time/MilliSeconds");
    row("hour in minutes", 1.0, "Time/Hours", 60.0, "Time/Minutes");
    row("hour in seconds", 1.0, "Time/Hours", 3600.0, "Time/Seconds");
    row("day in hours", 1.0, "Time/Days", 24.0, "Time/Hours");
    row("day in minutes", 1.0, "Time/Days", 1440.0, "Time/Minutes");
    row("day in seconds", 1.0, "Time/Days", 86400.0, "Time/Seconds");
    row("week in hours", 7.0, "Time/Days", 168.0, "Time/Hours");
    row("kilojoule per kilogram in joules per gram", 1.0, "SpecificEnthalpy/KiloJoulePerKiloGram", 1.0,
        "SpecificEnthalpy/JoulePerGram");
    row("British thermal unit per pound in kilojoules per kilogram", 1.0, "SpecificEnthalpy/BtuPerPound",
        2.326, "SpecificEnthalpy/KiloJoulePerKiloGram");
    row("calorie in joules per gram", 1.0, "SpecificEnthalpy/KiloCaloriePerKiloGram", 4.1868,
        "SpecificEnthalpy/JoulePerGram");
    row("calorie in British thermal units per pound", 1.0, "SpecificEnthalpy/KiloCaloriePerKiloGram", 1.8,
        "SpecificEnthalpy/BtuPerPound");
    row("five calories in British thermal units per pound", 5.0, "SpecificEnthalpy/KiloCaloriePerKiloGram",
        9.0, "SpecificEnthalpy/BtuPerPound");
}

void LandmarksTest::exactInBothDirections()
{
    QFETCH(double, value);
    QFETCH(QString, from);
    QFETCH(double, expected);
    QFETCH(QString, to);
    QCOMPARE(exactText(convert(value, from, to)), exactText(QVariant(expected)));
    QCOMPARE(exactText(convert(expected, to, from)), exactText(QVariant(value)));
}

/// For the inverse conversions see besideTheLandmark_data().
void LandmarksTest::exactInOneDirection_data()
{
    addColumns();
    row("millimetre of mercury in bar", 1.0, "Pressure/MillimeterOfMercury", 0.00133322387415,
        "Pressure/Bar");
    row("millimetre of mercury in pascal, back", 133.322387415, "Pressure/Pascal", 1.0,
        "Pressure/MillimeterOfMercury");
    row("part per million in parts per billion", 1.0, "Ratio/PartsPerMillion", 1000.0,
        "Ratio/PartsPerBillion");
    row("ice point in degrees Rankine", 0.0, "AbsoluteTemperature/DegreeCelsius", 491.67,
        "AbsoluteTemperature/DegreeRankine");
    row("ice point from kelvin to degrees Rankine", 273.15, "AbsoluteTemperature/Kelvin", 491.67,
        "AbsoluteTemperature/DegreeRankine");
    row("absolute zero from degrees Rankine", 0.0, "AbsoluteTemperature/DegreeRankine", 0.0,
        "AbsoluteTemperature/Kelvin");
    row("absolute zero from degrees Rankine to degrees Celsius", 0.0, "AbsoluteTemperature/DegreeRankine",
        -273.15, "AbsoluteTemperature/DegreeCelsius");
    row("body temperature in degrees Fahrenheit, back", 98.6, "AbsoluteTemperature/DegreeFahrenheit", 37.0,
        "AbsoluteTemperature/DegreeCelsius");
    row("minus twenty in degrees Fahrenheit, back", -4.0, "AbsoluteTemperature/DegreeFahrenheit", -20.0,
        "AbsoluteTemperature/DegreeCelsius");
    row("standard atmosphere in torr, back", 760.0, "Pressure/Torr", 1.0, "Pressure/StandardAtmosphere");
    row("technical atmosphere in pascal", 1.0, "Pressure/KiloGramForcePerSquareCentimeter", 98066.5,
        "Pressure/Pascal");
    row("inch of water in millimetres, back", 25.4, "Pressure/MillimeterOfWater", 1.0,
        "Pressure/InchOfWater");
    row("seven bar in pascal", 7.0, "Pressure/Bar", 700000.0, "Pressure/Pascal");
}

void LandmarksTest::exactInOneDirection()
{
    QFETCH(double, value);
    QFETCH(QString, from);
    QFETCH(double, expected);
    QFETCH(QString, to);
    QCOMPARE(exactText(convert(value, from, to)), exactText(QVariant(expected)));
}

/// Landmarks that the correctly rounded coefficients miss: neither the coefficients nor, in many cases, the
/// landmarks themselves are doubles. The scale is the largest intermediate number.
void LandmarksTest::besideTheLandmark_data()
{
    addColumns();
    QTest::addColumn<double>("scale");
    row("millimetre of mercury in pascal", 1.0, "Pressure/MillimeterOfMercury", 133.322387415,
        "Pressure/Pascal", 133.322387415);
    row("part per million in parts per billion, back", 1000.0, "Ratio/PartsPerBillion", 1.0,
        "Ratio/PartsPerMillion", 1.0);
    row("thousand pounds per million cubic feet in grains per cubic foot", 1000.0,
        "AbsoluteHumidity/PoundPerMillionCubicFoot", 7.0, "AbsoluteHumidity/GrainPerCubicFoot", 7.0);
    row("ice point in degrees Rankine, back", 491.67, "AbsoluteTemperature/DegreeRankine", 0.0,
        "AbsoluteTemperature/DegreeCelsius", 491.67);
    row("absolute zero from degrees Celsius to degrees Fahrenheit", -273.15,
        "AbsoluteTemperature/DegreeCelsius", -459.67, "AbsoluteTemperature/DegreeFahrenheit", 491.67);
    row("absolute zero from degrees Celsius to degrees Fahrenheit, back", -459.67,
        "AbsoluteTemperature/DegreeFahrenheit", -273.15, "AbsoluteTemperature/DegreeCelsius", 491.67);
    row("body temperature in degrees Fahrenheit", 37.0, "AbsoluteTemperature/DegreeCelsius", 98.6,
        "AbsoluteTemperature/DegreeFahrenheit", 491.67);
    row("triple point in kelvin", 0.01, "AbsoluteTemperature/DegreeCelsius", 273.16,
        "AbsoluteTemperature/Kelvin", 273.15);
    row("triple point in kelvin, back", 273.16, "AbsoluteTemperature/Kelvin", 0.01,
        "AbsoluteTemperature/DegreeCelsius", 273.15);
    row("boiling point in degrees Rankine", 100.0, "AbsoluteTemperature/DegreeCelsius", 671.67,
        "AbsoluteTemperature/DegreeRankine", 671.67);
    row("minus forty in kelvin", -40.0, "AbsoluteTemperature/DegreeCelsius", 233.15,
        "AbsoluteTemperature/Kelvin", 273.15);
    row("minus forty in kelvin, back", 233.15, "AbsoluteTemperature/Kelvin", -40.0,
        "AbsoluteTemperature/DegreeCelsius", 273.15);
    row("minus twenty in degrees Fahrenheit", -20.0, "AbsoluteTemperature/DegreeCelsius", -4.0,
        "AbsoluteTemperature/DegreeFahrenheit", 491.67);
    row("standard atmosphere in torr", 1.0, "Pressure/StandardAtmosphere", 760.0, "Pressure/Torr", 760.0);
    row("technical atmosphere in pascal, back", 98066.5, "Pressure/Pascal", 1.0,
        "Pressure/KiloGramForcePerSquareCentimeter", 1.0);
    row("inch of mercury in millimetres", 1.0, "Pressure/InchOfMercury", 25.4, "Pressure/MillimeterOfMercury",
        25.4);
    row("inch of water in millimetres", 1.0, "Pressure/InchOfWater", 25.4, "Pressure/MillimeterOfWater",
        25.4);
    row("absolute zero in degrees Rankine", 0.0, "AbsoluteTemperature/Kelvin", 0.0,
        "AbsoluteTemperature/DegreeRankine", 491.67);
    row("part per million as fraction", 1.0, "Ratio/PartsPerMillion", 1e-06, "Ratio/Fraction", 1e-06);
    row("part per million as fraction, back", 1e-06, "Ratio/Fraction", 1.0, "Ratio/PartsPerMillion", 1.0);
    row("seven bar in pascal, back", 700000.0, "Pressure/Pascal", 7.0, "Pressure/Bar", 7.0);
}

void LandmarksTest::besideTheLandmark()
{
    QFETCH(double, value);
    QFETCH(QString, from);
    QFETCH(double, expected);
    QFETCH(QString, to);
    QFETCH(double, scale);
    const double result = convert(value, from, to).toDouble();
    QVERIFY(result != expected);
    // Two coefficients and two results are rounded, each by at most half a unit in the last place.
    QVERIFY2(std::abs(result - expected) <= 2 * std::numeric_limits<double>::epsilon() * scale,
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
