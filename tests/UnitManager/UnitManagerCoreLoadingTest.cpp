#include "UnitManagerCore.h"

#include <QtTest/QTest>

#include "DebugText.h"
#include "ExpectedMessages.h"
#include "LogCapture.h"
#include "Row.h"
#include "TestDocuments.h"
#include "TestProgram.h"
#include "TextFolder.h"
#include "UnitTypes.h"

class UnitManagerCoreLoadingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void newCoreIsEmpty();
    void unitDocument_data();
    void unitDocument();
    void failedUnitDocumentLeavesNothing_data();
    void failedUnitDocumentLeavesNothing();
    void rejectedLabelsKeepTheNewCatalogue();
    void labelsAreLoadedAfterAFailedCatalogue();
    void secondUnitDocumentReplacesTheFirst();
    void defaultUnitDocument_data();
    void defaultUnitDocument();
    void failedDefaultUnitDocumentLeavesNothing();
    void defaultUnitsDoNotMatterForValidity();
    void unitFile();
    void unitFileThatCannotBeRead_data();
    void unitFileThatCannotBeRead();
    void emptyUnitPathReadsNothing();
    void defaultUnitFile();
    void defaultUnitFileThatCannotBeRead_data();
    void defaultUnitFileThatCannotBeRead();
    void emptyDefaultUnitPathReadsNothing();

private:
    TextFolder m_folder;
    UnitManagerCore m_core;
};

namespace {

namespace T = TestUnitType;

const QString unitsWithoutLabels =
    QStringLiteral(R"({ "Voltage": { "Volt": { "@displayPosition": 0, "Polynomial": [[0], [1]] } } })");

/// The number of messages about an unreadable file; the platform logs one for each attempt.
int failedReads(LogCapture& log, const QString& path)
{
    int reads = 0;
    for (const QString& text : log.takeTexts())
        reads += text.contains(path) ? 1 : 0;
    return reads;
}

void addUnreadableFiles()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isReported");

    row("missing file", "missing.json", true);
    row("missing folder", "missing/units.json", true);
    row("folder", ".", true);
    row("empty file", "empty.json", false);
}

} // namespace

void UnitManagerCoreLoadingTest::init()
{
    m_folder.write(QStringLiteral("empty.json"), QStringLiteral(""));
    m_core = UnitManagerCore();
    QVERIFY(m_core.updateUnitConversionByJsonString(TestDocuments::units()));
    QVERIFY(m_core.updateDefaultUnitsByJsonString(TestDocuments::defaultUnits()));
    QVERIFY(m_core.isValid());
}

void UnitManagerCoreLoadingTest::newCoreIsEmpty()
{
    const UnitManagerCore core;
    const bool usable = core;
    LogCapture log;

    QVERIFY(!core.isValid());
    QVERIFY(!usable);
    QCOMPARE(core.getListofUnitTypes(), QStringList());
    QCOMPARE(core.getListofUnits(T::pressure), QStringList());
    QCOMPARE(takeMessageTexts(log), QStringList());
}

void UnitManagerCoreLoadingTest::unitDocument_data()
{
    QTest::addColumn<QString>("json");
    QTest::addColumn<bool>("loads");
    QTest::addColumn<QStringList>("unitTypes");
    QTest::addColumn<QStringList>("messages");

    const QStringList none;
    row("units and labels", TestDocuments::voltage(), true, QStringList{T::voltage}, none);
    row("labels without conversions",
        R"({ "Voltage": { "Volt": { "@displayPosition": 0, "UnitLabel": "V" } } })", true,
        QStringList{T::voltage}, none);
    row("no base unit", R"({ "Voltage": { "Volt": { "@displayPosition": 1, "UnitLabel": "V" } } })", true,
        QStringList{T::voltage}, QStringList{Expected::noBaseUnitLabel(T::voltage)});
    row("no labels", unitsWithoutLabels, false, QStringList{T::voltage}, none);
    row("no units", R"({ "Voltage": {} })", false, QStringList{T::voltage},
        QStringList{Expected::noBaseUnitLabel(T::voltage)});
    row("null unit type", R"({ "Voltage": null })", false, QStringList{T::voltage},
        QStringList{Expected::noBaseUnitLabel(T::voltage)});
    row("no unit types", "{}", false, none, none);
    row("empty text", "", false, none, none);
    row("blanks", "  ", false, none, QStringList{Expected::invalidUnitDocument("  ")});
    row("torn document", R"({ "Voltage": )", false, none,
        QStringList{Expected::invalidUnitDocument(R"({ \"Voltage\": )")});
    row("list", "[1]", false, none, QStringList{Expected::invalidUnitDocument("[1]")});
}

void UnitManagerCoreLoadingTest::unitDocument()
{
    QFETCH(QString, json);
    QFETCH(bool, loads);
    LogCapture log;

    QCOMPARE(m_core.updateUnitConversionByJsonString(json), loads);
    QTEST(takeMessageTexts(log), "messages");
    QCOMPARE(m_core.isValid(), loads);
    QTEST(m_core.getListofUnitTypes(), "unitTypes");
    QCOMPARE(m_core.getDefaultUnit(T::pressure), QStringLiteral("HectoPascal"));
}

