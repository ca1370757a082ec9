#include "DocumentChecker.h"

#include <QtTest/QTest>

#include "LogCapture.h"
#include "Row.h"
#include "TestProgram.h"

/// What findings say, and documents that are made to exhaust time or memory. The corpus covers the places.
class DocumentCheckerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void adviceFitsTheMistake_data();
    void adviceFitsTheMistake();
    void ownKeysOfApplicationAreNotReported();
    void thousandsOfUnknownMembersAreReported();
    void thousandsOfMisspeltKeysAreReported();
    void longListOfLanguagesIsShortened();
};

namespace {

std::optional<JsonDocument> parsed(const QByteArray& text)
{
    DocumentProblem problem;
    auto document = JsonDocument::read(text, problem);
    if (!document)
        qFatal("%s", qPrintable(problem.reason));
    return document;
}

QByteArray unit(int position, const QByteArray& polynomial, const QByteArray& inverse)
{
    return "{ \"@displayPosition\": " + QByteArray::number(position) +
           ", \"DecimalPlaces\": 3, \"Polynomial\": " + polynomial + ", \"InversePolynomial\": " + inverse +
           ", \"UnitLabel\": { \"@value\": { \"en\": \"u" + QByteArray::number(position) + "\" } } }";
}

/// A unit type "Pressure" with a base unit and a second unit.
QByteArray units(const QByteArray& polynomial, const QByteArray& inverse)
{
    return "{ \"Pressure\": { \"Bar\": " + unit(0, "[[0], [1]]", "[[0], [1]]") +
           ", \"MilliBar\": " + unit(1, polynomial, inverse) + " } }";
}

QByteArray soundUnits()
{
    return units("[[0], [1000]]", "[[0], [0.001]]");
}

std::vector<Finding> check(const QByteArray& units, const QByteArray& dependencies = {})
{
    LogCapture log;
    DocumentSet documents;
    documents.units = parsed(units);
    if (!dependencies.isEmpty())
        documents.dependencies = parsed(dependencies);
    return DocumentChecker::check(documents, {});
}

} // namespace

void DocumentCheckerTest::adviceFitsTheMistake_data()
{
    QTest::addColumn<QByteArray>("polynomial");
    QTest::addColumn<QString>("advice");
    row("decimal comma", QByteArray("[[0], [1000,5]]"),
        QString("write a decimal point instead of the comma"));
    row("one list", QByteArray("[[0, 1000]]"), QString("write one list per number, as in [[0], [1000]]"));
    row("list around the lists", QByteArray("[[[0], [1000]]]"),
        QString("write one list per number, as in [[0], [1000]]"));
    row("numbers without lists", QByteArray("[0, 1000]"), QString("write one number in brackets"));
    row("text", QByteArray("[[0], [\"1,5\"]]"), QString("write 1.5 without quotes"));
    row("mirrored", QByteArray("[[1000], [0]]"),
        QString("the constant term comes first: write [[0], [1000]]"));
    row("factor 0", QByteArray("[[0], [0]]"), QString());
}

void DocumentCheckerTest::adviceFitsTheMistake()
{
    QFETCH(QByteArray, polynomial);
    QFETCH(QString, advice);
    const std::vector<Finding> findings = check(units(polynomial, "[[0], [0.001]]"));
    QCOMPARE(findings.size(), std::size_t{1});
    QCOMPARE(findings[0].advice, advice);
}

void DocumentCheckerTest::ownKeysOfApplicationAreNotReported()
{
    const QByteArray keys = R"({ "PressureUnit": ["Pressure", "Pressure2", "PressureRange2", "Presure"],
                                 "Presure": ["Relay"] })";
    const std::vector<Finding> findings = check(soundUnits(), keys);
    QCOMPARE(findings.size(), std::size_t{1});
    QCOMPARE(findings[0].path, QString("Presure"));
    QCOMPARE(findings[0].text(), QString("\"Presure\" leads nowhere; did you mean \"Pressure\"?"));
}

/// Ends in time only if the search for misspelt members does not begin anew for each of them.
void DocumentCheckerTest::thousandsOfUnknownMembersAreReported()
{
    const int count = 50000;
    QByteArray document = "{ \"Pressure\": { \"Bar\": { ";
    for (int index = 0; index < count; ++index)
        document += "\"m" + QByteArray::number(index) + "\": 0, ";
    document += unit(0, "[[0], [1]]", "[[0], [1]]").mid(1) + " } }";
    const std::vector<Finding> findings = check(document);
    QCOMPARE(findings.size(), std::size_t{count});
    for (const Finding& finding : findings)
        QCOMPARE(finding.rule, Rule::UnknownMember);
}

/// Ends in time only if the number of comparisons is limited; then only the first keys are reported.
void DocumentCheckerTest::thousandsOfMisspeltKeysAreReported()
{
    const int count = 2000;
    const QByteArray name(150, 'p');
    QByteArray document = "{ ";
    for (int index = 100; index < 400; ++index)
        document += (index == 100 ? "\"" : ", \"") + name + QByteArray::number(index) +
                    "\": { \"Bar\": " + unit(0, "[[0], [1]]", "[[0], [1]]") + " }";
    QByteArray keys = "{ \"Own\": [\"" + name + "100\"";
    for (int index = 0; index < count; ++index)
        keys +=
            ", \"" + name + "x" + QByteArray::number(100 + index % 300) + QByteArray(index / 300, 'x') + '"';
    const std::vector<Finding> findings = check(document + " }", keys + "] }");
    // 500,000 comparisons with 900 keys of unit types suffice for 555 keys; one of them is "Own".
    QCOMPARE(findings.size(), std::size_t{554});
    for (const Finding& finding : findings)
        QCOMPARE(finding.rule, Rule::DependencyUnknown);
}

void DocumentCheckerTest::longListOfLanguagesIsShortened()
{
    QByteArray texts;
    for (char letter = 'a'; letter <= 'z'; ++letter)
        texts += QByteArray(", \"x") + letter + "\": \"y" + letter + '"';
    QByteArray document = soundUnits();
    document.replace("\"en\": \"u0\"", "\"en\": \"u0\"" + texts);
    const std::vector<Finding> findings = check(document);
    QCOMPARE(findings.size(), std::size_t{1});
    QCOMPARE(
        findings[0].message,
        QString("the label lacks xa, xb, xc, xd, xe, xf, xg, xh, xi, xj, xk, xl, xm, xn, xo, xp, xq, xr, "
                "xs, xt, ..."));
}

static const TestClass<DocumentCheckerTest> testClass;
#include "DocumentCheckerTest.moc"
