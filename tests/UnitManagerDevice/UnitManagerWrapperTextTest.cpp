#include <QtTest/QTest>

#include "Array2dDataTypeWrapper.h"
#include "DebugText.h"
#include "EmptyText.h"
#include "ExpectedMessages.h"
#include "LogCapture.h"
#include "RecordingValueNode.h"
#include "Row.h"
#include "TestDocuments.h"
#include "TestProgram.h"
#include "TwoWrappersFixture.h"
#include "UnitManagerDevice/UnitManagerDevice.h"

/// Labels and other properties of units, each with and without loaded units.
class UnitManagerWrapperTextTest : public TwoWrappersFixture
{
    Q_OBJECT

private Q_SLOTS:
    void textOfNode_data();
    void textOfNode();
    void textOfUnitType_data();
    void textOfUnitType();
    void textOfColumn_data();
    void textOfColumn();
    void textMapAndBaseUnit_data();
    void textMapAndBaseUnit();
    void unitManagerIsTheOneInUse();
};

namespace {

namespace T = TestUnitType;

} // namespace

void UnitManagerWrapperTextTest::textOfNode_data()
{
    QTest::addColumn<QString>("unitType");
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("text");
    row("default unit", T::pressure, "de", "Hektopascal");
    row("another language", T::pressure, "en", "hPa");
    row("fixed unit", T::pressure + "/Bar", "de", "Bar");
    row("no unit type", "", "de", "");
}

void UnitManagerWrapperTextTest::textOfNode()
{
    QFETCH(QString, unitType);
    QFETCH(QString, language);
    const BaseClassSharedPointer null;
    const QVariant property = unitType.isEmpty() ? QVariant() : QVariant(unitType);
    const auto node = RecordingValueNode::parentOf(RecordingValueNode::number(1.5, property));
    const LogCapture quiet;

    QTEST(m_units->getUnitText("Value", node, language), "text");
    QVERIFY(isEmptyText(m_noUnits->getUnitText("Value", node, language)));
    QCOMPARE(m_units->getUnitText("Other", node, language), QString());
    QCOMPARE(m_units->getUnitText("Value", null, language), QString());
}

void UnitManagerWrapperTextTest::textOfUnitType_data()
{
    QTest::addColumn<QString>("unitType");
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("messages");

    const QStringList none;
    row("default unit", T::pressure, "de", "Hektopascal", none);
    row("another language", T::pressure, "en", "hPa", none);
    row("fixed unit", T::pressure + "/Bar", "de", "Bar", none);
    row("no unit", T::noUnit, "de", "", none);
    row("unknown fixed unit", T::pressure + "/Nope", "de", "",
        QStringList{Expected::unknownTextUnit("Nope", T::pressure)});
    row("fixed unit of an unknown type", T::unknown + "/Bar", "de", "",
        QStringList{Expected::unknownTextType(T::unknown)});
    row("unknown unit type", T::unknown, "de", "",
        QStringList{Expected::noDefaultUnit(T::unknown), Expected::unknownTextType(T::unknown)});
    row("fixed unit with empty last part", T::pressure + "/", "de", "Hektopascal", none);
}

void UnitManagerWrapperTextTest::textOfUnitType()
{
    QFETCH(QString, unitType);
    QFETCH(QString, language);
    LogCapture log;

    QTEST(m_units->getUnitText(unitType, language), "text");
    QTEST(takeMessageTexts(log), "messages");
    QVERIFY(isEmptyText(m_noUnits->getUnitText(unitType, language)));
    QCOMPARE(takeMessageTexts(log), QStringList());
}

void UnitManagerWrapperTextTest::textOfColumn_data()
{
    QTest::addColumn<unsigned int>("column");
    QTest::addColumn<QString>("text");
    QTest::newRow("default unit") << 0U << "Hektopascal";
    QTest::newRow("no unit type") << 1U << "";
    QTest::newRow("fixed unit") << 2U << "Bar";
    QTest::newRow("beyond the columns") << 3U << "";
}

void UnitManagerWrapperTextTest::textOfColumn()
{
    QFETCH(unsigned int, column);
    const Array2dDataTypeWrapper array({QVariant(QVariantList{1.5, 2.5, 3.5})},
                                       {T::pressure, QString(), T::pressure + "/Bar"});
    const LogCapture quiet;

    QTEST(m_units->getUnitTextArray(array, column, "de"), "text");
    QVERIFY(isEmptyText(m_noUnits->getUnitTextArray(array, column, "de")));
}

void UnitManagerWrapperTextTest::textMapAndBaseUnit_data()
{
    QTest::addColumn<QString>("unitType");
    QTest::addColumn<QVariant>("map");
    QTest::addColumn<QString>("baseUnit");
    row("unit type", T::pressure, QVariant(QVariantMap{{"en", "bar"}, {"de", "Bar"}}), T::pressure + "/Bar");
    row("fixed unit", T::pressure + "/MilliBar", QVariant(QVariantMap{{"en", "mbar"}}), "");
    row("unknown unit type", T::unknown, QVariant(), "");
}

void UnitManagerWrapperTextTest::textMapAndBaseUnit()
{
    QFETCH(QString, unitType);
    const LogCapture quiet;

    QTEST(m_units->getUnitTextJsonMap(unitType), "map");
    QTEST(m_units->getBaseUnit(unitType), "baseUnit");
    QCOMPARE(toDebugText(m_noUnits->getUnitTextJsonMap(unitType)), QStringLiteral("QString "));
    QVERIFY2(!m_noUnits->getUnitTextJsonMap(unitType).isNull(), "an empty text, not a null one");
    QVERIFY(isEmptyText(m_noUnits->getBaseUnit(unitType)));
}

void UnitManagerWrapperTextTest::unitManagerIsTheOneInUse()
{
    const QSharedPointer<const UnitManagerDevice> units = m_units->getUnitManager();
    unsigned int places = 77;

    QVERIFY(units->isValid());
    QCOMPARE(m_units->getUnitManager(), units);
    QVERIFY(units->getDecimalPlacesForUnit(T::pressure, QString(), places));
    QCOMPARE(places, 1U);
    QVERIFY(!m_noUnits->getUnitManager());
}

static const TestClass<UnitManagerWrapperTextTest> testClass;
#include "UnitManagerWrapperTextTest.moc"
