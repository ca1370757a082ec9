#include <QtTest/QTest>

#include <limits>

#include "ConfigurationAndProcessDataTools.h"
#include "NodeText.h"
#include "Row.h"
#include "TestProgram.h"

namespace {

const double marker = std::numeric_limits<double>::quiet_NaN();

const QString numberNode = QStringLiteral(R"({"@type": "Number", "@value": 3, "@unitType": "P"})");
const QString noInputNode = QStringLiteral(R"({"@type": "Number", "@value": null})");
const QString textNode = QStringLiteral(R"({"@value": "x"})");
const QString selectionNode = QStringLiteral(R"({"@type": "Selection", "@value": "x"})");
const QString booleanNode = QStringLiteral(R"({"@value": true})");
const QString arrayNode = QStringLiteral(R"({"@value": [1, null]})");
const QString textsNode = QStringLiteral(R"({"@value": {"en": "x", "de": "y"}})");
const QString treeNode = QStringLiteral(R"({"a": 1})");
const QString readOnlyNode = QStringLiteral(R"({"@value": 3, "@unitType": "P", "@readOnly": true})");

} // namespace

class ConfigurationDataNodeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writeGivesAStatus_data();
    void writeGivesAStatus();
    void changeIsAWriteOfAPropertyThatIsThere_data();
    void changeIsAWriteOfAPropertyThatIsThere();
    void secondWriteFindsTheValueEqual_data();
    void secondWriteFindsTheValueEqual();
    void typeStaysWhenTheValueIsOfAnotherKind();
    void emptyNodeIsGivenATypeAndAValue();
    void readOnlyNodeStaysSo();
    void writtenArrayIsReadBack();
    void childrenAreNodesOfTheirOwn();
};

