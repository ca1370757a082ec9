#include <QtTest/QTest>

#include <QtCore/QSet>

#include "Corpus.h"
#include "LogCapture.h"
#include "TestProgram.h"

Q_DECLARE_METATYPE(CorpusEntry)

/// What the checker finds in each document of the corpus.
class CorpusTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findingsAreExact_data();
    void findingsAreExact();
    void everyDocumentHasItsExpectation();
    void everyRuleHasADocument();
    void shippedDocumentsAreSound();
};

namespace {

const char* const fileNames[] = {"units.json", "default-units.json", "dependencies.json"};

/// The findings in the files of an entry, as texts.
QStringList check(const CorpusEntry& entry)
{
    DocumentSet documents;
    std::vector<Finding> findings;
    for (const CorpusFile& file : entry.files) {
        Finding unreadable;
        documents.of(file.kind) = file.read(unreadable);
        if (!documents.of(file.kind))
            findings.push_back(unreadable);
    }
    LogCapture log;
    for (const Finding& finding : DocumentChecker::check(documents, {}))
        findings.push_back(finding);

    QStringList texts;
    for (const Finding& finding : findings) {
        const char* const fileName = fileNames[static_cast<int>(finding.document)];
        texts.append(entry.isDevice() ? fileName + (' ' + Corpus::textOf(finding)) : Corpus::textOf(finding));
    }
    return texts;
}

} // namespace

void CorpusTest::findingsAreExact_data()
{
    QTest::addColumn<CorpusEntry>("entry");

    for (const CorpusEntry& entry : Corpus::entries())
        QTest::newRow(qPrintable(entry.name)) << entry;
}

void CorpusTest::findingsAreExact()
{
    QFETCH(CorpusEntry, entry);

    QVERIFY(!entry.files.empty());
    QCOMPARE(check(entry).join('\n'), entry.findings.join('\n'));
}

void CorpusTest::everyDocumentHasItsExpectation()
{
    QStringList expected;
    for (const CorpusEntry& entry : Corpus::entries()) {
        for (const CorpusFile& file : entry.files)
            expected.append(file.path);
    }
    expected.sort();
    QVERIFY(expected.size() > 100);
    QCOMPARE(Corpus::paths(), expected);
}

void CorpusTest::everyRuleHasADocument()
{
    QSet<QString> rules;
    for (const CorpusEntry& entry : Corpus::entries()) {
        const int column = entry.isDevice() ? 3 : 2;
        for (const QString& finding : entry.findings)
            rules.insert(finding.section(' ', column, column));
    }
    QSet<QString> expected;
    for (const RuleDescription& rule : Rules::all())
        expected.insert(rule.name);
    QVERIFY(!expected.isEmpty());
    QCOMPARE(expected - rules, QSet<QString>());
    QCOMPARE(rules - expected, QSet<QString>());
}

void CorpusTest::shippedDocumentsAreSound()
{
    DocumentSet documents;
    for (const DocumentKind kind :
         {DocumentKind::Units, DocumentKind::DefaultUnits, DocumentKind::Dependencies}) {
        const CorpusFile file{kind,
                              UNITMANAGER_SOURCE_DIR "/config/" + QString(fileNames[static_cast<int>(kind)])};
        Finding unreadable;
        documents.of(kind) = file.read(unreadable);
        QVERIFY2(documents.of(kind), qPrintable(unreadable.message));
    }
    DocumentChecker::Options options;
    options.languages = QStringList{"en", "de", "fr"};
    QStringList findings;
    for (const Finding& finding : DocumentChecker::check(documents, options))
        findings.append(Corpus::textOf(finding));
    QCOMPARE(findings, QStringList());
}

static const TestClass<CorpusTest> testClass;
#include "CorpusTest.moc"
