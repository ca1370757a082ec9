#include "UnitManager.h"

#include <QtTest/QTest>

#include <limits>

#include "ConfigurationAndProcessDataTools.h"
#include "DebugText.h"
#include "ExpectedMessages.h"
#include "LogCapture.h"
#include "Row.h"
#include "TestDocuments.h"
#include "TestProgram.h"

namespace {

const double marker = -999.0;

} // namespace

// A program's own function takes precedence over that of a library: this simulates a platform whose marker is
// an ordinary number.
bool ConfigurationAndProcessDataTools::isNoInputValueIndicatorSet(const QVariant& value)
{
    return value.userType() == QMetaType::Double && value.toDouble() == marker;
}

/// Conversions on a platform whose no-input marker is not a NaN.
class UnitManagerFiniteMarkerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void singleConversions_data();
    void singleConversions();
    void runs();

private:
    UnitManager m_manager;
};

namespace {

namespace T = TestUnitType;

const double notANumber = std::numeric_limits<double>::quiet_NaN();

} // namespace

void UnitManagerFiniteMarkerTest::initTestCase()
{
    QVERIFY(m_manager.initByJsonString(TestDocuments::units(), TestDocuments::defaultUnits()));
}

void UnitManagerFiniteMarkerTest::singleConversions_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("fromBase");
    QTest::addColumn<QString>("toBase");

    row("marker", QVariant(marker), "double -999", "double -999");
    row("the same number of another type", QVariant(-999), "double -999000", toDebugText(-999 * 0.001));
    row("another number", QVariant(2.0), "double 2000", toDebugText(2.0 * 0.001));
    row("NaN", QVariant(notANumber), "double nan", "double nan");
}

void UnitManagerFiniteMarkerTest::singleConversions()
{
    QFETCH(QVariant, value);
    LogCapture log;

    QTEST(toDebugText(m_manager.fromBaseUnitRaw(value, T::pressure, "HectoPascal")), "fromBase");
    QTEST(toDebugText(m_manager.toBaseUnitRaw(value, T::pressure, "HectoPascal")), "toBase");
    QTEST(toDebugText(m_manager.fromBaseUnit(value, T::pressure, "HectoPascal")), "fromBase");
    QCOMPARE(takeMessageTexts(log), QStringList());
}

void UnitManagerFiniteMarkerTest::runs()
{
    const double values[] = {marker, 2.0, notANumber};
    double results[3] = {};
    m_manager.fromBaseUnitArray(values, results, 3, T::pressure, "HectoPascal");
    QCOMPARE(toDebugText(QVariantList{results[0], results[1], results[2]}),
             (QStringList{"double -999", "double 2000", "double nan"}));
    m_manager.toBaseUnitArray(values, results, 3, T::pressure, "HectoPascal");
    QCOMPARE(toDebugText(QVariantList{results[0], results[1], results[2]}),
             (QStringList{"double -999", toDebugText(2.0 * 0.001), "double nan"}));
}

static const TestClass<UnitManagerFiniteMarkerTest> testClass;

#include "UnitManagerFiniteMarkerTest.moc"
