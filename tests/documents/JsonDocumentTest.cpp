#include "JsonDocument.h"

#include <QtTest/QTest>

#include "DoubleBits.h"
#include "Row.h"
#include "TestProgram.h"

class JsonDocumentTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textIsKept_data();
    void textIsKept();
    void valuesAreListedInOrder();
    void valueHasItsType();
    void otherTypesHaveNeutralValues();
    void numberIsExact_data();
    void numberIsExact();
    void stringIsDecoded_data();
    void stringIsDecoded();
    void memberIsFoundByName();
    void copySharesTheContent();
    void largeObjectIsRead();
};

namespace {

/// Reads a document that must be valid.
JsonDocument read(const QByteArray& bytes)
{
    DocumentProblem problem;
    const std::optional<JsonDocument> document = JsonDocument::read(bytes, problem);
    if (!document)
        qFatal("%s", qPrintable(problem.withPlace()));
    return *document;
}

/// One line per value, parents first: path, name and its place, place, type.
QStringList describe(const JsonValue& value)
{
    const char* const types[] = {"null", "boolean", "number", "string", "array", "object"};
    QStringList lines{QString("%1|%2 %3:%4 %5:%6 %7")
                          .arg(value.path(), value.name())
                          .arg(value.namePlace().line)
                          .arg(value.namePlace().column)
                          .arg(value.place().line)
                          .arg(value.place().column)
                          .arg(types[static_cast<int>(value.type())])};
    for (const JsonValue& child : value.children())
        lines += describe(child);
    return lines;
}

} // namespace

void JsonDocumentTest::textIsKept_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("members");

    using Members = QStringList;
    row("empty object", QByteArray("{}"), "{}", Members{});
    row("blanks around it", QByteArray("\r\n {\"a\": 1}\t\n"), "\r\n {\"a\": 1}\t\n", Members{"a"});
    row("byte order mark", QByteArray("\xEF\xBB\xBF{\"a\": 1}"), "{\"a\": 1}", Members{"a"});
    row("characters of two, three and four bytes",
        QByteArray("{\"\xC2\xB5\": \"\xE2\x82\xAC \xF0\x9F\x93\x81\"}"),
        QString::fromUtf8("{\"\xC2\xB5\": \"\xE2\x82\xAC \xF0\x9F\x93\x81\"}"),
        Members{QString(QChar(0xB5))});
    row("replacement character that is meant", QByteArray("{\"a\": \"\xEF\xBF\xBD\"}"),
        QString::fromUtf8("{\"a\": \"\xEF\xBF\xBD\"}"), Members{"a"});
    row("null character escaped", QByteArray("{\"a\": \"\\u0000\"}"), "{\"a\": \"\\u0000\"}", Members{"a"});
    row("order of the document", QByteArray("{\"b\":1,\"c\":1,\"a\":1}"), "{\"b\":1,\"c\":1,\"a\":1}",
        Members{"b", "c", "a"});
}

void JsonDocumentTest::textIsKept()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, text);
    QFETCH(QStringList, members);

    const JsonDocument document = read(bytes);
    QCOMPARE(document.text(), text);
    QStringList names;
    for (const JsonValue& member : document.root().children())
        names.append(member.name());
    QCOMPARE(names, members);
}

void JsonDocumentTest::valuesAreListedInOrder()
{
    const JsonDocument document = read("{\n"
                                       "  \"Pressure\": {\n"
                                       "    \"Bar\": { \"Polynomial\": [[0], [1]] },\n"
                                       "    \"\xC2\xB5\": null, \"Empty\": {}\n"
                                       "  },\n"
                                       "  \"Ratio\": [ ]\n"
                                       "}\n");
    const QStringList expected{"| 1:1 1:1 object",
                               "Pressure|Pressure 2:3 2:15 object",
                               "Pressure/Bar|Bar 3:5 3:12 object",
                               "Pressure/Bar/Polynomial|Polynomial 3:14 3:28 array",
                               "Pressure/Bar/Polynomial/0| 3:29 3:29 array",
                               "Pressure/Bar/Polynomial/0/0| 3:30 3:30 number",
                               "Pressure/Bar/Polynomial/1| 3:34 3:34 array",
                               "Pressure/Bar/Polynomial/1/0| 3:35 3:35 number",
                               "Pressure/\u00B5|\u00B5 4:5 4:10 null",
                               "Pressure/Empty|Empty 4:16 4:25 object",
                               "Ratio|Ratio 6:3 6:12 array"};
    QCOMPARE(describe(document.root()), expected);
}

void JsonDocumentTest::valueHasItsType()
{
    const JsonDocument document = read(R"({"a": [null, true, false, -1, "b", [], {}]})");
    const std::vector<JsonValue> values = document.root().children()[0].children();
    QCOMPARE(values.size(), std::size_t(7));
    QCOMPARE(values[0].type(), JsonType::Null);
    QCOMPARE(values[1].type(), JsonType::Boolean);
    QCOMPARE(values[1].boolean(), true);
    QCOMPARE(values[2].type(), JsonType::Boolean);
    QCOMPARE(values[2].boolean(), false);
    QCOMPARE(values[3].type(), JsonType::Number);
    QCOMPARE(values[3].number(), -1.0);
    QCOMPARE(values[4].type(), JsonType::String);
    QCOMPARE(values[4].string(), "b");
    QCOMPARE(values[5].type(), JsonType::Array);
    QCOMPARE(values[6].type(), JsonType::Object);
}