void ConfigurationDataNodeTest::writeGivesAStatus_data()
{
    QTest::addColumn<QString>("node");
    QTest::addColumn<QString>("property");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("after");

    const auto row = [](const char* name, const QString& node, const char* property, const QVariant& value,
                        int status, const char* after) {
        QTest::newRow(name) << node << property << value << status << after;
    };
    row("number: other number", numberNode, "@value", 4.5, 0, "4.5");
    row("number: nearly the same number", numberNode, "@value", 3.0000000000000004, 0, "3.0000000000000004");
    row("number: equal", numberNode, "@value", 3.0, 1, "3");
    row("number: equal integer", numberNode, "@value", 3, 1, "3");
    row("number: integer becomes a double", numberNode, "@value", 4, 0, "4");
    row("number: float becomes a double", numberNode, "@value", 0.5F, 0, "0.5");
    row("number: marker", numberNode, "@value", marker, 0, "marker");
    row("number: infinity", numberNode, "@value", std::numeric_limits<double>::infinity(), 0, "inf");
    row("number: text", numberNode, "@value", "4.5", 2, "3");
    row("number: boolean", numberNode, "@value", true, 2, "3");
    row("number: list", numberNode, "@value", QVariantList{1}, 2, "3");
    row("number: invalid variant", numberNode, "@value", QVariant(), 2, "3");
    row("marker: number", noInputNode, "@value", 1.5, 0, "1.5");
    row("marker: marker", noInputNode, "@value", marker, 1, "marker");
    row("marker: other NaN", noInputNode, "@value", -marker, 1, "marker");
    row("marker: NaN as float", noInputNode, "@value", std::numeric_limits<float>::quiet_NaN(), 1, "marker");
    row("text: other text", textNode, "@value", "y", 0, "\"y\"");
    row("text: equal", textNode, "@value", "x", 1, "\"x\"");
    row("text: case differs", textNode, "@value", "X", 0, "\"X\"");
    row("text: empty", textNode, "@value", "", 0, "\"\"");
    row("text: number", textNode, "@value", 1, 2, "\"x\"");
    row("text: boolean", textNode, "@value", true, 2, "\"x\"");
    row("text: map", textNode, "@value", QVariantMap{{"en", "y"}}, 2, "\"x\"");
    row("text: byte array", textNode, "@value", QByteArray("[1]"), 2, "\"x\"");
    row("selection: other text", selectionNode, "@value", "y", 0, "\"y\"");
    row("selection: number", selectionNode, "@value", 1, 2, "\"x\"");
    row("boolean: other", booleanNode, "@value", false, 0, "false");
    row("boolean: equal", booleanNode, "@value", true, 1, "true");
    row("boolean: number", booleanNode, "@value", 1, 2, "true");
    row("boolean: text", booleanNode, "@value", "false", 2, "true");
    row("array: other", arrayNode, "@value", QVariantList{1.0, 2.0}, 0, "[1, 2]");
    row("array: equal, of integers", arrayNode, "@value", QVariantList{1, QVariant()}, 1, "[1, invalid]");
    row("array: nested integers", arrayNode, "@value",
        QVariantList{QVariant(QVariantList{1}), QVariantMap{{"a", 2}}}, 0, "[[1], <a:2>]");
    row("array: equal", arrayNode, "@value", QVariantList{1.0, QVariant()}, 1, "[1, invalid]");
    row("array: longer", arrayNode, "@value", QVariantList{1.0, QVariant(), QVariant()}, 0,
        "[1, invalid, invalid]");
    row("array: empty", arrayNode, "@value", QVariantList(), 0, "[]");
    row("array: texts", arrayNode, "@value", QStringList{"a", "b"}, 0, "[\"a\", \"b\"]");
    row("array: text", arrayNode, "@value", "[1, null]", 2, "[1, invalid]");
    row("array: byte array", arrayNode, "@value", QByteArray("[2]"), 2, "[1, invalid]");
    row("texts: other", textsNode, "@value", QVariantMap{{"en", "z"}}, 0, "<en:\"z\">");
    row("texts: equal", textsNode, "@value", QVariantMap{{"de", "y"}, {"en", "x"}}, 1,
        "<de:\"y\", en:\"x\">");
    row("texts: hash that is equal", textsNode, "@value", QVariantHash{{"de", "y"}, {"en", "x"}}, 1,
        "<de:\"y\", en:\"x\">");
    row("texts: other languages, same texts", textsNode, "@value", QVariantMap{{"en", "y"}, {"fr", "x"}}, 0,
        "<en:\"y\", fr:\"x\">");
    row("texts: plain text", textsNode, "@value", "z", 0, "\"z\"");
    row("texts: list", textsNode, "@value", QStringList{"x"}, 2, "<de:\"y\", en:\"x\">");
    row("tree node: number", treeNode, "@value", 1, 2, "invalid");
    row("tree node: unit type", treeNode, "@unitType", "P", 0, "\"P\"");
    row("tree node: type of its own", treeNode, "@type", "TreeNode", 1, "\"TreeNode\"");
    row("unknown type: any kind", R"({"@type": "Colour", "@value": "x"})", "@value", 1, 0, "1");
    row("unknown type: no kind", R"({"@type": "Colour", "@value": "x"})", "@value", QByteArray("[1]"), 2,
        "\"x\"");
    row("unit type: other", numberNode, "@unitType", "Q", 0, "\"Q\"");
    row("unit type: equal", numberNode, "@unitType", "P", 1, "\"P\"");
    row("unit type: invalid variant", numberNode, "@unitType", QVariant(), 2, "\"P\"");
    row("new property", numberNode, "@note", "x", 0, "\"x\"");
    row("new property, invalid variant", numberNode, "@note", QVariant(), 2, "invalid");
    row("true is not any text", R"({"@note": "TreeNode"})", "@note", true, 0, "true");
    row("position: integer for the same double", R"({"@displayPosition": 2})", "@displayPosition", 2, 1, "2");
    row("map of a property", R"({"@measurementRangeAttributes": {"0": {"unit": "a"}}})",
        "@measurementRangeAttributes", QVariantMap{{"0", QVariantMap{{"unit", "b"}}}}, 0, "<0:<unit:\"b\">>");
    row("equal map of a property", R"({"@measurementRangeAttributes": {"0": {"unit": "a"}}})",
        "@measurementRangeAttributes", QVariantMap{{"0", QVariantMap{{"unit", "a"}}}}, 1, "<0:<unit:\"a\">>");
    row("array type: equal", R"({"@type": "Array", "@value": []})", "@type", "Array", 1, "\"Array\"");
    row("type that takes the value", textNode, "@type", "Selection", 0, "\"Selection\"");
    row("derived type", textNode, "@type", "Text", 1, "\"Text\"");
    row("type that does not take the value", textNode, "@type", "Number", 2, "\"Text\"");
    row("type that does not take the array", arrayNode, "@type", "Number", 2, "\"Array\"");
    row("type that is not a text", textNode, "@type", 5, 2, "\"Text\"");
    row("type that is empty", textNode, "@type", "", 2, "\"Text\"");
    row("read-only: other value", readOnlyNode, "@value", 4, 2, "3");
    row("read-only: equal value", readOnlyNode, "@value", 3, 2, "3");
    row("read-only: other property", readOnlyNode, "@unitType", "Q", 2, "\"P\"");
    row("read-only: new property", readOnlyNode, "@note", "x", 2, "invalid");
    row("read-only false", R"({"@value": 3, "@readOnly": false})", "@value", 4, 0, "4");
    row("read-only as a text", R"({"@value": 3, "@readOnly": "true"})", "@value", 4, 0, "4");
    row("read-only as a number", R"({"@value": 3, "@readOnly": 1})", "@value", 4, 0, "4");
    row("leaf", "5", "@value", 6, 0, "6");
    row("leaf: unit type", "5", "@unitType", "P", 0, "\"P\"");
}

