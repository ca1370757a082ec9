#include "ConfigurationAndProcessDataParser.h"

#include <QtTest/QTest>

#include "ExactText.h"
#include "LogCapture.h"
#include "NodeText.h"
#include "Row.h"
#include "TestProgram.h"

class ConfigurationAndProcessDataParserTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void documentBecomesATree_data();
    void documentBecomesATree();
    void stringIsUnescaped_data();
    void stringIsUnescaped();
    void numberIsTheNearestDouble_data();
    void numberIsTheNearestDouble();
    void unitCatalogueIsRead();
    void otherFileExtensionIsRefused();
    void treeOutlivesTheTextAndTheParser();
    void manyChildrenAreFoundByKey();
};

void ConfigurationAndProcessDataParserTest::documentBecomesATree_data()
{
    QTest::addColumn<QString>("json");
    QTest::addColumn<QString>("tree");

    row("empty object", "{}", R"({@type="TreeNode"})");
    row("blanks around everything", " \t\r\n{ \"a\" : [ 1 , 2 ] } \n",
        R"({@type="TreeNode", a={@type="Array", @value=[1, 2]}})");
    row("byte order mark", QString(QChar(0xfeff)) + "{}", R"({@type="TreeNode"})");
    row("number", R"({"a": 5})", R"({@type="TreeNode", a={@type="Number", @value=5}})");
    row("text", R"({"a": "x"})", R"({@type="TreeNode", a={@type="Text", @value="x"}})");
    row("empty text", R"({"a": ""})", R"({@type="TreeNode", a={@type="Text", @value=""}})");
    row("boolean", R"({"a": true, "b": false})",
        R"({@type="TreeNode", a={@type="Boolean", @value=true}, )"
        R"(b={@type="Boolean", @value=false}})");
    row("null child", R"({"a": null})", R"({@type="TreeNode", a=null})");
    row("array of everything", R"({"a": [1, "x ] y", true, null, [], {"k": [2]}, [[3], [4]]]})",
        R"({@type="TreeNode", a={@type="Array", )"
        R"(@value=[1, "x ] y", true, invalid, [], <k:[2]>, [[3], [4]]]}})");
    row("empty array", R"({"a": []})", R"({@type="TreeNode", a={@type="Array", @value=[]}})");
    row("array of texts beyond ASCII", QString(R"({"a": ["%1", "\u00b0"]})").arg(QChar(0xb5)),
        QString(R"({@type="TreeNode", a={@type="Array", @value=["%1", "%2"]}})")
            .arg(QChar(0xb5), QChar(0xb0)));
    row("value object", R"({"a": {"@value": {"en": "x", "de": "y"}}})",
        R"({@type="TreeNode", a={@type="TranslateableText", @value=<de:"y", en:"x">}})");
    row("value array", R"({"a": {"@value": [1]}})", R"({@type="TreeNode", a={@type="Array", @value=[1]}})");
    row("node with value and children", R"({"@value": 1, "a": {}})",
        R"({@type="Number", @value=1, a={@type="TreeNode"}})");
    row("selection", R"({"a": {"@type": "Selection", "@value": "x"}})",
        R"({@type="TreeNode", a={@type="Selection", @value="x"}})");
    row("type after the value", R"({"a": {"@value": "x", "@type": "Selection"}})",
        R"({@type="TreeNode", a={@type="Selection", @value="x"}})");
    row("type of an unknown name", R"({"@type": "Colour", "@value": "x"})",
        R"({@type="Colour", @value="x"})");
    row("type that is not a text", R"({"@type": 5, "@value": "x"})", R"({@type="Text", @value="x"})");
    row("type that is empty", R"({"@type": "", "@value": "x"})", R"({@type="Text", @value="x"})");
    row("marker", R"({"@type": "Number", "@value": null})", R"({@type="Number", @value=marker})");
    row("marker, type after it", R"({"@value": null, "@type": "Number"})",
        R"({@type="Number", @value=marker})");
    row("number type without value", R"({"@type": "Number"})", R"({@type="Number"})");
    row("null value without type", R"({"@value": null})", R"({@type="TreeNode"})");
    row("null value in a text", R"({"@type": "Text", "@value": null})", R"({@type="Text"})");
    row("null property", R"({"@unitType": null})", R"({@type="TreeNode"})");
    row("properties",
        R"({"@unitType": "P", "@displayPosition": 0, "@note": [1], "@measurementRangeAttributes": {"0": {}}})",
        R"({@type="TreeNode", @unitType="P", @displayPosition=0, @measurementRangeAttributes=<0:<>>, @note=[1]})");
    row("children of empty and odd names", R"({"": 1, " @value": 2})",
        R"({@type="TreeNode", ={@type="Number", @value=1},  @value={@type="Number", @value=2}})");
    row("notes for editors",
        R"({"$schema": "x", "a": 1, "$n": null, "$list": [[1], {"k": 2}], "$o": {"k": {"@value": 3}}})",
        R"({@type="TreeNode", a={@type="Number", @value=1}})");
    row("dollar sign alone is a note", R"({"$": {"@type": "Number", "@value": null}})",
        R"({@type="TreeNode"})");
    row("dollar sign below the root", R"({"a": {"$schema": 1}, "@note": {"$c": 2}})",
        R"({@type="TreeNode", @note=<$c:2>, a={@type="TreeNode", $schema={@type="Number", @value=1}}})");
    row("at sign alone is a property", R"({"@": 1})", R"({@type="TreeNode"})");
    row("child twice: the later counts", R"({"a": {"b": 1}, "a": 2})",
        R"({@type="TreeNode", a={@type="Number", @value=2}})");
    row("child twice, the later null", R"({"a": 1, "a": null})", R"({@type="TreeNode", a=null})");
    row("property twice", R"({"@note": 1, "@note": "x"})", R"({@type="TreeNode", @note="x"})");
    row("property twice, the later null", R"({"@note": 1, "@note": null})", R"({@type="TreeNode"})");
    row("value twice", R"({"@value": [1], "@value": 2})", R"({@type="Number", @value=2})");
    row("value twice, the later null", R"({"@type": "Number", "@value": 2, "@value": null})",
        R"({@type="Number", @value=marker})");
    row("value twice, the earlier null", R"({"@type": "Number", "@value": null, "@value": 2})",
        R"({@type="Number", @value=2})");
    row("language twice", R"({"@value": {"en": "x", "en": "y"}})",
        R"({@type="TranslateableText", @value=<en:"y">})");
}

