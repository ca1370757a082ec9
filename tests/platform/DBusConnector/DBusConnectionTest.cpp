#include "DBusConnection.h"

#include <QtCore/QProcess>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusConnectionInterface>
#include <QtDBus/QDBusMessage>
#include <QtTest/QTest>

#include <atomic>
#include <thread>
#include <vector>

#include "DeviceBusEnvironment.h"
#include "TestProgram.h"
#include "WaitUntil.h"

class DBusConnectionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void theEnvironmentNamesTheBus_data();
    void theEnvironmentNamesTheBus();
    void theConnectionIsShared();
    void theConnectionIsSharedByThreads();
    void aBusThatIsNotThereGivesAConnectionThatIsNotConnected_data();
    void aBusThatIsNotThereGivesAConnectionThatIsNotConnected();
    void aBusThatCameBackIsConnectedAgain();
    void openingAFrozenBusWaitsOnce_data();
    void openingAFrozenBusWaitsOnce();
    void aFrozenBusIsOpenedWhenItAnswers();
    void aFrozenBusThatIsReplacedIsOpened();
    void aFrozenBusLeavesAnotherBusUsable();
    void theTimeOutCanBeSet_data();
    void theTimeOutCanBeSet();
    void aModuleIsAddressedByPrefixAndName();
    void anObjectIsAddressedByASlashAndItsName();

private:
    PrivateBus& busOf(const QString& deviceBus);

    PrivateBus m_sessionBus;
    PrivateBus m_systemBus;
    PrivateBus m_otherBus;
};

