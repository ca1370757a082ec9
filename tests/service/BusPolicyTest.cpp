#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <csignal>
#include <memory>
#include <unistd.h>

#include "ConfigurationFileService.h"
#include "InstalledService.h"
#include "ServiceClient.h"
#include "ServiceDocuments.h"
#include "ServiceProcess.h"
#include "SystemBus.h"
#include "TestFiles.h"
#include "TestProgram.h"
#include "WaitLimit.h"

namespace {

const QString denied = "org.freedesktop.DBus.Error.AccessDenied";

/// The user who runs this test, as named in a policy.
QString thisUser()
{
    return QString::number(::geteuid());
}

/// A user other than the one who runs this test.
QString anotherUser()
{
    return QString::number(::geteuid() + 1);
}

} // namespace

/// Applies the installed policy on a real bus. The service user changes during the test: while it is the user
/// of this test, the service takes its name; then it is another user, and this test is an ordinary client.
class BusPolicyTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void withoutPolicyNobodyMayRead();
    void serviceUserMayOwnTheName();
    void nobodyElseMayOwnTheName();
    void everybodyMayRead();
    void everybodyMayListen();
    void everybodyMayReadTheState();
    void everybodyMayIntrospect();
    void nobodyMayDoMore();

private:
    QString policy(const QString& serviceUser) const;
    bool startService();
    bool changeRules(const QString& rules);
    QDBusMessage callBus(const QString& method, const QVariantList& arguments = {}) const;

    InstalledService m_installed;
    QTemporaryDir m_directory;
    std::unique_ptr<SystemBus> m_bus;
    std::unique_ptr<ServiceProcess> m_service;
    std::unique_ptr<ServiceClient> m_client;
};

/// The installed policy with the service user replaced.
QString BusPolicyTest::policy(const QString& serviceUser) const
{
    const QString unit = "lib/systemd/system/configuration-file-service.service";
    const QString named = "user=\"" + m_installed.values(unit, "User").value(0) + '"';
    const QString text = m_installed.text("share/dbus-1/system.d/org.measuringdevice.DeviceManager.conf");
    return text.contains(named) ? QString(text).replace(named, "user=\"" + serviceUser + '"') : "no policy";
}

bool BusPolicyTest::startService()
{
    return m_service->serve(m_directory.path(), m_bus->address());
}

bool BusPolicyTest::changeRules(const QString& rules)
{
    return m_bus->setRules(rules) && callBus("ReloadConfig").type() == QDBusMessage::ReplyMessage;
}

QDBusMessage BusPolicyTest::callBus(const QString& method, const QVariantList& arguments) const
{
    const QString bus = "org.freedesktop.DBus";
    return m_client->call(bus, "/org/freedesktop/DBus", bus, method, arguments);
}

void BusPolicyTest::initTestCase()
{
    QVERIFY(m_installed.install());
}

void BusPolicyTest::init()
{
    QVERIFY(TestFiles::write(m_directory.filePath("units.json"), ServiceDocuments::units("first")));
    QVERIFY(TestFiles::write(m_directory.filePath("default-units.json"),
                             ServiceDocuments::defaultUnits("first")));
    QVERIFY(
        TestFiles::write(m_directory.filePath("dependencies.json"), ServiceDocuments::dependencies("first")));
    m_bus = std::make_unique<SystemBus>();
    QVERIFY(m_bus->setRules(policy(thisUser())));
    QVERIFY(m_bus->start());
    m_service = std::make_unique<ServiceProcess>();
    m_client = std::make_unique<ServiceClient>(m_bus->address());
}

void BusPolicyTest::cleanup()
{
    m_client.reset();
    m_service.reset();
    m_bus.reset();
}

// Shows that the permissions in the other tests come from the policy.
void BusPolicyTest::withoutPolicyNobodyMayRead()
{
    QVERIFY(startService());
    QVERIFY(changeRules("<busconfig/>"));
    QCOMPARE(m_client->text(ServiceObject::units), "error: " + denied);
}