void ConfigurationDataNodeTest::writeGivesAStatus()
{
    QFETCH(QString, node);
    QFETCH(QString, property);
    QFETCH(QVariant, value);
    const BaseClassSharedPointer root = parse(QStringLiteral("{\"n\": %1}").arg(node));
    QVERIFY(root);
    const BaseClassSharedPointer written = root->getChild(QStringLiteral("n"));

    QTEST(written->setProperty(property, value), "status");

    QTEST(valueText(written->getProperty(property)), "after");
    QCOMPARE(written->hasProperty(property), written->getProperty(property).isValid());
}

void ConfigurationDataNodeTest::changeIsAWriteOfAPropertyThatIsThere_data()
{
    QTest::addColumn<QString>("node");
    QTest::addColumn<QString>("property");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("after");

    row("other value", numberNode, "@value", QVariant(4), 0, "4");
    row("equal value", numberNode, "@value", QVariant(3), 1, "3");
    row("value of another kind", numberNode, "@value", QVariant("4"), 2, "3");
    row("no such property", numberNode, "@note", QVariant(4), 2, "invalid");
    row("no value", treeNode, "@value", QVariant(4), 2, "invalid");
    row("number type without value", R"({"@type": "Number"})", "@value", QVariant(4), 2, "invalid");
    row("derived type, equal", numberNode, "@type", QVariant("Number"), 1, "\"Number\"");
    row("read-only", readOnlyNode, "@value", QVariant(4), 2, "3");
}

void ConfigurationDataNodeTest::changeIsAWriteOfAPropertyThatIsThere()
{
    QFETCH(QString, node);
    QFETCH(QString, property);
    QFETCH(QVariant, value);
    const BaseClassSharedPointer root = parse(node);
    QVERIFY(root);

    QTEST(root->changeProperty(property, value), "status");
    QTEST(valueText(root->getProperty(property)), "after");
}

