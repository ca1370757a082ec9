#include "UnitManager.h"

#include <QtTest/QTest>

#include <algorithm>
#include <iterator>
#include <limits>
#include <type_traits>
#include <vector>

#include "DoubleBits.h"
#include "ExpectedMessages.h"
#include "LogCapture.h"
#include "Row.h"
#include "TestDocuments.h"
#include "TestProgram.h"

// Not overloaded, so that their addresses can be taken without a cast.
static_assert(std::is_member_function_pointer_v<decltype(&UnitManager::fromBaseUnitRaw)>);
static_assert(std::is_member_function_pointer_v<decltype(&UnitManager::toBaseUnitRaw)>);
static_assert(std::is_member_function_pointer_v<decltype(&UnitManager::fromBaseUnit)>);
static_assert(std::is_member_function_pointer_v<decltype(&UnitManager::toBaseUnit)>);

/// Compares conversions of arrays of numbers with single conversions.
class UnitManagerNumberArrayTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void arrayIsLikeSingleConversions_data();
    void arrayIsLikeSingleConversions();
    void arrayIsConvertedInPlace();
    void emptyArray();
    void markerKeepsItsBits();
    void conversionIsLikeSingleConversions_data();
    void conversionIsLikeSingleConversions();
    void conversionOutlivesItsManager();
    void failureLeavesNoConversion();
    void vectorIsLikeSingleConversions_data();
    void vectorIsLikeSingleConversions();
    void sharedVectorKeepsItsValues();

private:
    UnitManager m_manager;
};

namespace {

namespace T = TestUnitType;

using Expected::Conversion;

std::vector<double> samples()
{
    const double infinity = std::numeric_limits<double>::infinity();
    return {0.0,    -0.0,   1.0,   1.01325,  -273.15,   TestValue::marker,
            1e-300, 5e-324, 1e300, infinity, -infinity, 1.0 / 3.0};
}

/// The bits of the numbers, so that NaN and the signs of zero are compared.
std::vector<quint64> bits(const std::vector<double>& numbers)
{
    std::vector<quint64> result;
    std::transform(numbers.begin(), numbers.end(), std::back_inserter(result), bitsOf);
    return result;
}

void addUnits()
{
    QTest::addColumn<QString>("unitType");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<bool>("isKnown");

    row("unit", T::pressure, "HectoPascal", true);
    row("default unit", T::pressure, "", true);
    row("table unit", T::ratio, "Counts", true);
    row("fixed unit", T::pressure + "/HectoPascal", "", true);
    row("fixed unit beats the unit", T::pressure + "/Bar", "HectoPascal", true);
    row("NoUnit", T::pressure, "NoUnit", true);
    row("unknown unit", T::pressure, "Nope", false);
    row("no default unit", T::ratio, "", true);
    row("unknown unit type", T::unknown, "Bar", false);
    row("no unit type", "", "Bar", false);
    row("neither", "", "", true);
}

/// The messages of one single conversion.
QStringList messagesOf(const UnitManager& manager, Conversion conversion, const QString& unitType,
                       const QString& unit)
{
    LogCapture log;
    if (conversion == Conversion::FromBase)
        manager.fromBaseUnitRaw(1.0, unitType, unit);
    else
        manager.toBaseUnitRaw(1.0, unitType, unit);
    return takeMessageTexts(log);
}

/// All samples converted one by one: the expected result of the array conversion.
std::vector<double> singly(const UnitManager& manager, Conversion conversion, const QString& unitType,
                           const QString& unit)
{
    const LogCapture silence;
    std::vector<double> results;
    for (const double value : samples()) {
        const QVariant converted = conversion == Conversion::FromBase
                                       ? manager.fromBaseUnitRaw(value, unitType, unit)
                                       : manager.toBaseUnitRaw(value, unitType, unit);
        results.push_back(converted.toDouble());
    }
    return results;
}

} // namespace

