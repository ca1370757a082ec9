#include <QtTest/QTest>

#include "ExactText.h"
#include "LogCapture.h"
#include "Row.h"
#include "ShippedCatalogue.h"
#include "TestProgram.h"
#include "UnitManagerDefinitions.h"

namespace {

const QStringList& languages()
{
    static const QStringList list{QStringLiteral("en"), QStringLiteral("de"), QStringLiteral("fr")};
    return list;
}

QStringList sorted(QStringList list)
{
    list.sort();
    return list;
}

} // namespace

/// The shipped documents as seen by an application.
class CatalogueTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void loadsWithoutMessage();
    void unitTypeHasItsUnits_data();
    void unitTypeHasItsUnits();
    void listsNoOtherUnitType();
    void identifierNamesShippedUnit_data();
    void identifierNamesShippedUnit();
    void everyUnitHasALabelInEveryLanguage();
    void labels_data();
    void labels();
    void missingLanguageFallsBack();
    void standardConditionsAreShown_data();
    void standardConditionsAreShown();
    void valueWithoutUnitPassesSilently();

private:
    ShippedCatalogue m_catalogue;
};

void CatalogueTest::loadsWithoutMessage()
{
    LogCapture log;
    const ShippedCatalogue catalogue;
    QVERIFY(catalogue.isLoaded());
    QVERIFY(catalogue.manager().isValid());
    QCOMPARE(log.takeTexts(), QStringList());
}

void CatalogueTest::unitTypeHasItsUnits_data()
{
    QTest::addColumn<int>("units");
    QTest::addColumn<QString>("baseUnit");
    QTest::addColumn<QString>("defaultUnit");

    row("Pressure", 14, "Bar", "HectoPascal");
    row("Ratio", 4, "Percentage", "Percentage");
    row("MixingRatio", 3, "GramPerKiloGram", "GramPerKiloGram");
    row("RelativeHumidity", 1, "RelHumidity", "RelHumidity");
    row("AbsoluteHumidity", 4, "GramPerCubicMeter", "GramPerCubicMeter");
    row("AbsoluteTemperature", 4, "DegreeCelsius", "DegreeCelsius");
    row("Resistance", 4, "Ohm", "Ohm");
    row("Voltage", 4, "Volt", "Volt");
    row("Time", 5, "Seconds", "Seconds");
    row("SpecificEnthalpy", 4, "KiloJoulePerKiloGram", "KiloJoulePerKiloGram");
    row("NoUnit", 0, "NoUnit", "");
}

void CatalogueTest::unitTypeHasItsUnits()
{
    QFETCH(int, units);
    QFETCH(QString, baseUnit);
    QFETCH(QString, defaultUnit);
    const QString unitType = ShippedCatalogue::unitTypeName(QString::fromLatin1(QTest::currentDataTag()));
    LogCapture log;
    QCOMPARE(m_catalogue.manager().getListofUnits(unitType).size(), units);
    QCOMPARE(m_catalogue.manager().getBaseUnit(unitType), unitType + QLatin1Char('/') + baseUnit);
    QCOMPARE(m_catalogue.manager().getDefaultUnit(unitType), defaultUnit);
    QCOMPARE(log.takeTexts(), QStringList());
}

void CatalogueTest::listsNoOtherUnitType()
{
    QStringList expected{
        UnitManagerDefinitions::getUnitTypeUrlPressure(),
        UnitManagerDefinitions::getUnitTypeUrlRatio(),
        UnitManagerDefinitions::getUnitTypeUrlMixingRatio(),
        UnitManagerDefinitions::getUnitTypeUrlRelativeHumidity(),
        UnitManagerDefinitions::getUnitTypeUrlAbsoluteHumidity(),
        UnitManagerDefinitions::getUnitTypeUrlAbsoluteTemperature(),
        UnitManagerDefinitions::getUnitTypeUrlResistance(),
        UnitManagerDefinitions::getUnitTypeUrlVoltage(),
        UnitManagerDefinitions::getUnitTypeUrlTime(),
        UnitManagerDefinitions::getUnitTypeUrlSpecificEnthalpy(),
        UnitManagerDefinitions::getUnitTypeUrlNoUnit(),
    };
    QCOMPARE(sorted(m_catalogue.manager().getListofUnitTypes()), sorted(expected));
}

void CatalogueTest::identifierNamesShippedUnit_data()
{
    QTest::addColumn<QString>("identifier");
    row("bar", UnitManagerDefinitions::getUnitUrlPressureBar());
    row("hectopascal", UnitManagerDefinitions::getUnitUrlPressureHectoPascal());
    row("millibar", UnitManagerDefinitions::getUnitUrlPressureMilliBar());
    row("percentage", UnitManagerDefinitions::getUnitUrlRatioPercentage());
    row("parts per million", UnitManagerDefinitions::getUnitUrlRatioPartsPerMillion());
    row("gram per kilogram", UnitManagerDefinitions::getUnitUrlMixingRatioGramPerKiloGram());
    row("relative humidity", UnitManagerDefinitions::getUnitUrlRelativeHumidityRelHumidity());
    row("gram per cubic metre", UnitManagerDefinitions::getUnitUrlAbsoluteHumidityGramPerCubicMeter());
    row("seconds", UnitManagerDefinitions::getUnitUrlTimeSeconds());
    row("kilojoule per kilogram", UnitManagerDefinitions::getUnitUrlSpecificEnthalpyKiloJoulePerKiloGram());
}

void CatalogueTest::identifierNamesShippedUnit()
{
    QFETCH(QString, identifier);
    QString unitType;
    QString unit;
    QVERIFY(m_catalogue.manager().extractUnitTypeAndUnit(identifier, unitType, unit));
    QVERIFY(m_catalogue.manager().getListofUnits(unitType).contains(unit));
}

