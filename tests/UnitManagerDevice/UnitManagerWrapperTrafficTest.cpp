#include "UnitManagerDevice/UnitManagerWrapper.h"

#include <QtTest/QTest>

#include <memory>

#include "BusMonitor.h"
#include "DBusConnection.h"
#include "DeviceBusEnvironment.h"
#include "LogCapture.h"
#include "ServiceFixture.h"
#include "TestProgram.h"
#include "WrapperSetup.h"

using namespace WrapperSetup;

/// All bus traffic of a start: no introspection, no activation, and no duplicates.
class UnitManagerWrapperTrafficTest : public ServiceFixture
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void blockingStart();
    void attemptWithoutService();
    void blockingStartOnFrozenBus();

private:
    QStringList takeCalls();

    std::unique_ptr<BusMonitor> m_monitor;
};

namespace {

const QString service = QStringLiteral("org.measuringdevice.DeviceManager");

QString toBus(const QString& call)
{
    return QStringLiteral("org.freedesktop.DBus ") + call;
}

const QString ownerRule = toBus(
    QStringLiteral("AddMatch type='signal',sender='org.freedesktop.DBus',interface='org.freedesktop.DBus',"
                   "member='NameOwnerChanged',arg0='%1'")
        .arg(service));

QString changeRule(const char* object)
{
    return toBus(QStringLiteral("AddMatch type='signal',sender='%1',path='/%2',member='configurationChanged'")
                     .arg(service, QLatin1String(object)));
}

} // namespace

void UnitManagerWrapperTrafficTest::init()
{
    ServiceFixture::init();
    m_monitor = std::make_unique<BusMonitor>(m_service->bus().address());
    QVERIFY(m_monitor->start());
    takeCalls();
}

void UnitManagerWrapperTrafficTest::cleanup()
{
    m_monitor.reset();
    ServiceFixture::cleanup();
}

/// The calls of this process since the last takeCalls().
QStringList UnitManagerWrapperTrafficTest::takeCalls()
{
    return m_monitor->takeCalls(DBusConnection::getQDBusConnection());
}

void UnitManagerWrapperTrafficTest::blockingStart()
{
    const auto wrapper = create(AllNames, Blocking, Delivered);
    QVERIFY(*wrapper);
    const QString whoOwnsIt = toBus(QStringLiteral("NameHasOwner ") + service);
    QCOMPARE(takeCalls(),
             (QStringList{// Query, watch, and query again, because the owner may have left before the watch.
                          whoOwnsIt, ownerRule, whoOwnsIt,
                          // The subscriptions; for the first one Qt also watches the name.
                          changeRule("UnitManagerConfiguration"), ownerRule,
                          toBus(QStringLiteral("GetNameOwner ") + service), changeRule("DependencyObject"),
                          changeRule("DefaultUnitObject"),
                          // The documents.
                          service + " getConfiguration UnitManager/UnitType",
                          service + " getConfigurationDependency Test/Dependency",
                          service + " getConfiguration Test/DefaultUnit"}));
}

void UnitManagerWrapperTrafficTest::attemptWithoutService()
{
    m_service->stop();
    LogCapture log;
    const auto wrapper = create(AllNames, Asynchronous, Delivered);
    QVERIFY(!*wrapper);
    QCOMPARE(takeCalls(), QStringList{toBus(QStringLiteral("NameHasOwner ") + service)});
}

void UnitManagerWrapperTrafficTest::blockingStartOnFrozenBus()
{
    setCallTimeout(1000);
    LogCapture log;
    m_service->bus().halt();
    const auto wrapper = create(AllNames, Blocking, Delivered);
    QVERIFY(!*wrapper);

    m_service->bus().resume();
    setCallTimeout(waitLimit);
    // A start makes a hundred attempts, but only one call blocks until its time-out; a second one remains
    // outstanding.
    const QString whoOwnsIt = toBus(QStringLiteral("NameHasOwner ") + service);
    QCOMPARE(takeCalls(), (QStringList{whoOwnsIt, whoOwnsIt}));
    QVERIFY(waitForUnits(*wrapper));
}

static const TestClass<UnitManagerWrapperTrafficTest> testClass;
#include "UnitManagerWrapperTrafficTest.moc"
