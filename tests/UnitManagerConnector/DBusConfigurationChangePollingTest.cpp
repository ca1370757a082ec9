#include "UnitManagerConnector/DBusConfigurationChangeSignalHandling.h"

#include <QtTest/QTest>

#include "ChangeSources.h"
#include "ConfigurationService.h"
#include "LogCapture.h"
#include "ScriptedPollingHandler.h"
#include "TestProgram.h"

using Definitions = UnitManagerConnectorDefinitions;
using namespace ChangeSources;
using namespace TestSource;
using ScriptedPollingHandler::occurredSignals;
using ScriptedPollingHandler::takeCalls;

/// How the handling uses the device's polling handlers.
class DBusConfigurationChangePollingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void namesArePassedUnchanged();
    void aNewSubscriptionReplacesTheEarlierOne();
    void sourcesArePolledInOrder();
    void aSignalIsResetAfterItIsProcessed_data();
    void aSignalIsResetAfterItIsProcessed();
    void closingReleasesTheHandlers();
    void deliveredSignalsNeedNoHandler();
};

void DBusConfigurationChangePollingTest::init()
{
    occurredSignals().clear();
    takeCalls();
}

void DBusConfigurationChangePollingTest::namesArePassedUnchanged()
{
    ConfiguredHandling handling(true);
    QVERIFY(subscribeAll(handling));
    QCOMPARE(takeCalls(), (QStringList{"create DeviceManager UnitManagerConfiguration configurationChanged 3",
                                       "create DeviceManager DependencyObject configurationChanged 3",
                                       "create DeviceManager DefaultUnitObject configurationChanged 3"}));
}

void DBusConfigurationChangePollingTest::aNewSubscriptionReplacesTheEarlierOne()
{
    ConfiguredHandling handling(true);
    for (const Type type : all) {
        const QString object = settings()[type].at(1);
        const QString creation = "create DeviceManager " + object + " configurationChanged 3";
        QCOMPARE(subscribe(handling, type), Definitions::Connected);
        QCOMPARE(takeCalls(), QStringList{creation});
        QCOMPARE(subscribe(handling, type), Definitions::Connected);
        QCOMPARE(takeCalls(), (QStringList{creation, "release " + object}));
    }
}

void DBusConfigurationChangePollingTest::sourcesArePolledInOrder()
{
    // The order is visible in the log.
    ConfiguredHandling handling(true);
    QVERIFY(!handling.pollChangeFlags());
    QCOMPARE(takeCalls(), QStringList());

    QVERIFY(subscribeAll(handling));
    takeCalls();
    QVERIFY(!handling.pollChangeFlags());
    QCOMPARE(takeCalls(), (QStringList{"poll UnitManagerConfiguration", "poll DefaultUnitObject",
                                       "poll DependencyObject"}));

    LogCapture log;
    for (const Type type : all)
        occurredSignals().insert(settings()[type].at(1), settings()[type].at(2));
    QVERIFY(handling.pollChangeFlags());
    QCOMPARE(takeCalls(), (QStringList{"poll UnitManagerConfiguration", "reset UnitManagerConfiguration",
                                       "poll DefaultUnitObject", "reset DefaultUnitObject",
                                       "poll DependencyObject", "reset DependencyObject"}));
    QCOMPARE(log.takeTexts(), (QStringList{"unit manager configuration has been changed",
                                           "default unit configuration has been changed",
                                           "dependency file has been changed"}));
}

void DBusConfigurationChangePollingTest::aSignalIsResetAfterItIsProcessed_data()
{
    QTest::addColumn<QVariant>("parameter");
    QTest::addColumn<bool>("isChange");
    QTest::newRow("the configured name") << QVariant(dependencyName) << true;
    QTest::newRow("a text of bytes") << QVariant(dependencyName.toUtf8()) << true;
    QTest::newRow("another name") << QVariant("Test/Other") << false;
    QTest::newRow("a number") << QVariant(7) << false;
    QTest::newRow("a dictionary, which is not a text") << QVariant(QVariantMap{{"a", 1}}) << false;
    QTest::newRow("no parameter") << QVariant() << false;
}

void DBusConfigurationChangePollingTest::aSignalIsResetAfterItIsProcessed()
{
    QFETCH(const QVariant, parameter);
    QFETCH(const bool, isChange);
    ConfiguredHandling handling(true);
    QCOMPARE(handling.connectDependencyFileChangeFlag(), Definitions::Connected);
    takeCalls();
    LogCapture log;

    occurredSignals().insert(dependencyObject, parameter);
    QCOMPARE(handling.pollChangeFlags(), isChange);
    QCOMPARE(takeCalls(), (QStringList{"poll DependencyObject", "reset DependencyObject"}));
    const Changes changes{{Definitions::DependencyFile, dependencyName}};
    QCOMPARE(handling.getConfigurationChangeMap(), isChange ? changes : Changes());
    QCOMPARE(log.takeTexts().size(), isChange ? 1 : 0);
}

void DBusConfigurationChangePollingTest::closingReleasesTheHandlers()
{
    ConfiguredHandling handling(true);
    QVERIFY(subscribeAll(handling));
    takeCalls();
    QVERIFY(handling.closeDbusConnections());
    QStringList released = takeCalls();
    released.sort();
    QCOMPARE(released, (QStringList{"release DefaultUnitObject", "release DependencyObject",
                                    "release UnitManagerConfiguration"}));
    QVERIFY(!handling.pollChangeFlags());
    QCOMPARE(takeCalls(), QStringList());

    // New settings, even empty ones, also release them.
    QCOMPARE(handling.connectUnitSwitchChangeFlag(), Definitions::Connected);
    takeCalls();
    QVERIFY(handling.init({}));
    QCOMPARE(takeCalls(), QStringList{"release UnitManagerConfiguration"});
}

void DBusConfigurationChangePollingTest::deliveredSignalsNeedNoHandler()
{
    ConfigurationService service;
    QVERIFY(service.start());
    ConfiguredHandling handling(false);
    QVERIFY(subscribeAll(handling));
    QVERIFY(!handling.pollChangeFlags());
    QVERIFY(handling.closeDbusConnections());
    QCOMPARE(takeCalls(), QStringList());
}

static const TestClass<DBusConfigurationChangePollingTest> testClass;
#include "DBusConfigurationChangePollingTest.moc"
