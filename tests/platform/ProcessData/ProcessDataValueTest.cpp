#include "ProcessDataValue.h"

#include <QtTest/QTest>

#include <mutex>
#include <thread>

#include "ConfigurationAndProcessDataDefinitions.h"
#include "ConfigurationAndProcessDataTools.h"
#include "TestProgram.h"

using Definitions = ConfigurationAndProcessDataDefinitions;

class ProcessDataValueTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNewOneHasNoValue();
    void aStoredValueIsReadBackWhole_data();
    void aStoredValueIsReadBackWhole();
    void storingReturnsWhetherTheValueDiffers();
    void theLastGoodNumberIsKept();
    void itIsANumberNodeWithAUnitType();
    void itIsANodeWithoutUnitType();
    void itsValueIsAProperty();
    void propertiesAreWritten_data();
    void propertiesAreWritten();
    void aPropertyIsChangedOnlyWhenItIsThere();
    void aReadOnlyNodeRefusesPropertiesButNotMeasurements();
    void theHolderOfTheLockMayUseEveryOperation();
    void threadsSeeWholeValues();
};

namespace {

const QString pressure = QStringLiteral("UnitManager/UnitType/Pressure");

ProcessValue good(const QVariant& value)
{
    return {value, ProcessDataDefinitions::ErrorTypeNone};
}

} // namespace

void ProcessDataValueTest::aNewOneHasNoValue()
{
    const ProcessDataValue node(pressure);
    QVERIFY(node.getValue() == ProcessValue());
    QVERIFY(!node.hasProperty(Definitions::getKeyDataPropertyValue()));
    QVERIFY(!node.isNumberType());
}

void ProcessDataValueTest::aStoredValueIsReadBackWhole_data()
{
    QTest::addColumn<bool>("locked");
    QTest::newRow("by the forms that lock") << true;
    QTest::newRow("by the forms for holders of the lock") << false;
}

void ProcessDataValueTest::aStoredValueIsReadBackWhole()
{
    QFETCH(const bool, locked);
    ProcessValue stored(1.5, ProcessDataDefinitions::ErrorTypeSensor);
    stored.setTimestamp(QDateTime(QDate(2020, 2, 29), QTime(12, 30), Qt::UTC));
    stored.setSource("sensor 1");

    ProcessDataValue node(pressure);
    ProcessValue read;
    if (locked) {
        QVERIFY(node.setValue(stored));
        read = node.getValue();
    } else {
        const std::lock_guard<const ProcessDataValue> guard(node);
        QVERIFY(node.setValueNoLock(stored));
        node.getValueNoLock(read, false);
    }
    QVERIFY(read == stored);
}

void ProcessDataValueTest::storingReturnsWhetherTheValueDiffers()
{
    ProcessDataValue node(pressure);
    QVERIFY(node.setValue(good(1.5)));
    QVERIFY(!node.setValue(good(1.5)));
    QVERIFY(node.setValue(good(2.5)));
    QVERIFY(node.setValue(ProcessValue(2.5, ProcessDataDefinitions::ErrorTypeSensor)));
}

void ProcessDataValueTest::theLastGoodNumberIsKept()
{
    ProcessDataValue node(pressure);
    node.setValue(good(1.5));
    node.setValue(ProcessValue(99.0, ProcessDataDefinitions::ErrorTypeOutOfRange));
    QCOMPARE(node.getValue(false).getValue(), QVariant(99.0));
    QCOMPARE(node.getValue(true).getValue(), QVariant(1.5));
    QCOMPARE(node.getValue(true).getErrorType(), ProcessDataDefinitions::ErrorTypeOutOfRange);

    node.setValue(good(2.5));
    QCOMPARE(node.getValue(true).getValue(), QVariant(2.5));
}

void ProcessDataValueTest::itIsANumberNodeWithAUnitType()
{
    ProcessDataValue node(pressure);
    node.setValue(good(1.5));
    QVERIFY(node.isNumberType());
    QVERIFY(!node.isNumberNoInput());
    QVERIFY(node.hasProperty(Definitions::getKeyDataPropertyUnitType()));
    QCOMPARE(node.getProperty(Definitions::getKeyDataPropertyUnitType()), QVariant(pressure));
    QVERIFY(node.getChild("any").isNull());
    QVERIFY(node.getChildMap().isEmpty());

    node.setValue(good(ConfigurationAndProcessDataTools::getNoInputValueIndicator()));
    QVERIFY(node.isNumberNoInput());
}

