#include "LoadedUnits.h"

#include <QtCore/QLocale>
#include <QtTest/QTest>

#include <memory>

#include "LogCapture.h"
#include "Row.h"
#include "ShippedService.h"
#include "TestProgram.h"

/// The functions of the QML module with the shipped documents.
class UnitsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void init();

    void formatsAndConverts_data();
    void formatsAndConverts();
    void readsTypedNumbers_data();
    void readsTypedNumbers();
    void refusesTypedTexts_data();
    void refusesTypedTexts();
    void roundTripsWithoutLoss();
    void logsUnknownUnits();
    void usesLanguageOfLocale();

private:
    std::unique_ptr<ShippedService> m_service;
    std::unique_ptr<LoadedUnits> m_units;
};

void UnitsTest::initTestCase()
{
    m_service = std::make_unique<ShippedService>();
    QVERIFY(m_service->startBus());
    QVERIFY(m_service->start());
    m_units = std::make_unique<LoadedUnits>();
    QVERIFY(m_units->waitFor("state", "ready"));
}

void UnitsTest::cleanupTestCase()
{
    m_units.reset();
    m_service.reset();
}

void UnitsTest::init()
{
    QLocale::setDefault(QLocale("en_US"));
    m_units->evaluate("language = 'en'; groupSeparators = false");
}

void UnitsTest::formatsAndConverts_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("expression");
    QTest::addColumn<QVariant>("expected");

    const auto text = [](const char* name, const char* locale, const char* expression, const char* expected) {
        row(name, QString(locale), QString(expression), QVariant(QString(expected)));
    };
    text("default unit", "en_US", "text(1.01325, pressure)", "1013.3 hPa");
    text("other unit", "en_US", "text(1.01325, pressure, 'Bar')", "1.013 bar");
    text("fixed unit: not converted", "en_US", "text(6.5, fixedBar)", "6.500 bar");
    text("decimal comma", "de_DE", "text(1.01325, pressure)", "1013,3 hPa");
    text("half is rounded away from zero", "en_US", "text(-0.00025, pressure, 'HectoPascal')", "-0.3 hPa");
    text("no negative zero", "en_US", "text(-0.04, temperature)", "0.0 °C");
    text("digits of a large number", "en_US", "text(123456789.01, pressure, 'Pascal')", "12345678901000 Pa");
    text("no group separators", "de_DE", "text(101.325, pressure, 'Pascal')", "10132500 Pa");
    text("with group separators", "en_US", "groupSeparators = true, text(101.325, pressure, 'Pascal')",
         "10,132,500 Pa");
    text("with German group separators", "de_DE",
         "groupSeparators = true, text(101.325, pressure, 'HectoPascal')", "101.325,0 hPa");
    text("no-input marker", "en_US", "text(NaN, pressure)", "– hPa");
    text("infinite", "en_US", "text(Infinity, pressure)", "– hPa");
    text("undefined", "en_US", "text(undefined, pressure)", "– hPa");
    text("null", "en_US", "text(null, pressure)", "– hPa");
    text("type without unit", "en_US", "text(12.5, noUnit)", "12.5");
    text("number without label", "de_DE", "number(1.01325, pressure)", "1013,3");

    text("label of the default unit", "en_US", "label(humidity)", "%RH");
    text("label in the language", "en_US", "language = 'de', label(humidity)", "% r.F.");
    text("label in a language of a country", "en_US", "language = 'fr_CA', label(humidity)", "% HR");
    text("label in a missing language", "en_US", "language = 'xx', label(humidity)", "%RH");
    text("label of another unit", "en_US", "label(pressure, 'MillimeterOfWater')", "mmH₂O");
    text("label of a fixed unit", "en_US", "label(fixedBar)", "bar");
    text("default unit's name", "en_US", "defaultUnit(pressure)", "HectoPascal");

    text("units in display order", "en_US", "JSON.stringify(units(temperature))",
         R"([{"label":"°C","name":"DegreeCelsius"},{"label":"°F","name":"DegreeFahrenheit"},)"
         R"({"label":"K","name":"Kelvin"},{"label":"°R","name":"DegreeRankine"}])");
    text("units by position, not by name", "en_US", "units(pressure).map(unit => unit.label).join(' ')",
         "bar hPa mbar Pa kPa MPa psi kgf/cm² atm Torr mmHg inHg mmH₂O inH₂O");
    text("units of an unknown type", "en_US", "JSON.stringify(units(unknown))", "[]");

    const auto number = [](const char* name, const char* expression, double expected) {
        row(name, QString("en_US"), QString(expression), QVariant(expected));
    };
    number("from the base unit", "fromBase(-40.25, temperature, 'DegreeFahrenheit')", -40.45);
    number("from the base unit to the default unit", "fromBase(1.013254, pressure)", 1013.254);
    number("between two units", "convert(75, temperature, 'DegreeFahrenheit', 'DegreeRankine')", 534.67);
    number("from the default unit", "convert(25, pressure, '', 'MilliBar')", 25.0);
}