void JsonDocumentTest::otherTypesHaveNeutralValues()
{
    const JsonDocument document = read(R"({"a": [null, true, 1, "true", ["b"], {"c": 1}]})");
    for (const JsonValue& value : document.root().children()[0].children()) {
        QCOMPARE(value.boolean(), value.type() == JsonType::Boolean);
        QCOMPARE(value.number(), value.type() == JsonType::Number ? 1.0 : 0.0);
        QCOMPARE(value.string(), QString(value.type() == JsonType::String ? "true" : ""));
        QCOMPARE(value.member("c").has_value(), value.type() == JsonType::Object);
        const bool hasChild = value.type() == JsonType::Array || value.type() == JsonType::Object;
        QCOMPARE(value.children().size(), std::size_t(hasChild ? 1 : 0));
    }
}

void JsonDocumentTest::numberIsExact_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<double>("number");

    row("0", QByteArray("0"), 0.0);
    row("-0", QByteArray("-0"), -0.0);
    row("0.1", QByteArray("0.1"), 0.1);
    row("-12.5e+3", QByteArray("-12.5e+3"), -12500.0);
    row("1E-5", QByteArray("1E-5"), 1e-5);
    row("14.50377377302092", QByteArray("14.50377377302092"), 14.50377377302092);
    row("more digits than a double has", QByteArray("0.1000000000000000055511151231257827"), 0.1);
    row("integer beyond 64 bits", QByteArray("36893488147419103232"), 36893488147419103232.0);
    row("largest", QByteArray("1.7976931348623157e308"), 1.7976931348623157e308);
    row("smallest", QByteArray("5e-324"), 5e-324);
    row("too small", QByteArray("1e-400"), 0.0);
    row("zero with a large exponent", QByteArray("0e999"), 0.0);
}

void JsonDocumentTest::numberIsExact()
{
    QFETCH(QByteArray, text);
    QFETCH(double, number);
    for (const char* after : {"}", ",\"b\":1}", " }", "\n}"}) {
        const JsonDocument document = read("{\"a\":" + text + after);
        QCOMPARE(bitsOf(document.root().children()[0].number()), bitsOf(number));
    }
}

void JsonDocumentTest::stringIsDecoded_data()
{
    QTest::addColumn<QByteArray>("encoded");
    QTest::addColumn<QString>("text");

    row("empty", QByteArray(""), "");
    row("plain", QByteArray("bar"), "bar");
    row("every short escape", QByteArray(R"(\"\\\/\b\f\n\r\t)"), "\"\\/\b\f\n\r\t");
    row("code units", QByteArray(R"(x\u00B5\u20acx)"), QString("x\u00B5\u20ACx"));
    row("surrogate pair", QByteArray(R"(\uD83D\uDCC1)"), QString::fromUtf8("\xF0\x9F\x93\x81"));
    row("null character", QByteArray(R"(a\u0000b)"), QString(QLatin1String("a\0b", 3)));
    row("escaped backslash before u", QByteArray(R"(\\u0041)"), "\\u0041");
    row("escaped quote before the end", QByteArray(R"(\\\")"), "\\\"");
    row("characters of two, three and four bytes", QByteArray("\xC2\xB5\xE2\x82\xAC\xF0\x9F\x93\x81"),
        QString::fromUtf8("\xC2\xB5\xE2\x82\xAC\xF0\x9F\x93\x81"));
    row("delete character", QByteArray("\x7F"), QString(QChar(0x7F)));
}

void JsonDocumentTest::stringIsDecoded()
{
    QFETCH(QByteArray, encoded);
    QFETCH(QString, text);
    const JsonDocument document = read("{\"" + encoded + "\":\"" + encoded + "\"}");
    const JsonValue value = document.root().children()[0];
    QCOMPARE(value.name(), text);
    QCOMPARE(value.string(), text);
}

void JsonDocumentTest::memberIsFoundByName()
{
    const JsonDocument document = read(R"({"a": {"c": 1}, "b": 2, "c": 3, "\u0064": 4})");
    const JsonValue root = document.root();
    QCOMPARE(root.member("b").value().number(), 2.0);
    QCOMPARE(root.member("c").value().number(), 3.0);
    QCOMPARE(root.member("d").value().number(), 4.0);
    QVERIFY(!root.member("e"));
    QVERIFY(!root.member(""));
}

void JsonDocumentTest::copySharesTheContent()
{
    std::optional<JsonDocument> document = read(R"({"a": "text"})");
    const JsonValue value = document->root().children()[0];
    const JsonDocument copy = *document;
    document.reset();
    QCOMPARE(value.string(), "text");
    QCOMPARE(copy.root().children()[0].path(), "a");
}

void JsonDocumentTest::largeObjectIsRead()
{
    const int count = 20000;
    QByteArray bytes = "{";
    for (int i = 0; i < count; ++i)
        bytes += "\"Unit" + QByteArray::number(i) + "\": [" + QByteArray::number(i) + "],\n";
    const JsonDocument document = read(bytes + "\"Last\": {}}");
    const std::vector<JsonValue> members = document.root().children();
    QCOMPARE(members.size(), std::size_t(count) + 1);
    QCOMPARE(members[12345].name(), "Unit12345");
    QCOMPARE(members[12345].children()[0].number(), 12345.0);
    QCOMPARE(members[12345].children()[0].path(), "Unit12345/0");
    QCOMPARE(members[count].place().line, count + 1);

    DocumentProblem problem;
    QVERIFY(!JsonDocument::read(bytes + "\"Unit12345\": {}}", problem));
    QCOMPARE(problem.withPlace(),
             "line 20001, column 1: duplicate name \"Unit12345\"; first at line 12346, column 1");
}

static const TestClass<JsonDocumentTest> testClass;
#include "JsonDocumentTest.moc"
