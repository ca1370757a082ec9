#include "UnitManagerCore.h"

#include <QtTest/QTest>

#include "ExpectedMessages.h"
#include "LogCapture.h"
#include "RecordingValueNode.h"
#include "Row.h"
#include "TestDocuments.h"
#include "TestProgram.h"

class UnitManagerCoreTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void unitText_data();
    void unitText();
    void unitTextOfNode_data();
    void unitTextOfNode();
    void unitTextMap_data();
    void unitTextMap();

private:
    UnitManagerCore m_core;
};

namespace {

namespace T = TestUnitType;

QVariantMap barLabel()
{
    return {{QStringLiteral("en"), QStringLiteral("bar")}, {QStringLiteral("de"), QStringLiteral("Bar")}};
}

} // namespace

void UnitManagerCoreTextTest::initTestCase()
{
    QVERIFY(m_core.updateUnitConversionByJsonString(TestDocuments::units()));
    QVERIFY(m_core.updateDefaultUnitsByJsonString(TestDocuments::defaultUnits()));
}

void UnitManagerCoreTextTest::unitText_data()
{
    QTest::addColumn<QString>("unitType");
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("messages");

    const QStringList none;
    const QString fixedBar = T::pressure + QStringLiteral("/Bar");
    row("unit", T::pressure, "de", "Bar", "Bar", none);
    row("unit in another language", T::pressure, "en", "Bar", "bar", none);
    row("language falls back", T::pressure, "de", "MilliBar", "mbar", none);
    row("empty unit is the default unit", T::pressure, "de", "", "Hektopascal", none);
    row("without default unit the base unit", T::ratio, "de", "", "%",
        QStringList{Expected::noDefaultUnit(T::ratio)});
    row("fixed unit beats the unit", fixedBar, "de", "HectoPascal", "Bar", none);
    row("fixed unit without unit queries its default unit", fixedBar, "de", "", "Bar",
        QStringList{Expected::noDefaultUnit(fixedBar)});
    row("unit-less type", T::noUnit, "de", "", "", Expected::noDefaultUnitOfUnitLessType());
    row("unit-less type with a unit", T::noUnit, "de", "Bar", "", none);
    row("unknown unit", T::pressure, "de", "Nope", "",
        QStringList{Expected::unknownTextUnit("Nope", T::pressure)});
    row("unknown fixed unit", T::pressure + "/Nope", "de", "Bar", "",
        QStringList{Expected::unknownTextUnit("Bar", T::pressure + "/Nope")});
    row("unknown unit type", T::unknown, "de", "Bar", "", QStringList{Expected::unknownTextType(T::unknown)});
    row("no unit type", "", "de", "", "",
        QStringList{Expected::noDefaultUnit(""), Expected::unknownTextType("")});
}

void UnitManagerCoreTextTest::unitText()
{
    QFETCH(QString, unitType);
    QFETCH(QString, language);
    QFETCH(QString, unit);
    LogCapture log;

    QTEST(m_core.getUnitText(unitType, language, unit), "text");
    QTEST(takeMessageTexts(log), "messages");
}

void UnitManagerCoreTextTest::unitTextOfNode_data()
{
    QTest::addColumn<QVariant>("unitType");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("messages");

    const QStringList none;
    const QStringList withoutType{Expected::noDefaultUnit(""), Expected::unknownTextType("")};
    row("unit", QVariant(T::pressure), "Bar", "Bar", none);
    row("empty unit is the default unit", QVariant(T::pressure), "", "Hektopascal", none);
    row("fixed unit", QVariant(T::pressure + "/MilliBar"), "Bar", "mbar", none);
    row("no unit type", QVariant(), "", "", withoutType);
    row("unit type that is not a text", QVariant(QVariantList{1}), "", "", withoutType);
}

void UnitManagerCoreTextTest::unitTextOfNode()
{
    QFETCH(QVariant, unitType);
    QFETCH(QString, unit);
    const auto node = RecordingValueNode::number(1.5, unitType);
    LogCapture log;

    QTEST(m_core.getUnitText(node, QStringLiteral("de"), unit), "text");
    QTEST(takeMessageTexts(log), "messages");
}

void UnitManagerCoreTextTest::unitTextMap_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("map");
    QTest::addColumn<QStringList>("messages");

    const QStringList none;
    row("unit type gives the base unit, not the default unit", T::pressure, QVariant(barLabel()), none);
    row("fixed unit", T::pressure + "/MilliBar", QVariant(QVariantMap{{"en", "mbar"}}), none);
    row("plain text", T::ratio + "/Counts", QVariant("cts"), none);
    row("unit-less type", T::noUnit, QVariant(QVariantMap{{"en", ""}}), none);
    row("unknown unit", T::pressure + "/Nope", QVariant(),
        QStringList{Expected::unknownTextMapUnit("Nope", T::pressure + "/Nope")});
    row("unknown unit type", T::unknown, QVariant(), QStringList{Expected::unknownTextMapType(T::unknown)});
}

void UnitManagerCoreTextTest::unitTextMap()
{
    QFETCH(QString, key);
    LogCapture log;

    QTEST(m_core.getUnitTextJsonMap(key), "map");
    QTEST(takeMessageTexts(log), "messages");
}

static const TestClass<UnitManagerCoreTextTest> testClass;

#include "UnitManagerCoreTextTest.moc"
