#include <QtTest/QTest>

#include "Corpus.h"
#include "DocumentLoader.h"
#include "LogCapture.h"
#include "TestProgram.h"

/// What the service does with each document of the corpus of faulty documents.
class ServiceCorpusTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void documentIsRefusedOrUsed_data();
    void documentIsRefusedOrUsed();
};

namespace {

/// "refuses" if a document is not used, else "warns" if there is a warning, else "accepts".
QString verdictOn(const CorpusEntry& entry)
{
    QList<ConfigurationDocument> documents;
    for (const CorpusFile& file : entry.files)
        documents.append(ConfigurationDocument("Name", file.kind, QStringList{file.path}));
    LogCapture log;
    DocumentLoader loader(documents);
    bool isRefused = false;
    QObject::connect(&loader, &DocumentLoader::stateChanged,
                     [&](int, const DocumentState& state) { isRefused = isRefused || state.text.isNull(); });
    loader.start();
    if (isRefused)
        return "refuses";
    for (const LoggedMessage& message : log.take()) {
        if (message.type == QtWarningMsg && message.text.startsWith("Name: "))
            return "warns";
    }
    return "accepts";
}

} // namespace

void ServiceCorpusTest::documentIsRefusedOrUsed_data()
{
    QTest::addColumn<int>("index");

    const std::vector<CorpusEntry> entries = Corpus::entries();
    for (std::size_t index = 0; index < entries.size(); ++index)
        QTest::newRow(qPrintable(entries[index].name)) << static_cast<int>(index);
}

void ServiceCorpusTest::documentIsRefusedOrUsed()
{
    QFETCH(int, index);

    const CorpusEntry entry = Corpus::entries()[static_cast<std::size_t>(index)];
    QVERIFY(!entry.files.empty());
    QCOMPARE(verdictOn(entry), entry.service);
}

static const TestClass<ServiceCorpusTest> testClass;
#include "ServiceCorpusTest.moc"