namespace {

QString busId()
{
    const QDBusMessage question = QDBusMessage::createMethodCall(
        "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "GetId");
    return DBusConnection::getQDBusConnection()
        .call(question, QDBus::Block, waitLimit)
        .arguments()
        .value(0)
        .toString();
}

// The id of a bus, queried by a separate program.
QString busId(const PrivateBus& bus)
{
    QProcess send;
    send.start("dbus-send", {"--bus=" + bus.address(), "--dest=org.freedesktop.DBus", "--print-reply=literal",
                             "/org/freedesktop/DBus", "org.freedesktop.DBus.GetId"});
    send.waitForFinished(waitLimit);
    return QString::fromUtf8(send.readAllStandardOutput()).trimmed();
}

// The connection's name on the bus, as seen by several threads that start together.
std::vector<QString> askAtOnce(std::size_t count)
{
    std::vector<QString> names(count);
    std::vector<std::thread> threads;
    threads.reserve(count);
    std::atomic<std::size_t> ready = 0;
    for (QString& name : names) {
        threads.emplace_back([&name, &ready, count] {
            ++ready;
            while (ready != count)
                std::this_thread::yield();
            name = DBusConnection::getQDBusConnection().baseService();
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    return names;
}

// Freezes the bus of DEVICE_BUS while no client is connected to it.
bool restartAndHalt(PrivateBus& bus)
{
    const QDBusConnection lost = DBusConnection::getQDBusConnection();
    bus.stop();
    if (!waitUntil([&lost] { return !lost.isConnected(); }) || !bus.start())
        return false;
    bus.halt();
    return true;
}

// Makes an attempt that ends with its time-out.
bool failsToOpen()
{
    setCallTimeout(200);
    const bool isConnected = DBusConnection::getQDBusConnection().isConnected();
    setCallTimeout(waitLimit);
    return !isConnected;
}

} // namespace

void DBusConnectionTest::initTestCase()
{
    QVERIFY(m_sessionBus.start());
    QVERIFY(m_systemBus.start());
    QVERIFY(m_otherBus.start());
    // A process looks up the session bus and the system bus only once.
    qputenv("DBUS_SESSION_BUS_ADDRESS", m_sessionBus.address().toLocal8Bit());
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", m_systemBus.address().toLocal8Bit());
}

void DBusConnectionTest::init()
{
    useDeviceBus(m_otherBus.address());
}

PrivateBus& DBusConnectionTest::busOf(const QString& deviceBus)
{
    if (deviceBus == "session")
        return m_sessionBus;
    return deviceBus == "system" ? m_systemBus : m_otherBus;
}

void DBusConnectionTest::theEnvironmentNamesTheBus_data()
{
    QTest::addColumn<QString>("deviceBus");
    QTest::addColumn<QString>("expectedId");
    QTest::newRow("nothing") << QString() << busId(m_sessionBus);
    QTest::newRow("the session bus") << QStringLiteral("session") << busId(m_sessionBus);
    QTest::newRow("the system bus") << QStringLiteral("system") << busId(m_systemBus);
    QTest::newRow("an address") << m_otherBus.address() << busId(m_otherBus);
}

void DBusConnectionTest::theEnvironmentNamesTheBus()
{
    QFETCH(const QString, deviceBus);
    QFETCH(const QString, expectedId);
    useDeviceBus(deviceBus);
    QCOMPARE(expectedId.size(), 32); // a bus id is 128 bits in hexadecimal
    QVERIFY(DBusConnection::getQDBusConnection().isConnected());
    QCOMPARE(busId(), expectedId);
}

void DBusConnectionTest::theConnectionIsShared()
{
    const QString name = DBusConnection::getQDBusConnection().baseService();
    QVERIFY(!name.isEmpty());
    QCOMPARE(DBusConnection::getQDBusConnection().baseService(), name);
}

void DBusConnectionTest::theConnectionIsSharedByThreads()
{
    for (int round = 0; round < 100; ++round) {
        // A different address of the same bus is another connection, which is not open yet.
        const QString address =
            QStringLiteral("unix:path=/nonexistent/%1;").arg(round) + m_otherBus.address();
        useDeviceBus(address);
        const std::vector<QString> names = askAtOnce(8);
        QVERIFY(!names.front().isEmpty());
        QCOMPARE(names, std::vector<QString>(names.size(), names.front()));
    }
}

void DBusConnectionTest::aBusThatIsNotThereGivesAConnectionThatIsNotConnected_data()
{
    QTest::addColumn<QString>("deviceBus");
    QTest::newRow("no socket") << QStringLiteral("unix:path=/nonexistent/bus");
    QTest::newRow("not an address") << QStringLiteral("somewhere");
}

void DBusConnectionTest::aBusThatIsNotThereGivesAConnectionThatIsNotConnected()
{
    QFETCH(const QString, deviceBus);
    useDeviceBus(deviceBus, endlessTimeout);
    for (int attempt = 0; attempt < 100; ++attempt)
        QVERIFY(!DBusConnection::getQDBusConnection().isConnected());
}

void DBusConnectionTest::aBusThatCameBackIsConnectedAgain()
{
    const QDBusConnection lost = DBusConnection::getQDBusConnection();
    QVERIFY(lost.isConnected());
    m_otherBus.stop();
    QVERIFY(waitUntil([&lost] { return !lost.isConnected(); }));
    QVERIFY(!DBusConnection::getQDBusConnection().isConnected());

    QVERIFY(m_otherBus.start());
    QVERIFY(DBusConnection::getQDBusConnection().isConnected());
    QCOMPARE(busId(), busId(m_otherBus));
    QVERIFY(!lost.isConnected());
}

void DBusConnectionTest::openingAFrozenBusWaitsOnce_data()
{
    QTest::addColumn<QString>("deviceBus");
    QTest::newRow("the session bus") << QStringLiteral("session");
    QTest::newRow("the system bus") << QStringLiteral("system");
    QTest::newRow("an address") << m_otherBus.address();
}

void DBusConnectionTest::openingAFrozenBusWaitsOnce()
{
    QFETCH(const QString, deviceBus);
    useDeviceBus(deviceBus);
    PrivateBus& bus = busOf(deviceBus);
    QVERIFY(restartAndHalt(bus));
    QVERIFY(failsToOpen());

    constexpr int attempts = 99;
    setCallTimeout(endlessTimeout);
    std::atomic<int> attempted = 0;
    std::atomic<int> connected = 0;
    std::thread thread([&attempted, &connected] {
        for (int attempt = 0; attempt < attempts; ++attempt) {
            connected += DBusConnection::getQDBusConnection().isConnected() ? 1 : 0;
            ++attempted;
        }
    });
    const bool ended = waitUntil([&attempted] { return attempted == attempts; });
    const int connectedToFrozenBus = connected;
    bus.resume(); // releases an attempt that waits
    thread.join();
    QVERIFY(ended);
    QCOMPARE(connectedToFrozenBus, 0);
}

void DBusConnectionTest::aFrozenBusIsOpenedWhenItAnswers()
{
    for (int freeze = 0; freeze < 2; ++freeze) {
        QVERIFY(restartAndHalt(m_otherBus));
        QVERIFY(failsToOpen());
        m_otherBus.resume();
        QVERIFY(waitUntil([] { return DBusConnection::getQDBusConnection().isConnected(); }));
        QCOMPARE(busId(), busId(m_otherBus));
    }
}

void DBusConnectionTest::aFrozenBusThatIsReplacedIsOpened()
{
    QVERIFY(restartAndHalt(m_otherBus));
    QVERIFY(failsToOpen());
    m_otherBus.stop();
    QVERIFY(m_otherBus.start());
    QVERIFY(waitUntil([] { return DBusConnection::getQDBusConnection().isConnected(); }));
    QCOMPARE(busId(), busId(m_otherBus));
}

void DBusConnectionTest::aFrozenBusLeavesAnotherBusUsable()
{
    QVERIFY(restartAndHalt(m_otherBus));
    QVERIFY(failsToOpen());

    PrivateBus anotherBus;
    QVERIFY(anotherBus.start());
    useDeviceBus(anotherBus.address());
    QVERIFY(DBusConnection::getQDBusConnection().isConnected());
    QCOMPARE(busId(), busId(anotherBus));
    m_otherBus.resume();
}

void DBusConnectionTest::theTimeOutCanBeSet_data()
{
    QTest::addColumn<QByteArray>("environment");
    QTest::addColumn<int>("milliseconds");
    QTest::newRow("nothing") << QByteArray() << 5000;
    QTest::newRow("a number") << QByteArray("250") << 250;
    QTest::newRow("zero") << QByteArray("0") << 5000;
    QTest::newRow("a negative number") << QByteArray("-1") << 5000;
    QTest::newRow("not a number") << QByteArray("soon") << 5000;
}

void DBusConnectionTest::theTimeOutCanBeSet()
{
    QFETCH(const QByteArray, environment);
    QFETCH(const int, milliseconds);
    qputenv("DEVICE_BUS_TIMEOUT_MS", environment);
    const int timeout = DBusConnection::getCallTimeout();
    QCOMPARE(timeout, milliseconds);
}

void DBusConnectionTest::aModuleIsAddressedByPrefixAndName()
{
    QCOMPARE(DBusConnection::getServiceName("DeviceManager"),
             QStringLiteral("org.measuringdevice.DeviceManager"));
}

void DBusConnectionTest::anObjectIsAddressedByASlashAndItsName()
{
    QCOMPARE(DBusConnection::getObjectPath("UnitManagerConfiguration"),
             QStringLiteral("/UnitManagerConfiguration"));
}

static const TestClass<DBusConnectionTest> testClass;
#include "DBusConnectionTest.moc"
