#include "DocumentFile.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <future>
#include <sys/stat.h>
#include <unistd.h>

#include "Row.h"
#include "TestFiles.h"
#include "TestProgram.h"
#include "WithoutPrivileges.h"

using DocumentFile::Source;

/// Creates something at a path. @return whether it exists.
using Make = bool (*)(const QString& path);
Q_DECLARE_METATYPE(Make)

class DocumentFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void contentIsRead_data();
    void contentIsRead();
    void tooLargeIsAProblem_data();
    void tooLargeIsAProblem();
    void problemIsNamed_data();
    void problemIsNamed();
    void missingDirectoryIsNamed();
    void forbiddenFileIsAProblem();
    void endlessStreamIsAProblem();
    void pipeIsReadToItsEnd();
    void limitIsParsed_data();
    void limitIsParsed();

private:
    QTemporaryDir m_directory;
    QString m_path;
};

namespace {

const Source sources[] = {Source::RegularFile, Source::FileOrStream};

bool makeNothing(const QString&)
{
    return true;
}

bool makeDirectory(const QString& path)
{
    return QDir().mkdir(path);
}

bool makePipe(const QString& path)
{
    return ::mkfifo(QFile::encodeName(path), 0600) == 0;
}

/// The descriptor of a pipe's end; waits until the other end is open.
int writingEnd(const QString& path)
{
    return ::open(QFile::encodeName(path).constData(), O_WRONLY | O_CLOEXEC);
}

} // namespace

void DocumentFileTest::init()
{
    m_path =
        m_directory.filePath(QString("%1 %2").arg(QTest::currentTestFunction(), QTest::currentDataTag()));
}

void DocumentFileTest::contentIsRead_data()
{
    QTest::addColumn<QByteArray>("content");

    QTest::newRow("empty") << QByteArray();
    QTest::newRow("as large as allowed") << QByteArray(200000, 'x');
    QTest::newRow("any bytes") << QByteArray("\0\r\n\xFF", 4);
}

void DocumentFileTest::contentIsRead()
{
    QFETCH(QByteArray, content);
    QVERIFY(TestFiles::write(m_path, content));
    for (const Source source : sources) {
        DocumentProblem problem;
        const std::optional<QByteArray> bytes = DocumentFile::read(m_path, source, 200000, problem);
        QVERIFY2(bytes, qPrintable(problem.reason));
        QCOMPARE(*bytes, content);
    }
}

void DocumentFileTest::tooLargeIsAProblem_data()
{
    QTest::addColumn<int>("size");

    QTest::newRow("larger by one") << 9;
    QTest::newRow("much larger") << 1000000;
}

void DocumentFileTest::tooLargeIsAProblem()
{
    QFETCH(int, size);
    QVERIFY(TestFiles::write(m_path, QByteArray(size, 'x')));
    for (const Source source : sources) {
        DocumentProblem problem;
        QVERIFY(!DocumentFile::read(m_path, source, 8, problem));
        QCOMPARE(problem.withPlace(), "is larger than the limit of 8 bytes; see --max-size");
    }
}

void DocumentFileTest::problemIsNamed_data()
{
    QTest::addColumn<Make>("make");
    QTest::addColumn<QString>("problem");

    row("nothing", Make(makeNothing), "no such file");
    row("directory", Make(makeDirectory), "is a directory");
    // Opening or reading it could wait for a writer.
    row("pipe", Make(makePipe), "is not a regular file");
    row("link to a device", Make([](const QString& path) { return TestFiles::link("/dev/zero", path); }),
        "is not a regular file");
    row("link to nothing", Make([](const QString& path) { return TestFiles::link("nothing", path); }),
        "is a symbolic link to nothing");
    row("link to itself", Make([](const QString& path) { return TestFiles::link(path, path); }),
        qt_error_string(ELOOP));
}

void DocumentFileTest::problemIsNamed()
{
    QFETCH(Make, make);
    QFETCH(QString, problem);

    QVERIFY(make(m_path));
    DocumentProblem found;
    QVERIFY(!DocumentFile::read(m_path, Source::RegularFile, 8, found));
    QCOMPARE(found.withPlace(), problem);
}

void DocumentFileTest::missingDirectoryIsNamed()
{
    DocumentProblem problem;
    QVERIFY(!DocumentFile::read(m_directory.filePath("a/b/c.json"), Source::RegularFile, 8, problem));
    QCOMPARE(problem.withPlace(), "no such directory: " + m_directory.filePath("a"));
    QVERIFY(makeDirectory(m_directory.filePath("a")));
    QVERIFY(!DocumentFile::read(m_directory.filePath("a/b/c.json"), Source::FileOrStream, 8, problem));
    QCOMPARE(problem.withPlace(), "no such directory: " + m_directory.filePath("a/b"));
}

void DocumentFileTest::forbiddenFileIsAProblem()
{
    QVERIFY(TestFiles::write(m_path, "text"));
    QVERIFY(TestFiles::setMode(m_path, 0));
    QVERIFY(TestFiles::setMode(m_directory.path(), 0755));

    const WithoutPrivileges ordinary;
    QVERIFY(ordinary.isEffective());
    DocumentProblem problem;
    QVERIFY(!DocumentFile::read(m_path, Source::RegularFile, 8, problem));
    QCOMPARE(problem.withPlace(), QString::fromLocal8Bit(std::strerror(EACCES)));
}

void DocumentFileTest::endlessStreamIsAProblem()
{
    DocumentProblem problem;
    QVERIFY(!DocumentFile::read("/dev/zero", Source::FileOrStream, 100000, problem));
    QCOMPARE(problem.withPlace(), "is larger than the limit of 100000 bytes; see --max-size");
}

void DocumentFileTest::pipeIsReadToItsEnd()
{
    QVERIFY(makePipe(m_path));
    DocumentProblem problem;
    // The reader comes first and has to wait for the writer, then for each half.
    auto reading = std::async(std::launch::async, [this, &problem] {
        return DocumentFile::read(m_path, Source::FileOrStream, DocumentFile::defaultLimit, problem);
    });
    const QByteArray half(100000, 'x');
    const int pipe = writingEnd(m_path);
    const auto writeHalf = [pipe, &half] {
        return ::write(pipe, half.constData(), static_cast<std::size_t>(half.size())) == half.size();
    };
    const bool isWritten = writeHalf() && writeHalf();
    ::close(pipe);
    const std::optional<QByteArray> bytes = reading.get();
    QVERIFY(isWritten);
    QVERIFY2(bytes, qPrintable(problem.reason));
    QCOMPARE(*bytes, half + half);
}

void DocumentFileTest::limitIsParsed_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("limit");

    const int refused = -1;
    row("smallest", "1", 1);
    row("largest", "1073741824", 1073741824);
    row("leading zeros", "0020", 20);
    row("none", "", refused);
    row("zero", "0", refused);
    row("negative", "-1", refused);
    row("sign", "+1", refused);
    row("too large", "1073741825", refused);
    row("beyond the numbers", "99999999999999999999", refused);
    row("fraction", "1.5", refused);
    row("unit", "1M", refused);
    row("blank", " 1", refused);
    row("hexadecimal", "0x10", refused);
}

void DocumentFileTest::limitIsParsed()
{
    QFETCH(QString, text);
    QFETCH(int, limit);
    QCOMPARE(DocumentFile::limitFromText(text).value_or(-1), limit);
}

static const TestClass<DocumentFileTest> testClass;
#include "DocumentFileTest.moc"
