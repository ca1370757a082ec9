#include "UnitManagerCore.h"

#include <QtTest/QTest>

#include <type_traits>

#include "DecimalPlaces.h"
#include "ExpectedMessages.h"
#include "LogCapture.h"
#include "RecordingValueNode.h"
#include "Row.h"
#include "TestDocuments.h"
#include "TestProgram.h"
#include "UnitTypes.h"

static_assert(std::has_virtual_destructor_v<UnitManagerCore>);
static_assert(std::is_copy_constructible_v<UnitManagerCore> && std::is_copy_assignable_v<UnitManagerCore>);
static_assert(std::is_convertible_v<UnitManagerCore, bool>);
static_assert(std::is_convertible_v<UnitConversionLookUp, bool>);
static_assert(std::is_convertible_v<DefaultUnitHandler, bool>);
static_assert(std::is_convertible_v<UnitTextHandler, bool>);
static_assert(sizeof(UnitManagerCore) == sizeof(void*) + sizeof(UnitConversionLookUp) +
                                             sizeof(DefaultUnitHandler) + sizeof(UnitTextHandler),
              "programs hold it by value: three members");

/// Fixed units, unit types of nodes, decimal places and the catalogue. Loading, conversions and labels have
/// separate tests.
class UnitManagerCoreTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void fixedUnitsAreRecognisedByTheirSlashes_data();
    void fixedUnitsAreRecognisedByTheirSlashes();
    void fixedUnitsAreSplitAtTheLastSlash_data();
    void fixedUnitsAreSplitAtTheLastSlash();
    void otherTextsAreNotSplit_data();
    void otherTextsAreNotSplit();
    void splittingMayOverwriteItsInput();
    void unitTypeOfNode_data();
    void unitTypeOfNode();
    void unitTypeOfNullNode();
    void unitTypeOfChild();
    void decimalPlaces_data();
    void decimalPlaces();
    void catalogueQueries();

private:
    UnitManagerCore m_core;
};

namespace {

namespace T = TestUnitType;

} // namespace

void UnitManagerCoreTest::init()
{
    m_core = UnitManagerCore();
    QVERIFY(m_core.updateUnitConversionByJsonString(TestDocuments::units()));
    QVERIFY(m_core.updateDefaultUnitsByJsonString(TestDocuments::defaultUnits()));
}

void UnitManagerCoreTest::fixedUnitsAreRecognisedByTheirSlashes_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isFixed");

    row("unit identifier", T::pressure + "/Bar", true);
    row("unit type", T::pressure, false);
    row("two slashes of other text", "a/b/c", false);
    row("three slashes of other text", "x/y/z/w", true);
    row("four slashes", T::pressure + "/Bar/x", false);
    row("last part empty", "a/b/c/", true);
    row("last two parts empty", "a/b//", true);
    row("all parts empty", "///", true);
    row("first part empty", "/a/b/c", true);
    row("prefix alone", typeNamed(""), false);
    row("backslashes do not count", "a\\b\\c\\d", false);
    row("division slashes do not count", QStringLiteral("a\u2215b\u2215c\u2215d"), false);
    row("empty", "", false);
}

void UnitManagerCoreTest::fixedUnitsAreRecognisedByTheirSlashes()
{
    QFETCH(QString, text);

    QTEST(m_core.isFixedUnitType(text), "isFixed");
    QTEST(UnitManagerCore().isFixedUnitType(text), "isFixed");
}

void UnitManagerCoreTest::fixedUnitsAreSplitAtTheLastSlash_data()
{
    QTest::addColumn<QString>("fixedUnit");
    QTest::addColumn<QString>("unitType");
    QTest::addColumn<QString>("unit");

    row("unit identifier", T::pressure + "/Bar", T::pressure, "Bar");
    row("other text", "x/y/z/w", "x/y/z", "w");
    row("last part empty", "a/b/c/", "a/b/c", "");
    row("last two parts empty", "a/b//", "a/b/", "");
    row("inner parts empty", "a///b", "a//", "b");
    row("all parts empty", "///", "//", "");
}

void UnitManagerCoreTest::fixedUnitsAreSplitAtTheLastSlash()
{
    QFETCH(QString, fixedUnit);
    QString unitType = QStringLiteral("old type");
    QString unit = QStringLiteral("old unit");
    LogCapture log;

    QVERIFY(m_core.extractUnitTypeAndUnit(fixedUnit, unitType, unit));
    QTEST(unitType, "unitType");
    QTEST(unit, "unit");
    QCOMPARE(takeMessageTexts(log), QStringList());
}

void UnitManagerCoreTest::otherTextsAreNotSplit_data()
{
    QTest::addColumn<QString>("text");

    row("unit type", T::pressure);
    row("four slashes", T::pressure + "/Bar/x");
    row("unit name", "Bar");
    row("empty", "");
}

void UnitManagerCoreTest::otherTextsAreNotSplit()
{
    QFETCH(QString, text);
    QString unitType = QStringLiteral("old type");
    QString unit = QStringLiteral("old unit");
    LogCapture log;

    QVERIFY(!m_core.extractUnitTypeAndUnit(text, unitType, unit));
    QCOMPARE(unitType, QStringLiteral("old type"));
    QCOMPARE(unit, QStringLiteral("old unit"));
    QCOMPARE(takeMessageTexts(log), QStringList{Expected::notAFixedUnit(text)});
}

