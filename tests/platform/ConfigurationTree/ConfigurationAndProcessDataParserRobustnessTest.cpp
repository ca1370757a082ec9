#include <QtCore/QJsonDocument>
#include <QtCore/QRegularExpression>
#include <QtTest/QTest>

#include <random>

#include "LogCapture.h"
#include "NodeText.h"
#include "TestProgram.h"

namespace {

const QString catalogue = QStringLiteral(
    R"({"Pressure": {"Bar": {"@displayPosition": 0, "DecimalPlaces": 3, "Polynomial": [[0], [1.5e-1]], )"
    R"("InversePolynomial": [[0], [-1]], "UnitLabel": {"@value": {"en": "b\u0061r", "de": "\/Bar"}}}, )"
    R"("None": null, "Flag": true, "@note": [false, null, {"a": [12]}]}})");

QString nested(const QString& opening, const QString& innermost, const QString& closing, int depth)
{
    return opening.repeated(depth) + innermost + closing.repeated(depth);
}

bool isDocumentForQt(const QString& json)
{
    return QJsonDocument::fromJson(json.toUtf8()).isObject();
}

/// Whether Qt accepts more than JSON allows: an incomplete number or an unknown escape sequence.
bool isForgivenByQt(const QString& json)
{
    static const QRegularExpression number(QStringLiteral(R"(\.(?!\d)|-(?!\d)|(?<!\d)\.)"));
    static const QRegularExpression escape(QStringLiteral(R"((?<!\\)(\\\\)*\\(?![bfnrtu/\x22\\]))"));
    return number.match(json).hasMatch() || escape.match(json).hasMatch();
}

} // namespace

class ConfigurationAndProcessDataParserRobustnessTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textThatIsNotADocumentGivesNull_data();
    void textThatIsNotADocumentGivesNull();
    void everyTruncatedDocumentGivesNull();
    void nestingIsLimited_data();
    void nestingIsLimited();
    void everyChangedDocumentIsReadAsQtReadsIt();
    void noiseGivesNull();
    void largeDocumentIsRead_data();
    void largeDocumentIsRead();
    void largeNoiseGivesNull_data();
    void largeNoiseGivesNull();
};