void UnitManagerNumberArrayTest::initTestCase()
{
    QVERIFY(m_manager.initByJsonString(TestDocuments::units(), TestDocuments::defaultUnits()));
}

void UnitManagerNumberArrayTest::arrayIsLikeSingleConversions_data()
{
    addUnits();
}

void UnitManagerNumberArrayTest::arrayIsLikeSingleConversions()
{
    QFETCH(QString, unitType);
    QFETCH(QString, unit);
    const std::vector<double> values = samples();
    std::vector<double> results(values.size(), 77.0);

    const std::vector<double> fromBase = singly(m_manager, Conversion::FromBase, unitType, unit);
    const std::vector<double> toBase = singly(m_manager, Conversion::ToBase, unitType, unit);
    const QStringList fromBaseMessages = messagesOf(m_manager, Conversion::FromBase, unitType, unit);
    const QStringList toBaseMessages = messagesOf(m_manager, Conversion::ToBase, unitType, unit);
    LogCapture log;

    QFETCH(bool, isKnown);
    QCOMPARE(m_manager.fromBaseUnitArray(values.data(), results.data(), values.size(), unitType, unit),
             isKnown);
    QCOMPARE(takeMessageTexts(log), fromBaseMessages);
    QCOMPARE(bits(results), bits(fromBase));

    QCOMPARE(m_manager.toBaseUnitArray(values.data(), results.data(), values.size(), unitType, unit),
             isKnown);
    QCOMPARE(takeMessageTexts(log), toBaseMessages);
    QCOMPARE(bits(results), bits(toBase));
    QCOMPARE(bits(values), bits(samples()));
}

void UnitManagerNumberArrayTest::arrayIsConvertedInPlace()
{
    const QString unit = QStringLiteral("HectoPascal");
    std::vector<double> values = samples();
    m_manager.fromBaseUnitArray(values.data(), values.data(), values.size(), T::pressure, unit);
    QCOMPARE(bits(values), bits(singly(m_manager, Conversion::FromBase, T::pressure, unit)));
    values = samples();
    m_manager.toBaseUnitArray(values.data(), values.data(), values.size(), T::pressure, unit);
    QCOMPARE(bits(values), bits(singly(m_manager, Conversion::ToBase, T::pressure, unit)));
}

void UnitManagerNumberArrayTest::emptyArray()
{
    LogCapture log;
    m_manager.fromBaseUnitArray(nullptr, nullptr, 0, T::pressure, QStringLiteral("HectoPascal"));
    m_manager.toBaseUnitArray(nullptr, nullptr, 0, T::pressure, QStringLiteral("HectoPascal"));
    QCOMPARE(takeMessageTexts(log), QStringList());
}

void UnitManagerNumberArrayTest::markerKeepsItsBits()
{
    const quint64 nanWithPayload = 0x7ff8000000000abcU;
    const double value = doubleFromBits(nanWithPayload);
    double result = 0.0;
    m_manager.fromBaseUnitArray(&value, &result, 1, T::pressure, QStringLiteral("HectoPascal"));
    QCOMPARE(bits({result}), std::vector<quint64>{nanWithPayload});
    m_manager.toBaseUnitArray(&value, &result, 1, T::pressure, QStringLiteral("HectoPascal"));
    QCOMPARE(bits({result}), std::vector<quint64>{nanWithPayload});
}

void UnitManagerNumberArrayTest::conversionIsLikeSingleConversions_data()
{
    addUnits();
}

