#include "UnitManagerDevice/UnitManagerDevice.h"

#include <QtTest/QTest>

#include <mutex>
#include <type_traits>

#include "ConfigurationAndProcessDataTools.h"
#include "DebugText.h"
#include "ExpectedMessages.h"
#include "LogCapture.h"
#include "ProcessDataValue.h"
#include "RecordingValueNode.h"
#include "Row.h"
#include "TestDocuments.h"
#include "TestProgram.h"

static_assert(std::is_base_of_v<UnitManager, UnitManagerDevice>);
static_assert(std::is_convertible_v<UnitManagerDevice*, UnitManager*>, "the base is public");
static_assert(sizeof(UnitManagerDevice) == sizeof(UnitManager), "no members of its own");
static_assert(std::has_virtual_destructor_v<UnitManagerDevice>);
static_assert(std::is_copy_constructible_v<UnitManagerDevice> &&
              std::is_copy_assignable_v<UnitManagerDevice>);
static_assert(std::is_convertible_v<UnitManagerDevice, bool>);

/// Reading and writing live values in the caller's unit.
class UnitManagerDeviceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void newDeviceIsEmpty();
    void nothingIsReadFromNull();
    void goodValueIsConverted_data();
    void goodValueIsConverted();
    void faultyValueIsReadUnchanged_data();
    void faultyValueIsReadUnchanged();
    void lastGoodValueIsNotUsed();
    void otherFieldsAreReadToo();
    void nothingIsWrittenToNull();
    void goodValueIsStoredInTheBaseUnit_data();
    void goodValueIsStoredInTheBaseUnit();
    void withoutDefaultUnitTheValueIsStoredAsGiven();
    void faultyValueIsWrittenUnchanged_data();
    void faultyValueIsWrittenUnchanged();
    void failedConversionWritesNothing_data();
    void failedConversionWritesNothing();
    void markerOfUnknownUnitIsWrittenByNodeAccessOnly();
    void otherFieldsAreWrittenToo();
    void equalValueIsWritten();
    void lockHolderReadsAndWrites();

private:
    UnitManagerDevice m_device;
};

namespace {

namespace T = TestUnitType;

const auto noError = ProcessDataDefinitions::ErrorTypeNone;

QSharedPointer<ProcessDataValue> valueOf(const QString& unitType, const ProcessValue& value)
{
    auto processData = QSharedPointer<ProcessDataValue>::create(unitType);
    processData->setValue(value);
    return processData;
}

/// All fields of a process value.
QString toDebugText(const ProcessValue& value)
{
    return QStringLiteral("%1, error %2, %3, from %4")
        .arg(toDebugText(value.getValue()), QString::number(value.getErrorType()),
             value.getTimestamp().toString(Qt::ISODateWithMs), value.getSource());
}

ProcessValue fullValue(const QVariant& number)
{
    ProcessValue value(number, noError);
    value.setTimestamp(QDateTime(QDate(2024, 2, 29), QTime(12, 30, 0, 5), Qt::UTC));
    value.setSource(QStringLiteral("sensor 1"));
    return value;
}

const QString otherFields = QStringLiteral(", error 0, 2024-02-29T12:30:00.005Z, from sensor 1");

void addErrorTypes()
{
    QTest::addColumn<int>("errorType");
    QTest::newRow("out of range") << int(ProcessDataDefinitions::ErrorTypeOutOfRange);
    QTest::newRow("sensor fault") << int(ProcessDataDefinitions::ErrorTypeSensor);
    QTest::newRow("not available") << int(ProcessDataDefinitions::ErrorTypeNotAvailable);
}

ProcessDataDefinitions::ErrorTypes fetchedErrorType()
{
    QFETCH(int, errorType);
    return ProcessDataDefinitions::ErrorTypes(errorType);
}

} // namespace

void UnitManagerDeviceTest::init()
{
    m_device = UnitManagerDevice();
    QVERIFY(m_device.initByJsonString(TestDocuments::units(), TestDocuments::defaultUnits()));
}