void ConfigurationAndProcessDataParserRobustnessTest::textThatIsNotADocumentGivesNull_data()
{
    QTest::addColumn<QString>("json");

    QTest::newRow("null text") << QString();
    QTest::newRow("empty text") << "";
    QTest::newRow("blanks") << " \n\t";
    QTest::newRow("byte order mark alone") << QString(QChar(0xfeff));
    QTest::newRow("two byte order marks") << QString(2, QChar(0xfeff)) + "{}";
    QTest::newRow("byte order mark inside") << "{" + QString(QChar(0xfeff)) + "}";
    QTest::newRow("no-break space as a blank") << "{" + QString(QChar(0xa0)) + "}";
    QTest::newRow("plain words") << "Pressure";
    QTest::newRow("root is an array") << "[]";
    QTest::newRow("root is an array of a document") << "[{}]";
    QTest::newRow("root is a number") << "1";
    QTest::newRow("root is a text") << R"("x")";
    QTest::newRow("root is null") << "null";
    QTest::newRow("root is true") << "true";
    QTest::newRow("two roots") << "{}{}";
    QTest::newRow("closed twice") << "{}}";
    QTest::newRow("words after the root") << "{} x";
    QTest::newRow("null character after the root") << QString("{}") + QChar(0);
    QTest::newRow("null character in the root") << QString("{") + QChar(0) + "}";
    QTest::newRow("not closed") << "{";
    QTest::newRow("closed by the wrong bracket") << "{]";
    QTest::newRow("array closed by the wrong bracket") << R"({"a": [}})";
    QTest::newRow("member without value") << R"({"a"})";
    QTest::newRow("member with colon without value") << R"({"a":})";
    QTest::newRow("member without name") << R"({: 1})";
    QTest::newRow("name without quotes") << "{a: 1}";
    QTest::newRow("name in single quotes") << "{'a': 1}";
    QTest::newRow("name that is a number") << "{1: 1}";
    QTest::newRow("equals sign for colon") << R"({"a" = 1})";
    QTest::newRow("comma after the last member") << R"({"a": 1,})";
    QTest::newRow("comma before the first member") << R"({,"a": 1})";
    QTest::newRow("comma missing") << R"({"a": 1 "b": 2})";
    QTest::newRow("comma after the last element") << R"({"a": [1,]})";
    QTest::newRow("comma alone in an array") << R"({"a": [,]})";
    QTest::newRow("comment") << "{/* */}";
    QTest::newRow("True in capitals") << R"({"a": True})";
    QTest::newRow("true cut short") << R"({"a": tru})";
    QTest::newRow("true too long") << R"({"a": truee})";
    QTest::newRow("nul") << R"({"a": nul})";
    QTest::newRow("undefined") << R"({"a": undefined})";
    QTest::newRow("NaN") << R"({"a": NaN})";
    QTest::newRow("Infinity") << R"({"a": -Infinity})";
    QTest::newRow("number with a plus sign") << R"({"a": +1})";
    QTest::newRow("number with a leading zero") << R"({"a": 01})";
    QTest::newRow("number without whole part") << R"({"a": .5})";
    QTest::newRow("number without fraction") << R"({"a": 1.})";
    QTest::newRow("number without exponent") << R"({"a": 1e})";
    QTest::newRow("number without digits of the exponent") << R"({"a": 1e+})";
    QTest::newRow("minus sign alone") << R"({"a": -})";
    QTest::newRow("hexadecimal number") << R"({"a": 0x10})";
    QTest::newRow("digits of another script") << QString(R"({"a": %1})").arg(QChar(0x0663));
    QTest::newRow("number with a comma") << R"({"a": 1,5})";
    QTest::newRow("number beyond double") << R"({"a": 1e309})";
    QTest::newRow("number below double") << R"({"a": -1e309})";
    QTest::newRow("escaped high surrogate alone") << R"({"a": "\ud800"})";
    QTest::newRow("escaped low surrogate alone") << R"({"a": "\udc00"})";
    QTest::newRow("escaped high surrogate before a letter") << R"({"a": "\ud800b"})";
    QTest::newRow("surrogate alone") << QStringLiteral("{\"a\": \"") + QChar(0xd800) + QStringLiteral("\"}");
    QTest::newRow("NUL after the object") << QStringLiteral("{}") + QChar(0) + QStringLiteral("x");
    QTest::newRow("number beyond double in an array") << R"({"a": [[1e309]]})";
    QTest::newRow("number with a gigantic exponent") << R"({"a": 1e99999999999999999999})";
    QTest::newRow("text not closed") << R"({"a": "x})";
    QTest::newRow("text with a line break") << "{\"a\": \"x\ny\"}";
    QTest::newRow("text with a tab") << "{\"a\": \"x\ty\"}";
    QTest::newRow("text with a null character") << QString("{\"a\": \"x%1\"}").arg(QChar(0));
    QTest::newRow("unknown escape") << R"({"a": "\x"})";
    QTest::newRow("escaped single quote") << R"({"a": "\'"})";
    QTest::newRow("escape of three digits") << R"({"a": "\u12"})";
    QTest::newRow("escape of other letters") << R"({"a": "\u00g0"})";
    QTest::newRow("escape with a sign") << R"({"a": "\u+123"})";
    QTest::newRow("first half of a pair alone") << QString(R"({"a": "%1x"})").arg(QChar(0xd83c));
    QTest::newRow("second half of a pair alone") << QString(R"({"a": "%1"})").arg(QChar(0xdf21));
    QTest::newRow("pair in the wrong order") << QString(R"({"a": "%1%2"})").arg(QChar(0xdf21), QChar(0xd83c));
    QTest::newRow("first half twice") << QString(R"({"a": "%1%1"})").arg(QChar(0xd83c));
    QTest::newRow("half of a pair in a name") << QString(R"({"%1": 1})").arg(QChar(0xd83c));
    QTest::newRow("half of a pair at the end") << QString("{\"%1").arg(QChar(0xd83c));
    QTest::newRow("half of a pair outside of texts") << QString("{}%1").arg(QChar(0xd83c));
}

void ConfigurationAndProcessDataParserRobustnessTest::textThatIsNotADocumentGivesNull()
{
    QFETCH(QString, json);
    LogCapture log;

    QVERIFY(!parse(json));
    QCOMPARE(log.takeTexts(), QStringList());
}

void ConfigurationAndProcessDataParserRobustnessTest::everyTruncatedDocumentGivesNull()
{
    QVERIFY(parse(catalogue));
    for (int length = 0; length < catalogue.size(); ++length)
        QVERIFY2(!parse(catalogue.left(length)), qUtf8Printable(catalogue.left(length)));
}

void ConfigurationAndProcessDataParserRobustnessTest::nestingIsLimited_data()
{
    QTest::addColumn<QString>("json");
    QTest::addColumn<bool>("isDocument");

    const auto objects = [](int depth) {
        return nested("{\"a\":", "{}", "}", depth - 1);
    };
    const auto arrays = [](int depth) {
        return "{\"a\":" + nested("[", "0", "]", depth - 1) + "}";
    };
    const auto notes = [](int depth) {
        return "{\"@note\":" + nested("{\"a\":", "0", "}", depth - 1) + "}";
    };
    const auto both = [](int depth) {
        return nested("{\"a\":[", "1", "]}", depth / 2);
    };
    QTest::newRow("1024 objects") << objects(1024) << true;
    QTest::newRow("1025 objects") << objects(1025) << false;
    QTest::newRow("100,000 objects") << objects(100000) << false;
    QTest::newRow("object of 1023 arrays") << arrays(1024) << true;
    QTest::newRow("object of 1024 arrays") << arrays(1025) << false;
    QTest::newRow("object of 100,000 arrays") << arrays(100001) << false;
    QTest::newRow("property of 1023 objects") << notes(1024) << true;
    QTest::newRow("property of 1024 objects") << notes(1025) << false;
    QTest::newRow("objects and arrays, 1024") << both(1024) << true;
    QTest::newRow("objects and arrays, 1026") << both(1026) << false;
    QTest::newRow("100,000 opening braces") << QString(100000, '{') << false;
    QTest::newRow("100,000 members not closed") << QString("{\"a\":").repeated(100000) << false;
    QTest::newRow("2,000 side by side") << "{\"a\":[" + QString("[],").repeated(2000) + "0]}" << true;
}

