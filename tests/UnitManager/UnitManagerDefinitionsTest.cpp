#include "UnitManagerDefinitions.h"

#include <QtTest/QTest>

#include <type_traits>

#include "PropertyManagerConst.h"
#include "TestProgram.h"
#include "UnitManagerCore.h"

using Getter = const QString& (*)();

Q_DECLARE_METATYPE(Getter)

static_assert(std::is_same_v<decltype(UnitManagerDefinitions::getUiDecimalsAutoComma()), int>);
static_assert(std::has_virtual_destructor_v<UnitManagerDefinitions>);
static_assert(sizeof(UnitManagerDefinitions) == sizeof(void*), "no data members");

class UnitManagerDefinitionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesAreFixed_data();
    void namesAreFixed();
    void unitsAreFixedUnitsOfTheirType_data();
    void unitsAreFixedUnitsOfTheirType();
    void unitTypesAreNotFixedUnits_data();
    void unitTypesAreNotFixedUnits();
    void noUnitTypeIsPrefixAndKey();
    void automaticCommaIsMinusOne();
};

namespace {

using D = UnitManagerDefinitions;

struct Named
{
    const char* text;
    Getter getter;
};

const Named unitTypes[] = {
    {"UnitManager/UnitType/NoUnit", D::getUnitTypeUrlNoUnit},
    {"UnitManager/UnitType/Resistance", D::getUnitTypeUrlResistance},
    {"UnitManager/UnitType/AbsoluteTemperature", D::getUnitTypeUrlAbsoluteTemperature},
    {"UnitManager/UnitType/Pressure", D::getUnitTypeUrlPressure},
    {"UnitManager/UnitType/Ratio", D::getUnitTypeUrlRatio},
    {"UnitManager/UnitType/MixingRatio", D::getUnitTypeUrlMixingRatio},
    {"UnitManager/UnitType/RelativeHumidity", D::getUnitTypeUrlRelativeHumidity},
    {"UnitManager/UnitType/AbsoluteHumidity", D::getUnitTypeUrlAbsoluteHumidity},
    {"UnitManager/UnitType/Voltage", D::getUnitTypeUrlVoltage},
    {"UnitManager/UnitType/Time", D::getUnitTypeUrlTime},
    {"UnitManager/UnitType/SpecificEnthalpy", D::getUnitTypeUrlSpecificEnthalpy},
};

struct NamedUnit
{
    const char* text;
    Getter unit;
    Getter unitType;
};

const NamedUnit units[] = {
    {"UnitManager/UnitType/Pressure/Bar", D::getUnitUrlPressureBar, D::getUnitTypeUrlPressure},
    {"UnitManager/UnitType/Pressure/HectoPascal", D::getUnitUrlPressureHectoPascal,
     D::getUnitTypeUrlPressure},
    {"UnitManager/UnitType/Pressure/MilliBar", D::getUnitUrlPressureMilliBar, D::getUnitTypeUrlPressure},
    {"UnitManager/UnitType/Ratio/Percentage", D::getUnitUrlRatioPercentage, D::getUnitTypeUrlRatio},
    {"UnitManager/UnitType/Ratio/PartsPerMillion", D::getUnitUrlRatioPartsPerMillion, D::getUnitTypeUrlRatio},
    {"UnitManager/UnitType/MixingRatio/GramPerKiloGram", D::getUnitUrlMixingRatioGramPerKiloGram,
     D::getUnitTypeUrlMixingRatio},
    {"UnitManager/UnitType/RelativeHumidity/RelHumidity", D::getUnitUrlRelativeHumidityRelHumidity,
     D::getUnitTypeUrlRelativeHumidity},
    {"UnitManager/UnitType/AbsoluteHumidity/GramPerCubicMeter",
     D::getUnitUrlAbsoluteHumidityGramPerCubicMeter, D::getUnitTypeUrlAbsoluteHumidity},
    {"UnitManager/UnitType/Time/Seconds", D::getUnitUrlTimeSeconds, D::getUnitTypeUrlTime},
    {"UnitManager/UnitType/SpecificEnthalpy/KiloJoulePerKiloGram",
     D::getUnitUrlSpecificEnthalpyKiloJoulePerKiloGram, D::getUnitTypeUrlSpecificEnthalpy},
};

const Named keys[] = {
    {"UnitManager", D::getModuleName},
    {"Text", D::getUnitTypeText},
    {"NoUnit", D::getUnitTypeNoUnit},
    {"UnitLabel", D::getUnitLabelUrl},
};

} // namespace

void UnitManagerDefinitionsTest::namesAreFixed_data()
{
    QTest::addColumn<Getter>("getter");
    QTest::addColumn<QString>("text");

    for (const Named& key : keys)
        QTest::newRow(key.text) << key.getter << QString::fromLatin1(key.text);
    for (const Named& unitType : unitTypes)
        QTest::newRow(unitType.text) << unitType.getter << QString::fromLatin1(unitType.text);
    for (const NamedUnit& unit : units)
        QTest::newRow(unit.text) << unit.unit << QString::fromLatin1(unit.text);
}

void UnitManagerDefinitionsTest::namesAreFixed()
{
    QFETCH(Getter, getter);
    QFETCH(QString, text);

    const QString& first = getter();
    const QString& second = getter();

    QCOMPARE(first, text);
    QCOMPARE(&first, &second);
}

void UnitManagerDefinitionsTest::unitsAreFixedUnitsOfTheirType_data()
{
    QTest::addColumn<Getter>("unit");
    QTest::addColumn<Getter>("unitType");

    for (const NamedUnit& unit : units)
        QTest::newRow(unit.text) << unit.unit << unit.unitType;
}

void UnitManagerDefinitionsTest::unitsAreFixedUnitsOfTheirType()
{
    QFETCH(Getter, unit);
    QFETCH(Getter, unitType);
    const UnitManagerCore core;
    QString splitType;
    QString splitUnit;

    QVERIFY(core.isFixedUnitType(unit()));
    QVERIFY(core.extractUnitTypeAndUnit(unit(), splitType, splitUnit));
    QCOMPARE(splitType, unitType());
    QCOMPARE(unit(), unitType() + QLatin1Char('/') + splitUnit);
}

void UnitManagerDefinitionsTest::unitTypesAreNotFixedUnits_data()
{
    QTest::addColumn<Getter>("unitType");

    for (const Named& unitType : unitTypes)
        QTest::newRow(unitType.text) << unitType.getter;
}

void UnitManagerDefinitionsTest::unitTypesAreNotFixedUnits()
{
    QFETCH(Getter, unitType);

    QVERIFY(!UnitManagerCore().isFixedUnitType(unitType()));
    QVERIFY(unitType().startsWith(PropertyManagerConst::getUnitTypeNamePrefix()));
}

void UnitManagerDefinitionsTest::noUnitTypeIsPrefixAndKey()
{
    QCOMPARE(PropertyManagerConst::getUnitTypeNamePrefix(), QStringLiteral("UnitManager/UnitType/"));
    QCOMPARE(D::getUnitTypeUrlNoUnit(),
             PropertyManagerConst::getUnitTypeNamePrefix() + D::getUnitTypeNoUnit());
}

void UnitManagerDefinitionsTest::automaticCommaIsMinusOne()
{
    QCOMPARE(D::getUiDecimalsAutoComma(), -1);
}

static const TestClass<UnitManagerDefinitionsTest> testClass;

#include "UnitManagerDefinitionsTest.moc"
