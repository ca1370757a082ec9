#include "ConfigurationDocument.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include "LogCapture.h"
#include "Row.h"
#include "TestFiles.h"
#include "TestProgram.h"

class ConfigurationDocumentTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void nothingIsReadAtFirst();
    void goodTextBecomesActive();
    void sameTextChangesNothing();
    void lastGoodTextStaysActive_data();
    void lastGoodTextStaysActive();
    void withoutGoodTextThereIsNoText();
    void emptyFileIsRefusedAtOnce();
    void refusalIsLoggedOnce();
    void returnOfTheGoodTextIsLogged();
    void warningsAreLoggedWithTheirPlaces();
    void firstExistingFileIsRead();
    void refusedFileHasNoFallBack_data();
    void refusedFileHasNoFallBack();

private:
    QTemporaryDir m_directory;
    QString m_path;
    std::optional<ConfigurationDocument> m_document;
    std::optional<LogCapture> m_log;
};

void ConfigurationDocumentTest::init()
{
    m_path = m_directory.filePath("document.json");
    QVERIFY(TestFiles::write(m_path, "{\"a\": [\"b\"]}"));
    m_document.emplace("Name", DocumentKind::Dependencies, QStringList{m_path});
    m_log.emplace();
}

void ConfigurationDocumentTest::nothingIsReadAtFirst()
{
    QCOMPARE(m_document->name(), "Name");
    QCOMPARE(m_document->path(), m_path);
    QVERIFY(m_document->state().text.isNull());
    QCOMPARE(m_log->takeTexts(), QStringList());
}

void ConfigurationDocumentTest::goodTextBecomesActive()
{
    QVERIFY(m_document->update());
    QCOMPARE(m_document->state().text, QString("{\"a\": [\"b\"]}"));
    // From sha256sum.
    QCOMPARE(m_document->state().checksum,
             "fd7aed09f2bdd9a8027ed00523c3da064615c520c6f2387cb0d3a57f08914dae");
    QCOMPARE(m_document->state().refusal, QString());
    QCOMPARE(m_log->takeTexts(), QStringList{"Name: loaded " + m_path});

    QVERIFY(TestFiles::write(m_path, "{\"a\": [\"c\"]}"));
    QVERIFY(m_document->update());
    QCOMPARE(m_document->state().text, QString("{\"a\": [\"c\"]}"));
    QCOMPARE(m_log->takeTexts(), QStringList{"Name: loaded " + m_path});
}

void ConfigurationDocumentTest::sameTextChangesNothing()
{
    QVERIFY(m_document->update());
    m_log->take();
    QVERIFY(!m_document->update());
    QVERIFY(TestFiles::replace(m_path, "{\"a\": [\"b\"]}"));
    QVERIFY(!m_document->update());
    QCOMPARE(m_log->takeTexts(), QStringList());
}

void ConfigurationDocumentTest::lastGoodTextStaysActive_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("reason");

    row("no JSON", QByteArray("{"),
        "line 1, column 2: unexpected end; the \"{\" at line 1, column 1 is not closed");
    row("violating a rule", QByteArray("{\"bad\": 1}"),
        R"(line 1, column 2: "bad" has no list of keys; write "KEY": ["KEY"])");
    row("two mistakes", QByteArray("{\"bad\": 1, \"worse\": 2}"),
        R"(line 1, column 2: "bad" has no list of keys; write "KEY": ["KEY"] (and one more error))");
    row("three mistakes", QByteArray("{\"bad\": 1, \"worse\": 2, \"worst\": 3}"),
        R"(line 1, column 2: "bad" has no list of keys; write "KEY": ["KEY"] (and 2 more errors))");
    row("duplicate name", QByteArray("{\"a\": 1, \"a\": 2}"),
        "line 1, column 10: duplicate name \"a\"; first at line 1, column 2");
    row("too large", QByteArray("{}").leftJustified(DocumentFile::defaultLimit + 1),
        "is larger than the limit of 1048576 bytes; see --max-size");
}

void ConfigurationDocumentTest::lastGoodTextStaysActive()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, reason);
    QVERIFY(m_document->update());
    const QString checksum = m_document->state().checksum;
    m_log->take();

    QVERIFY(TestFiles::write(m_path, bytes));
    QVERIFY(m_document->update());
    QCOMPARE(m_document->state().text, QString("{\"a\": [\"b\"]}"));
    QCOMPARE(m_document->state().checksum, checksum);
    const QList<LoggedMessage> messages = m_log->take();
    QCOMPARE(messages.size(), 1);
    QCOMPARE(messages[0].type, QtWarningMsg);
    QCOMPARE(messages[0].text,
             "Name: cannot use " + m_path + ": " + reason + "; keeping the last valid document");
}

void ConfigurationDocumentTest::withoutGoodTextThereIsNoText()
{
    QVERIFY(QFile::remove(m_path));
    QVERIFY(m_document->update());
    QVERIFY(m_document->state().text.isNull());
    QCOMPARE(m_document->state().checksum, QString());
    QCOMPARE(m_document->state().refusal, m_path + ": no such file");
    QCOMPARE(m_log->takeTexts(),
             QStringList{"Name: cannot use " + m_path + ": no such file; no document to serve"});
}