void ConfigurationAndProcessDataParserRobustnessTest::nestingIsLimited()
{
    QFETCH(QString, json);

    const BaseClassSharedPointer root = parse(json);

    QTEST(!root.isNull(), "isDocument");
    QCOMPARE(!root.isNull(), isDocumentForQt(json));
    if (root)
        QCOMPARE(nodeText(root), expectedNodeText(QJsonDocument::fromJson(json.toUtf8()).object()));
}

void ConfigurationAndProcessDataParserRobustnessTest::everyChangedDocumentIsReadAsQtReadsIt()
{
    const QString characters = QStringLiteral("{}[]:,\"\\ @0159-+.eEutrnfalsx") + QChar(0xb5);
    std::mt19937 random(1024);
    const auto below = [&random](int limit) {
        return static_cast<int>(random() % static_cast<unsigned int>(limit));
    };
    int documents = 0;
    for (int i = 0; i < 20000; ++i) {
        QString json = catalogue;
        for (int changes = 1 + below(3); changes > 0; --changes)
            json.replace(below(json.size()), below(3), characters.mid(below(characters.size()), below(3)));
        if (isForgivenByQt(json))
            continue;
        const BaseClassSharedPointer root = parse(json);
        QVERIFY2(!root.isNull() == isDocumentForQt(json), qUtf8Printable(json));
        if (!root)
            continue;
        ++documents;
        QCOMPARE(nodeText(root), expectedNodeText(QJsonDocument::fromJson(json.toUtf8()).object()));
    }
    QVERIFY2(documents > 1000, qPrintable(QString::number(documents)));
}

void ConfigurationAndProcessDataParserRobustnessTest::noiseGivesNull()
{
    std::mt19937 random(7);
    for (int i = 0; i < 2000; ++i) {
        QString json(QStringLiteral("{\""));
        for (int length = 0; length < 200; ++length)
            json.append(QChar(static_cast<ushort>(random())));
        QVERIFY2(!parse(json), qUtf8Printable(json));
    }
}

void ConfigurationAndProcessDataParserRobustnessTest::largeDocumentIsRead_data()
{
    QTest::addColumn<QString>("json");
    QTest::addColumn<int>("children");

    const int characters = 25 * 1024 * 1024;
    const QString start = QStringLiteral("{\"a\":");
    QTest::newRow("one text") << start + '"' + QString(characters, 'x') + "\"}" << 1;
    QTest::newRow("one array") << start + '[' + QString("0,").repeated(characters / 2) + "0]}" << 1;
    QTest::newRow("blanks") << start + QString(characters, ' ') + "0}" << 1;
    QTest::newRow("one number") << start + QString(characters / 100, '0').prepend("0.") + "}" << 1;

    QString many = QStringLiteral("{");
    const int count = 300000;
    for (int i = 0; i < count; ++i)
        many += QStringLiteral(
                    R"("member number %1": {"@value": %1, "@unitType": "UnitManager/UnitType/Pressure"},)")
                    .arg(i);
    QTest::newRow("many nodes") << many + QStringLiteral("\"last\": null}") << count + 1;
}

void ConfigurationAndProcessDataParserRobustnessTest::largeDocumentIsRead()
{
    QFETCH(QString, json);

    const BaseClassSharedPointer root = parse(json);

    QVERIFY(root);
    QTEST(root->getChildMap().size(), "children");
}

void ConfigurationAndProcessDataParserRobustnessTest::largeNoiseGivesNull_data()
{
    QTest::addColumn<QString>("json");

    const int characters = 25 * 1024 * 1024;
    QTest::newRow("opening braces") << QString(characters, '{');
    QTest::newRow("opening brackets") << "{\"a\":" + QString(characters, '[');
    QTest::newRow("null characters") << QString(characters, QChar(0));
    QTest::newRow("quotes") << QString(characters, '"');
    QTest::newRow("text that does not end") << "{\"" + QString(characters, 'x');
    QTest::newRow("escapes that do not end") << "{\"" + QString(characters, '\\');
    QTest::newRow("digits that overflow") << "{\"a\":1" + QString(characters, '0') + "}";
}

void ConfigurationAndProcessDataParserRobustnessTest::largeNoiseGivesNull()
{
    QFETCH(QString, json);

    QVERIFY(!parse(json));
}

static const TestClass<ConfigurationAndProcessDataParserRobustnessTest> testClass;

#include "ConfigurationAndProcessDataParserRobustnessTest.moc"
