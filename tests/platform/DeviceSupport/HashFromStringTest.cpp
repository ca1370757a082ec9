#include "hashFromString.h"

#include <QtTest/QTest>

#include "TestProgram.h"

class HashFromStringTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hashIsFnv1aOfTheUtf8Text_data();
    void hashIsFnv1aOfTheUtf8Text();
};

void HashFromStringTest::hashIsFnv1aOfTheUtf8Text_data()
{
    QTest::addColumn<QVariant>("text");
    QTest::addColumn<unsigned int>("hash");

    // Vectors of the test suite published by the authors of FNV.
    QTest::newRow("empty text: the offset basis") << QVariant(QString()) << 0x811c9dc5U;
    QTest::newRow("a") << QVariant(QStringLiteral("a")) << 0xe40c292cU;
    QTest::newRow("b") << QVariant(QStringLiteral("b")) << 0xe70c2de5U;
    QTest::newRow("fo") << QVariant(QStringLiteral("fo")) << 0x6222e842U;
    QTest::newRow("foobar") << QVariant(QStringLiteral("foobar")) << 0xbf9cf968U;

    // Computed byte by byte from the definition: the bytes are c2 b5.
    const unsigned int micro = ((0x811c9dc5U ^ 0xc2U) * 0x01000193U ^ 0xb5U) * 0x01000193U;
    QTest::newRow("two bytes in UTF-8") << QVariant(QString::fromUtf8("\xc2\xb5")) << micro;

    QTest::newRow("invalid variant as the empty text") << QVariant() << 0x811c9dc5U;
    QTest::newRow("list as the empty text") << QVariant(QVariantList{1}) << 0x811c9dc5U;
    QTest::newRow("byte array as its text") << QVariant(QByteArray("foobar")) << 0xbf9cf968U;
}

void HashFromStringTest::hashIsFnv1aOfTheUtf8Text()
{
    QFETCH(QVariant, text);
    QFETCH(unsigned int, hash);

    QCOMPARE(hashFromString(text), hash);
    QCOMPARE(hashFromString(text), hash);
}

static const TestClass<HashFromStringTest> testClass;

#include "HashFromStringTest.moc"
