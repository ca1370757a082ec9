#include "PropertyManagerConst.h"

#include <QtTest/QTest>

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

QTEST_GUILESS_MAIN(PropertyManagerConstTest)

#include "PropertyManagerConstTest.moc"
