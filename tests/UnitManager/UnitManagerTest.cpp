#include "UnitManager.h"

#include <QtTest/QTest>

#include <type_traits>

#include "DebugText.h"
#include "DecimalPlaces.h"
#include "ExpectedMessages.h"
#include "LogCapture.h"
#include "Row.h"
#include "TestDocuments.h"
#include "TestProgram.h"
#include "TextFolder.h"

static_assert(std::has_virtual_destructor_v<UnitManager>);
static_assert(std::is_copy_constructible_v<UnitManager> && std::is_copy_assignable_v<UnitManager>);
static_assert(std::is_convertible_v<UnitManager, bool>);
static_assert(sizeof(UnitManager) == sizeof(void*) + sizeof(UnitManagerCore),
              "programs hold it by value: one member");

/// Loading, calls forwarded to the core, and copies. Conversions, node and array access have separate tests.
class UnitManagerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void newManagerIsEmpty();
    void bothTextsAreLoaded_data();
    void bothTextsAreLoaded();
    void bothFilesAreLoaded_data();
    void bothFilesAreLoaded();
    void oneFileResetsDefaultUnits_data();
    void oneFileResetsDefaultUnits();
    void singleDocumentsAreReplaced();
    void catalogueQueriesAreForwarded();
    void labelsAreForwarded();
    void fixedUnitsAreForwarded();
    void decimalPlacesAreForwarded_data();
    void decimalPlacesAreForwarded();
    void noUnitLabel();
    void copiesAreIndependent();
    void copyOutlivesItsOriginal();

private:
    TextFolder m_folder;
    QString m_unitPath;
    QString m_defaultUnitPath;
};

namespace {

namespace T = TestUnitType;

UnitManager loadedManager()
{
    UnitManager manager;
    manager.initByJsonString(TestDocuments::units(), TestDocuments::defaultUnits());
    return manager;
}

/// A manager with a different configuration from the one to be loaded.
UnitManager managerWithOldContent()
{
    UnitManager manager;
    manager.initByJsonString(TestDocuments::voltage(),
                             QStringLiteral(R"({ "Voltage": { "@type": "Selection", "@value": "Volt" } })"));
    return manager;
}

} // namespace

void UnitManagerTest::initTestCase()
{
    m_unitPath = m_folder.write(QStringLiteral("units.json"), TestDocuments::units());
    m_defaultUnitPath = m_folder.write(QStringLiteral("default-units.json"), TestDocuments::defaultUnits());
    QVERIFY(loadedManager().isValid());
    QVERIFY(managerWithOldContent().isValid());
}

void UnitManagerTest::newManagerIsEmpty()
{
    const UnitManager manager;
    const bool usable = manager;
    LogCapture log;

    QVERIFY(!manager.isValid());
    QVERIFY(!usable);
    QCOMPARE(manager.getListofUnitTypes(), QStringList());
    QCOMPARE(takeMessageTexts(log), QStringList());
}

void UnitManagerTest::bothTextsAreLoaded_data()
{
    QTest::addColumn<QString>("units");
    QTest::addColumn<QString>("defaultUnits");
    QTest::addColumn<bool>("loads");
    QTest::addColumn<bool>("isValid");
    QTest::addColumn<QString>("defaultUnit");

    row("both good", TestDocuments::units(), TestDocuments::defaultUnits(), true, true, "HectoPascal");
    row("units bad", "{", TestDocuments::defaultUnits(), false, false, "HectoPascal");
    row("units empty", "", TestDocuments::defaultUnits(), false, false, "HectoPascal");
    row("default units bad", TestDocuments::units(), "{", false, true, "");
    row("default units empty", TestDocuments::units(), "", true, true, "");
    row("both bad", "{", "{", false, false, "");
    row("both empty", "", "", false, false, "");
}

void UnitManagerTest::bothTextsAreLoaded()
{
    QFETCH(QString, units);
    QFETCH(QString, defaultUnits);
    UnitManager manager = managerWithOldContent();
    const LogCapture quiet;

    QTEST(manager.initByJsonString(units, defaultUnits), "loads");
    QTEST(manager.isValid(), "isValid");
    QTEST(manager.getDefaultUnit(T::pressure), "defaultUnit");
    QCOMPARE(manager.getDefaultUnit(T::voltage), QString());
    QCOMPARE(manager.getListofUnits(T::voltage), QStringList());
}