void UnitManagerNumberArrayTest::conversionIsLikeSingleConversions()
{
    QFETCH(QString, unitType);
    QFETCH(QString, unit);
    const QStringList messages = messagesOf(m_manager, Conversion::FromBase, unitType, unit);
    LogCapture log;
    ValueConversionWrapper conversion;
    QFETCH(bool, isKnown);
    QCOMPARE(m_manager.getConversion(unitType, unit, conversion), isKnown);
    QCOMPARE(takeMessageTexts(log), messages);

    std::vector<double> fromBase;
    std::vector<double> toBase;
    for (const double value : samples()) {
        const bool isMarker = ConfigurationAndProcessDataTools::isNoInputValueIndicatorSet(value);
        fromBase.push_back(isMarker ? value : conversion.convertValue(value));
        toBase.push_back(isMarker ? value : conversion.invertValue(value));
    }
    QCOMPARE(bits(fromBase), bits(singly(m_manager, Conversion::FromBase, unitType, unit)));
    QCOMPARE(bits(toBase), bits(singly(m_manager, Conversion::ToBase, unitType, unit)));
}

void UnitManagerNumberArrayTest::conversionOutlivesItsManager()
{
    ValueConversionWrapper conversion;
    {
        UnitManager manager;
        QVERIFY(manager.initByJsonString(TestDocuments::units(), TestDocuments::defaultUnits()));
        QVERIFY(manager.getConversion(T::pressure, QStringLiteral("HectoPascal"), conversion));
        QVERIFY(manager.initByJsonString(TestDocuments::voltage(), QString()));
    }
    QVERIFY(conversion.isValid());
    QCOMPARE(conversion.convertValue(2.0), 2000.0);
}

void UnitManagerNumberArrayTest::failureLeavesNoConversion()
{
    const LogCapture silence;
    ValueConversionWrapper conversion;
    QVERIFY(m_manager.getConversion(T::pressure, QStringLiteral("HectoPascal"), conversion));
    QVERIFY(conversion.isValid());
    QVERIFY(!m_manager.getConversion(T::pressure, QStringLiteral("Nope"), conversion));
    QVERIFY(!conversion.isValid());
}

void UnitManagerNumberArrayTest::vectorIsLikeSingleConversions_data()
{
    addUnits();
}

void UnitManagerNumberArrayTest::vectorIsLikeSingleConversions()
{
    QFETCH(QString, unitType);
    QFETCH(QString, unit);
    QFETCH(bool, isKnown);
    const std::vector<double> numbers = samples();
    const QVector<double> values(numbers.begin(), numbers.end());
    const QStringList messages = messagesOf(m_manager, Conversion::FromBase, unitType, unit);
    const std::vector<double> fromBase = singly(m_manager, Conversion::FromBase, unitType, unit);
    const std::vector<double> toBase = singly(m_manager, Conversion::ToBase, unitType, unit);
    LogCapture log;

    QVector<double> converted = values;
    QCOMPARE(m_manager.fromBaseUnitArray(converted, unitType, unit), isKnown);
    QCOMPARE(takeMessageTexts(log), messages);
    QCOMPARE(bits({converted.begin(), converted.end()}), bits(fromBase));

    converted = values;
    QCOMPARE(m_manager.toBaseUnitArray(converted, unitType, unit), isKnown);
    QCOMPARE(bits({converted.begin(), converted.end()}), bits(toBase));
}

void UnitManagerNumberArrayTest::sharedVectorKeepsItsValues()
{
    const QVector<double> values = {1.0, 2.0};
    QVector<double> converted = values;
    QVERIFY(m_manager.fromBaseUnitArray(converted, T::pressure, QStringLiteral("HectoPascal")));
    QCOMPARE(converted, (QVector<double>{1000.0, 2000.0}));
    QCOMPARE(values, (QVector<double>{1.0, 2.0}));

    // Nothing to convert: the data remain shared.
    QVector<double> same = values;
    QVERIFY(m_manager.fromBaseUnitArray(same, T::pressure + QStringLiteral("/Bar"), QString()));
    QCOMPARE(static_cast<const void*>(same.constData()), static_cast<const void*>(values.constData()));
}

static const TestClass<UnitManagerNumberArrayTest> testClass;

#include "UnitManagerNumberArrayTest.moc"
