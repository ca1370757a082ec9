#include "TranslateableTextHelper.h"

#include <QtCore/QPointer>
#include <QtTest/QTest>

#include "Row.h"
#include "TestProgram.h"

namespace {

QVariantMap texts(const QList<QPair<QString, QString>>& entries)
{
    QVariantMap map;
    for (const auto& entry : entries)
        map.insert(entry.first, entry.second);
    return map;
}

const QVariantMap threeLanguages = texts({{"de", "Grad"}, {"de_AT", "Grad (AT)"}, {"en", "degree"}});

} // namespace

class TranslateableTextHelperTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textFallsBackToAnotherLanguage_data();
    void textFallsBackToAnotherLanguage();
    void constructorNamesTheLanguageOfTheTextWithoutArgument();
    void objectComesBackAsItWasGiven_data();
    void objectComesBackAsItWasGiven();
    void setTextAddsOrReplacesOneLanguage();
    void setTextKeepsAPlainStringAsTheLastFallback();
    void emptyTextInTheLastFallbackLanguageIsAnObject();
    void objectReplacesTheOneBefore();
    void parentOwnsTheHelper();
};

void TranslateableTextHelperTest::textFallsBackToAnotherLanguage_data()
{
    QTest::addColumn<QVariant>("object");
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("text");

    row("the language itself", QVariant(threeLanguages), "de", "Grad");
    row("the country itself", QVariant(threeLanguages), "de_AT", "Grad (AT)");
    row("another country of the language", QVariant(threeLanguages), "de_CH", "Grad");
    row("another country, written with a hyphen", QVariant(threeLanguages), "de-CH", "Grad");
    row("two sections more than exist", QVariant(threeLanguages), "de_Latn_CH", "Grad");
    row("last fallback language", QVariant(threeLanguages), "fr", "degree");
    row("no language wanted", QVariant(threeLanguages), "", "degree");
    row("a language is not a prefix of another", QVariant(threeLanguages), "d", "degree");
    row("exact spelling", QVariant(threeLanguages), "DE", "degree");
    row("only separators", QVariant(threeLanguages), "_-_", "degree");
    row("no last fallback: alphabetically first", QVariant(texts({{"fr", "degr\u00e9"}, {"de", "Grad"}})),
        "it", "Grad");
    row("an empty text is a text", QVariant(texts({{"de", ""}, {"en", "x"}})), "de", "");
    row("map without languages", QVariant(QVariantMap()), "de", "");
    row("plain string for every language", QVariant(QStringLiteral("%")), "de", "%");
    row("plain string, no language wanted", QVariant(QStringLiteral("%")), "", "%");
    row("invalid object", QVariant(), "en", "");
    row("number", QVariant(5), "en", "");
    row("list", QVariant(QVariantList{"x"}), "en", "");
    row("text that is a number", QVariant(QVariantMap{{"en", 5}}), "en", "5");
}

void TranslateableTextHelperTest::textFallsBackToAnotherLanguage()
{
    QFETCH(QVariant, object);
    QFETCH(QString, language);

    TranslateableTextHelper helper(QStringLiteral("it"));
    helper.setTranslateableTextObject(object);

    QTEST(helper.getText(language), "text");
}

void TranslateableTextHelperTest::constructorNamesTheLanguageOfTheTextWithoutArgument()
{
    TranslateableTextHelper helper(QStringLiteral("de_CH"));
    QCOMPARE(helper.getText(), QString());

    helper.setTranslateableTextObject(threeLanguages);

    QCOMPARE(helper.getText(), QStringLiteral("Grad"));
}

void TranslateableTextHelperTest::objectComesBackAsItWasGiven_data()
{
    QTest::addColumn<QVariant>("object");
    QTest::addColumn<QVariant>("expected");

    QTest::newRow("map") << QVariant(threeLanguages) << QVariant(threeLanguages);
    QTest::newRow("plain string") << QVariant(QStringLiteral("%")) << QVariant(QStringLiteral("%"));
    QTest::newRow("empty string") << QVariant(QString("")) << QVariant(QString(""));
    QTest::newRow("number: nothing") << QVariant(5) << QVariant();
    QTest::newRow("invalid: nothing") << QVariant() << QVariant();
}

void TranslateableTextHelperTest::objectComesBackAsItWasGiven()
{
    QFETCH(QVariant, object);
    QFETCH(QVariant, expected);

    TranslateableTextHelper helper(QStringLiteral("en"));
    helper.setTranslateableTextObject(object);

    QCOMPARE(helper.getTranslateableTextObject().userType(), expected.userType());
    QCOMPARE(helper.getTranslateableTextObject(), expected);
}

void TranslateableTextHelperTest::setTextAddsOrReplacesOneLanguage()
{
    TranslateableTextHelper helper(QStringLiteral("en"));
    helper.setText(QStringLiteral("bar"), QStringLiteral("en"));
    helper.setText(QStringLiteral("b"), QStringLiteral("de"));
    helper.setText(QStringLiteral("Bar"), QStringLiteral("de"));

    QCOMPARE(helper.getTranslateableTextObject(), QVariant(texts({{"en", "bar"}, {"de", "Bar"}})));
}

void TranslateableTextHelperTest::setTextKeepsAPlainStringAsTheLastFallback()
{
    TranslateableTextHelper helper(QStringLiteral("en"));
    helper.setTranslateableTextObject(QStringLiteral("bar"));
    helper.setText(QStringLiteral("Bar"), QStringLiteral("de"));

    QCOMPARE(helper.getText(QStringLiteral("de")), QStringLiteral("Bar"));
    QCOMPARE(helper.getText(QStringLiteral("fr")), QStringLiteral("bar"));
}

void TranslateableTextHelperTest::emptyTextInTheLastFallbackLanguageIsAnObject()
{
    TranslateableTextHelper helper{QString()};
    helper.setText(QString(), TranslateableTextHelper::getLastFallbackLanguage());

    QCOMPARE(TranslateableTextHelper::getLastFallbackLanguage(), QStringLiteral("en"));
    QCOMPARE(helper.getTranslateableTextObject(), QVariant(texts({{"en", ""}})));
}

void TranslateableTextHelperTest::objectReplacesTheOneBefore()
{
    TranslateableTextHelper helper(QStringLiteral("en"));
    helper.setTranslateableTextObject(threeLanguages);
    helper.setTranslateableTextObject(QVariant());

    QCOMPARE(helper.getText(QStringLiteral("de")), QString());
}

void TranslateableTextHelperTest::parentOwnsTheHelper()
{
    QPointer<TranslateableTextHelper> helper;
    {
        QObject parent;
        helper = new TranslateableTextHelper(QStringLiteral("en"), &parent);
        QCOMPARE(helper->parent(), &parent);
    }
    QVERIFY(helper.isNull());
}

static const TestClass<TranslateableTextHelperTest> testClass;

#include "TranslateableTextHelperTest.moc"
