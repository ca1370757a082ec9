#include "ConfigurationAndProcessDataDefinitions.h"

#include <QtTest/QTest>

#include "Row.h"
#include "TestProgram.h"

using Definitions = ConfigurationAndProcessDataDefinitions;
using Getter = const QString& (*)();

Q_DECLARE_METATYPE(Getter)

class ConfigurationAndProcessDataDefinitionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void getterNamesItsKey_data();
    void getterNamesItsKey();
};

void ConfigurationAndProcessDataDefinitionsTest::getterNamesItsKey_data()
{
    QTest::addColumn<Getter>("getter");
    QTest::addColumn<QString>("key");

    row("value", Getter(Definitions::getKeyDataPropertyValue), "@value");
    row("unit type", Getter(Definitions::getKeyDataPropertyUnitType), "@unitType");
    row("type", Getter(Definitions::getKeyDataPropertyType), "@type");
    row("display position", Getter(Definitions::getKeyDataPropertyDisplayPosition), "@displayPosition");
    row("measurement-range attributes", Getter(Definitions::getKeyDataPropertyMeasurementRangeAttributes),
        "@measurementRangeAttributes");
    row("read-only", Getter(Definitions::getKeyDataPropertyReadOnly), "@readOnly");
    row("tree node", Getter(Definitions::getKeyDataTypeTreeNode), "TreeNode");
    row("selection", Getter(Definitions::getKeyDataTypeSelection), "Selection");
    row("number", Getter(Definitions::getKeyDataTypeNumber), "Number");
    row("text", Getter(Definitions::getKeyDataTypeText), "Text");
    row("boolean", Getter(Definitions::getKeyDataTypeBoolean), "Boolean");
    row("array", Getter(Definitions::getKeyDataTypeArray), "Array");
    row("translateable text", Getter(Definitions::getKeyDataTypeTranslateableText), "TranslateableText");
}

void ConfigurationAndProcessDataDefinitionsTest::getterNamesItsKey()
{
    QFETCH(Getter, getter);

    QTEST(getter(), "key");
    QCOMPARE(&getter(), &getter());
}

static const TestClass<ConfigurationAndProcessDataDefinitionsTest> testClass;

#include "ConfigurationAndProcessDataDefinitionsTest.moc"
