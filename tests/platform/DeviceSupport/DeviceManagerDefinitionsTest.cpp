#include "DeviceManagerDefinitions.h"

#include <QtTest/QTest>

#include "TestProgram.h"

class DeviceManagerDefinitionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesAreThoseOfTheModule();
    void everyCallGivesTheSameObject();
};

void DeviceManagerDefinitionsTest::namesAreThoseOfTheModule()
{
    QCOMPARE(DeviceManagerDefinitions::getModuleName(), QStringLiteral("DeviceManager"));
    QCOMPARE(DeviceManagerDefinitions::getObjectNameUnitManagerConfiguration(),
             QStringLiteral("UnitManagerConfiguration"));
}

void DeviceManagerDefinitionsTest::everyCallGivesTheSameObject()
{
    QCOMPARE(&DeviceManagerDefinitions::getModuleName(), &DeviceManagerDefinitions::getModuleName());
    QCOMPARE(&DeviceManagerDefinitions::getObjectNameUnitManagerConfiguration(),
             &DeviceManagerDefinitions::getObjectNameUnitManagerConfiguration());
}

static const TestClass<DeviceManagerDefinitionsTest> testClass;

#include "DeviceManagerDefinitionsTest.moc"