void UnitManagerCoreTest::splittingMayOverwriteItsInput()
{
    QString intoType = T::pressure + QStringLiteral("/Bar");
    QString unit;
    QVERIFY(m_core.extractUnitTypeAndUnit(intoType, intoType, unit));
    QCOMPARE(intoType, T::pressure);
    QCOMPARE(unit, QStringLiteral("Bar"));

    QString intoUnit = T::pressure + QStringLiteral("/Bar");
    QString unitType;
    QVERIFY(m_core.extractUnitTypeAndUnit(intoUnit, unitType, intoUnit));
    QCOMPARE(unitType, T::pressure);
    QCOMPARE(intoUnit, QStringLiteral("Bar"));

    QString intoBoth;
    QVERIFY(m_core.extractUnitTypeAndUnit(T::pressure + QStringLiteral("/Bar"), intoBoth, intoBoth));
    QCOMPARE(intoBoth, T::pressure);
}

void UnitManagerCoreTest::unitTypeOfNode_data()
{
    QTest::addColumn<QVariant>("property");
    QTest::addColumn<bool>("found");
    QTest::addColumn<QString>("unitType");
    QTest::addColumn<QStringList>("calls");

    const QStringList queried{QStringLiteral("hasProperty @unitType")};
    const QStringList read = queried + QStringList{QStringLiteral("getProperty @unitType")};

    row("text", QVariant(T::pressure), true, T::pressure, read);
    row("fixed unit stays whole", QVariant(T::pressure + "/Bar"), true, T::pressure + "/Bar", read);
    row("empty text", QVariant(QString("")), true, "", read);
    row("number converts to a text", QVariant(5), true, "5", read);
    row("list does not convert", QVariant(QVariantList{1}), false, "old type", read);
    row("map does not convert", QVariant(QVariantMap{{"en", "bar"}}), false, "old type", read);
    row("no property", QVariant(), false, "old type", queried);
}

// Calls and their order are visible to the node classes of other libraries.
void UnitManagerCoreTest::unitTypeOfNode()
{
    QFETCH(QVariant, property);
    QFETCH(QString, unitType);
    const auto node = RecordingValueNode::number(1.5, property);
    QString foundType = QStringLiteral("old type");
    QString unit = QStringLiteral("old unit");
    LogCapture log;

    QTEST(m_core.getUnitProperties(node, foundType, unit), "found");
    QCOMPARE(foundType, unitType);
    QCOMPARE(unit, QStringLiteral("old unit"));
    QTEST(node->calls(), "calls");
    QCOMPARE(takeMessageTexts(log), QStringList());
}

void UnitManagerCoreTest::unitTypeOfNullNode()
{
    QString unitType = QStringLiteral("old type");
    QString unit = QStringLiteral("old unit");
    LogCapture log;

    QVERIFY(!m_core.getUnitProperties(BaseClassSharedPointer(), unitType, unit));
    QVERIFY(!m_core.getUnitProperties(BaseClassSharedPointer(), QStringLiteral("Value"), unitType, unit));
    QCOMPARE(unitType, QStringLiteral("old type"));
    QCOMPARE(unit, QStringLiteral("old unit"));
    QCOMPARE(takeMessageTexts(log), QStringList());
}

void UnitManagerCoreTest::unitTypeOfChild()
{
    const auto child = RecordingValueNode::number(1.5, T::pressure);
    const auto parent = RecordingValueNode::parentOf(child);
    QString unitType = QStringLiteral("old type");
    QString unit = QStringLiteral("old unit");

    QVERIFY(!m_core.getUnitProperties(parent, QStringLiteral("Missing"), unitType, unit));
    QCOMPARE(unitType, QStringLiteral("old type"));
    QVERIFY(m_core.getUnitProperties(parent, QStringLiteral("Value"), unitType, unit));
    QCOMPARE(unitType, T::pressure);
    QCOMPARE(unit, QStringLiteral("old unit"));
    QCOMPARE(parent->calls(),
             (QStringList{QStringLiteral("getChild Missing"), QStringLiteral("getChild Value")}));
}

void UnitManagerCoreTest::decimalPlaces_data()
{
    addDecimalPlacesRows();
}

void UnitManagerCoreTest::decimalPlaces()
{
    checkDecimalPlaces(m_core);
}

void UnitManagerCoreTest::catalogueQueries()
{
    QStringList unitTypes = m_core.getListofUnitTypes();
    unitTypes.sort();
    QCOMPARE(unitTypes, (QStringList{T::temperature, T::pressure, T::ratio}));
    QStringList units = m_core.getListofUnits(T::pressure);
    units.sort();
    QCOMPARE(units, (QStringList{"Bar", "HectoPascal", "MilliBar"}));

    LogCapture log;
    QCOMPARE(m_core.getListofUnits(T::unknown), QStringList());
    QCOMPARE(m_core.getListofUnits(QStringLiteral("Pressure")), QStringList());
    QCOMPARE(m_core.getBaseUnit(T::pressure), T::pressure + "/Bar");
    QCOMPARE(m_core.getDefaultUnit(T::temperature), QStringLiteral("Celsius"));
    QCOMPARE(m_core.getDefaultUnit(T::noUnit), QString());
    QCOMPARE(takeMessageTexts(log), Expected::noDefaultUnitOfUnitLessType());

    QCOMPARE(m_core.getBaseUnit(QStringLiteral("NoUnit")), QString());
    QCOMPARE(m_core.getDefaultUnit(T::ratio), QString());
    QCOMPARE(takeMessageTexts(log),
             (QStringList{Expected::noBaseUnit("NoUnit"), Expected::noDefaultUnit(T::ratio)}));
}

static const TestClass<UnitManagerCoreTest> testClass;

#include "UnitManagerCoreTest.moc"
