#include "ProcessValue.h"

#include <QtTest/QTest>

#include <cmath>
#include <type_traits>

#include "Row.h"
#include "TestProgram.h"

static_assert(std::has_virtual_destructor_v<ProcessValue>);

class ProcessValueTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDefaultValueIsNotAvailable();
    void theErrorTypesHaveFixedNumbers();
    void aValueOfAnErrorTypeHasNoValue();
    void everythingIsCopied();
    void equalityComparesEverything_data();
    void equalityComparesEverything();
};

Q_DECLARE_METATYPE(ProcessValue)

namespace {

ProcessValue completeValue()
{
    ProcessValue value(1.5, ProcessDataDefinitions::ErrorTypeOutOfRange);
    value.setTimestamp(QDateTime(QDate(2020, 2, 29), QTime(12, 30), Qt::UTC));
    value.setSource("sensor 1");
    return value;
}

} // namespace

void ProcessValueTest::aDefaultValueIsNotAvailable()
{
    const ProcessValue value;
    QVERIFY(!value.getValue().isValid());
    QCOMPARE(value.getErrorType(), ProcessDataDefinitions::ErrorTypeNotAvailable);
    QVERIFY(!value.getTimestamp().isValid());
    QCOMPARE(value.getSource(), QString());
}

void ProcessValueTest::theErrorTypesHaveFixedNumbers()
{
    // Compiled applications contain the numbers.
    QCOMPARE(static_cast<int>(ProcessDataDefinitions::ErrorTypeNone), 0);
    QCOMPARE(static_cast<int>(ProcessDataDefinitions::ErrorTypeNotAvailable), 3);
}

void ProcessValueTest::aValueOfAnErrorTypeHasNoValue()
{
    const ProcessValue value(ProcessDataDefinitions::ErrorTypeSensor);
    QVERIFY(!value.getValue().isValid());
    QCOMPARE(value.getErrorType(), ProcessDataDefinitions::ErrorTypeSensor);
}

void ProcessValueTest::everythingIsCopied()
{
    ProcessValue copy = completeValue();
    QCOMPARE(copy.getValue(), QVariant(1.5));
    QCOMPARE(copy.getErrorType(), ProcessDataDefinitions::ErrorTypeOutOfRange);
    QCOMPARE(copy.getTimestamp(), QDateTime(QDate(2020, 2, 29), QTime(12, 30), Qt::UTC));
    QCOMPARE(copy.getSource(), QStringLiteral("sensor 1"));

    const ProcessValue original = copy;
    copy.setValue(2);
    copy.setErrorType(ProcessDataDefinitions::ErrorTypeNone);
    QCOMPARE(original.getValue(), QVariant(1.5));
    QCOMPARE(original.getErrorType(), ProcessDataDefinitions::ErrorTypeOutOfRange);
}

void ProcessValueTest::equalityComparesEverything_data()
{
    QTest::addColumn<ProcessValue>("left");
    QTest::addColumn<ProcessValue>("right");
    QTest::addColumn<bool>("equal");

    const auto good = ProcessDataDefinitions::ErrorTypeNone;
    const ProcessValue number(1.5, good);
    ProcessValue later = completeValue();
    later.setTimestamp(later.getTimestamp().addSecs(1));
    ProcessValue elsewhere = completeValue();
    elsewhere.setSource("sensor 2");

    row("the same", completeValue(), completeValue(), true);
    row("no value at all", ProcessValue(), ProcessValue(), true);
    row("another number", number, ProcessValue(1.25, good), false);
    row("another type of number", ProcessValue(1, good), ProcessValue(1.0, good), false);
    row("a text of the number", number, ProcessValue("1.5", good), false);
    row("a NaN and a NaN", ProcessValue(std::nan(""), good), ProcessValue(std::nan(""), good), true);
    row("a NaN and a number", ProcessValue(std::nan(""), good), number, false);
    row("another error type", number, ProcessValue(1.5, ProcessDataDefinitions::ErrorTypeSensor), false);
    row("another time", completeValue(), later, false);
    row("another source", completeValue(), elsewhere, false);
}

void ProcessValueTest::equalityComparesEverything()
{
    QFETCH(const ProcessValue, left);
    QFETCH(const ProcessValue, right);
    QFETCH(const bool, equal);
    QCOMPARE(left == right, equal);
    QCOMPARE(right == left, equal);
    QCOMPARE(left != right, !equal);
}

static const TestClass<ProcessValueTest> testClass;
#include "ProcessValueTest.moc"