void ConfigurationDataNodeTest::secondWriteFindsTheValueEqual_data()
{
    QTest::addColumn<QString>("node");
    QTest::addColumn<QVariant>("value");

    QTest::newRow("number") << numberNode << QVariant(0.1);
    QTest::newRow("unsigned number") << numberNode << QVariant(7U);
    QTest::newRow("marker") << numberNode << QVariant(marker);
    QTest::newRow("text") << textNode << QVariant("y");
    QTest::newRow("array with the marker in it") << arrayNode << QVariant(QVariantList{1.5, marker});
    QTest::newRow("array in an array") << arrayNode << QVariant(QVariantList{QVariant(QVariantList{marker})});
    QTest::newRow("array of texts") << arrayNode << QVariant(QStringList{"a"});
    QTest::newRow("texts") << textsNode << QVariant(QVariantMap{{"fr", "z"}});
}

void ConfigurationDataNodeTest::secondWriteFindsTheValueEqual()
{
    QFETCH(QString, node);
    QFETCH(QVariant, value);
    const BaseClassSharedPointer root = parse(node);
    QVERIFY(root);

    QCOMPARE(root->setProperty(QStringLiteral("@value"), value), 0);
    QCOMPARE(root->setProperty(QStringLiteral("@value"), value), 1);
}

void ConfigurationDataNodeTest::typeStaysWhenTheValueIsOfAnotherKind()
{
    const BaseClassSharedPointer node = parse(textsNode);
    QVERIFY(node);

    QCOMPARE(node->setProperty(QStringLiteral("@value"), QStringLiteral("z")), 0);
    QCOMPARE(nodeText(node), QStringLiteral(R"({@type="TranslateableText", @value="z"})"));

    QCOMPARE(node->setProperty(QStringLiteral("@value"), QVariantMap{{"en", "x"}}), 0);
    QCOMPARE(nodeText(node), QStringLiteral(R"({@type="TranslateableText", @value=<en:"x">})"));
}

void ConfigurationDataNodeTest::emptyNodeIsGivenATypeAndAValue()
{
    const BaseClassSharedPointer node = parse(QStringLiteral("{}"));
    QVERIFY(node);

    QCOMPARE(node->setProperty(QStringLiteral("@type"), QStringLiteral("Number")), 0);
    QCOMPARE(node->setProperty(QStringLiteral("@value"), 5), 0);

    QCOMPARE(nodeText(node), QStringLiteral(R"({@type="Number", @value=5})"));
    QVERIFY(node->isNumberType());
    QVERIFY(!node->isNumberNoInput());
}

void ConfigurationDataNodeTest::readOnlyNodeStaysSo()
{
    const BaseClassSharedPointer node = parse(textNode);
    QVERIFY(node);

    QCOMPARE(node->setProperty(QStringLiteral("@readOnly"), true), 0);
    QCOMPARE(node->setProperty(QStringLiteral("@readOnly"), false), 2);
    QCOMPARE(node->setProperty(QStringLiteral("@value"), QStringLiteral("y")), 2);

    QCOMPARE(nodeText(node), QStringLiteral(R"({@type="Text", @value="x", @readOnly=true})"));
}

void ConfigurationDataNodeTest::writtenArrayIsReadBack()
{
    const BaseClassSharedPointer node = parse(arrayNode);
    QVERIFY(node);
    const QVariantList rows = {QVariant(QVariantList{0.5}),
                               QVariant(QVariantList{marker, QStringLiteral("x")})};

    QCOMPARE(node->setProperty(QStringLiteral("@value"), rows), 0);

    QCOMPARE(nodeText(node), QStringLiteral(R"({@type="Array", @value=[[0.5], [marker, "x"]]})"));
}

void ConfigurationDataNodeTest::childrenAreNodesOfTheirOwn()
{
    const BaseClassSharedPointer root = parse(QStringLiteral(R"({"a": 1, "b": 1})"));
    QVERIFY(root);

    QCOMPARE(root->getChild(QStringLiteral("a"))->setProperty(QStringLiteral("@value"), 2), 0);

    QCOMPARE(nodeText(root), QStringLiteral(R"({@type="TreeNode", a={@type="Number", @value=2}, )"
                                            R"(b={@type="Number", @value=1}})"));
}

static const TestClass<ConfigurationDataNodeTest> testClass;

#include "ConfigurationDataNodeTest.moc"
