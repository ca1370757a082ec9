#include <QtTest/QTest>

#include "JsonDocument.h"
#include "Row.h"
#include "TestProgram.h"

/// What JsonDocument reports for invalid documents: line, column and reason.
class JsonProblemsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void problemHasItsPlace_data();
    void problemHasItsPlace();
    void depthIsLimited_data();
    void depthIsLimited();

private:
    void addDocuments();
    void addNumbers();
    void addStrings();
    void addDuplicates();
};

namespace {

/// A row of problemHasItsPlace().
void addRow(const char* name, const QByteArray& bytes, const char* problem)
{
    row(name, bytes, QString(problem));
}

} // namespace

void JsonProblemsTest::problemHasItsPlace_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("problem");
    addDocuments();
    addNumbers();
    addStrings();
    addDuplicates();
}

void JsonProblemsTest::addDocuments()
{
    // Without place: the whole document.
    addRow("empty", "", "0:0: is empty");
    addRow("blank", " \n ", "0:0: is empty");
    addRow("byte order mark only", "\xEF\xBB\xBF", "0:0: is empty");
    addRow("array", "[1]", "1:1: expected \"{\" at the start of the document");
    addRow("string", "\"a\"", "1:1: expected \"{\" at the start of the document");
    addRow("plain text", "\nPressure = bar", "2:1: expected \"{\" at the start of the document");
    addRow("second byte order mark", "\xEF\xBB\xBF\xEF\xBB\xBF{}",
           "1:1: expected \"{\" at the start of the document");
    addRow("byte order mark does not count", "\xEF\xBB\xBF{\"A\" 1}", "1:6: expected \":\" after the name");
    addRow("text after the end", "{}\n {}", "2:2: expected the end of the document");
    addRow("null byte after the end", QByteArray("{}\0", 3), "1:3: expected the end of the document");

    addRow("missing comma", "{\n\"a\": 1\n\"b\": 2}", "3:1: expected \",\" or \"}\"");
    addRow("missing comma with carriage returns", "{\r\n\"a\": 1\r\n\"b\": 2}",
           "3:1: expected \",\" or \"}\"");
    addRow("missing comma in an array", "{\"a\": [1 2]}", "1:10: expected \",\" or \"]\"");
    addRow("wrong bracket of an array", "{\"a\": [1}", "1:9: expected \",\" or \"]\"");
    addRow("wrong bracket of an object", "{\"a\": 1]", "1:8: expected \",\" or \"}\"");
    addRow("comma at the end of an object", "{\"a\": 1,\n}", "1:8: remove the comma before \"}\"");
    addRow("comma at the end of an array", "{\"a\": [1, ]}", "1:9: remove the comma before \"]\"");
    addRow("comma at the start", "{,\"a\": 1}", "1:2: expected a name in double quotes");
    addRow("two commas", "{\"a\": [1,,2]}", "1:10: expected a value");
    addRow("missing colon", "{\"a\" 1}", "1:6: expected \":\" after the name");
    addRow("missing value", "{\"a\": }", "1:7: expected a value");
    addRow("name without quotes", "{\n\ta: 1}", "2:2: expected a name in double quotes");
    addRow("name in single quotes", "{'a': 1}", "1:2: write double quotes instead of single quotes");
    addRow("value in single quotes", "{\"a\": 'x'}", "1:7: write double quotes instead of single quotes");
    addRow("column in characters", "{\"\xC3\xA4\xE2\x82\x82\": 1 2}", "1:10: expected \",\" or \"}\"");

    const char* const comment = "remove the comment; JSON has none";
    const QByteArray reason(comment);
    addRow("comment at the start", "// units\n{}", "1:1: " + reason);
    addRow("comment before a name", "{\n  // bar\n  \"a\": 1}", "2:3: " + reason);
    addRow("comment after a name", "{\"a\" /* bar */: 1}", "1:6: " + reason);
    addRow("comment before a value", "{\"a\": /* bar */ 1}", "1:7: " + reason);
    addRow("comment after a value", "{\"a\": 1 // bar\n}", "1:9: " + reason);
    addRow("comment after a comma", "{\"a\": 1, // bar\n \"b\": 2}", "1:10: " + reason);
    addRow("comment at the end", "{}\n# done", "2:1: " + reason);

    addRow("end after a bracket", "{", "1:2: unexpected end; the \"{\" at line 1, column 1 is not closed");
    addRow("end on the next line", "{\n  \"A\": [\n",
           "3:1: unexpected end; the \"[\" at line 2, column 8 is not closed");
    addRow("end after a name", "{\"a\"", "1:5: unexpected end; the \"{\" at line 1, column 1 is not closed");
    addRow("end after a colon",
           "{\"a\":", "1:6: unexpected end; the \"{\" at line 1, column 1 is not closed");
    addRow("end after a comma", "{\"a\":1,",
           "1:8: unexpected end; the \"{\" at line 1, column 1 is not closed");

    addRow("unknown word", "{\"A\":\n  true,\n  \"B\": nothing}",
           "3:8: unknown word \"nothing\"; write text in double quotes");
    addRow("word that begins like another", "{\"a\": nullable}",
           "1:7: unknown word \"nullable\"; write text in double quotes");
    addRow("characters of several bytes before it", "{\"\xC2\xB5\xE2\x82\xAC\": x}",
           "1:8: unknown word \"x\"; write text in double quotes");
    addRow("half a word", "{\"a\": tru}", "1:7: unknown word \"tru\"; write text in double quotes");
    addRow("word in upper case", "{\"a\": TRUE}", "1:7: write \"true\" in lower case");
    addRow("long word", "{\"a\": " + QByteArray(100, 'x') + '}',
           "1:7: unknown word \"" + QByteArray(60, 'x') + "...\"; write text in double quotes");
}

