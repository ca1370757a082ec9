#include "ConfigurationDataAndProcessDescriptionAccess.h"

#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <cerrno>

#include <sys/stat.h>
#include <unistd.h>

#include "LogCapture.h"
#include "MessageText.h"
#include "Row.h"
#include "TestFiles.h"
#include "TestProgram.h"

namespace {

const QByteArray byteOrderMark = "\xef\xbb\xbf";

QString readText(const QString& path)
{
    return ConfigurationDataAndProcessDescriptionAccess().getConfiguration(QFileInfo(path));
}

/// Drops root's privilege to read every file during its lifetime.
class OrdinaryUser
{
public:
    OrdinaryUser() : m_isPrivileged(geteuid() == 0 && seteuid(65534) == 0) {}
    ~OrdinaryUser()
    {
        if (m_isPrivileged && seteuid(0) != 0)
            qFatal("The user cannot be restored");
    }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

private:
    bool m_isPrivileged;
};

} // namespace

class ConfigurationDataAndProcessDescriptionAccessTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void textIsThatOfTheFile_data();
    void textIsThatOfTheFile();
    void invalidUtf8IsReported_data();
    void invalidUtf8IsReported();
    void missingFileIsReported_data();
    void missingFileIsReported();
    void emptyPathIsReported();
    void irregularFileIsReported();
    void fileWithoutPermissionIsReported();
    void failingReadIsReported();
    void largestFileIsRead();
    void largerFileIsReported();
    void staleFileInformationIsNotUsed();
    void linkIsFollowed();

private:
    QString writeFile(const QByteArray& bytes);
    void expectWarning(const QString& path, const QString& reason);

    QScopedPointer<QTemporaryDir> m_directory;
};

void ConfigurationDataAndProcessDescriptionAccessTest::init()
{
    m_directory.reset(new QTemporaryDir);
    QVERIFY(m_directory->isValid());
}

QString ConfigurationDataAndProcessDescriptionAccessTest::writeFile(const QByteArray& bytes)
{
    const QString path = m_directory->filePath(QStringLiteral("units.json"));
    if (!TestFiles::write(path, bytes))
        qFatal("The test file cannot be written");
    return path;
}

void ConfigurationDataAndProcessDescriptionAccessTest::expectWarning(const QString& path,
                                                                     const QString& reason)
{
    LogCapture log;

    QCOMPARE(readText(path), QString());

    QCOMPARE(messageTexts(log.take(), LineNumbers::Any),
             QStringList(warningText(
                 QStringLiteral("ConfigurationTree/ConfigurationDataAndProcessDescriptionAccess"), anyLine,
                 QStringLiteral("QString ConfigurationDataAndProcessDescriptionAccess::getConfiguration("
                                "const QFileInfo&) const"),
                 QStringLiteral("Cannot read configuration file \"%1\" : %2").arg(path, reason))));
}

void ConfigurationDataAndProcessDescriptionAccessTest::textIsThatOfTheFile_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");

    row("document", QByteArray("{\"a\": 1}\n"), "{\"a\": 1}\n");
    row("empty file", QByteArray(), "");
    row("byte order mark alone", byteOrderMark, "");
    row("byte order mark at the start", byteOrderMark + "{}", "{}");
    row("byte order mark inside", "{" + byteOrderMark + "}", QString("{%1}").arg(QChar(0xfeff)));
    row("line ends of another system", QByteArray("{\r\n}"), "{\r\n}");
    row("two bytes",
        QByteArray("\xc2\xb0"
                   "C"),
        QString("%1C").arg(QChar(0xb0)));
    row("four bytes", QByteArray("\xf0\x9f\x8c\xa1"), QString::fromUcs4(U"\U0001f321"));
    row("replacement character itself", QByteArray("\xef\xbf\xbd"), QString(QChar(0xfffd)));
    row("null characters", QByteArray("a\0b", 3), QString("a%1b").arg(QChar(0)));
}

void ConfigurationDataAndProcessDescriptionAccessTest::textIsThatOfTheFile()
{
    QFETCH(QByteArray, bytes);
    const QString path = writeFile(bytes);
    LogCapture log;

    QTEST(readText(path), "text");
    QCOMPARE(log.takeTexts(), QStringList());
}

