#include "UnitManagerCore.h"

#include <QtTest/QTest>

#include "Described.h"
#include "LogCapture.h"
#include "RecordingValueNode.h"
#include "TestDocuments.h"

class UnitManagerCoreTextTest : public QObject
{
    Q_OBJECT

private slots:
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
    QTest::newRow("unit") << T::pressure << "de"
                          << "Bar"
                          << "Bar" << none;
    QTest::newRow("unit in another language") << T::pressure << "en"
                                              << "Bar"
                                              << "bar" << none;
    QTest::newRow("language falls back") << T::pressure << "de"
                                         << "MilliBar"
                                         << "mbar" << none;
    QTest::newRow("empty unit is the default unit") << T::pressure << "de"
                                                    << ""
                                                    << "Hektopascal" << none;
    QTest::newRow("without default unit the base unit")
        << T::ratio << "de"
        << ""
        << "%" << QStringList{Expected::noDefaultUnit(T::ratio)};
    QTest::newRow("fixed unit beats the unit") << fixedBar << "de"
                                               << "HectoPascal"
                                               << "Bar" << none;
    QTest::newRow("fixed unit without unit asks for its default unit")
        << fixedBar << "de"
        << ""
        << "Bar" << QStringList{Expected::noDefaultUnit(fixedBar)};
    QTest::newRow("unit-less type") << T::noUnit << "de"
                                    << ""
                                    << "" << none;
    QTest::newRow("unit-less type with a unit") << T::noUnit << "de"
                                                << "Bar"
                                                << "" << none;
    QTest::newRow("unknown unit") << T::pressure << "de"
                                  << "Nope"
                                  << "" << QStringList{Expected::unknownTextUnit("Nope", T::pressure)};
    QTest::newRow("unknown fixed unit")
        << T::pressure + "/Nope"
        << "de"
        << "Bar"
        << "" << QStringList{Expected::unknownTextUnit("Bar", T::pressure + "/Nope")};
    QTest::newRow("unknown unit type") << T::unknown << "de"
                                       << "Bar"
                                       << "" << QStringList{Expected::unknownTextType(T::unknown)};
    QTest::newRow("no unit type") << ""
                                  << "de"
                                  << ""
                                  << ""
                                  << QStringList{Expected::noDefaultUnit(""), Expected::unknownTextType("")};
}

void UnitManagerCoreTextTest::unitText()
{
    QFETCH(QString, unitType);
    QFETCH(QString, language);
    QFETCH(QString, unit);
    LogCapture log;

    QTEST(m_core.getUnitText(unitType, language, unit), "text");
    QTEST(describedMessages(log), "messages");
}

void UnitManagerCoreTextTest::unitTextOfNode_data()
{
    QTest::addColumn<QVariant>("unitType");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("messages");

    const QStringList none;
    const QStringList withoutType{Expected::noDefaultUnit(""), Expected::unknownTextType("")};
    QTest::newRow("unit") << QVariant(T::pressure) << "Bar"
                          << "Bar" << none;
    QTest::newRow("empty unit is the default unit") << QVariant(T::pressure) << ""
                                                    << "Hektopascal" << none;
    QTest::newRow("fixed unit") << QVariant(T::pressure + "/MilliBar") << "Bar"
                                << "mbar" << none;
    QTest::newRow("no unit type") << QVariant() << ""
                                  << "" << withoutType;
    QTest::newRow("unit type that is no text") << QVariant(QVariantList{1}) << ""
                                               << "" << withoutType;
}

void UnitManagerCoreTextTest::unitTextOfNode()
{
    QFETCH(QVariant, unitType);
    QFETCH(QString, unit);
    const auto node = RecordingValueNode::number(1.5, unitType);
    LogCapture log;

    QTEST(m_core.getUnitText(node, QStringLiteral("de"), unit), "text");
    QTEST(describedMessages(log), "messages");
}

void UnitManagerCoreTextTest::unitTextMap_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("map");
    QTest::addColumn<QStringList>("messages");

    const QStringList none;
    QTest::newRow("unit type gives the base unit, not the default unit")
        << T::pressure << QVariant(barLabel()) << none;
    QTest::newRow("fixed unit") << T::pressure + "/MilliBar" << QVariant(QVariantMap{{"en", "mbar"}}) << none;
    QTest::newRow("plain text") << T::ratio + "/Counts" << QVariant("cts") << none;
    QTest::newRow("unit-less type") << T::noUnit << QVariant(QVariantMap{{"en", ""}}) << none;
    QTest::newRow("unknown unit") << T::pressure + "/Nope" << QVariant()
                                  << QStringList{Expected::unknownTextMapUnit("Nope", T::pressure + "/Nope")};
    QTest::newRow("unknown unit type")
        << T::unknown << QVariant() << QStringList{Expected::unknownTextMapType(T::unknown)};
}

void UnitManagerCoreTextTest::unitTextMap()
{
    QFETCH(QString, key);
    LogCapture log;

    QTEST(m_core.getUnitTextJsonMap(key), "map");
    QTEST(describedMessages(log), "messages");
}

QTEST_GUILESS_MAIN(UnitManagerCoreTextTest)

#include "UnitManagerCoreTextTest.moc"