void UnitsTest::formatsAndConverts()
{
    QFETCH(QString, locale);
    QFETCH(QString, expression);
    QFETCH(QVariant, expected);
    QLocale::setDefault(QLocale(locale));
    const LogCapture log;
    QCOMPARE(m_units->evaluate(expression), expected);
}

void UnitsTest::readsTypedNumbers_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<double>("expected");

    row("integer", "en_US", "1500", 1.5);
    row("decimal point", "en_US", "1013.25", 1.01325);
    row("decimal comma", "de_DE", "1013,25", 1.01325);
    row("blanks around", "en_US", "  1500 ", 1.5);
    row("negative", "en_US", "-250", -0.25);
    row("exponent", "en_US", "1.5e3", 1.5);
    row("groups and decimals", "en_US", "1,013.25", 1.01325);
    row("German groups and decimals", "de_DE", "1.013,25", 1.01325);
    row("two groups", "de_DE", "1.500.000", 1500.0);
    row("group separator that is not a decimal separator", "de_CH", "1’500", 1.5);
    row("French groups", "fr_FR", "1\u202f013,25", 1.01325);
}

void UnitsTest::readsTypedNumbers()
{
    QFETCH(QString, locale);
    QFETCH(QString, typed);
    QFETCH(double, expected);
    QLocale::setDefault(QLocale(locale));
    const QVariantMap result = m_units->evaluate("toBase('" + typed + "', pressure, 'HectoPascal')").toMap();
    QCOMPARE(result.value("error"), QVariant(QString()));
    QCOMPARE(result.value("value"), QVariant(expected));
}

void UnitsTest::refusesTypedTexts_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("error");

    row("empty", "en_US", "", "Enter a number.");
    row("blank", "en_US", "  ", "Enter a number.");
    row("word", "en_US", "many", "\"many\" is not a number.");
    row("number and label", "en_US", "5 hPa", "\"5 hPa\" is not a number.");
    row("nan", "en_US", "nan", "\"nan\" is not a number.");
    row("infinity", "en_US", "inf", "The number is too large.");
    row("too large", "en_US", "1e999", "The number is too large.");
    row("two decimal points", "en_US", "1.2.3", "\"1.2.3\" is not a number.");
    row("comma for a point", "en_US", "1013,2", "The decimal separator is \".\": write 1013.2.");
    row("point for a comma", "de_DE", "1013.2", "The decimal separator is \",\": write 1013,2.");
    row("point for a French comma", "fr_FR", "1013.25", "The decimal separator is \",\": write 1013,25.");
    row("group or decimal comma", "en_US", "1,500", "\"1,500\" is ambiguous: write 1500 or 1.500.");
    row("group or decimal point", "de_DE", "-1.500", "\"-1.500\" is ambiguous: write -1500 or -1,500.");
}

void UnitsTest::refusesTypedTexts()
{
    QFETCH(QString, locale);
    QFETCH(QString, typed);
    QFETCH(QString, error);
    QLocale::setDefault(QLocale(locale));
    const QVariantMap result = m_units->evaluate("toBase('" + typed + "', pressure, 'HectoPascal')").toMap();
    QCOMPARE(result.value("error"), QVariant(error));
    QVERIFY(!result.value("value").isValid());
}

void UnitsTest::roundTripsWithoutLoss()
{
    // The decimal places of the unit would round the value in bar to one place.
    QCOMPARE(m_units->evaluate("toBase('1013.3', pressure).value"), QVariant(1.0133));
}

void UnitsTest::logsUnknownUnits()
{
    LogCapture log;
    QCOMPARE(m_units->evaluate("text(1, pressure, 'Unknown')"), QVariant("–"));
    QVERIFY(!log.takeTexts().isEmpty());
    QCOMPARE(m_units->evaluate("isNaN(fromBase(1, pressure, 'Unknown'))"), QVariant(true));
    QVERIFY(!log.takeTexts().isEmpty());
    QCOMPARE(m_units->evaluate("isNaN(convert(1, pressure, 'Unknown', 'Bar'))"), QVariant(true));
    QVERIFY(!log.takeTexts().isEmpty());
    QCOMPARE(m_units->evaluate("toBase('1', unknown, 'Unknown').error"),
             QVariant("The number cannot be converted."));
    QVERIFY(!log.takeTexts().isEmpty());
}

void UnitsTest::usesLanguageOfLocale()
{
    QLocale::setDefault(QLocale("de_AT"));
    LoadedUnits units;
    QCOMPARE(units.evaluate("language"), QVariant("de_AT"));
    QVERIFY(units.waitFor("ready", true));
    QCOMPARE(units.evaluate("label(humidity)"), QVariant("% r.F."));
}

const TestClass<UnitsTest> testClass;
#include "UnitsTest.moc"
