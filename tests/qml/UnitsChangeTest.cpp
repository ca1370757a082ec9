#include "LoadedUnits.h"

#include <QtCore/QLocale>
#include <QtTest/QTest>

#include <memory>

#include "ShippedService.h"
#include "TestProgram.h"
#include "WaitLimit.h"

/// The QML module while configuration and properties change.
class UnitsChangeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void waitsForService();
    void updatesBindingsWithConfiguration();
    void updatesBindingsWithProperties();
    void keepsUnitsWhenDocumentIsRefused();

private:
    std::unique_ptr<ShippedService> m_service;
};

void UnitsChangeTest::init()
{
    QLocale::setDefault(QLocale("en_US"));
    m_service = std::make_unique<ShippedService>();
    QVERIFY(m_service->startBus());
}

void UnitsChangeTest::waitsForService()
{
    LoadedUnits units;
    QCOMPARE(units.evaluate("state"), QVariant("waiting"));
    QCOMPARE(units.evaluate("ready"), QVariant(false));
    QCOMPARE(units.evaluate("shown"), QVariant("–, –"));
    QCOMPARE(units.evaluate("label(pressure)"), QVariant(""));
    QCOMPARE(units.evaluate("label(pressure, 'Bar')"), QVariant(""));
    QCOMPARE(units.evaluate("JSON.stringify(units(pressure))"), QVariant("[]"));
    QCOMPARE(units.evaluate("defaultUnit(pressure)"), QVariant(""));
    QCOMPARE(units.evaluate("isNaN(fromBase(1, pressure))"), QVariant(true));
    QCOMPARE(units.evaluate("toBase('1', pressure).error"), QVariant("The number cannot be converted."));

    QVERIFY(m_service->start());
    QVERIFY(units.waitFor("state", "ready"));
    QCOMPARE(units.evaluate("ready"), QVariant(true));
    QCOMPARE(units.evaluate("shown"), QVariant("101.325 bar, 45.7 %RH"));
    QCOMPARE(units.evaluate("adoptions"), QVariant(1));
}

void UnitsChangeTest::updatesBindingsWithConfiguration()
{
    QVERIFY(m_service->start());
    LoadedUnits units;
    QVERIFY(units.waitFor("state", "ready"));
    const int evaluations = units.evaluate("counter.evaluations").toInt();
    const int revision = units.evaluate("revision").toInt();

    QVERIFY(m_service->change("units.json", R"("en": "%RH")", R"("en": "% rel")"));
    QVERIFY(units.waitFor("shown", "101.325 bar, 45.7 % rel"));
    QCOMPARE(units.evaluate("counter.evaluations"), QVariant(evaluations + 1));
    QCOMPARE(units.evaluate("revision"), QVariant(revision + 1));
    QCOMPARE(units.evaluate("adoptions"), QVariant(2));
    QVERIFY(units.waitFor("state", "ready"));
}

void UnitsChangeTest::updatesBindingsWithProperties()
{
    QVERIFY(m_service->start());
    LoadedUnits units;
    QVERIFY(units.waitFor("state", "ready"));
    const int evaluations = units.evaluate("counter.evaluations").toInt();

    units.evaluate("language = 'de'");
    QCOMPARE(units.evaluate("shown"), QVariant("101.325 bar, 45.7 % r.F."));
    QCOMPARE(units.evaluate("counter.evaluations"), QVariant(evaluations + 1));
    units.evaluate("language = 'de'");
    QCOMPARE(units.evaluate("counter.evaluations"), QVariant(evaluations + 1));
    units.evaluate("groupSeparators = true");
    QCOMPARE(units.evaluate("counter.evaluations"), QVariant(evaluations + 2));
    QCOMPARE(units.evaluate("adoptions"), QVariant(1));
}

void UnitsChangeTest::keepsUnitsWhenDocumentIsRefused()
{
    QVERIFY(m_service->start());
    LoadedUnits units;
    QVERIFY(units.waitFor("state", "ready"));

    QVERIFY(m_service->change("units.json", R"("RelHumidity": {)", R"("RelHumidity": )"));
    QVERIFY(QTest::qWaitFor([this] { return m_service->log().contains("cannot use"); }, waitLimit));
    QCOMPARE(units.evaluate("state"), QVariant("ready"));
    QCOMPARE(units.evaluate("shown"), QVariant("101.325 bar, 45.7 %RH"));

    QVERIFY(m_service->change("default-units.json", "HectoPascal", "KiloPascal"));
    QVERIFY(units.waitFor("text(1, pressure)", "100.00 kPa"));
    QCOMPARE(units.evaluate("adoptions"), QVariant(2));
}

const TestClass<UnitsChangeTest> testClass;
#include "UnitsChangeTest.moc"
