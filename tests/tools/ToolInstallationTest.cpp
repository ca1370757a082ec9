#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include "ToolProcess.h"

/// Where the program looks for the shipped documents, and that an installed one contains no path of the
/// build.
class ToolInstallationTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void takesTheDocumentsBesideItself();
    void takesTheDocumentsBesideItselfThroughALink();
    void namesTheMissingDocument();
    void installedProgramKnowsNoPathOfTheBuild();

private:
    QScopedPointer<QTemporaryDir> prefix;
    QString program;
};

namespace {

bool writeFile(const QString& path, const QByteArray& content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.flush();
}

} // namespace

void ToolInstallationTest::init()
{
    prefix.reset(new QTemporaryDir);
    program = prefix->filePath("bin/unitmanager");
    QVERIFY(QDir(prefix->path()).mkpath("bin") && QDir(prefix->path()).mkpath("share/unitmanager"));
    QVERIFY(QFile::copy(ToolProcess::path(), program));
}

void ToolInstallationTest::takesTheDocumentsBesideItself()
{
    QVERIFY(writeFile(prefix->filePath("share/unitmanager/units.json"), "{\"OwnType\": {}}"));
    QVERIFY(writeFile(prefix->filePath("share/unitmanager/default-units.json"), "{}"));
    const ToolRun run = ToolProcess::runProgram(program, {"types"});
    QCOMPARE(run.standardError, QByteArray());
    QCOMPARE(run.standardOutput, QByteArray("OwnType\n"));
}

void ToolInstallationTest::takesTheDocumentsBesideItselfThroughALink()
{
    QVERIFY(writeFile(prefix->filePath("share/unitmanager/units.json"), "{\"OwnType\": {}}"));
    QVERIFY(writeFile(prefix->filePath("share/unitmanager/default-units.json"), "{}"));
    const QString link = prefix->filePath("unit-conversion");
    QVERIFY(QFile::link(program, link));
    QCOMPARE(ToolProcess::runProgram(link, {"types"}).standardOutput, QByteArray("OwnType\n"));
}

void ToolInstallationTest::namesTheMissingDocument()
{
    const ToolRun run = ToolProcess::runProgram(program, {"types"});
    const QString document = QDir(prefix->path()).canonicalPath() + "/share/unitmanager/units.json";
    QCOMPARE(run.standardError, "unitmanager: " + document.toUtf8() + ": No such file or directory\n");
    QCOMPARE(run.standardOutput, QByteArray());
    QCOMPARE(run.exitCode, 1);
}

void ToolInstallationTest::installedProgramKnowsNoPathOfTheBuild()
{
    const QString destination = prefix->filePath("installed");
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

QTEST_GUILESS_MAIN(ToolInstallationTest)
#include "ToolInstallationTest.moc"
