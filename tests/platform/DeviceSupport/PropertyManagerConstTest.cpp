#include "PropertyManagerConst.h"

#include <QtTest/QTest>

#include "TestProgram.h"

class PropertyManagerConstTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesAreThoseOfTheDevice();
    void everyCallGivesTheSameObject();
};

void PropertyManagerConstTest::namesAreThoseOfTheDevice()
{
    QCOMPARE(PropertyManagerConst::getUnitTypeNamePrefix(), QStringLiteral("UnitManager/UnitType/"));
    QCOMPARE(PropertyManagerConst::getConfigFileExtension(), QStringLiteral("json"));
    QCOMPARE(PropertyManagerConst::getDBusPrefix(), QStringLiteral("org.measuringdevice"));
}

void PropertyManagerConstTest::everyCallGivesTheSameObject()
{
    QCOMPARE(&PropertyManagerConst::getUnitTypeNamePrefix(), &PropertyManagerConst::getUnitTypeNamePrefix());
    QCOMPARE(&PropertyManagerConst::getConfigFileExtension(),
             &PropertyManagerConst::getConfigFileExtension());
    QCOMPARE(&PropertyManagerConst::getDBusPrefix(), &PropertyManagerConst::getDBusPrefix());
}

static const TestClass<PropertyManagerConstTest> testClass;

#include "PropertyManagerConstTest.moc"