void JsonProblemsTest::addNumbers()
{
    const auto addNumber = [](const char* number, const char* problem) {
        addRow(number, QByteArray("{\"a\": ") + number + '}', problem);
    };
    addNumber(".06", "1:7: write a digit before the decimal point, as in 0.5");
    addNumber("-.5", "1:8: write a digit before the decimal point, as in 0.5");
    addNumber("6.e-2", "1:8: write a digit after the decimal point, as in 1.0");
    addNumber("1.", "1:8: write a digit after the decimal point, as in 1.0");
    addNumber("+1", "1:7: remove the \"+\"");
    addNumber("01", "1:7: remove the leading zero");
    addNumber("-00", "1:8: remove the leading zero");
    addNumber("-", "1:8: write a digit after \"-\"");
    addNumber("--1", "1:8: write a digit after \"-\"");
    addNumber("1e", "1:9: write a digit in the exponent, as in 1e3");
    addNumber("1e+", "1:10: write a digit in the exponent, as in 1e3");
    addNumber("1E-x", "1:10: write a digit in the exponent, as in 1e3");
    addNumber("1.2.3", "1:10: expected \",\" or \"}\"");
    addNumber("0x10", "1:8: expected \",\" or \"}\"");
    addNumber("1000/60", "1:11: expected \",\" or \"}\"");
    addNumber("1,5", "1:9: expected a name in double quotes");
    for (const char* number : {"NaN", "nan", "Infinity", "-Infinity", "inf", "-inf"})
        addNumber(number, "1:7: NaN and infinity are not numbers in JSON");
    for (const char* number : {"1e309", "-1e309", "1.8e308", "1e99999999999"})
        addNumber(number, "1:7: too large for a number of double precision, whose limit is about 1.8e308");
    addRow("number of 400 digits", "{\"a\": " + QByteArray(400, '9') + '}',
           "1:7: too large for a number of double precision, whose limit is about 1.8e308");
}

void JsonProblemsTest::addStrings()
{
    addRow("not closed", "{\"a\": \"bar}", "1:7: the string is not closed");
    addRow("not closed after an escape", "{\"a\": \"bar\\\"", "1:7: the string is not closed");
    addRow("name not closed", "{\"a: 1}", "1:2: the string is not closed");
    const char* const lineBreak =
        "1:9: close the string before the end of the line; write a line break in it as \\n";
    addRow("line feed", "{\"a\": \"b\nc\"}", lineBreak);
    addRow("carriage return", "{\"a\": \"b\r\nc\"}", lineBreak);
    addRow("tab", "{\"a\": \"b\tc\"}", "1:9: write a tab in a string as \\t");
    addRow("tab in a name", "{\"a\t\": 1}", "1:4: write a tab in a string as \\t");
    addRow("null byte", QByteArray("{\"a\": \"b\0c\"}", 12),
           "1:9: write a control character in a string as \\u0000");
    addRow("escape character", "{\"a\": \"\x1F\"}", "1:8: write a control character in a string as \\u001f");

    const char* const escape = "1:9: unknown escape sequence; write a backslash in a string as \\\\";
    addRow("unknown escape", "{\"a\": \"b\\q\"}", escape);
    addRow("upper-case escape", "{\"a\": \"b\\N\"}", escape);
    addRow("escaped single quote", "{\"a\": \"b\\'\"}", escape);
    addRow("escaped null byte", QByteArray("{\"a\": \"b\\\0\"}", 12), escape);
    addRow("end after a backslash", "{\"a\": \"b\\", escape);
    const char* const digits = "1:9: write four hexadecimal digits after \\u";
    addRow("three digits", "{\"a\": \"b\\u00e\"}", digits);
    addRow("no hexadecimal digit", "{\"a\": \"b\\u00g0\"}", digits);
    addRow("sign instead of a digit", "{\"a\": \"b\\u+123\"}", digits);
    addRow("end in the digits", "{\"a\": \"b\\u12", digits);
    const char* const half = "1:9: half of a surrogate pair; write both halves";
    addRow("first half at the end", "{\"a\": \"b\\ud83d\"}", half);
    addRow("first half before a letter", "{\"a\": \"b\\ud83dx\"}", half);
    addRow("first half before another escape", "{\"a\": \"b\\ud83d\\n0000\"}", half);
    addRow("first half twice", "{\"a\": \"b\\ud83d\\ud83d\"}", half);
    addRow("first half before a character", "{\"a\": \"b\\ud83d\\u0041\"}", half);
    addRow("first half before a broken escape", "{\"a\": \"b\\ud83d\\u\"}", half);
    addRow("second half alone", "{\"a\": \"b\\udc4d\"}", half);

    addRow("Latin-1 letter", "{\n  \"A\": \"\xE4\"}", "2:9: not UTF-8; save the document in that encoding");
    addRow("letter cut in the middle", "{\"A\": \"\xC3",
           "1:8: not UTF-8; save the document in that encoding");
    addRow("UTF-16", QByteArray("\xFF\xFE{\0}\0", 6), "1:1: not UTF-8; save the document in that encoding");
    addRow("invalid UTF-8 after a byte order mark", "\xEF\xBB\xBF\xFF",
           "1:1: not UTF-8; save the document in that encoding");
    addRow("invalid UTF-8 after a replacement character", "{\"\xEF\xBF\xBD\": \"\xFF\"}",
           "1:8: not UTF-8; save the document in that encoding");
    addRow("letter before an invalid byte", "{\n\"\xC2\xB5\": \"\xB5\"}",
           "2:7: not UTF-8; save the document in that encoding");
    addRow("encoding before syntax", "{,\n\xFF}", "2:1: not UTF-8; save the document in that encoding");
}