void CatalogueTest::everyUnitHasALabelInEveryLanguage()
{
    int units = 0;
    LogCapture log;
    for (const QString& unitType : m_catalogue.manager().getListofUnitTypes()) {
        for (const QString& unit : m_catalogue.manager().getListofUnits(unitType)) {
            for (const QString& language : languages())
                QVERIFY2(!m_catalogue.manager().getUnitText(unitType, language, unit).isEmpty(),
                         qPrintable(unit + language));
            ++units;
        }
    }
    QCOMPARE(units, 47);
    QCOMPARE(log.takeTexts(), QStringList());
}

void CatalogueTest::labels_data()
{
    QTest::addColumn<QString>("unitType");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("label");

    row("bar", "Pressure", "Bar", "en", "bar");
    row("hectopascal", "Pressure", "HectoPascal", "de", "hPa");
    row("default unit", "Pressure", "", "en", "hPa");
    row("water column", "Pressure", "InchOfWater", "en", u8"inH\u2082O");
    row("degree sign", "AbsoluteTemperature", "DegreeCelsius", "fr", u8"\u00b0C");
    row("kelvin without degree sign", "AbsoluteTemperature", "Kelvin", "en", "K");
    row("cubic metre", "AbsoluteHumidity", "GramPerCubicMeter", "en", u8"g/m\u00b3");
    row("micro sign", "Voltage", "MicroVolt", "de", u8"\u00b5V");
    row("Greek omega", "Resistance", "KiloOhm", "fr", u8"k\u03a9");
    row("relative humidity in English", "RelativeHumidity", "RelHumidity", "en", "%RH");
    row("relative humidity in German", "RelativeHumidity", "RelHumidity", "de", "% r.F.");
    row("relative humidity in French", "RelativeHumidity", "RelHumidity", "fr", "% HR");
    row("fraction in German", "Ratio", "Fraction", "de", "Anteil");
    row("day in French", "Time", "Days", "fr", "j");
    row("day in German", "Time", "Days", "de", "d");
}

void CatalogueTest::labels()
{
    QFETCH(QString, unitType);
    QFETCH(QString, unit);
    QFETCH(QString, language);
    QFETCH(QString, label);
    QCOMPARE(m_catalogue.manager().getUnitText(ShippedCatalogue::unitTypeName(unitType), language, unit),
             label);
}

void CatalogueTest::missingLanguageFallsBack()
{
    const QString& relativeHumidity = UnitManagerDefinitions::getUnitTypeUrlRelativeHumidity();
    const UnitManager& manager = m_catalogue.manager();
    QCOMPARE(manager.getUnitText(relativeHumidity, QStringLiteral("de_AT"), QString()),
             QStringLiteral("% r.F."));
    QCOMPARE(manager.getUnitText(relativeHumidity, QStringLiteral("ja"), QString()), QStringLiteral("%RH"));
}

void CatalogueTest::standardConditionsAreShown_data()
{
    QTest::addColumn<QString>("unitType");
    QTest::addColumn<double>("baseValue");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<double>("shown");

    row("bar", "Pressure", 1.01325, "Bar", 1.013);
    row("default unit", "Pressure", 1.01325, "", 1013.3);
    row("pascal", "Pressure", 1.01325, "Pascal", 101325.0);
    row("pound-force per square inch", "Pressure", 1.01325, "PoundForcePerSquareInch", 14.70);
    row("inch of mercury", "Pressure", 1.01325, "InchOfMercury", 29.92);
    row("torr", "Pressure", 1.01325, "Torr", 760.0);
    row("degree Celsius", "AbsoluteTemperature", 20.04, "DegreeCelsius", 20.0);
    row("degree Fahrenheit", "AbsoluteTemperature", 20.04, "DegreeFahrenheit", 68.1);
    row("parts per million", "Ratio", 0.04213, "PartsPerMillion", 421.3);
    row("grain per pound", "MixingRatio", 7.26, "GrainPerPound", 50.82);
}

void CatalogueTest::standardConditionsAreShown()
{
    QFETCH(QString, unitType);
    QFETCH(double, baseValue);
    QFETCH(QString, unit);
    QFETCH(double, shown);
    const QVariant value =
        m_catalogue.manager().fromBaseUnit(baseValue, ShippedCatalogue::unitTypeName(unitType), unit);
    QCOMPARE(exactText(value), exactText(QVariant(shown)));
}

void CatalogueTest::valueWithoutUnitPassesSilently()
{
    const QString& noUnit = UnitManagerDefinitions::getUnitTypeUrlNoUnit();
    const QString fixed = noUnit + QLatin1Char('/') + UnitManagerDefinitions::getUnitTypeNoUnit();
    const UnitManager& manager = m_catalogue.manager();
    const QVariant value(42);
    LogCapture log;
    for (const QString& unit : {QString(), UnitManagerDefinitions::getUnitTypeNoUnit()}) {
        QCOMPARE(manager.toBaseUnit(value, noUnit, unit), value);
        QCOMPARE(manager.fromBaseUnit(value, noUnit, unit), value);
        QCOMPARE(manager.getUnitText(noUnit, QStringLiteral("de"), unit), QString());
        QCOMPARE(manager.getUnitText(fixed, QStringLiteral("de"), QStringLiteral("NoUnit")), QString());
    }
    QCOMPARE(manager.fromBaseUnit(value, fixed, QString()), value);
    QCOMPARE(log.takeTexts(), QStringList());
}

static const TestClass<CatalogueTest> testClass;

#include "CatalogueTest.moc"