void BusPolicyTest::serviceUserMayOwnTheName()
{
    QVERIFY2(startService(), qPrintable(m_service->log()));
    QCOMPARE(m_client->text(ServiceObject::units), QString(ServiceDocuments::units("first")));
}

void BusPolicyTest::nobodyElseMayOwnTheName()
{
    QVERIFY(changeRules(policy(anotherUser())));
    const unsigned int noFlags = 0;
    const QVariantList request{ConfigurationFileService::name(), noFlags};
    QCOMPARE(callBus("RequestName", request).errorName(), denied);

    QVERIFY(!startService());
    QCOMPARE(m_service->waitForEnd(), 1);
    const QString beginning =
        "configuration-file-service: cannot take the name " + ConfigurationFileService::name() + ": ";
    QVERIFY2(m_service->log().contains(beginning), qPrintable(m_service->log()));
    QVERIFY2(m_service->log().contains("not allowed to own the service"), qPrintable(m_service->log()));

    QVERIFY(changeRules(policy(thisUser())));
    QCOMPARE(callBus("RequestName", request).type(), QDBusMessage::ReplyMessage);
}

void BusPolicyTest::everybodyMayRead()
{
    QVERIFY(startService());
    QVERIFY(changeRules(policy(anotherUser())));
    QCOMPARE(m_client->text(ServiceObject::units), QString(ServiceDocuments::units("first")));
    QCOMPARE(m_client->text(ServiceObject::defaultUnits), QString(ServiceDocuments::defaultUnits("first")));
    QCOMPARE(m_client->text(ServiceObject::dependencies), QString(ServiceDocuments::dependencies("first")));
}

void BusPolicyTest::everybodyMayListen()
{
    QVERIFY(startService());
    QVERIFY(changeRules(policy(anotherUser())));
    QVERIFY(TestFiles::replace(m_directory.filePath("units.json"), ServiceDocuments::units("next")));
    QTRY_COMPARE_WITH_TIMEOUT(m_client->announcements(), QStringList{ServiceAnnouncement::units}, waitLimit);
    QCOMPARE(m_client->propertyChanges().size(), 1);
    QCOMPARE(m_client->propertyChanges()[0].values.keys(), QStringList{"checksum"});
    QCOMPARE(m_client->text(ServiceObject::units), QString(ServiceDocuments::units("next")));
}

void BusPolicyTest::everybodyMayReadTheState()
{
    QVERIFY(startService());
    QVERIFY(changeRules(policy(anotherUser())));
    QCOMPARE(m_client->state(ServiceObject::units).value("state"), QVariant("active"));
}

void BusPolicyTest::everybodyMayIntrospect()
{
    QVERIFY(startService());
    QVERIFY(changeRules(policy(anotherUser())));
    const QString service = ConfigurationFileService::name();
    const QDBusMessage description =
        m_client->call(service, "/", "org.freedesktop.DBus.Introspectable", "Introspect");
    QVERIFY2(description.arguments().value(0).toString().contains("DependencyConfiguration"),
             qPrintable(description.errorMessage()));
    const QDBusMessage sign = m_client->call(service, "/", "org.freedesktop.DBus.Peer", "Ping");
    QCOMPARE(sign.type(), QDBusMessage::ReplyMessage);
}

void BusPolicyTest::nobodyMayDoMore()
{
    QVERIFY(startService());
    QVERIFY(changeRules(policy(anotherUser())));
    const QDBusMessage reply = m_client->call(ConfigurationFileService::name(), '/' + ServiceObject::units,
                                              "org.freedesktop.DBus.ObjectManager", "GetManagedObjects");
    QCOMPARE(reply.errorName(), denied);
}

static const TestClass<BusPolicyTest> testClass;
#include "BusPolicyTest.moc"