void ProcessDataValueTest::itIsANodeWithoutUnitType()
{
    const ProcessDataValue node{QString()};
    QVERIFY(!node.hasProperty(Definitions::getKeyDataPropertyUnitType()));
    QVERIFY(!node.getProperty(Definitions::getKeyDataPropertyUnitType()).isValid());
}

void ProcessDataValueTest::itsValueIsAProperty()
{
    ProcessDataValue node(pressure);
    QCOMPARE(node.setProperty(Definitions::getKeyDataPropertyValue(), 1.5), 0);
    QVERIFY(node.getValue() == good(1.5));
    QCOMPARE(node.setProperty(Definitions::getKeyDataPropertyValue(), 1.5), 1);
    QCOMPARE(node.setProperty(Definitions::getKeyDataPropertyValue(), "1.5"), 2);
    QCOMPARE(node.setProperty(Definitions::getKeyDataPropertyValue(), QVariant()), 2);
    QCOMPARE(node.getProperty(Definitions::getKeyDataPropertyValue()), QVariant(1.5));
}

void ProcessDataValueTest::propertiesAreWritten_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("status");
    QTest::newRow("another value") << QVariant("b") << 0;
    QTest::newRow("the same value") << QVariant("1") << 1;
    QTest::newRow("the same of another type") << QVariant(1) << 0;
    QTest::newRow("nothing") << QVariant() << 2;
}

void ProcessDataValueTest::propertiesAreWritten()
{
    QFETCH(const QVariant, value);
    QFETCH(const int, status);
    ProcessDataValue node(pressure);
    QCOMPARE(node.setProperty("@note", "1"), 0);
    QCOMPARE(node.setProperty("@note", value), status);
    const QVariant expected = status == 0 ? value : QVariant("1");
    QCOMPARE(node.getProperty("@note").userType(), expected.userType());
    QCOMPARE(node.getProperty("@note"), expected);
}

void ProcessDataValueTest::aPropertyIsChangedOnlyWhenItIsThere()
{
    ProcessDataValue node(pressure);
    QCOMPARE(node.changeProperty("@note", "a"), 2);
    QVERIFY(!node.hasProperty("@note"));
    QCOMPARE(node.setProperty("@note", "a"), 0);
    QCOMPARE(node.changeProperty("@note", "b"), 0);
    QCOMPARE(node.getProperty("@note"), QVariant("b"));
}

void ProcessDataValueTest::aReadOnlyNodeRefusesPropertiesButNotMeasurements()
{
    ProcessDataValue node(pressure);
    QCOMPARE(node.setProperty(Definitions::getKeyDataPropertyReadOnly(), true), 0);
    QCOMPARE(node.setProperty("@note", "a"), 2);
    QCOMPARE(node.setProperty(Definitions::getKeyDataPropertyValue(), 1.5), 2);
    QVERIFY(node.setValue(good(1.5)));
    QCOMPARE(node.getProperty(Definitions::getKeyDataPropertyValue()), QVariant(1.5));
}

void ProcessDataValueTest::theHolderOfTheLockMayUseEveryOperation()
{
    ProcessDataValue node(pressure);
    const std::lock_guard<const ProcessDataValue> guard(node);
    QVERIFY(node.setValue(good(1.5)));
    QVERIFY(node.getValue() == good(1.5));
    QCOMPARE(node.getProperty(Definitions::getKeyDataPropertyUnitType()), QVariant(pressure));
    QCOMPARE(node.setProperty("@note", "a"), 0);
}

void ProcessDataValueTest::threadsSeeWholeValues()
{
    ProcessDataValue node(pressure);
    const auto store = [&node](int number) {
        ProcessValue value = good(number);
        value.setSource(QString::number(number));
        node.setValue(value);
    };
    store(0);

    std::thread writer([&store] {
        for (int number = 1; number <= 10000; ++number)
            store(number);
    });
    int torn = 0;
    while (node.getValue().getValue() != QVariant(10000)) {
        const ProcessValue value = node.getValue();
        if (value.getSource() != value.getValue().toString())
            ++torn;
    }
    writer.join();
    QCOMPARE(torn, 0);
}

static const TestClass<ProcessDataValueTest> testClass;
#include "ProcessDataValueTest.moc"
