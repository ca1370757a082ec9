#include "PrintableText.h"

#include <QtTest/QTest>

#include "Row.h"
#include "TestProgram.h"

class PrintableTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void replacesWhatIsNotPrintable_data();
    void replacesWhatIsNotPrintable();
    void replacesEveryControlCharacter();
};

void PrintableTextTest::replacesWhatIsNotPrintable_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shown");
    row("empty", QString(), QString());
    row("letters, signs and blanks", QString("°C µ Ω ₂ % r.F."), QString("°C µ Ω ₂ % r.F."));
    row("question mark", QString("a?"), QString("a?"));
    row("line breaks and tab", QString("a\r\nb\tc"), QString("a??b?c"));
    row("escape sequence", QString("\x1B[31mred"), QString("?[31mred"));
    row("line and paragraph separator", QString("a\u2028b\u2029"), QString("a?b?"));
    row("embeddings and overrides", QString("\u202Aa\u202Bb\u202Cc\u202Dd\u202E"), QString("?a?b?c?d?"));
    row("isolates", QString("\u2066a\u2067b\u2068c\u2069"), QString("?a?b?c?"));
    row("joiners and directional marks", QString("a\u200C\u200D\u200E\u200F"),
        QString("a\u200C\u200D\u200E\u200F"));
    row("invisible characters", QString("a\u200B\u2060\uFEFF"), QString("a???"));
    row("private characters, as in fonts of devices", QString("\uE000"), QString("\uE000"));
    row("outside the first plane", QString("a\U0001F600b"), QString("a\U0001F600b"));
    row("outside the first plane, with a line break", QString("\U0001F600\n"), QString("\U0001F600?"));
    row("invisible outside the first plane", QString("a\U000E0001b"), QString("a?b"));
    row("incomplete pair", QString("a") + QChar(0xD83D), QString("a?"));
    row("incomplete pair before text", QChar(0xD83D) + QString("a"), QString("?a"));
    row("pair in the wrong order", QString(QChar(0xDE00)) + QChar(0xD83D), QString("??"));
}

void PrintableTextTest::replacesWhatIsNotPrintable()
{
    QFETCH(QString, text);
    QFETCH(QString, shown);
    QCOMPARE(PrintableText::of(text), shown);
}

void PrintableTextTest::replacesEveryControlCharacter()
{
    for (ushort character = 0; character < 0xA0; ++character) {
        const bool isControl = character < 0x20 || character >= 0x7F;
        QCOMPARE(PrintableText::of(QChar(character)), QString(QChar(isControl ? u'?' : character)));
    }
}

static const TestClass<PrintableTextTest> testClass;
#include "PrintableTextTest.moc"
