#include "DocumentProblem.h"

#include <QtTest/QTest>

#include "TestProgram.h"

class DocumentProblemTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void placeIsPartOfTheText();
    void wholeDocumentHasNoPlace();
    void quotationIsPrintable();
};

void DocumentProblemTest::placeIsPartOfTheText()
{
    const DocumentProblem problem{"is 100 %1 wrong", {12, 3}};
    QCOMPARE(problem.inFile("/a %1/b.json"), "/a %1/b.json:12:3: is 100 %1 wrong");
    QCOMPARE(problem.withPlace(), "line 12, column 3: is 100 %1 wrong");
}

void DocumentProblemTest::wholeDocumentHasNoPlace()
{
    const DocumentProblem problem{"is a directory", {}};
    QCOMPARE(problem.inFile("/a %1/b.json"), "/a %1/b.json: is a directory");
    QCOMPARE(problem.withPlace(), "is a directory");
}

void DocumentProblemTest::quotationIsPrintable()
{
    QCOMPARE(DocumentProblem::quoted("bar \u00B5"), "\"bar \u00B5\"");
    QCOMPARE(DocumentProblem::quoted("a\nb\t\x1B[1m\u202E"), "\"a?b??[1m?\"");
    QCOMPARE(DocumentProblem::quoted(QString(60, 'x')), '"' + QString(60, 'x') + '"');
    QCOMPARE(DocumentProblem::quoted(QString(61, 'x')), '"' + QString(60, 'x') + "...\"");
}

static const TestClass<DocumentProblemTest> testClass;
#include "DocumentProblemTest.moc"