void ConfigurationDocumentTest::emptyFileIsRefusedAtOnce()
{
    QVERIFY(TestFiles::write(m_path, ""));
    QVERIFY(m_document->update());
    QCOMPARE(m_log->takeTexts(),
             QStringList{"Name: cannot use " + m_path + ": is empty; no document to serve"});
}

void ConfigurationDocumentTest::refusalIsLoggedOnce()
{
    QVERIFY(TestFiles::write(m_path, "{\"bad\": 1}"));
    QVERIFY(m_document->update());
    QCOMPARE(m_document->state().refusal,
             m_path + R"(:1:2: "bad" has no list of keys; write "KEY": ["KEY"])");
    QCOMPARE(m_log->takeTexts().size(), 1);
    QVERIFY(!m_document->update());
    QCOMPARE(m_log->takeTexts(), QStringList());

    // The same problem in another content is logged, but the state is the same.
    QVERIFY(TestFiles::write(m_path, "{\"bad\": 2}"));
    QVERIFY(!m_document->update());
    QCOMPARE(m_log->takeTexts().size(), 1);
}

void ConfigurationDocumentTest::returnOfTheGoodTextIsLogged()
{
    QVERIFY(m_document->update());
    QVERIFY(TestFiles::write(m_path, "{"));
    QVERIFY(m_document->update());
    m_log->take();

    QVERIFY(TestFiles::write(m_path, "{\"a\": [\"b\"]}"));
    QVERIFY(m_document->update());
    QCOMPARE(m_document->state().refusal, QString());
    QCOMPARE(m_log->takeTexts(), QStringList{"Name: unchanged in " + m_path});
}

void ConfigurationDocumentTest::warningsAreLoggedWithTheirPlaces()
{
    QVERIFY(TestFiles::write(m_path, "{\n  \"a\": [],\n  \"b\": [\"c\", \"c\"]\n}"));
    QVERIFY(m_document->update());
    const QList<LoggedMessage> messages = m_log->take();
    QCOMPARE(messages.size(), 3);
    QCOMPARE(messages[0].type, QtWarningMsg);
    QCOMPARE(messages[0].text,
             "Name: " + m_path + R"(:2:3: nothing depends on "a"; remove the entry [dependency-empty])");
    QCOMPARE(messages[1].type, QtWarningMsg);
    QCOMPARE(messages[1].text, "Name: " + m_path + R"(:3:14: "c" is listed twice [dependency-duplicate])");
    QCOMPARE(messages[2].text, "Name: loaded " + m_path);
}

void ConfigurationDocumentTest::firstExistingFileIsRead()
{
    const QString own = m_directory.filePath("own.json");
    m_document.emplace("Name", DocumentKind::Dependencies, QStringList{own, m_path});
    QCOMPARE(m_document->paths(), (QStringList{own, m_path}));
    QVERIFY(m_document->update());
    QCOMPARE(m_document->path(), m_path);
    QCOMPARE(m_document->state().text, QString("{\"a\": [\"b\"]}"));
    QCOMPARE(m_log->takeTexts(), QStringList{"Name: loaded " + m_path});

    QVERIFY(TestFiles::write(own, "{\"a\": [\"own\"]}"));
    QVERIFY(m_document->update());
    QCOMPARE(m_document->path(), own);
    QCOMPARE(m_document->state().text, QString("{\"a\": [\"own\"]}"));
    QCOMPARE(m_log->takeTexts(), QStringList{"Name: loaded " + own});

    QVERIFY(TestFiles::write(m_path, "{\"a\": [\"own\"]}"));
    QVERIFY(!m_document->update());
    QCOMPARE(m_log->takeTexts(), QStringList());

    QVERIFY(QFile::remove(own));
    QVERIFY(!m_document->update());
    QCOMPARE(m_document->path(), m_path);
    QCOMPARE(m_log->takeTexts(), QStringList{"Name: unchanged in " + m_path});
}

void ConfigurationDocumentTest::refusedFileHasNoFallBack_data()
{
    QTest::addColumn<bool>("isLink");

    row("invalid", false);
    row("link without target", true);
}

void ConfigurationDocumentTest::refusedFileHasNoFallBack()
{
    QFETCH(bool, isLink);
    const QTemporaryDir directory;
    const QString own = directory.filePath("own.json");
    QVERIFY(isLink ? QFile::link("missing.json", own) : TestFiles::write(own, "{"));
    m_document.emplace("Name", DocumentKind::Dependencies, QStringList{own, m_path});
    QVERIFY(m_document->update());
    QVERIFY(m_document->state().text.isNull());
    QVERIFY2(m_document->state().refusal.startsWith(own), qPrintable(m_document->state().refusal));
}

static const TestClass<ConfigurationDocumentTest> testClass;
#include "ConfigurationDocumentTest.moc"
