#include "ConfigurationAndProcessDataTools.h"

#include <QtTest/QTest>

#include <limits>

#include "NodeText.h"
#include "Row.h"
#include "TestProgram.h"

using Tools = ConfigurationAndProcessDataTools;

class ConfigurationAndProcessDataToolsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void configValueIsThatOfTheChild_data();
    void configValueIsThatOfTheChild();
    void configValueWithoutNodeIsInvalid();
    void configValueIsWrittenToTheChild_data();
    void configValueIsWrittenToTheChild();
    void configValueIsNotWrittenWithoutNode();
    void numbersAreTheIntegerAndFloatingTypes_data();
    void numbersAreTheIntegerAndFloatingTypes();
    void markerIsAnyNanOfAFloatingType_data();
    void markerIsAnyNanOfAFloatingType();
};

void ConfigurationAndProcessDataToolsTest::configValueIsThatOfTheChild_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");

    row("number", "number", "3");
    row("array", "array", "[[0], [1.5]]");
    row("value property", "label", "<en:\"bar\">");
    row("tree node", "tree", "invalid");
    row("null child", "null", "invalid");
    row("no such child", "Number", "invalid");
    row("property of the node itself", "@note", "invalid");
}

void ConfigurationAndProcessDataToolsTest::configValueIsThatOfTheChild()
{
    QFETCH(QString, key);
    const BaseClassSharedPointer node = parse(QStringLiteral(
        R"({"number": 3, "array": [[0], [1.5]], "label": {"@value": {"en": "bar"}}, "tree": {"a": 1},
            "null": null, "@note": 5})"));

    QTEST(valueText(Tools::extractConfigValue(key, node)), "value");
}

void ConfigurationAndProcessDataToolsTest::configValueWithoutNodeIsInvalid()
{
    QCOMPARE(Tools::extractConfigValue(QStringLiteral("a"), {}), QVariant());
}

void ConfigurationAndProcessDataToolsTest::configValueIsWrittenToTheChild_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("valueAfter");

    QTest::newRow("other number") << "number" << QVariant(4.5) << 0 << "4.5";
    QTest::newRow("marker") << "number" << Tools::getNoInputValueIndicator() << 0 << "marker";
    QTest::newRow("equal number") << "number" << QVariant(3) << 1 << "3";
    QTest::newRow("text for a number") << "number" << QVariant("4.5") << 2 << "3";
    QTest::newRow("tree node") << "tree" << QVariant(1) << 2 << "invalid";
    QTest::newRow("null child") << "null" << QVariant(1) << 2 << "invalid";
    QTest::newRow("no such child") << "other" << QVariant(1) << 2 << "invalid";
}

void ConfigurationAndProcessDataToolsTest::configValueIsWrittenToTheChild()
{
    QFETCH(QString, key);
    QFETCH(QVariant, value);
    const BaseClassSharedPointer node =
        parse(QStringLiteral(R"({"number": 3, "tree": {"a": 1}, "null": null})"));

    QTEST(Tools::setConfigValueWithStatus(key, node, value), "status");
    QTEST(valueText(Tools::extractConfigValue(key, node)), "valueAfter");
}

void ConfigurationAndProcessDataToolsTest::configValueIsNotWrittenWithoutNode()
{
    QCOMPARE(Tools::setConfigValueWithStatus(QStringLiteral("a"), {}, 1), 2);
}

void ConfigurationAndProcessDataToolsTest::numbersAreTheIntegerAndFloatingTypes_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("isNumber");

    QTest::newRow("char") << QVariant::fromValue<char>(1) << true;
    QTest::newRow("signed char") << QVariant::fromValue<signed char>(1) << true;
    QTest::newRow("unsigned char") << QVariant::fromValue<unsigned char>(1) << true;
    QTest::newRow("short") << QVariant::fromValue<short>(1) << true;
    QTest::newRow("unsigned short") << QVariant::fromValue<unsigned short>(1) << true;
    QTest::newRow("int") << QVariant::fromValue<int>(1) << true;
    QTest::newRow("unsigned int") << QVariant::fromValue<unsigned int>(1) << true;
    QTest::newRow("long") << QVariant::fromValue<long>(1) << true;
    QTest::newRow("unsigned long") << QVariant::fromValue<unsigned long>(1) << true;
    QTest::newRow("long long") << QVariant::fromValue<qlonglong>(1) << true;
    QTest::newRow("unsigned long long") << QVariant::fromValue<qulonglong>(1) << true;
    QTest::newRow("float") << QVariant::fromValue<float>(1) << true;
    QTest::newRow("double") << QVariant::fromValue<double>(1) << true;
    QTest::newRow("marker") << Tools::getNoInputValueIndicator() << true;
    QTest::newRow("bool") << QVariant(true) << false;
    QTest::newRow("text of digits") << QVariant("1") << false;
    QTest::newRow("byte array of digits") << QVariant(QByteArray("1")) << false;
    QTest::newRow("character of text") << QVariant(QChar('1')) << false;
    QTest::newRow("list of a number") << QVariant(QVariantList{1}) << false;
    QTest::newRow("null pointer") << QVariant::fromValue(nullptr) << false;
    QTest::newRow("invalid variant") << QVariant() << false;
}

void ConfigurationAndProcessDataToolsTest::numbersAreTheIntegerAndFloatingTypes()
{
    QFETCH(QVariant, value);

    QTEST(Tools::isVariantNumber(value), "isNumber");
}

void ConfigurationAndProcessDataToolsTest::markerIsAnyNanOfAFloatingType_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("isMarker");

    QTest::newRow("marker") << Tools::getNoInputValueIndicator() << true;
    QTest::newRow("negative NaN") << QVariant(-std::numeric_limits<double>::quiet_NaN()) << true;
    QTest::newRow("signalling NaN") << QVariant(std::numeric_limits<double>::signaling_NaN()) << true;
    QTest::newRow("float NaN") << QVariant(std::numeric_limits<float>::quiet_NaN()) << true;
    QTest::newRow("number") << QVariant(1.0) << false;
    QTest::newRow("zero") << QVariant(0) << false;
    QTest::newRow("infinity") << QVariant(std::numeric_limits<double>::infinity()) << false;
    QTest::newRow("text") << QVariant("nan") << false;
    QTest::newRow("invalid variant") << QVariant() << false;
}

void ConfigurationAndProcessDataToolsTest::markerIsAnyNanOfAFloatingType()
{
    QFETCH(QVariant, value);

    QTEST(Tools::isNoInputValueIndicatorSet(value), "isMarker");
}

static const TestClass<ConfigurationAndProcessDataToolsTest> testClass;

#include "ConfigurationAndProcessDataToolsTest.moc"
