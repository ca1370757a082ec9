#include "Utf8.h"

#include <QtTest/QTest>

#include "Row.h"
#include "TestProgram.h"

class Utf8Test : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void byteOrderMarkIsRemovedOnce();
    void invalidByteIsFound_data();
    void invalidByteIsFound();
    void placeCountsCharacters_data();
    void placeCountsCharacters();
};

void Utf8Test::byteOrderMarkIsRemovedOnce()
{
    QCOMPARE(Utf8::withoutByteOrderMark("\xEF\xBB\xBF\xEF\xBB\xBF{}"), QByteArray("\xEF\xBB\xBF{}"));
    QCOMPARE(Utf8::withoutByteOrderMark("{}\xEF\xBB\xBF"), QByteArray("{}\xEF\xBB\xBF"));
    QCOMPARE(Utf8::withoutByteOrderMark("\xEF\xBB"), QByteArray("\xEF\xBB"));
    QCOMPARE(Utf8::withoutByteOrderMark(""), QByteArray(""));
}

void Utf8Test::invalidByteIsFound_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("offset");
    const auto addRow = [](const char* name, const char* bytes, int offset) {
        row(name, QByteArray(bytes), offset);
    };
    const int valid = -1;
    addRow("empty", "", valid);
    addRow("first and last character of one byte", "\x01\x7F", valid);
    addRow("first and last character of two bytes", "\xC2\x80\xDF\xBF", valid);
    addRow("first and last character of three bytes", "\xE0\xA0\x80\xEF\xBF\xBF", valid);
    addRow("characters around the surrogates", "\xED\x9F\xBF\xEE\x80\x80", valid);
    addRow("first and last character of four bytes", "\xF0\x90\x80\x80\xF4\x8F\xBF\xBF", valid);
    addRow("replacement character", "\xEF\xBF\xBD", valid);

    addRow("continuation byte alone", "a\x80", 1);
    addRow("Latin-1 letter", "ab\xE4z", 2);
    addRow("slash in two bytes", "a\xC0\xAF", 1);
    addRow("last ASCII character in two bytes", "a\xC1\xBF", 1);
    addRow("slash in three bytes", "a\xE0\x80\xAF", 1);
    addRow("last character of two bytes in three", "a\xE0\x9F\xBF", 1);
    addRow("last character of three bytes in four", "a\xF0\x8F\xBF\xBF", 1);
    addRow("first surrogate", "a\xED\xA0\x80", 1);
    addRow("last surrogate", "a\xED\xBF\xBF", 1);
    addRow("beyond the last character", "a\xF4\x90\x80\x80", 1);
    addRow("character of five bytes", "a\xF8\x88\x80\x80\x80", 1);
    addRow("byte of UTF-16", "\xFF\xFE", 0);
    addRow("two bytes, the second missing", "a\xC3", 1);
    addRow("three bytes, the third missing", "\xC3\xA4\xE2\x82", 2);
    addRow("four bytes, the fourth missing", "a\xF0\x9F\x93", 1);
    addRow("three bytes, the third wrong", "a\xE2\x82z", 1);
    addRow("after a valid character", "\xE2\x82\xAC\xE2\x82\xAC\xFF", 6);
}

void Utf8Test::invalidByteIsFound()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, offset);
    QCOMPARE(Utf8::firstInvalidByte(bytes), offset);
}

void Utf8Test::placeCountsCharacters_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("offset");
    QTest::addColumn<int>("line");
    QTest::addColumn<int>("column");
    const auto addRow = [](const char* name, const char* bytes, int offset, int line, int column) {
        row(name, QByteArray(bytes), offset, line, column);
    };
    addRow("start", "a\nb", 0, 1, 1);
    addRow("line feed belongs to its line", "a\nb", 1, 1, 2);
    addRow("start of the second line", "a\nb", 2, 2, 1);
    addRow("end", "a\nb", 3, 2, 2);
    addRow("end after a line feed", "a\n", 2, 2, 1);
    addRow("empty", "", 0, 1, 1);
    addRow("empty lines", "\n\n\nx", 3, 4, 1);
    addRow("carriage return is a character", "\r\n\rx", 3, 2, 2);
    addRow("characters of two, three and four bytes", "\n\xC3\xA4\xE2\x82\xAC\xF0\x9F\x93\x81x", 10, 2, 4);
    addRow("such characters on the line before", "\xC3\xA4\xE2\x82\xAC\nx", 6, 2, 1);
    addRow("tab is one character", "\t\tx", 2, 1, 3);
}

void Utf8Test::placeCountsCharacters()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, offset);
    QFETCH(int, line);
    QFETCH(int, column);
    const TextPlace place = Utf8::placeOf(bytes, offset);
    QCOMPARE(place.line, line);
    QCOMPARE(place.column, column);
}

static const TestClass<Utf8Test> testClass;
#include "Utf8Test.moc"
