#include "UnitManager.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtTest/QTest>

#include <cmath>
#include <limits>
#include <random>

#include "Array2dDataTypeWrapper.h"
#include "DebugText.h"
#include "ExpectedMessages.h"
#include "LogCapture.h"
#include "RecordingValueNode.h"
#include "TestProgram.h"
#include "UnitTypes.h"

/// Properties that hold for every number, tested with many random numbers.
class UnitManagerRoundTripTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void conversionsEvaluateTheirPolynomials_data();
    void conversionsEvaluateTheirPolynomials();
    void linearUnitsRoundTrip_data();
    void linearUnitsRoundTrip();
    void roundedFormsAreTheRoundedRawForms_data();
    void roundedFormsAreTheRoundedRawForms();
    void nodesAndArraysHoldTheRawForms_data();
    void nodesAndArraysHoldTheRawForms();

private:
    UnitManager m_manager;
};

namespace {

struct Unit
{
    const char* name;
    int decimalPlaces;
    QVector<double> polynomial;        ///< base unit to unit, constant term first
    QVector<double> inversePolynomial; ///< unit to base unit
};

/// The units of the only unit type "Thing"; the first one is the base unit.
const QVector<Unit>& units()
{
    static const QVector<Unit> list = {
        {"Base", 3, {0.0, 1.0}, {0.0, 1.0}},
        {"Milli", 1, {0.0, 1000.0}, {0.0, 0.001}},
        {"Celsius", 2, {-273.15, 1.0}, {273.15, 1.0}},
        {"Fahrenheit", 1, {-459.67, 1.8}, {459.67 / 1.8, 1.0 / 1.8}},
        {"Reversed", 0, {100.0, -3.0}, {100.0 / 3.0, -1.0 / 3.0}},
        {"Curved", 4, {1.0, 2.0, 3.0}, {-1.0, 0.25, 0.125, -0.0625}},
    };
    return list;
}

const QString unitType = typeNamed("Thing");
const int samples = 5000;

QJsonArray asColumn(const QVector<double>& coefficients)
{
    QJsonArray column;
    for (const double coefficient : coefficients)
        column.append(QJsonArray{coefficient});
    return column;
}

QString unitDocument()
{
    QJsonObject type;
    for (int position = 0; position < units().size(); ++position) {
        const Unit& unit = units().at(position);
        type.insert(QLatin1String(unit.name),
                    QJsonObject{{"@displayPosition", position},
                                {"DecimalPlaces", unit.decimalPlaces},
                                {"Polynomial", asColumn(unit.polynomial)},
                                {"InversePolynomial", asColumn(unit.inversePolynomial)},
                                {"UnitLabel", unit.name}});
    }
    return QString::fromUtf8(QJsonDocument(QJsonObject{{"Thing", type}}).toJson());
}

/// Horner's scheme from the highest power down; each step is one fused multiply-add.
double evaluated(const QVector<double>& coefficients, double x)
{
    double result = 0.0;
    for (int power = coefficients.size() - 1; power >= 0; --power)
        result = std::fma(x, result, coefficients.at(power));
    return result;
}

/// Finite numbers, identical in every run: both signs, magnitudes from 1e-9 to 1e9.
QVector<double> randomNumbers()
{
    std::mt19937_64 generator(20240229);
    std::uniform_real_distribution<double> exponent(-9.0, 9.0);
    std::uniform_real_distribution<double> factor(-1.0, 1.0);
    QVector<double> numbers;
    for (int sample = 0; sample < samples; ++sample)
        numbers.append(factor(generator) * std::pow(10.0, exponent(generator)));
    return numbers;
}

void addUnitRows(int minimumDegree, int maximumDegree)
{
    QTest::addColumn<int>("index");

    for (int index = 0; index < units().size(); ++index) {
        const int degree = units().at(index).polynomial.size() - 1;
        if (degree >= minimumDegree && degree <= maximumDegree)
            QTest::newRow(units().at(index).name) << index;
    }
}

} // namespace

void UnitManagerRoundTripTest::initTestCase()
{
    QVERIFY(m_manager.initByJsonString(unitDocument(), QString()));
    QCOMPARE(m_manager.getListofUnits(unitType).size(), 6);
    QCOMPARE(m_manager.getBaseUnit(unitType), unitType + "/Base");
}

void UnitManagerRoundTripTest::conversionsEvaluateTheirPolynomials_data()
{
    addUnitRows(1, 2);
}

