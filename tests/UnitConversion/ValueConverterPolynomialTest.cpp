#include "UnitConversion/ValueConverterPolynomial.h"

#include <QtTest/QTest>

#include <limits>
#include <type_traits>

#include "ExactText.h"
#include "LogCapture.h"
#include "RecordingNode.h"
#include "Row.h"
#include "TestProgram.h"
#include "VirtualSlot.h"

namespace {

using Coefficients = QVector<double>;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

static_assert(std::is_base_of_v<ValueConverterBase, ValueConverterPolynomial>);
static_assert(std::is_convertible_v<BaseClassSharedPointer, ValueConverterPolynomial>);
static_assert(std::is_same_v<decltype(&ValueConverterPolynomial::evaluatePolynom),
                             double (ValueConverterPolynomial::*)(double, QVector<double>) const>);
static_assert(
    std::is_same_v<decltype(&ValueConverterPolynomial::resetPolynom),
                   bool (ValueConverterPolynomial::*)(const QList<QVariant>&, const QList<QVariant>&)>);

/// Gives access to the state of the converter, which is part of the interface for derived classes.
class Converter : public ValueConverterPolynomial
{
public:
    using ValueConverterPolynomial::inversePolynomial;
    using ValueConverterPolynomial::inversePolynomialDegree;
    using ValueConverterPolynomial::polynomial;
    using ValueConverterPolynomial::polynomialDegree;

    explicit Converter(const QString& json) : ValueConverterPolynomial(nodeFromJson(json)) {}

    QStringList state() const
    {
        return QStringList(exactTexts(polynomial))
               << QStringLiteral("degree %1").arg(polynomialDegree) << exactTexts(inversePolynomial)
               << QStringLiteral("inverse degree %1").arg(inversePolynomialDegree);
    }
};

QStringList state(const Coefficients& polynomial, int degree, const Coefficients& inverse, int inverseDegree)
{
    return QStringList(exactTexts(polynomial))
           << QStringLiteral("degree %1").arg(degree) << exactTexts(inverse)
           << QStringLiteral("inverse degree %1").arg(inverseDegree);
}

QVariantList column(const Coefficients& coefficients)
{
    QVariantList rows;
    for (const double coefficient : coefficients)
        rows.append(QVariant(QVariantList{coefficient}));
    return rows;
}

} // namespace

class ValueConverterPolynomialTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsCoefficients_data();
    void readsCoefficients();
    void readsAMillionCoefficients();
    void readsDecimalPlaces_data();
    void readsDecimalPlaces();
    void readsItsKeysInOrderAndNothingElse();
    void doesNotKeepItsNode();
    void converts_data();
    void converts();
    void evaluatesHighestPowerFirst_data();
    void evaluatesHighestPowerFirst();
    void secondResetAppendsAndClearsTheInverse();
    void secondResetAppendsTheInverse();
    void inverseIsClearedForAnEmptyListOnly();
    void keepsTheSlotsOfTheBase();
};

void ValueConverterPolynomialTest::readsCoefficients_data()
{
    QTest::addColumn<QString>("json");
    QTest::addColumn<QStringList>("expected");

    const QStringList nothing = state({}, -1, {}, 0);
    row("nothing configured", "{}", nothing);
    row("both, constant term first",
        R"({"Polynomial": [[5], [2]], "InversePolynomial": [[-2.5], [0.5], [3]]})",
        state({2, 5}, 1, {3, 0.5, -2.5}, 2));
    row("forward only", R"({"Polynomial": [[7]]})", state({7}, 0, {}, 0));
    row("inverse only", R"({"InversePolynomial": [[7]]})", state({}, -1, {7}, 0));
    row("bare numbers", R"({"Polynomial": [5, 2], "InversePolynomial": [1, 4]})",
        state({2, 5}, 1, {4, 1}, 1));
    row("only the first column counts",
        R"({"Polynomial": [[5, 50], [2, 20]], "InversePolynomial": [[1, 10]]})", state({2, 5}, 1, {1}, 0));
    row("empty lists", R"({"Polynomial": [], "InversePolynomial": []})", nothing);
    row("rows without columns", R"({"Polynomial": [[]], "InversePolynomial": [[]]})", state({}, -1, {}, -1));
    row("texts instead of lists", R"({"Polynomial": "x", "InversePolynomial": "1"})", nothing);
    row("numbers instead of lists", R"({"Polynomial": 5, "InversePolynomial": 2})", nothing);
    row("tree nodes instead of lists", R"({"Polynomial": {}, "InversePolynomial": {}})", nothing);
    row("objects instead of lists",
        R"({"Polynomial": {"@value": {"a": 1}}, "InversePolynomial": {"@value": {}}})", nothing);
    row("null nodes", R"({"Polynomial": null, "InversePolynomial": null})", nothing);
    row("coefficients that are texts", R"({"Polynomial": [["2"], ["x"], [true]]})",
        state({1, 0, 2}, 2, {}, 0));
    row("leading zeros are kept", R"({"Polynomial": [[1], [0], [0]]})", state({0, 0, 1}, 2, {}, 0));
}