void UnitManagerTest::bothFilesAreLoaded_data()
{
    QTest::addColumn<QString>("unitPath");
    QTest::addColumn<QString>("defaultUnitPath");
    QTest::addColumn<bool>("loads");
    QTest::addColumn<bool>("isValid");
    QTest::addColumn<QString>("defaultUnit");

    const QString missing = m_folder.path(QStringLiteral("missing.json"));
    row("both exist", m_unitPath, m_defaultUnitPath, true, true, "HectoPascal");
    row("units missing", missing, m_defaultUnitPath, false, false, "HectoPascal");
    row("no unit path", "", m_defaultUnitPath, false, false, "HectoPascal");
    row("default units missing", m_unitPath, missing, false, true, "");
    row("no default-unit path", m_unitPath, "", true, true, "");
    row("files swapped", m_defaultUnitPath, m_unitPath, false, false, "");
}

void UnitManagerTest::bothFilesAreLoaded()
{
    QFETCH(QString, unitPath);
    QFETCH(QString, defaultUnitPath);
    UnitManager manager = managerWithOldContent();
    const LogCapture quiet;

    QTEST(manager.initByJsonFile(unitPath, defaultUnitPath), "loads");
    QTEST(manager.isValid(), "isValid");
    QTEST(manager.getDefaultUnit(T::pressure), "defaultUnit");
    QCOMPARE(manager.getDefaultUnit(T::voltage), QString());
    QCOMPARE(manager.getListofUnits(T::voltage), QStringList());
}

void UnitManagerTest::oneFileResetsDefaultUnits_data()
{
    QTest::addColumn<QString>("unitPath");
    QTest::addColumn<bool>("loads");

    row("exists", m_unitPath, true);
    row("missing", m_folder.path(QStringLiteral("missing.json")), false);
    row("no path", "", false);
}

void UnitManagerTest::oneFileResetsDefaultUnits()
{
    QFETCH(QString, unitPath);
    UnitManager manager = managerWithOldContent();
    LogCapture log;

    QTEST(manager.initByJsonFile(unitPath), "loads");
    QTEST(manager.isValid(), "loads");
    log.take();
    QCOMPARE(manager.getDefaultUnit(T::voltage), QString());
    QCOMPARE(takeMessageTexts(log), QStringList{Expected::noDefaultUnit(T::voltage)});
}

void UnitManagerTest::singleDocumentsAreReplaced()
{
    UnitManager manager = managerWithOldContent();
    const LogCapture quiet;

    QVERIFY(manager.updateUnitConversionByJsonString(TestDocuments::units()));
    QCOMPARE(manager.getDefaultUnit(T::voltage), QStringLiteral("Volt"));
    QVERIFY(manager.updateDefaultUnitsByJsonString(TestDocuments::defaultUnits()));
    QCOMPARE(manager.getDefaultUnit(T::voltage), QString());
    QCOMPARE(manager.getDefaultUnit(T::pressure), QStringLiteral("HectoPascal"));
    QVERIFY(manager.updateDefaultUnitsByJsonString(QString()));
    QVERIFY(manager.isValid());
    QVERIFY(manager.updateDefaultUnitsByJsonFile(m_defaultUnitPath));
    QCOMPARE(manager.getDefaultUnit(T::pressure), QStringLiteral("HectoPascal"));
    QVERIFY(!manager.updateUnitConversionByJsonString(QString()));
    QVERIFY(!manager.isValid());
    QVERIFY(manager.updateUnitConversionByJsonFile(m_unitPath));
    QVERIFY(manager.isValid());
}

void UnitManagerTest::catalogueQueriesAreForwarded()
{
    const UnitManager manager = loadedManager();
    LogCapture log;

    QStringList unitTypes = manager.getListofUnitTypes();
    unitTypes.sort();
    QCOMPARE(unitTypes, (QStringList{T::temperature, T::pressure, T::ratio}));
    QStringList units = manager.getListofUnits(T::ratio);
    units.sort();
    QCOMPARE(units, (QStringList{QStringLiteral("Counts"), QStringLiteral("Percentage")}));
    QCOMPARE(manager.getListofUnits(T::unknown), QStringList());
    QCOMPARE(manager.getBaseUnit(T::ratio), T::ratio + "/Percentage");
    QCOMPARE(manager.getDefaultUnit(T::noUnit), QString());
    QCOMPARE(takeMessageTexts(log), Expected::noDefaultUnitOfUnitLessType());

    QCOMPARE(manager.getBaseUnit(T::unknown), QString());
    QCOMPARE(manager.getDefaultUnit(T::unknown), QString());
    QCOMPARE(takeMessageTexts(log),
             (QStringList{Expected::noBaseUnit(T::unknown), Expected::noDefaultUnit(T::unknown)}));
}