void UnitManagerDeviceTest::newDeviceIsEmpty()
{
    const UnitManagerDevice device;
    const bool usable = device;
    LogCapture log;

    QVERIFY(!usable);
    QCOMPARE(device.getListofUnitTypes(), QStringList());
    QCOMPARE(takeMessageTexts(log), QStringList());
}

void UnitManagerDeviceTest::nothingIsReadFromNull()
{
    LogCapture log;
    const ProcessValue value = m_device.getValueNoLock({}, QStringLiteral("Bar"));

    QCOMPARE(int(value.getErrorType()), 3);
    QCOMPARE(toDebugText(value.getValue()), QStringLiteral("invalid"));
    QCOMPARE(takeMessageTexts(log), QStringList());
}

void UnitManagerDeviceTest::goodValueIsConverted_data()
{
    QTest::addColumn<QString>("unitType");
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QString>("result");
    QTest::addColumn<QStringList>("messages");

    const QStringList none;
    const QVariant marker = ConfigurationAndProcessDataTools::getNoInputValueIndicator();
    row("given unit", T::pressure, QVariant(1.5), "HectoPascal", "double 1500", none);
    row("default unit", T::pressure, QVariant(2.25), "", "double 2250", none);
    row("more places than the unit shows", T::pressure, QVariant(1.00048828125), "HectoPascal",
        "double 1000.48828125", none);
    row("base unit, more places than it shows", T::pressure, QVariant(0.00048828125), "Bar",
        "double 0.00048828125", none);
    row("integer", T::pressure, QVariant(2), "HectoPascal", "double 2000", none);
    row("marker", T::pressure, marker, "HectoPascal", TestValue::markerText, none);
    row("fixed unit type", T::pressure + "/Bar", QVariant(1.5), "HectoPascal", "double 1.5", none);
    row("no unit type", "", QVariant(1.5), "", "double 1.5", none);
    row("unknown unit", T::pressure, QVariant(1.5), "Nope", "double 1.5",
        QStringList{Expected::unknownUnit(Expected::Conversion::FromBase, "Nope", "Pressure")});
    row("unknown unit type", T::unknown, QVariant(1.5), "Bar", "double 1.5",
        QStringList{Expected::noConversion(Expected::Conversion::FromBase, T::unknown)});
    row("no default unit", T::ratio, QVariant(1.5), "", "double 1.5",
        QStringList{Expected::noDefaultUnit(T::ratio)});
}

void UnitManagerDeviceTest::goodValueIsConverted()
{
    QFETCH(QString, unitType);
    QFETCH(QVariant, stored);
    QFETCH(QString, unit);
    const auto processData = valueOf(unitType, ProcessValue(stored, noError));
    LogCapture log;

    const ProcessValue value = m_device.getValueNoLock(processData, unit);
    QTEST(toDebugText(value.getValue()), "result");
    QCOMPARE(value.getErrorType(), noError);
    QTEST(takeMessageTexts(log), "messages");
    QCOMPARE(toDebugText(processData->getValue().getValue()), toDebugText(stored));
}

void UnitManagerDeviceTest::faultyValueIsReadUnchanged_data()
{
    addErrorTypes();
}

void UnitManagerDeviceTest::faultyValueIsReadUnchanged()
{
    ProcessValue faulty = fullValue(1.5);
    faulty.setErrorType(fetchedErrorType());
    const auto processData = valueOf(T::pressure, faulty);
    LogCapture log;

    QCOMPARE(toDebugText(m_device.getValueNoLock(processData, "HectoPascal")), toDebugText(faulty));
    QCOMPARE(toDebugText(m_device.getValueNoLock(processData, "Nope")), toDebugText(faulty));
    QCOMPARE(takeMessageTexts(log), QStringList());
}