void ValueConverterPolynomialTest::readsCoefficients()
{
    QFETCH(QString, json);
    LogCapture log;
    const Converter converter(json);
    QTEST(converter.state(), "expected");
    QCOMPARE(converter.getDecimalPlaces(), 0U);
    QCOMPARE(log.takeTexts(), QStringList());
}

void ValueConverterPolynomialTest::readsAMillionCoefficients()
{
    // Moving the coefficients for each insertion at the front would take hours.
    const int count = 1000000;
    QVariantList coefficients;
    coefficients.reserve(count);
    for (int index = 0; index < count; ++index)
        coefficients.append(index);
    ValueConverterPolynomial converter{BaseClassSharedPointer()};
    QVERIFY(converter.resetPolynom(coefficients, {}));
    QCOMPARE(converter.convertValue(0.0), 0.0);
    QCOMPARE(converter.convertValue(1.0), 499999500000.0);
}

void ValueConverterPolynomialTest::readsDecimalPlaces_data()
{
    QTest::addColumn<QString>("json");
    QTest::addColumn<unsigned int>("expected");

    row("missing", "{}", 0U);
    row("null node", R"({"DecimalPlaces": null})", 0U);
    row("without value", R"({"DecimalPlaces": {}})", 0U);
    row("number", R"({"DecimalPlaces": 2})", 2U);
    row("fraction is rounded up", R"({"DecimalPlaces": 2.7})", 3U);
    row("fraction is rounded down", R"({"DecimalPlaces": 2.4})", 2U);
    row("number in a text", R"({"DecimalPlaces": "2"})", 2U);
    row("fraction in a text", R"({"DecimalPlaces": "2.7"})", 0U);
    row("another text", R"({"DecimalPlaces": "abc"})", 0U);
    row("true", R"({"DecimalPlaces": true})", 1U);
    row("false", R"({"DecimalPlaces": false})", 0U);
    row("negative number wraps", R"({"DecimalPlaces": -1})", 4294967295U);
    row("list", R"({"DecimalPlaces": [3]})", 0U);
    row("object", R"({"DecimalPlaces": {"@value": {"a": 3}}})", 0U);
}

void ValueConverterPolynomialTest::readsDecimalPlaces()
{
    QFETCH(QString, json);
    LogCapture log;
    QTEST(Converter(json).getDecimalPlaces(), "expected");
    QCOMPARE(log.takeTexts(), QStringList());
}

// Calls and their order are visible to the node classes of other libraries.
void ValueConverterPolynomialTest::readsItsKeysInOrderAndNothingElse()
{
    const auto calls = RecordingNode::Calls::create();
    const auto node = recordingNodeFromJson(
        R"({"Polynomial": [[1]], "InversePolynomial": [[1]], "DecimalPlaces": 1, "Table": [[1]], "@type": "Unit"})",
        QStringLiteral("unit"), calls);
    const ValueConverterPolynomial converter(node);
    QCOMPARE(takeCallsOf(QStringLiteral("unit"), calls),
             QStringList({"unit.getChild(Polynomial)", "unit.getChild(InversePolynomial)",
                          "unit.getChild(DecimalPlaces)"}));
    QCOMPARE(exactText(converter.convertValue(1)), exactText(1));
    QCOMPARE(*calls, QStringList());
}

void ValueConverterPolynomialTest::doesNotKeepItsNode()
{
    BaseClassSharedPointer node = nodeFromJson(QStringLiteral(R"({"Polynomial": [[4]]})"));
    const QWeakPointer<ConfigurationAndProcessDataBase> watched = node;
    const ValueConverterPolynomial converter(node);
    node.clear();
    QVERIFY(watched.isNull());
    QCOMPARE(exactText(converter.convertValue(9)), exactText(4));
}

