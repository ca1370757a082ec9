#include "ConfigurationAndProcessDataBase.h"

#include <QtTest/QTest>

#include <type_traits>

#include "ConfigurationAndProcessDataDefinitions.h"
#include "ConfigurationAndProcessDataTools.h"
#include "NodeText.h"
#include "Row.h"
#include "TestProgram.h"
#include "VirtualSlot.h"

namespace {

using Base = ConfigurationAndProcessDataBase;
using Definitions = ConfigurationAndProcessDataDefinitions;

static_assert(std::is_abstract_v<Base>);
static_assert(std::has_virtual_destructor_v<Base>);
static_assert(!std::is_copy_constructible_v<Base>);
static_assert(std::is_same_v<BaseClassSharedPointer, QSharedPointer<ConfigurationAndProcessDataBase>>);

/// The minimum that another library's node must implement.
class ForeignNode : public Base
{
public:
    ForeignNode(const QVariant& type, const QVariant& value) : m_type(type), m_value(value) {}
    BaseClassSharedPointer getChild(const QString& /*key*/) const override
    {
        return {};
    }
    QVariant getProperty(const QString& propertyKey) const override
    {
        if (propertyKey == Definitions::getKeyDataPropertyType())
            return m_type;
        return propertyKey == Definitions::getKeyDataPropertyValue() ? m_value : QVariant();
    }
    bool hasProperty(const QString& propertyKey) const override
    {
        return getProperty(propertyKey).isValid();
    }
    int changeProperty(const QString& /*propertyKey*/, const QVariant& /*value*/) override
    {
        return 2;
    }
    int setProperty(const QString& /*propertyKey*/, const QVariant& /*value*/) override
    {
        return 2;
    }

private:
    QVariant m_type;
    QVariant m_value;
};

} // namespace

class ConfigurationAndProcessDataBaseTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void virtualOperationsHaveAFixedOrder();
    void foreignNodeHasNoChildren();
    void parsedNodeListsItsChildren();
    void childMapIsOneObject();
    void numberTypeNeedsTypeAndNumber_data();
    void numberTypeNeedsTypeAndNumber();
};

void ConfigurationAndProcessDataBaseTest::virtualOperationsHaveAFixedOrder()
{
    // Compiled applications call these by their index in the table; the destructor occupies the first two.
    QCOMPARE(virtualSlot(&Base::getChild), std::size_t(2));
    QCOMPARE(virtualSlot(&Base::getProperty), std::size_t(3));
    QCOMPARE(virtualSlot(&Base::hasProperty), std::size_t(4));
    QCOMPARE(virtualSlot(&Base::changeProperty), std::size_t(5));
    QCOMPARE(virtualSlot(&Base::setProperty), std::size_t(6));
}

void ConfigurationAndProcessDataBaseTest::foreignNodeHasNoChildren()
{
    const ForeignNode node{QVariant(), QVariant()};
    QCOMPARE(node.getChildMap().size(), 0);
}

void ConfigurationAndProcessDataBaseTest::parsedNodeListsItsChildren()
{
    const BaseClassSharedPointer root = parse(QStringLiteral(R"({"a": 1, "b": null, "@note": 3})"));
    QVERIFY(root);

    const QHash<QString, BaseClassSharedPointer>& children = root->getChildMap();

    QCOMPARE(children.size(), 2);
    QVERIFY(children.contains(QStringLiteral("b")));
    QVERIFY(children.value(QStringLiteral("b")).isNull());
    QVERIFY(!children.value(QStringLiteral("a")).isNull());
    QCOMPARE(children.value(QStringLiteral("a")), root->getChild(QStringLiteral("a")));
}

void ConfigurationAndProcessDataBaseTest::childMapIsOneObject()
{
    const BaseClassSharedPointer root = parse(QStringLiteral(R"({"a": 1})"));
    QVERIFY(root);
    const BaseClassSharedPointer before = root->getChild(QStringLiteral("a"));

    QCOMPARE(&root->getChildMap(), &root->getChildMap());
    QCOMPARE(root->getChildMap().value(QStringLiteral("a")), before);
    QCOMPARE(root->getChild(QStringLiteral("a")), before);
}

void ConfigurationAndProcessDataBaseTest::numberTypeNeedsTypeAndNumber_data()
{
    QTest::addColumn<QVariant>("type");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("isNumber");
    QTest::addColumn<bool>("isNoInput");

    const QVariant number(Definitions::getKeyDataTypeNumber());
    const QVariant marker = ConfigurationAndProcessDataTools::getNoInputValueIndicator();
    row("double", number, QVariant(1.5), true, false);
    row("int", number, QVariant(1), true, false);
    row("marker", number, marker, true, true);
    row("marker as float", number, QVariant(marker.toFloat()), true, true);
    row("number type without value", number, QVariant(), false, false);
    row("number type with a text", number, QVariant("1"), false, false);
    row("number in a node of another type", QVariant("Selection"), QVariant(1.5), false, false);
    row("marker in a node of another type", QVariant("Selection"), marker, false, false);
    row("number in a node without type", QVariant(), QVariant(1.5), false, false);
}

void ConfigurationAndProcessDataBaseTest::numberTypeNeedsTypeAndNumber()
{
    QFETCH(QVariant, type);
    QFETCH(QVariant, value);

    const ForeignNode node(type, value);

    QTEST(node.isNumberType(), "isNumber");
    QTEST(node.isNumberNoInput(), "isNoInput");
}

static const TestClass<ConfigurationAndProcessDataBaseTest> testClass;

#include "ConfigurationAndProcessDataBaseTest.moc"
