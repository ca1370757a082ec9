#include "UnitManagerConnector/DBusConfigurationChangeSignalHandling.h"

#include <QtTest/QTest>

#include "ChangeSources.h"
#include "DBusConnection.h"
#include "LogCapture.h"
#include "Row.h"
#include "ServiceFixture.h"
#include "TestProgram.h"
#include "WaitLimit.h"

using Definitions = UnitManagerConnectorDefinitions;
using namespace ChangeSources;

class DBusConfigurationChangeSubscriptionTest : public ServiceFixture
{
    Q_OBJECT

private Q_SLOTS:
    void aSubscriptionWithoutBusFails_data();
    void aSubscriptionWithoutBusFails();
    void closingEndsTheSubscriptions_data();
    void closingEndsTheSubscriptions();
    void closingWarnsAboutUnknownSubscriptions_data();
    void closingWarnsAboutUnknownSubscriptions();
    void closingUnderNewNamesLeavesTheOldSubscription();
    void aSourceThatIsNoLongerConfiguredIsNotClosed();
};

void DBusConfigurationChangeSubscriptionTest::aSubscriptionWithoutBusFails_data()
{
    QTest::addColumn<Type>("type");
    QTest::addColumn<QString>("function");
    QTest::addColumn<QString>("object");
    row("unit switch", Definitions::UnitSwitch, "connectUnitSwitchChangeFlag()",
        TestSource::unitSwitchObject);
    row("dependency file", Definitions::DependencyFile, "connectDependencyFileChangeFlag()",
        TestSource::dependencyObject);
    row("default unit", Definitions::DefaultUnit, "connectDefaultUnitChangeFlag()",
        TestSource::defaultUnitObject);
}

void DBusConfigurationChangeSubscriptionTest::aSubscriptionWithoutBusFails()
{
    QFETCH(const Type, type);
    QFETCH(const QString, function);
    QFETCH(const QString, object);
    m_service->stop();
    m_service->bus().stop();
    ConfiguredHandling handling(false);
    LogCapture log;
    QCOMPARE(subscribe(handling, type), Definitions::ConnectionFailed);
    QCOMPARE(takeMessages(log),
             QStringList{messageOf(QtWarningMsg, function,
                                   "Error cannot connect to module \"DeviceManager\" \"" + object + '"')});
    // There is no subscription to close.
    QVERIFY(handling.closeDbusConnections());
    QCOMPARE(log.takeTexts(), QStringList());

    // The polling handler itself waits for the bus.
    ConfiguredHandling pollingHandling(true);
    QCOMPARE(subscribe(pollingHandling, type), Definitions::Connected);
    QCOMPARE(log.takeTexts(), QStringList());
}

void DBusConfigurationChangeSubscriptionTest::closingEndsTheSubscriptions_data()
{
    addModesAndSources();
}

void DBusConfigurationChangeSubscriptionTest::closingEndsTheSubscriptions()
{
    QFETCH(const bool, polling);
    QFETCH(const Type, type);
    ConfiguredHandling handling(polling);
    ConfiguredHandling witness(polling);
    LogCapture log;
    QVERIFY(subscribeAll(handling) && subscribeAll(witness));
    QVERIFY(handling.closeDbusConnections());
    QVERIFY(m_service->announce(type));
    QVERIFY(hasChanged(witness));
    QVERIFY(!hasChanged(handling));

    // A second close, and a new subscription, succeed.
    log.take();
    QVERIFY(handling.closeDbusConnections());
    QVERIFY(subscribeAll(handling));
    QCOMPARE(log.takeTexts(), QStringList());
}

void DBusConfigurationChangeSubscriptionTest::closingWarnsAboutUnknownSubscriptions_data()
{
    QTest::addColumn<bool>("polling");
    QTest::addColumn<QStringList>("objects");
    row("signals delivered", false,
        QStringList{TestSource::unitSwitchObject, TestSource::dependencyObject,
                    TestSource::defaultUnitObject});
    row("signals polled", true, QStringList());
}

void DBusConfigurationChangeSubscriptionTest::closingWarnsAboutUnknownSubscriptions()
{
    QFETCH(const bool, polling);
    QFETCH(const QStringList, objects);
    ConfiguredHandling handling(polling);
    LogCapture log;
    QVERIFY(subscribeAll(handling));
    m_service->stop();
    m_service->bus().stop();
    QTRY_VERIFY_WITH_TIMEOUT(!DBusConnection::getQDBusConnection().isConnected(), waitLimit);
    log.take();

    QVERIFY(handling.closeDbusConnections());
    QStringList expected;
    for (const QString& object : objects)
        expected.append(messageOf(QtWarningMsg, "closeDbusConnections()",
                                  "Unable to disconnect connection \"" + object + '"'));
    QCOMPARE(takeMessages(log), expected);
    // The flag is cleared in both modes.
    QVERIFY(handling.closeDbusConnections());
    QCOMPARE(log.takeTexts(), QStringList());
}

void DBusConfigurationChangeSubscriptionTest::closingUnderNewNamesLeavesTheOldSubscription()
{
    Settings moved = settings();
    moved[Definitions::DefaultUnit][1] = QStringLiteral("Moved");
    ConfiguredHandling handling(false);
    LogCapture log;
    QVERIFY(subscribeAll(handling));

    QVERIFY(handling.init(moved));
    QCOMPARE(takeMessages(log), QStringList{messageOf(QtWarningMsg, "closeDbusConnections()",
                                                      "Unable to disconnect connection \"Moved\"")});
    QVERIFY(m_service->announce(TestSource::defaults));
    QVERIFY(hasChanged(handling));
}

void DBusConfigurationChangeSubscriptionTest::aSourceThatIsNoLongerConfiguredIsNotClosed()
{
    ConfiguredHandling handling(false);
    LogCapture log;
    QVERIFY(subscribeAll(handling));
    for (int missing = 0; missing < 3; ++missing) {
        Settings incomplete = settings();
        incomplete[Definitions::DefaultUnit][missing].clear();
        QVERIFY(handling.init(incomplete));
        QCOMPARE(log.takeTexts(), QStringList());
    }
    QVERIFY(handling.init(Settings{}));
    QCOMPARE(log.takeTexts(), QStringList());

    // The flag was kept: the subscription is now closed once, under its old names.
    QVERIFY(handling.init(settings()));
    QCOMPARE(log.takeTexts(), QStringList());
    Settings moved = settings();
    moved[Definitions::DefaultUnit][1] = QStringLiteral("Moved");
    QVERIFY(handling.init(moved));
    QCOMPARE(log.takeTexts(), QStringList());
    QVERIFY(subscribeAll(handling));
}

static const TestClass<DBusConfigurationChangeSubscriptionTest> testClass;
#include "DBusConfigurationChangeSubscriptionTest.moc"