void JsonProblemsTest::addDuplicates()
{
    addRow("duplicate in the root", "{\"Bar\": 1,\n \"Bar\": 2}",
           "2:2: duplicate name \"Bar\"; first at line 1, column 2");
    addRow("duplicate in an inner object", "{\n  \"Pressure\": {\n    \"Bar\": {}, \"Bar\": {}}}",
           "3:16: duplicate name \"Bar\"; first at line 3, column 5");
    addRow("duplicate in an array", "{\"a\": [{}, {\"b\": 1, \"b\": 1}]}",
           "1:21: duplicate name \"b\"; first at line 1, column 13");
    addRow("third of a name", "{\"b\": 1, \"a\": 1, \"a\": 1, \"a\": 1}",
           "1:18: duplicate name \"a\"; first at line 1, column 10");
    addRow("two duplicates", "{\"b\": 1, \"a\": 1, \"b\": 1, \"a\": 1}",
           "1:18: duplicate name \"b\"; first at line 1, column 2");
    addRow("duplicate empty name", "{\"\": 1, \"\": 2}",
           "1:9: duplicate name \"\"; first at line 1, column 2");
    addRow("duplicate with an escape", "{\"Bar\": 1, \"B\\u0061r\": 2}",
           "1:12: duplicate name \"Bar\"; first at line 1, column 2");
    addRow("duplicate with two escapes", "{\"a\\/\": 1, \"a\\u002F\": 2}",
           "1:12: duplicate name \"a/\"; first at line 1, column 2");
    addRow("duplicate with a line break", "{\"a\\n\": 1, \"a\\n\": 2}",
           "1:12: duplicate name \"a?\"; first at line 1, column 2");
    addRow("duplicate of characters beyond ASCII", "{\"\xC3\xA4\": 1, \"\\u00E4\": 2}",
           "1:10: duplicate name \"\xC3\xA4\"; first at line 1, column 2");
}

void JsonProblemsTest::problemHasItsPlace()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, problem);

    DocumentProblem found;
    QVERIFY(!JsonDocument::read(bytes, found));
    QCOMPARE(QString("%1:%2: %3").arg(found.place.line).arg(found.place.column).arg(found.reason), problem);
}

void JsonProblemsTest::depthIsLimited_data()
{
    QTest::addColumn<QByteArray>("opening");
    QTest::addColumn<QByteArray>("closing");
    QTest::addColumn<int>("column");

    row("arrays", QByteArray("["), QByteArray("]"), 5 + 1024);
    row("objects", QByteArray("{\"a\":"), QByteArray("}"), 5 + 5 * 1023 + 1);
}

void JsonProblemsTest::depthIsLimited()
{
    QFETCH(QByteArray, opening);
    QFETCH(QByteArray, closing);
    QFETCH(int, column);

    DocumentProblem problem;
    const auto nested = [&opening, &closing](int depth) {
        return "{\"a\":" + opening.repeated(depth) + "0" + closing.repeated(depth) + '}';
    };
    QVERIFY(JsonDocument::read(nested(1023), problem));
    QVERIFY(!JsonDocument::read(nested(1024), problem));
    QCOMPARE(problem.reason, "nested too deeply; the limit is 1024 levels");
    QCOMPARE(problem.place.line, 1);
    QCOMPARE(problem.place.column, column);
    QVERIFY(!JsonDocument::read(nested(1000000), problem));
    QCOMPARE(problem.place.column, column);
}

static const TestClass<JsonProblemsTest> testClass;
#include "JsonProblemsTest.moc"
