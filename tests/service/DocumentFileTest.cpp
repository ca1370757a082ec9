#include "DocumentFile.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <cerrno>
#include <sys/stat.h>

#include "Row.h"
#include "TestFiles.h"
#include "TestProgram.h"
#include "WithoutPrivileges.h"

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
    void problemIsNamed_data();
    void problemIsNamed();
    void forbiddenFileIsAProblem();
    void contentsCompare();

private:
    QTemporaryDir m_directory;
    QString m_path;
};

void DocumentFileTest::init()
{
    m_path = m_directory.filePath(QString("%1 file").arg(QTest::currentDataTag()));
}

void DocumentFileTest::contentIsRead_data()
{
    QTest::addColumn<QByteArray>("written");
    QTest::addColumn<QByteArray>("read");

    QTest::newRow("empty") << QByteArray() << QByteArray();
    QTest::newRow("as large as allowed") << QByteArray("12345678") << QByteArray("12345678");
    QTest::newRow("larger by one") << QByteArray("123456789") << QByteArray("123456789");
    QTest::newRow("much larger") << QByteArray(100, 'x') << QByteArray(9, 'x');
    QTest::newRow("any bytes") << QByteArray("\0\r\n\xFF", 4) << QByteArray("\0\r\n\xFF", 4);
}

void DocumentFileTest::contentIsRead()
{
    QFETCH(QByteArray, written);
    QFETCH(QByteArray, read);

    QVERIFY(TestFiles::write(m_path, written));
    const DocumentFile::Content content = DocumentFile::read(m_path, 8);
    QCOMPARE(content.problem, QString());
    QCOMPARE(content.bytes, read);
}

void DocumentFileTest::problemIsNamed_data()
{
    QTest::addColumn<Make>("make");
    QTest::addColumn<QString>("problem");

    row("nothing", Make([](const QString&) { return true; }), "No such file or directory");
    row("directory", Make([](const QString& path) { return QDir().mkdir(path); }),
        "it is not a regular file");
    row("pipe", Make([](const QString& path) { return ::mkfifo(QFile::encodeName(path), 0600) == 0; }),
        "it is not a regular file");
    row("link to nothing", Make([](const QString& path) { return TestFiles::link("nothing", path); }),
        "No such file or directory");
    row("link to itself", Make([](const QString& path) { return TestFiles::link(path, path); }),
        qt_error_string(ELOOP));
}

void DocumentFileTest::problemIsNamed()
{
    QFETCH(Make, make);
    QFETCH(QString, problem);

    QVERIFY(make(m_path));
    const DocumentFile::Content content = DocumentFile::read(m_path, 8);
    QCOMPARE(content.problem, problem);
    QCOMPARE(content.bytes, QByteArray());
}

void DocumentFileTest::forbiddenFileIsAProblem()
{
    QVERIFY(TestFiles::write(m_path, "text"));
    QVERIFY(TestFiles::setMode(m_path, 0));
    QVERIFY(TestFiles::setMode(m_directory.path(), 0755));

    const WithoutPrivileges ordinary;
    QVERIFY(ordinary.isEffective());
    const DocumentFile::Content content = DocumentFile::read(m_path, 8);
    QCOMPARE(content.problem, "Permission denied");
    QCOMPARE(content.bytes, QByteArray());
}

void DocumentFileTest::contentsCompare()
{
    const DocumentFile::Content content{"bytes", "problem"};
    QVERIFY(content == (DocumentFile::Content{"bytes", "problem"}));
    QVERIFY(!(content == (DocumentFile::Content{"bytes", ""})));
    QVERIFY(!(content == (DocumentFile::Content{"other", "problem"})));
}

static const TestClass<DocumentFileTest> testClass;
#include "DocumentFileTest.moc"