void UnitManagerCoreLoadingTest::failedUnitDocumentLeavesNothing_data()
{
    QTest::addColumn<QString>("json");

    row("empty text", "");
    row("torn document", "{");
    row("no unit types", "{}");
}

void UnitManagerCoreLoadingTest::failedUnitDocumentLeavesNothing()
{
    QFETCH(QString, json);
    LogCapture log;
    QVERIFY(!m_core.updateUnitConversionByJsonString(json));
    log.take();

    QVERIFY(!m_core.isValid());
    QCOMPARE(m_core.getListofUnitTypes(), QStringList());
    QCOMPARE(m_core.getUnitText(T::pressure, QStringLiteral("de"), QStringLiteral("Bar")), QString());
    QCOMPARE(m_core.getBaseUnit(T::pressure), QString());
    QCOMPARE(takeMessageTexts(log),
             (QStringList{Expected::unknownTextType(T::pressure), Expected::noBaseUnit(T::pressure)}));
}

void UnitManagerCoreLoadingTest::rejectedLabelsKeepTheNewCatalogue()
{
    QVERIFY(!m_core.updateUnitConversionByJsonString(unitsWithoutLabels));

    LogCapture log;
    QVERIFY(!m_core.isValid());
    QCOMPARE(m_core.getListofUnits(T::voltage), QStringList{QStringLiteral("Volt")});
    QCOMPARE(m_core.getListofUnits(T::pressure), QStringList());
    QCOMPARE(toDebugText(m_core.fromBaseUnit(3, T::voltage, QStringLiteral("Volt"))),
             QStringLiteral("double 3"));
    QCOMPARE(takeMessageTexts(log), QStringList());
}

void UnitManagerCoreLoadingTest::labelsAreLoadedAfterAFailedCatalogue()
{
    LogCapture log;
    QVERIFY(!m_core.updateUnitConversionByJsonString(QStringLiteral("{")));
    QCOMPARE(takeMessageTexts(log), QStringList{Expected::invalidUnitDocument("{")});

    QCOMPARE(m_core.getUnitTextJsonMap(T::pressure), QVariant());
    QCOMPARE(takeMessageTexts(log), QStringList{Expected::unknownTextMapType(T::pressure)});
}

void UnitManagerCoreLoadingTest::secondUnitDocumentReplacesTheFirst()
{
    QVERIFY(m_core.updateUnitConversionByJsonString(TestDocuments::voltage()));

    QCOMPARE(m_core.getListofUnitTypes(), QStringList{T::voltage});
    QCOMPARE(m_core.getUnitTextJsonMap(T::voltage), QVariant("V"));
    LogCapture log;
    QCOMPARE(m_core.getUnitTextJsonMap(T::pressure), QVariant());
    QCOMPARE(takeMessageTexts(log), QStringList{Expected::unknownTextMapType(T::pressure)});
}

void UnitManagerCoreLoadingTest::defaultUnitDocument_data()
{
    QTest::addColumn<QString>("json");
    QTest::addColumn<bool>("loads");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QStringList>("messages");

    const QStringList none;
    const QStringList unknown{Expected::noDefaultUnit(T::pressure)};
    const auto selection = [](const QString& value) {
        return QStringLiteral(R"({ "Pressure": { "@type": "Selection", "@value": %1 } })").arg(value);
    };
    row("unit name", selection(R"("Bar")"), true, "Bar", none);
    row("fixed unit", selection(withPlatformPrefix(R"("UnitManager/UnitType/Pressure/Bar")")), true, "Bar",
        none);
    row("value that ends in a slash", selection(R"("a/b/")"), true, "", none);
    row("number as value", selection("5"), true, "5", none);
    row("list as value", selection("[1]"), false, "", unknown);
    row("other type", R"({ "Pressure": { "@type": "Text", "@value": "Bar" } })", false, "", unknown);
    row("null entry", R"({ "Pressure": null })", false, "", unknown);
    row("other unit type", R"({ "Ratio": { "@type": "Selection", "@value": "Counts" } })", true, "", unknown);
    row("no entries", "{}", false, "", unknown);
    row("empty text", "", true, "", unknown);
    row("torn document", "{", false, "", QStringList{Expected::invalidDefaultUnitDocument()} + unknown);
}

void UnitManagerCoreLoadingTest::defaultUnitDocument()
{
    QFETCH(QString, json);
    LogCapture log;

    QTEST(m_core.updateDefaultUnitsByJsonString(json), "loads");
    QTEST(m_core.getDefaultUnit(T::pressure), "unit");
    QTEST(takeMessageTexts(log), "messages");
}

