#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include "TestFiles.h"
#include "TestProgram.h"
#include "ToolProcess.h"

/// Where the program looks for the shipped documents, and that an installed one contains no path of the
/// build.
class ToolInstallationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void findsTheDocumentsBesideItself();
    void findsTheDocumentsBesideItselfThroughALink();
    void prefersTheDocumentsOfTheProduct();
    void namesTheMissingDocument();
    void installedProgramKnowsNoPathOfTheBuild();

private:
    QScopedPointer<QTemporaryDir> m_prefix;
    QString m_program;
};

void ToolInstallationTest::init()
{
    m_prefix.reset(new QTemporaryDir);
    m_program = m_prefix->filePath("bin/unitmanager");
    QVERIFY(QDir(m_prefix->path()).mkpath("bin") && QDir(m_prefix->path()).mkpath("share/unitmanager"));
    QVERIFY(QFile::copy(ToolProcess::path(), m_program));
}

void ToolInstallationTest::findsTheDocumentsBesideItself()
{
    QVERIFY(TestFiles::write(m_prefix->filePath("share/unitmanager/units.json"), "{\"OwnType\": {}}"));
    QVERIFY(TestFiles::write(m_prefix->filePath("share/unitmanager/default-units.json"), "{}"));
    const ToolRun run = ToolProcess::runProgram(m_program, {"types"});
    QCOMPARE(run.standardError, QByteArray());
    QCOMPARE(run.standardOutput, QByteArray("OwnType\n"));
}

void ToolInstallationTest::findsTheDocumentsBesideItselfThroughALink()
{
    QVERIFY(TestFiles::write(m_prefix->filePath("share/unitmanager/units.json"), "{\"OwnType\": {}}"));
    QVERIFY(TestFiles::write(m_prefix->filePath("share/unitmanager/default-units.json"), "{}"));
    const QString link = m_prefix->filePath("unit-conversion");
    QVERIFY(QFile::link(m_program, link));
    QCOMPARE(ToolProcess::runProgram(link, {"types"}).standardOutput, QByteArray("OwnType\n"));
}

void ToolInstallationTest::prefersTheDocumentsOfTheProduct()
{
    QVERIFY(QDir(m_prefix->path()).mkpath("etc/unitmanager"));
    QVERIFY(TestFiles::write(m_prefix->filePath("etc/unitmanager/units.json"), "{\"ProductType\": {}}"));
    QVERIFY(TestFiles::write(m_prefix->filePath("share/unitmanager/units.json"), "{\"OwnType\": {}}"));
    // The product has no default units of its own.
    QVERIFY(TestFiles::write(m_prefix->filePath("share/unitmanager/default-units.json"), "{}"));
    const ToolRun run = ToolProcess::runProgram(m_program, {"types"});
    QCOMPARE(run.standardError, QByteArray());
    QCOMPARE(run.standardOutput, QByteArray("ProductType\n"));
}

void ToolInstallationTest::namesTheMissingDocument()
{
    const ToolRun run = ToolProcess::runProgram(m_program, {"types"});
    const QString document = QDir(m_prefix->path()).canonicalPath() + "/share/unitmanager/units.json";
    QCOMPARE(run.standardError, "unitmanager: " + document.toUtf8() + ": no such file\n");
    QCOMPARE(run.standardOutput, QByteArray());
    QCOMPARE(run.exitCode, 1);
}

void ToolInstallationTest::installedProgramKnowsNoPathOfTheBuild()
{
    const QString destination = m_prefix->filePath("installed");
    // Debug information contains paths of the build; installed programs are stripped.
    const ToolRun install = ToolProcess::runProgram(CMAKE_PROGRAM, {"-DCMAKE_INSTALL_PREFIX=" + destination,
                                                                    "-DCMAKE_INSTALL_DO_STRIP=1", "-P",
                                                                    UNITMANAGER_TOOL_INSTALL_SCRIPT});
    QVERIFY2(install.exitCode == 0, install.standardError.constData());
    QFile installed(destination + "/bin/unitmanager");
    QVERIFY(installed.open(QIODevice::ReadOnly));
    const QByteArray bytes = installed.readAll();
    QVERIFY(bytes.contains("share/unitmanager"));
    QVERIFY(!bytes.contains(UNITMANAGER_BUILD_DIR));
    QVERIFY(!bytes.contains(UNITMANAGER_SOURCE_DIR "/config"));
}

static const TestClass<ToolInstallationTest> testClass;
#include "ToolInstallationTest.moc"