void ConfigurationAndProcessDataParserTest::documentBecomesATree()
{
    QFETCH(QString, json);
    LogCapture log;

    QTEST(nodeText(parse(json)), "tree");
    QCOMPARE(log.takeTexts(), QStringList());
}

void ConfigurationAndProcessDataParserTest::stringIsUnescaped_data()
{
    QTest::addColumn<QString>("json");
    QTest::addColumn<QString>("text");

    row("quotes and slashes", R"("\"\\\/")", "\"\\/");
    row("control characters", R"("\b\f\n\r\t")", "\b\f\n\r\t");
    row("code points", R"("\u00b0C \u00B5m")",
        QString::fromUtf8("\xc2\xb0"
                          "C \xc2\xb5m"));
    row("pair of escapes", R"("\ud83c\udf21")", QString::fromUtf8("\xf0\x9f\x8c\xa1"));
    row("null character", R"("a\u0000b")", QString::fromUtf8("a\0b", 3));
    row("escape at the end", R"("a\\")", "a\\");
    row("escaped backslash before u", R"("\\u0041")", "\\u0041");
    row("unescaped text beyond the basic plane", QString::fromUtf8("\"\xf0\x9f\x8c\xa1\""),
        QString::fromUtf8("\xf0\x9f\x8c\xa1"));
    row("longer than what is shared", QString("\"%1\"").arg(QString(500, 'x')), QString(500, 'x'));
}

void ConfigurationAndProcessDataParserTest::stringIsUnescaped()
{
    QFETCH(QString, json);
    QFETCH(QString, text);
    const BaseClassSharedPointer root =
        parse(QString("{%1: {\"@note\": %1, \"a\": %1, \"b\": [%1, {%1: %1}]}}").replace("%1", json));
    QVERIFY(root);

    const BaseClassSharedPointer node = root->getChild(text);

    QVERIFY(node);
    QCOMPARE(node->getProperty(QStringLiteral("@note")).toString(), text);
    QCOMPARE(node->getChild(QStringLiteral("a"))->getProperty(QStringLiteral("@value")).toString(), text);
    const QVariantList list =
        node->getChild(QStringLiteral("b"))->getProperty(QStringLiteral("@value")).toList();
    QCOMPARE(list.value(0).toString(), text);
    QCOMPARE(list.value(1).toMap().value(text).toString(), text);
}

void ConfigurationAndProcessDataParserTest::numberIsTheNearestDouble_data()
{
    QTest::addColumn<QString>("json");
    QTest::addColumn<double>("number");

    row("zero", "0", 0.0);
    row("negative zero", "-0", -0.0);
    row("negative", "-12.5", -12.5);
    row("exponent", "1e3", 1000.0);
    row("large exponent sign", "1.5E+3", 1500.0);
    row("negative exponent", "25e-1", 2.5);
    row("seventeen digits", "0.10000000000000001", 0.1);
    row("more digits than a double holds", "3.14159265358979323846264338327950288419716939937510582097",
        3.141592653589793);
    row("above 2^53, to the even one", "9007199254740993", 9007199254740992.0);
    row("larger than 64 bits", "18446744073709551616", 18446744073709551616.0);
    row("largest", "1.7976931348623157e308", 1.7976931348623157e308);
    row("smallest normal", "2.2250738585072014e-308", 2.2250738585072014e-308);
    row("smallest", "5e-324", 5e-324);
    row("smaller than smallest", "1e-400", 0.0);
    row("beyond 64 bits", "18446744073709551616", 18446744073709551616.0);
    row("beyond 53 bits", "9007199254740993", 9007199254740992.0);
}

