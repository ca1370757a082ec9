#include "InstalledService.h"

#include <QtTest/QTest>

#include "CommandLine.h"
#include "ConfigurationFileService.h"
#include "DocumentFile.h"
#include "TestProgram.h"

namespace {

const QString program = "bin/configuration-file-service";
const QString unit = "lib/systemd/system/configuration-file-service.service";
const QString users = "lib/sysusers.d/configuration-file-service.conf";
const QString interface = "share/dbus-1/interfaces/org.measuringdevice.ConfigurationFileHandler.xml";
const QString activation = "share/dbus-1/system-services/org.measuringdevice.DeviceManager.service";
const QString policy = "share/dbus-1/system.d/org.measuringdevice.DeviceManager.conf";

} // namespace

/// The installed files are consistent with each other and with the program.
class InstalledServiceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void filesAreInstalled();
    void nothingIsLeftToFillIn();
    void unitAndActivationNameTheService();
    void commandIsOneOfTheProgram();
    void everyFileNamesTheSameUser();
    void unitRestartsAndConfinesTheService_data();
    void unitRestartsAndConfinesTheService();

private:
    InstalledService m_installed;
};

void InstalledServiceTest::initTestCase()
{
    QVERIFY(m_installed.install());
}

void InstalledServiceTest::filesAreInstalled()
{
    QCOMPARE(m_installed.files(), (QStringList{program, unit, users, interface, activation, policy}));
}

void InstalledServiceTest::nothingIsLeftToFillIn()
{
    for (const QString& file : {users, unit, activation, policy}) {
        QVERIFY2(!m_installed.text(file).isEmpty(), qPrintable(file));
        QVERIFY2(!m_installed.text(file).contains("@UNITMANAGER"), qPrintable(file));
    }
}

void InstalledServiceTest::unitAndActivationNameTheService()
{
    QCOMPARE(m_installed.values(unit, "Type"), QStringList{"dbus"});
    QCOMPARE(m_installed.values(unit, "BusName"), QStringList{ConfigurationFileService::name()});
    QCOMPARE(m_installed.values(activation, "Name"), QStringList{ConfigurationFileService::name()});
    QCOMPARE(m_installed.values(activation, "SystemdService"),
             QStringList{"configuration-file-service.service"});
}

void InstalledServiceTest::commandIsOneOfTheProgram()
{
    const QStringList commands = m_installed.values(unit, "ExecStart");
    QCOMPARE(commands.size(), 1);
    QCOMPARE(m_installed.values(activation, "Exec"), commands);

    const QStringList words = commands.first().split(' ');
    QVERIFY2(words.first().endsWith('/' + program), qPrintable(words.first()));
    const CommandLine commandLine = CommandLine::read(words);
    QVERIFY(commandLine.request == CommandLine::Request::Serve);
    QCOMPARE(commandLine.bus, "system");
    const QString prefix = words.first().chopped(program.size());
    // A product's own documents, and the shipped ones as fall-back.
    QCOMPARE(commandLine.directories,
             (QStringList{prefix + "etc/unitmanager", prefix + "share/unitmanager"}));
    QCOMPARE(commandLine.maximumSize, DocumentFile::defaultLimit);
}

void InstalledServiceTest::everyFileNamesTheSameUser()
{
    const QString user = m_installed.values(unit, "User").value(0);
    QVERIFY(!user.isEmpty());
    QCOMPARE(m_installed.values(activation, "User"), QStringList{user});
    QVERIFY(m_installed.text(users).startsWith("u " + user + " - "));
    QCOMPARE(m_installed.text(policy).count("<policy user=\"" + user + "\">"), 1);
}

void InstalledServiceTest::unitRestartsAndConfinesTheService_data()
{
    QTest::addColumn<QString>("value");

    QTest::newRow("ExecReload") << "kill -HUP $MAINPID";
    QTest::newRow("Restart") << "on-failure";
    QTest::newRow("RestartPreventExitStatus") << "2";
    QTest::newRow("NoNewPrivileges") << "yes";
    QTest::newRow("ProtectSystem") << "strict";
    QTest::newRow("ProtectHome") << "yes";
    QTest::newRow("CapabilityBoundingSet") << "";
    QTest::newRow("RestrictAddressFamilies") << "AF_UNIX";
    QTest::newRow("SystemCallFilter") << "@system-service";
}

void InstalledServiceTest::unitRestartsAndConfinesTheService()
{
    QFETCH(QString, value);

    QCOMPARE(m_installed.values(unit, QTest::currentDataTag()), QStringList{value});
}

static const TestClass<InstalledServiceTest> testClass;
#include "InstalledServiceTest.moc"