void UnitManagerDeviceTest::lastGoodValueIsNotUsed()
{
    const auto processData = valueOf(T::pressure, ProcessValue(1.5, noError));
    processData->setValue(ProcessValue(9.5, ProcessDataDefinitions::ErrorTypeSensor));

    const ProcessValue value = m_device.getValueNoLock(processData, "HectoPascal");
    QCOMPARE(toDebugText(value.getValue()), QStringLiteral("double 9.5"));
}

void UnitManagerDeviceTest::otherFieldsAreReadToo()
{
    const auto processData = valueOf(T::pressure, fullValue(1.5));
    QCOMPARE(toDebugText(m_device.getValueNoLock(processData, "HectoPascal")),
             QStringLiteral("double 1500") + otherFields);
}

void UnitManagerDeviceTest::nothingIsWrittenToNull()
{
    LogCapture log;
    QVERIFY(!m_device.setValueNoLock({}, ProcessValue(1.5, noError), "Bar"));
    QVERIFY(!m_device.setValueNoLock({}, ProcessValue(ProcessDataDefinitions::ErrorTypeSensor), "Bar"));
    QCOMPARE(takeMessageTexts(log), QStringList());
}

void UnitManagerDeviceTest::goodValueIsStoredInTheBaseUnit_data()
{
    QTest::addColumn<QString>("unitType");
    QTest::addColumn<QVariant>("given");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QString>("stored");

    const QVariant marker = ConfigurationAndProcessDataTools::getNoInputValueIndicator();
    row("given unit", T::pressure, QVariant(1500.0), "HectoPascal", "double 1.5");
    row("default unit", T::pressure, QVariant(2250.0), "", "double 2.25");
    row("more places than the unit shows", T::pressure, QVariant(0.00048828125), "Bar",
        "double 0.00048828125");
    row("integer", T::pressure, QVariant(1500), "HectoPascal", "double 1.5");
    row("marker of a known unit", T::pressure, marker, "HectoPascal", TestValue::markerText);
    row("fixed unit type", T::pressure + "/Bar", QVariant(1.5), "HectoPascal", "double 1.5");
    row("neither unit type nor unit", "", QVariant(1.5), "", "double 1.5");
}

void UnitManagerDeviceTest::goodValueIsStoredInTheBaseUnit()
{
    QFETCH(QString, unitType);
    QFETCH(QVariant, given);
    QFETCH(QString, unit);
    const auto processData = valueOf(unitType, ProcessValue(ProcessDataDefinitions::ErrorTypeSensor));
    LogCapture log;

    QVERIFY(m_device.setValueNoLock(processData, ProcessValue(given, noError), unit));
    QTEST(toDebugText(processData->getValue().getValue()), "stored");
    QCOMPARE(processData->getValue().getErrorType(), noError);
    QCOMPARE(takeMessageTexts(log), QStringList());
}

void UnitManagerDeviceTest::withoutDefaultUnitTheValueIsStoredAsGiven()
{
    const auto processData = valueOf(T::ratio, ProcessValue(2.5, noError));
    LogCapture log;

    QVERIFY(m_device.setValueNoLock(processData, ProcessValue(1.5, noError), QString()));
    QCOMPARE(toDebugText(processData->getValue().getValue()), QStringLiteral("double 1.5"));
    QCOMPARE(takeMessageTexts(log), QStringList{Expected::noDefaultUnit(T::ratio)});
}

void UnitManagerDeviceTest::faultyValueIsWrittenUnchanged_data()
{
    addErrorTypes();
}

void UnitManagerDeviceTest::faultyValueIsWrittenUnchanged()
{
    ProcessValue faulty = fullValue(1500.0);
    faulty.setErrorType(fetchedErrorType());
    LogCapture log;

    for (const char* unit : {"HectoPascal", "Nope"}) {
        const auto processData = valueOf(T::pressure, ProcessValue(2.5, noError));
        QVERIFY(m_device.setValueNoLock(processData, faulty, unit));
        QCOMPARE(toDebugText(processData->getValue()), toDebugText(faulty));
    }
    QCOMPARE(takeMessageTexts(log), QStringList());
}