void UnitManagerTest::labelsAreForwarded()
{
    const UnitManager manager = loadedManager();
    const QString german = QStringLiteral("de");
    LogCapture log;

    QCOMPARE(manager.getUnitText(T::pressure, german, QString()), QStringLiteral("Hektopascal"));
    QCOMPARE(manager.getUnitText(T::noUnit, german, QString()), QString());
    QCOMPARE(manager.getUnitTextJsonMap(T::pressure + "/MilliBar"), QVariant(QVariantMap{{"en", "mbar"}}));
    QCOMPARE(takeMessageTexts(log), Expected::noDefaultUnitOfUnitLessType());

    QCOMPARE(manager.getUnitText(T::pressure + "/Bar", german, QString()), QStringLiteral("Bar"));
    QCOMPARE(manager.getUnitText(T::pressure, german, QStringLiteral("Nope")), QString());
    QCOMPARE(takeMessageTexts(log), (QStringList{Expected::noDefaultUnit(T::pressure + "/Bar"),
                                                 Expected::unknownTextUnit("Nope", T::pressure)}));
}

void UnitManagerTest::fixedUnitsAreForwarded()
{
    const UnitManager manager;
    QString unitType;
    QString unit;
    LogCapture log;

    QVERIFY(manager.isFixedUnitType(QStringLiteral("///")));
    QVERIFY(!manager.isFixedUnitType(T::pressure));
    QVERIFY(!manager.extractUnitTypeAndUnit(T::pressure, unitType, unit));
    QCOMPARE(takeMessageTexts(log), QStringList{Expected::notAFixedUnit(T::pressure)});
    QVERIFY(manager.extractUnitTypeAndUnit(T::pressure + "/Bar", unitType, unit));
    QCOMPARE(unitType, T::pressure);
    QCOMPARE(unit, QStringLiteral("Bar"));
}

void UnitManagerTest::decimalPlacesAreForwarded_data()
{
    addDecimalPlacesRows();
}

void UnitManagerTest::decimalPlacesAreForwarded()
{
    checkDecimalPlaces(loadedManager());
}

void UnitManagerTest::noUnitLabel()
{
    QCOMPARE(UnitManager().getNoUnitLabelTextId(), T::noUnit);
}

void UnitManagerTest::copiesAreIndependent()
{
    UnitManager original = loadedManager();
    UnitManager copy = original;
    UnitManager assigned;
    assigned = original;

    QVERIFY(!copy.updateUnitConversionByJsonString(QString()));
    QVERIFY(copy.updateDefaultUnitsByJsonString(QString()));
    QVERIFY(original.updateUnitConversionByJsonString(TestDocuments::voltage()));

    LogCapture log;
    QVERIFY(!copy.isValid());
    QCOMPARE(original.getListofUnitTypes(), QStringList{T::voltage});
    QCOMPARE(original.getDefaultUnit(T::pressure), QStringLiteral("HectoPascal"));
    QCOMPARE(toDebugText(assigned.fromBaseUnit(1.5, T::pressure, QString())), QStringLiteral("double 1500"));
    QCOMPARE(assigned.getUnitText(T::pressure, QStringLiteral("de"), QString()),
             QStringLiteral("Hektopascal"));
    QCOMPARE(takeMessageTexts(log), QStringList());
}

void UnitManagerTest::copyOutlivesItsOriginal()
{
    auto original = std::make_unique<UnitManager>(loadedManager());
    const UnitManager copy = *original;
    original.reset();

    QVERIFY(copy.isValid());
    QCOMPARE(toDebugText(copy.toBaseUnit(1500, T::pressure, QStringLiteral("HectoPascal"))),
             QStringLiteral("double 1.5"));
}

static const TestClass<UnitManagerTest> testClass;

#include "UnitManagerTest.moc"
