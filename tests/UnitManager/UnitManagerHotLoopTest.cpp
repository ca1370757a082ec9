#include "UnitManager.h"

#include <QtTest/QtTest>

#include <cstring>
#include <limits>
#include <vector>

#include "Described.h"
#include "LogCapture.h"
#include "TestDocuments.h"

/// Conversions of many values at once against the single conversions.
class UnitManagerHotLoopTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void runIsLikeSingleConversions_data();
    void runIsLikeSingleConversions();
    void runInPlace();
    void emptyRun();
    void markerKeepsItsBits();
    void conversionIsLikeSingleConversions_data();
    void conversionIsLikeSingleConversions();
    void conversionOutlivesItsManager();

private:
    UnitManager m_manager;
};

namespace {

namespace T = TestUnitType;

using Expected::Conversion;

const double marker = std::numeric_limits<double>::quiet_NaN();

std::vector<double> samples()
{
    const double infinity = std::numeric_limits<double>::infinity();
    return {0.0, -0.0, 1.0, 1.01325, -273.15, marker, 1e-300, 5e-324, 1e300, infinity, -infinity, 1.0 / 3.0};
}

/// Numbers bit by bit, so that NaN and the signs of zero count.
std::vector<quint64> bits(const std::vector<double>& numbers)
{
    std::vector<quint64> result(numbers.size());
    std::memcpy(result.data(), numbers.data(), numbers.size() * sizeof(double));
    return result;
}

void addUnits()
{
    QTest::addColumn<QString>("unitType");
    QTest::addColumn<QString>("unit");

    QTest::newRow("unit") << T::pressure << "HectoPascal";
    QTest::newRow("default unit") << T::pressure << "";
    QTest::newRow("table unit") << T::ratio << "Counts";
    QTest::newRow("fixed unit") << T::pressure + "/HectoPascal"
                                << "";
    QTest::newRow("fixed unit beats the unit") << T::pressure + "/Bar"
                                               << "HectoPascal";
    QTest::newRow("NoUnit") << T::pressure << "NoUnit";
    QTest::newRow("unknown unit") << T::pressure << "Nope";
    QTest::newRow("no default unit") << T::ratio << "";
    QTest::newRow("unknown unit type") << T::unknown << "Bar";
    QTest::newRow("no unit type") << ""
                                  << "Bar";
    QTest::newRow("neither") << ""
                             << "";
}

/// What one single conversion logs.
QStringList messagesOf(const UnitManager& manager, Conversion conversion, const QString& unitType,
                       const QString& unit)
{
    LogCapture log;
    if (conversion == Conversion::FromBase)
        manager.fromBaseUnitRaw(1.0, unitType, unit);
    else
        manager.toBaseUnitRaw(1.0, unitType, unit);
    return describedMessages(log);
}

/// The single conversions of all samples, as the run must give them.
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

void UnitManagerHotLoopTest::initTestCase()
{
    QVERIFY(m_manager.initByJsonString(TestDocuments::units(), TestDocuments::defaultUnits()));
}

void UnitManagerHotLoopTest::runIsLikeSingleConversions_data()
{
    addUnits();
}

void UnitManagerHotLoopTest::runIsLikeSingleConversions()
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

    m_manager.fromBaseUnitRaw(values.data(), results.data(), values.size(), unitType, unit);
    QCOMPARE(describedMessages(log), fromBaseMessages);
    QCOMPARE(bits(results), bits(fromBase));

    m_manager.toBaseUnitRaw(values.data(), results.data(), values.size(), unitType, unit);
    QCOMPARE(describedMessages(log), toBaseMessages);
    QCOMPARE(bits(results), bits(toBase));
    QCOMPARE(bits(values), bits(samples()));
}

void UnitManagerHotLoopTest::runInPlace()
{
    const QString unit = QStringLiteral("HectoPascal");
    std::vector<double> values = samples();
    m_manager.fromBaseUnitRaw(values.data(), values.data(), values.size(), T::pressure, unit);
    QCOMPARE(bits(values), bits(singly(m_manager, Conversion::FromBase, T::pressure, unit)));
    values = samples();
    m_manager.toBaseUnitRaw(values.data(), values.data(), values.size(), T::pressure, unit);
    QCOMPARE(bits(values), bits(singly(m_manager, Conversion::ToBase, T::pressure, unit)));
}

void UnitManagerHotLoopTest::emptyRun()
{
    LogCapture log;
    m_manager.fromBaseUnitRaw(nullptr, nullptr, 0, T::pressure, QStringLiteral("HectoPascal"));
    m_manager.toBaseUnitRaw(nullptr, nullptr, 0, T::pressure, QStringLiteral("HectoPascal"));
    QCOMPARE(describedMessages(log), QStringList());
}

void UnitManagerHotLoopTest::markerKeepsItsBits()
{
    const quint64 withPayload = 0x7ff8000000000abcU;
    double value = 0.0;
    std::memcpy(&value, &withPayload, sizeof(value));
    double result = 0.0;
    m_manager.fromBaseUnitRaw(&value, &result, 1, T::pressure, QStringLiteral("HectoPascal"));
    QCOMPARE(bits({result}), std::vector<quint64>{withPayload});
    m_manager.toBaseUnitRaw(&value, &result, 1, T::pressure, QStringLiteral("HectoPascal"));
    QCOMPARE(bits({result}), std::vector<quint64>{withPayload});
}

void UnitManagerHotLoopTest::conversionIsLikeSingleConversions_data()
{
    addUnits();
}

void UnitManagerHotLoopTest::conversionIsLikeSingleConversions()
{
    QFETCH(QString, unitType);
    QFETCH(QString, unit);
    const QStringList messages = messagesOf(m_manager, Conversion::FromBase, unitType, unit);
    LogCapture log;
    const ValueConversionWrapper conversion = m_manager.getConversion(unitType, unit);
    QCOMPARE(describedMessages(log), messages);

    std::vector<double> fromBase;
    std::vector<double> toBase;
    for (const double value : samples()) {
        const bool isMarker = value != value;
        fromBase.push_back(isMarker ? value : conversion.convertValue(value));
        toBase.push_back(isMarker ? value : conversion.invertValue(value));
    }
    QCOMPARE(bits(fromBase), bits(singly(m_manager, Conversion::FromBase, unitType, unit)));
    QCOMPARE(bits(toBase), bits(singly(m_manager, Conversion::ToBase, unitType, unit)));
}

void UnitManagerHotLoopTest::conversionOutlivesItsManager()
{
    ValueConversionWrapper conversion;
    {
        UnitManager manager;
        QVERIFY(manager.initByJsonString(TestDocuments::units(), TestDocuments::defaultUnits()));
        conversion = manager.getConversion(T::pressure, QStringLiteral("HectoPascal"));
        QVERIFY(manager.initByJsonString(TestDocuments::voltage(), QString()));
    }
    QVERIFY(conversion.isValid());
    QCOMPARE(conversion.convertValue(2.0), 2000.0);
}

QTEST_GUILESS_MAIN(UnitManagerHotLoopTest)

#include "UnitManagerHotLoopTest.moc"