void ConfigurationDataAndProcessDescriptionAccessTest::invalidUtf8IsReported_data()
{
    QTest::addColumn<QByteArray>("bytes");

    row("latin-1", QByteArray("{\"a\": \"\xb0"
                              "C\"}"));
    row("sequence cut off by the end", QByteArray("{}\xc2"));
    row("three of four bytes", QByteArray("\xf0\x9f\x8c"));
    row("sequence cut off by a letter", QByteArray("\xe2\x82"
                                                   "C"));
    row("continuation byte alone", QByteArray("\x80"));
    row("overlong form", QByteArray("\xc0\xaf"));
    row("half of a surrogate pair", QByteArray("\xed\xa0\xbc"));
    row("surrogate pair", QByteArray("\xed\xa0\xbc\xed\xbc\xa1"));
    row("beyond the last code point", QByteArray("\xf4\x90\x80\x80"));
    row("UTF-16", QByteArray("\xff\xfe{\0}\0", 6));
    row("last byte of many", QByteArray(100000, 'x') + "\xff");
}

void ConfigurationDataAndProcessDescriptionAccessTest::invalidUtf8IsReported()
{
    QFETCH(QByteArray, bytes);

    expectWarning(writeFile(bytes), QStringLiteral("it is not valid UTF-8"));
}

void ConfigurationDataAndProcessDescriptionAccessTest::missingFileIsReported_data()
{
    QTest::addColumn<QString>("path");

    QTest::newRow("no such file") << m_directory->filePath("missing.json");
    QTest::newRow("no such directory") << m_directory->filePath("missing/units.json");
}

void ConfigurationDataAndProcessDescriptionAccessTest::missingFileIsReported()
{
    QFETCH(QString, path);

    expectWarning(path, QStringLiteral("it does not exist"));
}

void ConfigurationDataAndProcessDescriptionAccessTest::emptyPathIsReported()
{
    expectWarning(QString(), QStringLiteral("it has no name"));
}

void ConfigurationDataAndProcessDescriptionAccessTest::irregularFileIsReported()
{
    const QString pipe = m_directory->filePath(QStringLiteral("pipe"));
    QCOMPARE(mkfifo(qPrintable(pipe), 0600), 0);

    const QString reason = QStringLiteral("it is not a regular file");
    expectWarning(pipe, reason);
    expectWarning(m_directory->path(), reason);
    expectWarning(QStringLiteral("/dev/zero"), reason);
}

void ConfigurationDataAndProcessDescriptionAccessTest::fileWithoutPermissionIsReported()
{
    const QString path = writeFile("{}");
    QVERIFY(QFile::setPermissions(path, QFileDevice::Permissions()));
    QCOMPARE(chmod(qPrintable(m_directory->path()), 0755), 0);
    const OrdinaryUser user;

    expectWarning(path, QStringLiteral("Permission denied"));
}

void ConfigurationDataAndProcessDescriptionAccessTest::failingReadIsReported()
{
    // Nothing is mapped at the first address, so the first read of this file fails.
    expectWarning(QStringLiteral("/proc/self/mem"), qt_error_string(EIO));
}

void ConfigurationDataAndProcessDescriptionAccessTest::largestFileIsRead()
{
    const QString path = writeFile("{}");
    const qint64 size = ConfigurationDataAndProcessDescriptionAccess::getMaximumFileSize();
    QCOMPARE(size, qint64(67108864));
    QVERIFY(QFile::resize(path, size));
    LogCapture log;

    const QString text = readText(path);

    QCOMPARE(log.takeTexts(), QStringList());
    QCOMPARE(text.size(), static_cast<int>(size));
    QVERIFY(text.startsWith(QStringLiteral("{}")));
}

void ConfigurationDataAndProcessDescriptionAccessTest::largerFileIsReported()
{
    const QString path = writeFile("{}");
    QVERIFY(QFile::resize(path, ConfigurationDataAndProcessDescriptionAccess::getMaximumFileSize() + 1));

    expectWarning(path, QStringLiteral("it is larger than 67108864 bytes"));
}

void ConfigurationDataAndProcessDescriptionAccessTest::staleFileInformationIsNotUsed()
{
    const QFileInfo info(m_directory->filePath(QStringLiteral("units.json")));
    QVERIFY(!info.exists());
    writeFile("{}");

    QCOMPARE(ConfigurationDataAndProcessDescriptionAccess().getConfiguration(info), QStringLiteral("{}"));
}

void ConfigurationDataAndProcessDescriptionAccessTest::linkIsFollowed()
{
    const QString link = m_directory->filePath(QStringLiteral("link.json"));
    QVERIFY(QFile::link(writeFile("{}"), link));

    QCOMPARE(readText(link), QStringLiteral("{}"));
}

static const TestClass<ConfigurationDataAndProcessDescriptionAccessTest> testClass;

#include "ConfigurationDataAndProcessDescriptionAccessTest.moc"
