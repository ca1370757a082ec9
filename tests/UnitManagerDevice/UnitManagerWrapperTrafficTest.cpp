#include "UnitManagerDevice/UnitManagerWrapper.h"

#include <QtCore/QDeadlineTimer>
#include <QtTest/QTest>

#include "BusMonitor.h"
#include "DBusConnection.h"
#include "DocumentService.h"
#include "LogCapture.h"
#include "PrivateBus.h"
#include "WaitLimit.h"
#include "WrapperSetup.h"

using namespace WrapperSetup;

/// All bus traffic of a start: no introspection, no activation, and no duplicates.
class UnitManagerWrapperTrafficTest : public QObject
{
    Q_OBJECT

private slots:
    void blockingStart();
    void attemptWithoutService();
    void blockingStartOnFrozenBus();
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

void UnitManagerWrapperTrafficTest::blockingStart()
{
    PrivateBus bus;
    QVERIFY(bus.start());
    qputenv("DEVICE_BUS", bus.address().toLocal8Bit());
    const DocumentService documents(bus.address());
    QVERIFY(documents.isRunning());
    BusMonitor monitor(bus.address());
    QVERIFY(monitor.start());
    monitor.takeCalls(DBusConnection::getQDBusConnection());

    const auto wrapper = create(AllNames, Blocking, Delivered);
    QVERIFY(*wrapper);
    const QString whoOwnsIt = toBus(QStringLiteral("NameHasOwner ") + service);
    QCOMPARE(monitor.takeCalls(DBusConnection::getQDBusConnection()),
             (QStringList{// Query, watch, and query again, because the owner may have left before the watch.
                          whoOwnsIt, ownerRule, whoOwnsIt,
                          // The subscriptions; for the first one Qt also watches the name.
                          changeRule("UnitManagerConfiguration"), ownerRule,
                          toBus(QStringLiteral("GetNameOwner ") + service),
                          changeRule("DependencyConfiguration"), changeRule("DefaultUnitConfiguration"),
                          // The documents.
                          service + " getConfiguration UnitManager/UnitType",
                          service + " getConfigurationDependency UnitManager/Dependency",
                          service + " getConfiguration UnitManager/DefaultUnit"}));
}

void UnitManagerWrapperTrafficTest::attemptWithoutService()
{
    PrivateBus bus;
    QVERIFY(bus.start());
    qputenv("DEVICE_BUS", bus.address().toLocal8Bit());
    BusMonitor monitor(bus.address());
    QVERIFY(monitor.start());
    monitor.takeCalls(DBusConnection::getQDBusConnection());

    LogCapture log;
    const auto wrapper = create(AllNames, Asynchronous, Delivered);
    QVERIFY(!*wrapper);
    QCOMPARE(monitor.takeCalls(DBusConnection::getQDBusConnection()),
             QStringList{toBus(QStringLiteral("NameHasOwner ") + service)});
}

void UnitManagerWrapperTrafficTest::blockingStartOnFrozenBus()
{
    PrivateBus bus;
    QVERIFY(bus.start());
    qputenv("DEVICE_BUS", bus.address().toLocal8Bit());
    const DocumentService documents(bus.address());
    QVERIFY(documents.isRunning());
    BusMonitor monitor(bus.address());
    QVERIFY(monitor.start());
    monitor.takeCalls(DBusConnection::getQDBusConnection());

    // A start makes a hundred attempts: a time-out for each would exceed the limit.
    qputenv("DEVICE_BUS_TIMEOUT_MS", QByteArray::number(waitLimit / 50));
    const QDeadlineTimer deadline(waitLimit);
    LogCapture log;
    bus.halt();
    const auto wrapper = create(AllNames, Blocking, Delivered);
    QVERIFY(!*wrapper);
    QVERIFY(!deadline.hasExpired());

    bus.resume();
    qunsetenv("DEVICE_BUS_TIMEOUT_MS");
    // The call that blocked until its time-out, and the one that remains outstanding.
    const QString whoOwnsIt = toBus(QStringLiteral("NameHasOwner ") + service);
    QCOMPARE(monitor.takeCalls(DBusConnection::getQDBusConnection()), (QStringList{whoOwnsIt, whoOwnsIt}));
    QVERIFY(waitForUnits(*wrapper));
}

QTEST_GUILESS_MAIN(UnitManagerWrapperTrafficTest)

#include "UnitManagerWrapperTrafficTest.moc"
