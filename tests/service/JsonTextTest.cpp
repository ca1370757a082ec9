#include "JsonText.h"

#include <QtTest/QTest>

#include "Row.h"
#include "TestProgram.h"

class JsonTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void objectIsRead_data();
    void objectIsRead();
    void problemIsNamed_data();
    void problemIsNamed();
};

void JsonTextTest::objectIsRead_data()
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
}

void JsonTextTest::objectIsRead()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, text);
    QFETCH(QStringList, members);

    const JsonText json = JsonText::fromBytes(bytes);
    QCOMPARE(json.problem, QString());
    QCOMPARE(json.text, text);
    QCOMPARE(json.root.keys(), members);
}

void JsonTextTest::problemIsNamed_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("problem");

    row("no byte", QByteArray(), "it is empty");
    row("blanks only", QByteArray(" \n"), "it is empty");
    row("byte order mark only", QByteArray("\xEF\xBB\xBF"), "it is empty");
    row("list", QByteArray("[{}]"), "its root is not an object");
    row("plain text", QByteArray("units"), "line 1, column 1: illegal value");
    row("text after it", QByteArray("{}\n {}"), "line 2, column 2: garbage at the end of the document");
    row("colon missing", QByteArray("{\"a\" 1}"), "line 1, column 6: missing name separator");
    row("comma missing", QByteArray("{\n\"a\": 1\n\"b\": 2}"), "line 3, column 1: unterminated object");
    row("number too large", QByteArray("{\"a\": 1e999}"), "line 1, column 12: illegal number");
    row("characters of several bytes before it", QByteArray("{\"\xC2\xB5\xE2\x82\xAC\": x}"),
        "line 1, column 8: illegal number");
    row("nested too deeply", QByteArray("{\"a\":") + QByteArray(2000, '['),
        "line 1, column 1029: too deeply nested document");
    row("line break in a string", QByteArray("{\"a\": \"b\nc\"}"),
        "a string in it holds a control character or a broken escape");
    row("unknown escape", QByteArray("{\"a\": \"\\q\"}"),
        "a string in it holds a control character or a broken escape");
    row("byte that is not UTF-8", QByteArray("{\n\"\xC2\xB5\": \"\xB5\"}"),
        "line 2, column 7: it is not UTF-8");
    row("invalid UTF-8 after a byte order mark", QByteArray("\xEF\xBB\xBF\xFF"),
        "line 1, column 1: it is not UTF-8");
    row("invalid UTF-8 after a replacement character", QByteArray("{\"\xEF\xBF\xBD\": \"\xFF\"}"),
        "line 1, column 8: it is not UTF-8");
    row("cut off within a character", QByteArray("{\"a\": \"\xE2\x82"), "line 1, column 8: it is not UTF-8");
    row("null byte", QByteArray("{}\0", 3), "line 1, column 3: garbage at the end of the document");
    row("UTF-16", QByteArray("\xFF\xFE{\0}\0", 6), "line 1, column 1: it is not UTF-8");
}

void JsonTextTest::problemIsNamed()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, problem);

    const JsonText json = JsonText::fromBytes(bytes);
    QCOMPARE(json.problem, problem);
    QCOMPARE(json.text, QString());
}

static const TestClass<JsonTextTest> testClass;
#include "JsonTextTest.moc"