void UnitManagerRoundTripTest::conversionsEvaluateTheirPolynomials()
{
    QFETCH(int, index);
    const Unit& unit = units().at(index);
    const QString name = QLatin1String(unit.name);
    LogCapture log;

    for (const double number : randomNumbers()) {
        QCOMPARE(toDebugText(m_manager.fromBaseUnitRaw(number, unitType, name)),
                 toDebugText(evaluated(unit.polynomial, number)));
        QCOMPARE(toDebugText(m_manager.toBaseUnitRaw(number, unitType, name)),
                 toDebugText(evaluated(unit.inversePolynomial, number)));
    }
    QCOMPARE(takeMessageTexts(log), QStringList());
}

void UnitManagerRoundTripTest::linearUnitsRoundTrip_data()
{
    addUnitRows(1, 1);
}

void UnitManagerRoundTripTest::linearUnitsRoundTrip()
{
    QFETCH(int, index);
    const Unit& unit = units().at(index);
    const QString name = QLatin1String(unit.name);

    // Two coefficients and two evaluations, each with an error of at most half an ulp of the terms.
    const double epsilon = std::numeric_limits<double>::epsilon();
    for (const double number : randomNumbers()) {
        const QVariant base = m_manager.toBaseUnitRaw(number, unitType, name);
        const double back = m_manager.fromBaseUnitRaw(base, unitType, name).toDouble();
        const double bound = 4 * epsilon * (std::abs(number) + std::abs(unit.polynomial.first()));
        QVERIFY2(
            std::abs(back - number) <= bound,
            qPrintable(QStringLiteral("%1 came back as %2").arg(number, 0, 'g', 17).arg(back, 0, 'g', 17)));
    }
}

void UnitManagerRoundTripTest::roundedFormsAreTheRoundedRawForms_data()
{
    addUnitRows(1, 2);
}

void UnitManagerRoundTripTest::roundedFormsAreTheRoundedRawForms()
{
    QFETCH(int, index);
    const QString name = QLatin1String(units().at(index).name);
    const unsigned int places = static_cast<unsigned int>(units().at(index).decimalPlaces);

    for (const double number : randomNumbers()) {
        QCOMPARE(
            toDebugText(m_manager.fromBaseUnit(number, unitType, name)),
            toDebugText(m_manager.roundDouble(m_manager.fromBaseUnitRaw(number, unitType, name), places)));
        QCOMPARE(toDebugText(m_manager.toBaseUnit(number, unitType, name)),
                 toDebugText(m_manager.roundDouble(m_manager.toBaseUnitRaw(number, unitType, name), places)));
        QCOMPARE(toDebugText(m_manager.fromBaseUnit(number, unitType + '/' + name, QString())),
                 toDebugText(m_manager.roundDouble(number, places)));
    }
}

void UnitManagerRoundTripTest::nodesAndArraysHoldTheRawForms_data()
{
    addUnitRows(1, 2);
}

void UnitManagerRoundTripTest::nodesAndArraysHoldTheRawForms()
{
    QFETCH(int, index);
    const QString name = QLatin1String(units().at(index).name);
    const QString key = QStringLiteral("Value");

    for (const double number : randomNumbers()) {
        const QString fromBase = toDebugText(m_manager.fromBaseUnitRaw(number, unitType, name));
        const QString toBase = toDebugText(m_manager.toBaseUnitRaw(number, unitType, name));
        const auto child = RecordingValueNode::number(number, unitType);
        const auto node = RecordingValueNode::parentOf(child);
        Array2dDataTypeWrapper array({QVariant(QVariantList{number})}, {unitType});

        QCOMPARE(toDebugText(m_manager.getValue(QVariant(number), unitType, name)), fromBase);
        QCOMPARE(toDebugText(m_manager.getValue(key, node, name)), fromBase);
        QCOMPARE(toDebugText(m_manager.getValueArray(array, 0, 0, 1, name)), QStringList{fromBase});
        QVERIFY(m_manager.setValue(key, node, number, name));
        QCOMPARE(toDebugText(child->value()), toBase);
        QVERIFY(m_manager.setValueArray(array, 0, 0, 1, {number}, name));
        QCOMPARE(toDebugText(array.getRowValues(0)), QStringList{toBase});
    }
}

static const TestClass<UnitManagerRoundTripTest> testClass;

#include "UnitManagerRoundTripTest.moc"