void ValueConverterPolynomialTest::converts_data()
{
    QTest::addColumn<QString>("json");
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("converted");
    QTest::addColumn<double>("inverted");

    const QString none = QStringLiteral("{}");
    const QString linear = QStringLiteral(R"({"Polynomial": [[5], [2]]})");
    const QString constant = QStringLiteral(R"({"Polynomial": [[7]], "InversePolynomial": [[-7]]})");
    const QString bothWays =
        QStringLiteral(R"({"Polynomial": [[0], [1000]], "InversePolynomial": [[0], [0.001]]})");
    const QString cubic = QStringLiteral(R"({"Polynomial": [[1], [2], [3], [4]]})");
    const double largest = std::numeric_limits<double>::max();
    const double smallest = std::numeric_limits<double>::denorm_min();

    row("without coefficients", none, 3.0, 0.0, 0.0);
    row("without coefficients, not a number", none, notANumber, 0.0, 0.0);
    row("without coefficients, infinity", none, -infinity, 0.0, 0.0);
    row("text instead of coefficients", R"({"Polynomial": "x"})", 3.0, 0.0, 0.0);
    row("linear without inverse", linear, 3.0, 11.0, 0.0);
    row("linear at a negative number", linear, -4.0, -3.0, 0.0);
    row("constant at zero", constant, 0.0, 7.0, -7.0);
    row("constant at a negative number", constant, -1e30, 7.0, -7.0);
    row("constant at the largest number", constant, largest, 7.0, -7.0);
    row("constant at the smallest number", constant, smallest, 7.0, -7.0);
    row("forward and inverse are independent", bothWays, 2.0, 2000.0, 0.002);
    row("linear at infinity", linear, infinity, notANumber, 0.0);
    row("overflow", bothWays, largest, infinity, largest * 0.001);
    row("cubic", cubic, 2.0, 49.0, 0.0);
    row("cubic at a negative number", cubic, -1.0, -2.0, 0.0);
    row("multiplied and added in one rounding", R"({"Polynomial": [[-1], [0.1]]})", 10.0,
        5.5511151231257827e-17, 0.0);
    row("inverse multiplied and added in one rounding", R"({"InversePolynomial": [[-1], [0.1]]})", 10.0, 0.0,
        5.5511151231257827e-17);
}

void ValueConverterPolynomialTest::converts()
{
    QFETCH(QString, json);
    QFETCH(double, x);
    QFETCH(double, converted);
    QFETCH(double, inverted);
    LogCapture log;
    const Converter converter(json);
    QCOMPARE(exactText(converter.convertValue(x)), exactText(converted));
    QCOMPARE(exactText(converter.invertValue(x)), exactText(inverted));
    QCOMPARE(log.takeTexts(), QStringList());
}

void ValueConverterPolynomialTest::evaluatesHighestPowerFirst_data()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<Coefficients>("coefficients");
    QTest::addColumn<double>("expected");

    row("no coefficients", 3.0, Coefficients(), 0.0);
    row("constant", 3.0, Coefficients{-7}, -7.0);
    row("linear", 3.0, Coefficients{2, 5}, 11.0);
    row("quadratic", -2.0, Coefficients{1, 0, 0.5}, 4.5);
    row("one rounding per step", 10.0, Coefficients{0.1, -1}, 5.5511151231257827e-17);
}

void ValueConverterPolynomialTest::evaluatesHighestPowerFirst()
{
    QFETCH(double, x);
    QFETCH(Coefficients, coefficients);
    QFETCH(double, expected);
    const Converter converter(QStringLiteral(R"({"Polynomial": [[100]]})"));
    QCOMPARE(exactText(converter.evaluatePolynom(x, coefficients)), exactText(expected));
}

void ValueConverterPolynomialTest::secondResetAppendsAndClearsTheInverse()
{
    Converter converter(QStringLiteral(R"({"Polynomial": [[1], [2]], "InversePolynomial": [[8], [9]]})"));
    QVERIFY(converter.resetPolynom(column({3, 4}), {}));
    QCOMPARE(converter.state(), state({4, 3, 2, 1}, 2, {}, 0));
    QCOMPARE(exactText(converter.convertValue(2)), exactText(49));
    QCOMPARE(exactText(converter.invertValue(2)), exactText(0));
}

void ValueConverterPolynomialTest::secondResetAppendsTheInverse()
{
    Converter converter(QStringLiteral(R"({"Polynomial": [[1]], "InversePolynomial": [[8], [9]]})"));
    QVERIFY(converter.resetPolynom({}, column({6, 5})));
    QCOMPARE(converter.state(), state({1}, -1, {5, 6, 9, 8}, 2));
    QVERIFY(converter.resetPolynom({}, {}));
    QCOMPARE(converter.state(), state({1}, -2, {}, 0));
}

void ValueConverterPolynomialTest::inverseIsClearedForAnEmptyListOnly()
{
    Converter converter(QStringLiteral("{}"));
    QVERIFY(converter.resetPolynom(column({1}), column({2})));
    // The given inverse list decides, not the number of stored coefficients; a row without columns is a row.
    QVERIFY(converter.resetPolynom({}, {QVariant(QVariantList())}));
    QCOMPARE(converter.inversePolynomial, Coefficients({2}));
    QVERIFY(converter.resetPolynom({}, {}));
    QCOMPARE(converter.inversePolynomial, Coefficients());
    QCOMPARE(converter.inversePolynomialDegree, 0);
}

// Device programs call through the virtual table.
void ValueConverterPolynomialTest::keepsTheSlotsOfTheBase()
{
    QCOMPARE(virtualSlot(&ValueConverterPolynomial::convertValue), std::size_t(2));
    QCOMPARE(virtualSlot(&ValueConverterPolynomial::invertValue), std::size_t(3));
}

static const TestClass<ValueConverterPolynomialTest> testClass;
#include "ValueConverterPolynomialTest.moc"
