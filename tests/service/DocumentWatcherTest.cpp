#include "DocumentWatcher.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTimer>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include "LogCapture.h"
#include "TestFiles.h"
#include "TestProgram.h"
#include "WaitLimit.h"
#include "WithoutPrivileges.h"

using namespace std::chrono_literals;

/// Tests when changes are reported; for which changes are detected see ServiceAnnouncementsTest.
class DocumentWatcherTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void burstIsReportedWhenItHasGoneQuiet();
    void endlessBurstIsReported();
    void changesFurtherUpAreNotReported();
    void exchangeFurtherUpIsReported();
    void recreatedDirectoryIsWatched();
    void missingFileIsWatched();
    void placeThatCannotBeWatchedIsLoggedOnce();

private:
    QTemporaryDir m_directory;
    QString m_file;
};

void DocumentWatcherTest::init()
{
    QVERIFY(QDir(m_directory.path()).mkpath("upper/documents"));
    m_file = m_directory.filePath("upper/documents/file");
    QVERIFY(TestFiles::write(m_file, "text"));
}

void DocumentWatcherTest::cleanup()
{
    QVERIFY(TestFiles::setMode(m_directory.filePath("upper/documents"), 0755));
}

void DocumentWatcherTest::burstIsReportedWhenItHasGoneQuiet()
{
    const DocumentWatcher watcher({m_file}, {500ms, 1h});
    const QSignalSpy reports(&watcher, &DocumentWatcher::touched);
    QTimer shorter;
    shorter.setSingleShot(true);
    for (int count = 0; count < 20; ++count) {
        QVERIFY(TestFiles::write(m_file, QByteArray::number(count)));
        QCoreApplication::processEvents();
        shorter.start(250ms);
    }
    QTRY_VERIFY_WITH_TIMEOUT(!reports.isEmpty(), waitLimit);
    QCOMPARE(reports.size(), 1);
    QVERIFY2(!shorter.isActive(), "the report came before a timer that is shorter than the quiet time");
}

void DocumentWatcherTest::endlessBurstIsReported()
{
    const DocumentWatcher watcher({m_file}, {1h, 500ms});
    const QSignalSpy reports(&watcher, &DocumentWatcher::touched);
    QTimer shorter;
    shorter.setSingleShot(true);
    shorter.start(250ms);
    QTRY_VERIFY_WITH_TIMEOUT(TestFiles::write(m_file, "text") && !reports.isEmpty(), waitLimit);
    QVERIFY2(!shorter.isActive(), "the report came before a timer that is shorter than the longest delay");
    QTRY_VERIFY_WITH_TIMEOUT(TestFiles::write(m_file, "text") && reports.size() == 2, waitLimit);
}

void DocumentWatcherTest::changesFurtherUpAreNotReported()
{
    const QString foreign = m_directory.filePath("an unrelated file");
    const DocumentWatcher watcher({m_file}, {10ms, 100ms});
    const DocumentWatcher laterWatcher({foreign}, {200ms, 1h});
    QSignalSpy reports(&watcher, &DocumentWatcher::touched);
    QSignalSpy laterReports(&laterWatcher, &DocumentWatcher::touched);
    QVERIFY(TestFiles::write(foreign, "text"));
    QVERIFY(laterReports.wait(waitLimit));
    QCOMPARE(reports.size(), 0);

    QVERIFY(TestFiles::write(m_file, "text"));
    QVERIFY(reports.wait(waitLimit));
}

void DocumentWatcherTest::exchangeFurtherUpIsReported()
{
    const DocumentWatcher watcher({m_file}, {10ms, 100ms});
    QSignalSpy reports(&watcher, &DocumentWatcher::touched);
    QDir top(m_directory.path());
    QVERIFY(top.rename("upper", "before"));
    QVERIFY(top.mkpath("upper/documents"));
    QVERIFY(reports.wait(waitLimit));

    QVERIFY(TestFiles::write(m_file, "text"));
    QVERIFY(reports.wait(waitLimit));
    QVERIFY(TestFiles::write(m_file, "another text"));
    QVERIFY(reports.wait(waitLimit));
    QVERIFY(QDir(top.filePath("before")).removeRecursively());
}

// The new directory may get the inode number of the old one.
void DocumentWatcherTest::recreatedDirectoryIsWatched()
{
    QVERIFY(QFile::remove(m_file));
    const DocumentWatcher watcher({m_file}, {10ms, 100ms});
    QSignalSpy reports(&watcher, &DocumentWatcher::touched);
    QVERIFY(QDir().rmdir(m_directory.filePath("upper/documents")));
    QVERIFY(QDir().mkdir(m_directory.filePath("upper/documents")));
    QVERIFY(reports.wait(waitLimit));

    QVERIFY(TestFiles::write(m_file, "text"));
    QVERIFY(reports.wait(waitLimit));
}

void DocumentWatcherTest::missingFileIsWatched()
{
    const QString path = m_directory.filePath("not/there/yet");
    const DocumentWatcher watcher({path}, {10ms, 100ms});
    QSignalSpy reports(&watcher, &DocumentWatcher::touched);
    QVERIFY(QDir(m_directory.path()).mkdir("not"));
    QVERIFY(reports.wait(waitLimit));
    QVERIFY(QDir(m_directory.path()).mkdir("not/there"));
    QVERIFY(reports.wait(waitLimit));
    QVERIFY(TestFiles::write(path, "text"));
    QVERIFY(reports.wait(waitLimit));
}

void DocumentWatcherTest::placeThatCannotBeWatchedIsLoggedOnce()
{
    const QString closed = m_directory.filePath("upper/documents");
    QVERIFY(TestFiles::setMode(m_directory.path(), 0755));
    QVERIFY(TestFiles::setMode(closed, 0311));
    QVERIFY(TestFiles::setMode(m_file, 0666));
    LogCapture log;
    const WithoutPrivileges ordinary;
    QVERIFY(ordinary.isEffective());

    const DocumentWatcher watcher({m_file}, {10ms, 100ms});
    QSignalSpy reports(&watcher, &DocumentWatcher::touched);
    QCOMPARE(log.takeTexts().join('\n'), "cannot watch " + closed + ": changes there may go unnoticed");

    // The file itself is still watched.
    QVERIFY(TestFiles::write(m_file, "another text"));
    QVERIFY(reports.wait(waitLimit));
    QCOMPARE(log.takeTexts(), QStringList());
}

static const TestClass<DocumentWatcherTest> testClass;
#include "DocumentWatcherTest.moc"