void ConfigurationAndProcessDataParserTest::numberIsTheNearestDouble()
{
    QFETCH(QString, json);
    QFETCH(double, number);
    const BaseClassSharedPointer root = parse(QString(R"({"a": %1, "b": [%1], "@note": %1})").arg(json));
    QVERIFY(root);

    const QVariant value = root->getChild(QStringLiteral("a"))->getProperty(QStringLiteral("@value"));

    QCOMPARE(value.userType(), static_cast<int>(QMetaType::Double));
    QCOMPARE(exactText(value.toDouble()), exactText(number));
    const QVariantList list =
        root->getChild(QStringLiteral("b"))->getProperty(QStringLiteral("@value")).toList();
    QCOMPARE(exactText(list.value(0)), exactText(value));
    QCOMPARE(exactText(root->getProperty(QStringLiteral("@note"))), exactText(value));
}

void ConfigurationAndProcessDataParserTest::unitCatalogueIsRead()
{
    const BaseClassSharedPointer root = parse(QStringLiteral(R"({
        "Pressure": {
            "Bar": { "@displayPosition": 0, "DecimalPlaces": 3, "Polynomial": [[0], [1]],
                     "InversePolynomial": [[0], [1]], "UnitLabel": { "@value": { "en": "bar" } } } } })"));

    QCOMPARE(nodeText(root),
             QStringLiteral(R"({@type="TreeNode", Pressure={@type="TreeNode", )"
                            R"(Bar={@type="TreeNode", @displayPosition=0, )"
                            R"(DecimalPlaces={@type="Number", @value=3}, )"
                            R"(InversePolynomial={@type="Array", @value=[[0], [1]]}, )"
                            R"(Polynomial={@type="Array", @value=[[0], [1]]}, )"
                            R"(UnitLabel={@type="TranslateableText", @value=<en:"bar">}}}})"));
}

void ConfigurationAndProcessDataParserTest::otherFileExtensionIsRefused()
{
    const ConfigurationAndProcessDataParser parser;
    QVERIFY(parser.parseFromJson(QStringLiteral("{}"), QStringLiteral("json")));
    QVERIFY(!parser.parseFromJson(QStringLiteral("{}"), QStringLiteral("xml")));
    QVERIFY(!parser.parseFromJson(QStringLiteral("{}"), QString()));
}

void ConfigurationAndProcessDataParserTest::treeOutlivesTheTextAndTheParser()
{
    BaseClassSharedPointer leaf;
    {
        QString json = QStringLiteral(R"({"a": {"b": [["x"]]}})");
        json.detach();
        leaf = parse(json)->getChild(QStringLiteral("a"))->getChild(QStringLiteral("b"));
        json.fill(QLatin1Char('-'));
    }
    QCOMPARE(nodeText(leaf), QStringLiteral(R"({@type="Array", @value=[["x"]]})"));
}

void ConfigurationAndProcessDataParserTest::manyChildrenAreFoundByKey()
{
    // From one child to more than the number up to which children are stored in a list.
    for (int count = 1; count <= 20; ++count) {
        QStringList members;
        for (int i = 0; i < count; ++i)
            members.append(QStringLiteral(R"("c%1": %1)").arg(i));
        members.append(QStringLiteral(R"("c0": 100)"));
        const BaseClassSharedPointer root =
            parse(QLatin1Char('{') + members.join(QLatin1Char(',')) + QLatin1Char('}'));
        QVERIFY(root);
        for (int pass = 0; pass < 2; ++pass) {
            for (int i = 0; i < count; ++i) {
                const BaseClassSharedPointer child = root->getChild(QStringLiteral("c%1").arg(i));
                QVERIFY(child);
                QCOMPARE(child->getProperty(QStringLiteral("@value")).toInt(), i == 0 ? 100 : i);
            }
            QVERIFY(!root->getChild(QStringLiteral("c%1").arg(count)));
            // The second pass tests the node after its map was created.
            QCOMPARE(root->getChildMap().size(), count);
        }
    }
}

static const TestClass<ConfigurationAndProcessDataParserTest> testClass;

#include "ConfigurationAndProcessDataParserTest.moc"