void UnitManagerDeviceTest::failedConversionWritesNothing_data()
{
    QTest::addColumn<QString>("unitType");
    QTest::addColumn<QVariant>("given");
    QTest::addColumn<QString>("unit");

    row("unknown unit", T::pressure, QVariant(1500.0), "Nope");
    row("marker of an unknown unit", T::pressure,
        ConfigurationAndProcessDataTools::getNoInputValueIndicator(), "Nope");
    row("unknown unit type", T::unknown, QVariant(1500.0), "Bar");
    row("unit without unit type", "", QVariant(1500.0), "Bar");
    row("not a number", T::pressure, QVariant("abc"), "HectoPascal");
    row("no value", T::pressure, QVariant(), "HectoPascal");
}

void UnitManagerDeviceTest::failedConversionWritesNothing()
{
    QFETCH(QString, unitType);
    QFETCH(QVariant, given);
    QFETCH(QString, unit);
    const auto processData = valueOf(unitType, fullValue(2.5));
    const LogCapture quiet;

    QVERIFY(!m_device.setValueNoLock(processData, ProcessValue(given, noError), unit));
    QCOMPARE(toDebugText(processData->getValue()), QStringLiteral("double 2.5") + otherFields);
}

void UnitManagerDeviceTest::markerOfUnknownUnitIsWrittenByNodeAccessOnly()
{
    const QVariant marker = ConfigurationAndProcessDataTools::getNoInputValueIndicator();
    const auto processData = valueOf(T::pressure, ProcessValue(2.5, noError));
    const auto parent = RecordingValueNode::parentOf(processData);
    const LogCapture quiet;

    QVERIFY(!m_device.setValueNoLock(processData, ProcessValue(marker, noError), "Nope"));
    QCOMPARE(toDebugText(processData->getValue().getValue()), QStringLiteral("double 2.5"));
    QCOMPARE(m_device.setValueStatus("Value", parent, marker, "Nope"), 0);
    QCOMPARE(toDebugText(processData->getValue().getValue()), TestValue::markerText);
}

void UnitManagerDeviceTest::otherFieldsAreWrittenToo()
{
    const auto processData = valueOf(T::pressure, ProcessValue(2.5, noError));
    const ProcessValue given = fullValue(1500.0);

    QVERIFY(m_device.setValueNoLock(processData, given, "HectoPascal"));
    QCOMPARE(toDebugText(processData->getValue()), QStringLiteral("double 1.5") + otherFields);
    QCOMPARE(toDebugText(given.getValue()), QStringLiteral("double 1500"));
}

void UnitManagerDeviceTest::equalValueIsWritten()
{
    const auto processData = valueOf(T::pressure, ProcessValue(1.5, noError));
    QVERIFY(m_device.setValueNoLock(processData, ProcessValue(1500.0, noError), "HectoPascal"));
    QVERIFY(m_device.setValueNoLock(processData, ProcessValue(1500.0, noError), "HectoPascal"));
    QCOMPARE(toDebugText(processData->getValue().getValue()), QStringLiteral("double 1.5"));
}

void UnitManagerDeviceTest::lockHolderReadsAndWrites()
{
    const auto processData = valueOf(T::pressure, ProcessValue(1.5, noError));
    const UnitManagerDevice& device = m_device;
    const std::lock_guard<const ProcessDataValue> guard(*processData);

    QCOMPARE(toDebugText(device.getValueNoLock(processData, "HectoPascal").getValue()),
             QStringLiteral("double 1500"));
    QVERIFY(device.setValueNoLock(processData, ProcessValue(2500.0, noError), "HectoPascal"));
    QCOMPARE(toDebugText(processData->getValue().getValue()), QStringLiteral("double 2.5"));
}

static const TestClass<UnitManagerDeviceTest> testClass;
#include "UnitManagerDeviceTest.moc"
