#include <QtTest/QTest>

#include "ConfigurationAndProcessDataDefinitions.h"

using Definitions = ConfigurationAndProcessDataDefinitions;
using Getter = const QString& (*)();

Q_DECLARE_METATYPE(Getter)

class ConfigurationAndProcessDataDefinitionsTest : public QObject
{
    Q_OBJECT

private slots:
    void getterNamesItsKey_data();
    void getterNamesItsKey();
};

void ConfigurationAndProcessDataDefinitionsTest::getterNamesItsKey_data()
{
    QTest::addColumn<Getter>("getter");
    QTest::addColumn<QString>("key");

    QTest::newRow("value") << Getter(Definitions::getKeyDataPropertyValue) << "@value";
    QTest::newRow("unit type") << Getter(Definitions::getKeyDataPropertyUnitType) << "@unitType";
    QTest::newRow("type") << Getter(Definitions::getKeyDataPropertyType) << "@type";
    QTest::newRow("display position")
        << Getter(Definitions::getKeyDataPropertyDisplayPosition) << "@displayPosition";
    QTest::newRow("measurement-range attributes")
        << Getter(Definitions::getKeyDataPropertyMeasurementRangeAttributes) << "@measurementRangeAttributes";
    QTest::newRow("read-only") << Getter(Definitions::getKeyDataPropertyReadOnly) << "@readOnly";
    QTest::newRow("tree node") << Getter(Definitions::getKeyDataTypeTreeNode) << "TreeNode";
    QTest::newRow("selection") << Getter(Definitions::getKeyDataTypeSelection) << "Selection";
    QTest::newRow("number") << Getter(Definitions::getKeyDataTypeNumber) << "Number";
    QTest::newRow("text") << Getter(Definitions::getKeyDataTypeText) << "Text";
    QTest::newRow("boolean") << Getter(Definitions::getKeyDataTypeBoolean) << "Boolean";
    QTest::newRow("array") << Getter(Definitions::getKeyDataTypeArray) << "Array";
    QTest::newRow("translateable text")
        << Getter(Definitions::getKeyDataTypeTranslateableText) << "TranslateableText";
}

void ConfigurationAndProcessDataDefinitionsTest::getterNamesItsKey()
{
    QFETCH(Getter, getter);

    QTEST(getter(), "key");
    QCOMPARE(&getter(), &getter());
}

QTEST_GUILESS_MAIN(ConfigurationAndProcessDataDefinitionsTest)

#include "ConfigurationAndProcessDataDefinitionsTest.moc"