void UnitManagerCoreLoadingTest::failedDefaultUnitDocumentLeavesNothing()
{
    LogCapture log;
    QVERIFY(!m_core.updateDefaultUnitsByJsonString(QStringLiteral("{}")));

    QCOMPARE(m_core.getDefaultUnit(T::temperature), QString());
    QCOMPARE(takeMessageTexts(log), QStringList{Expected::noDefaultUnit(T::temperature)});
}

void UnitManagerCoreLoadingTest::defaultUnitsDoNotMatterForValidity()
{
    QVERIFY(m_core.updateDefaultUnitsByJsonString(QString()));
    QVERIFY(m_core.isValid());

    UnitManagerCore empty;
    QVERIFY(empty.updateDefaultUnitsByJsonString(QString()));
    QVERIFY(!empty.isValid());
    QVERIFY(empty.updateDefaultUnitsByJsonString(TestDocuments::defaultUnits()));
    QVERIFY(!empty.isValid());
}

void UnitManagerCoreLoadingTest::unitFile()
{
    const QString path = m_folder.write(QStringLiteral("voltage.json"), TestDocuments::voltage());
    LogCapture log;

    QVERIFY(m_core.updateUnitConversionByJsonFile(path));
    QVERIFY(m_core.isValid());
    QCOMPARE(m_core.getListofUnitTypes(), QStringList{T::voltage});
    QCOMPARE(m_core.getUnitTextJsonMap(T::voltage), QVariant("V"));
    QCOMPARE(takeMessageTexts(log), QStringList());
}

void UnitManagerCoreLoadingTest::unitFileThatCannotBeRead_data()
{
    addUnreadableFiles();
}

void UnitManagerCoreLoadingTest::unitFileThatCannotBeRead()
{
    QFETCH(QString, name);
    QFETCH(bool, isReported);
    const QString path = m_folder.path(name);
    LogCapture log;

    // Catalogue and labels each read the file.
    QVERIFY(!m_core.updateUnitConversionByJsonFile(path));
    QCOMPARE(failedReads(log, path), isReported ? 2 : 0);
    QVERIFY(!m_core.isValid());
    QCOMPARE(m_core.getListofUnitTypes(), QStringList());
    QCOMPARE(m_core.getUnitTextJsonMap(T::pressure), QVariant());
    QCOMPARE(takeMessageTexts(log), QStringList{Expected::unknownTextMapType(T::pressure)});
}

void UnitManagerCoreLoadingTest::emptyUnitPathReadsNothing()
{
    LogCapture log;

    QVERIFY(!m_core.updateUnitConversionByJsonFile(QString()));
    QVERIFY(!m_core.isValid());
    QCOMPARE(m_core.getListofUnitTypes(), QStringList());
    QCOMPARE(takeMessageTexts(log), QStringList());
    QCOMPARE(m_core.getUnitTextJsonMap(T::pressure), QVariant());
    QCOMPARE(takeMessageTexts(log), QStringList{Expected::unknownTextMapType(T::pressure)});
}

void UnitManagerCoreLoadingTest::defaultUnitFile()
{
    const QString path =
        m_folder.write(QStringLiteral("default-units.json"),
                       QStringLiteral(R"({ "Ratio": { "@type": "Selection", "@value": "Counts" } })"));
    LogCapture log;

    QVERIFY(m_core.updateDefaultUnitsByJsonFile(path));
    QCOMPARE(m_core.getDefaultUnit(T::ratio), QStringLiteral("Counts"));
    QCOMPARE(takeMessageTexts(log), QStringList());
    QCOMPARE(m_core.getDefaultUnit(T::pressure), QString());
    QCOMPARE(takeMessageTexts(log), QStringList{Expected::noDefaultUnit(T::pressure)});
}

void UnitManagerCoreLoadingTest::defaultUnitFileThatCannotBeRead_data()
{
    addUnreadableFiles();
}

void UnitManagerCoreLoadingTest::defaultUnitFileThatCannotBeRead()
{
    QFETCH(QString, name);
    QFETCH(bool, isReported);
    const QString path = m_folder.path(name);
    LogCapture log;

    // Unlike an empty path, an empty file is not a valid document.
    QVERIFY(!m_core.updateDefaultUnitsByJsonFile(path));
    QCOMPARE(failedReads(log, path), isReported ? 1 : 0);
    QVERIFY(m_core.isValid());
    QCOMPARE(m_core.getDefaultUnit(T::pressure), QString());
    QCOMPARE(takeMessageTexts(log), QStringList{Expected::noDefaultUnit(T::pressure)});
}

void UnitManagerCoreLoadingTest::emptyDefaultUnitPathReadsNothing()
{
    LogCapture log;

    QVERIFY(m_core.updateDefaultUnitsByJsonFile(QString()));
    QVERIFY(m_core.isValid());
    QCOMPARE(takeMessageTexts(log), QStringList());
    QCOMPARE(m_core.getDefaultUnit(T::pressure), QString());
    QCOMPARE(takeMessageTexts(log), QStringList{Expected::noDefaultUnit(T::pressure)});
}

static const TestClass<UnitManagerCoreLoadingTest> testClass;

#include "UnitManagerCoreLoadingTest.moc"
