#include "UnitManagerConnector/DBusConfigurationChangeSignalHandling.h"

#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusConnectionInterface>
#include <QtDBus/QDBusMessage>
#include <QtTest/QTest>

#include <type_traits>

#include "ChangeSources.h"
#include "DBusConnection.h"
#include "LogCapture.h"
#include "ObjectSlots.h"
#include "Row.h"
#include "ServiceFixture.h"
#include "TestProgram.h"
#include "WaitLimit.h"

using Handling = DBusConfigurationChangeSignalHandling;
using Definitions = UnitManagerConnectorDefinitions;
using namespace ChangeSources;

static_assert(std::is_convertible_v<bool, Handling>);

class DBusConfigurationChangeSignalHandlingTest : public ServiceFixture
{
    Q_OBJECT

private Q_SLOTS:
    void theMetaObjectListsTheSlotsInOrder();
    void nothingHasChangedAtFirst_data();
    void nothingHasChangedAtFirst();
    void onlyTheConfiguredNameIsAChange_data();
    void onlyTheConfiguredNameIsAChange();
    void changesStayUntilTheyAreReset_data();
    void changesStayUntilTheyAreReset();
    void initClearsTheFlagButNotTheNames();
    void resetClearsChangesAndSubscriptions_data();
    void resetClearsChangesAndSubscriptions();
    void aSignalOnTheBusIsAChange_data();
    void aSignalOnTheBusIsAChange();
    void aSignalOfAnotherConfigurationIsIgnored_data();
    void aSignalOfAnotherConfigurationIsIgnored();
    void aSignalWithFurtherArgumentsIsOnlyPolled_data();
    void aSignalWithFurtherArgumentsIsOnlyPolled();
    void aSignalWithoutAStringIsNoChange_data();
    void aSignalWithoutAStringIsNoChange();
    void aSignalOfAnyInterfaceCounts();
    void aSignalOfAnotherObjectOrServiceDoesNotCount_data();
    void aSignalOfAnotherObjectOrServiceDoesNotCount();
};

void DBusConfigurationChangeSignalHandlingTest::theMetaObjectListsTheSlotsInOrder()
{
    // Part of the binary interface: connections use the index of the method.
    const QMetaObject& metaObject = Handling::staticMetaObject;
    QCOMPARE(metaObject.className(), "DBusConfigurationChangeSignalHandling");
    QCOMPARE(metaObject.superClass(), &QObject::staticMetaObject);
    QCOMPARE(ownMethods(metaObject, QMetaMethod::Slot),
             (QByteArrayList{"unitSwitchConfigurationFileChange(QString)", "defaultUnitFileChange(QString)",
                             "dependencyFileChanged(QString)"}));
    QCOMPARE(metaObject.methodCount() - metaObject.methodOffset(), 3);
}

void DBusConfigurationChangeSignalHandlingTest::nothingHasChangedAtFirst_data()
{
    addModes();
}

void DBusConfigurationChangeSignalHandlingTest::nothingHasChangedAtFirst()
{
    QFETCH(const bool, polling);
    LogCapture log;
    Handling handling(polling);
    QCOMPARE(handling.parent(), nullptr);
    QVERIFY(!handling.pollChangeFlags());
    QCOMPARE(handling.getConfigurationChangeMap(), Changes());
    QVERIFY(handling.closeDbusConnections());
    QVERIFY(handling.resetCachedObjects());
    QVERIFY(handling.reset());
    QVERIFY(handling.init(settings()));
    QVERIFY(!handling.pollChangeFlags());
    QCOMPARE(handling.getConfigurationChangeMap(), Changes());
    QCOMPARE(log.takeTexts(), QStringList());
}

void DBusConfigurationChangeSignalHandlingTest::onlyTheConfiguredNameIsAChange_data()
{
    QTest::addColumn<Type>("type");
    QTest::addColumn<QString>("function");
    QTest::addColumn<QString>("message");
    row("unit switch", Definitions::UnitSwitch, "unitSwitchConfigurationFileChange(const QString&)",
        "unit manager configuration has been changed");
    row("dependency file", Definitions::DependencyFile, "dependencyFileChanged(const QString&)",
        "dependency file has been changed");
    row("default unit", Definitions::DefaultUnit, "defaultUnitFileChange(const QString&)",
        "default unit configuration has been changed");
}

void DBusConfigurationChangeSignalHandlingTest::onlyTheConfiguredNameIsAChange()
{
    QFETCH(const Type, type);
    QFETCH(const QString, function);
    QFETCH(const QString, message);
    const QString name = settings()[type].at(2);
    ConfiguredHandling handling(false);

    LogCapture log;
    const QStringList otherNames{"", name.toUpper(), name + " ", name.left(name.size() - 1), "Test/Other"};
    for (const QString& other : otherNames) {
        report(handling, type, other);
        QVERIFY2(!handling.pollChangeFlags(), qPrintable(other));
    }
    QCOMPARE(handling.getConfigurationChangeMap(), Changes());
    QCOMPARE(log.takeTexts(), QStringList());

    report(handling, type, name);
    QCOMPARE(takeMessages(log), QStringList{messageOf(QtDebugMsg, function, message)});
    QVERIFY(handling.pollChangeFlags());
    QCOMPARE(handling.getConfigurationChangeMap(), (Changes{{type, name}}));

    // A signal with another name does not clear the recorded change.
    report(handling, type, "Test/Other");
    QVERIFY(handling.pollChangeFlags());
    QCOMPARE(handling.getConfigurationChangeMap(), (Changes{{type, name}}));
    QCOMPARE(log.takeTexts(), QStringList());
}

void DBusConfigurationChangeSignalHandlingTest::changesStayUntilTheyAreReset_data()
{
    addModes();
}

void DBusConfigurationChangeSignalHandlingTest::changesStayUntilTheyAreReset()
{
    QFETCH(const bool, polling);
    ConfiguredHandling handling(polling);
    LogCapture log;
    handling.defaultUnitFileChange(TestSource::defaultUnitName);
    handling.unitSwitchConfigurationFileChange(TestSource::unitSwitchName);
    for (int poll = 0; poll < 3; ++poll)
        QVERIFY(handling.pollChangeFlags());
    const Changes changes{{Definitions::UnitSwitch, TestSource::unitSwitchName},
                          {Definitions::DefaultUnit, TestSource::defaultUnitName}};
    QCOMPARE(handling.getConfigurationChangeMap(), changes);

    QVERIFY(handling.resetCachedObjects());
    QVERIFY(!handling.pollChangeFlags());
    const Changes kept = handling.getConfigurationChangeMap();
    QCOMPARE(kept.keys(), changes.keys());
    for (const QString& change : kept)
        QVERIFY(change.isNull());
}

void DBusConfigurationChangeSignalHandlingTest::initClearsTheFlagButNotTheNames()
{
    ConfiguredHandling handling(true);
    LogCapture log;
    handling.dependencyFileChanged(TestSource::dependencyName);
    QVERIFY(handling.init(Settings{}));
    QVERIFY(!handling.pollChangeFlags());
    QCOMPARE(handling.getConfigurationChangeMap(),
             (Changes{{Definitions::DependencyFile, TestSource::dependencyName}}));
}

void DBusConfigurationChangeSignalHandlingTest::resetClearsChangesAndSubscriptions_data()
{
    addModes();
}

void DBusConfigurationChangeSignalHandlingTest::resetClearsChangesAndSubscriptions()
{
    QFETCH(const bool, polling);
    ConfiguredHandling handling(polling);
    ConfiguredHandling witness(polling);
    LogCapture log;
    QVERIFY(subscribeAll(handling) && subscribeAll(witness));
    handling.dependencyFileChanged(TestSource::dependencyName);

    QVERIFY(handling.reset());
    QVERIFY(!handling.pollChangeFlags());
    QCOMPARE(handling.getConfigurationChangeMap(), (Changes{{Definitions::DependencyFile, QString()}}));
    QVERIFY(m_service->announce(TestSource::dependencies));
    QVERIFY(hasChanged(witness));
    QVERIFY(!hasChanged(handling));
}

void DBusConfigurationChangeSignalHandlingTest::aSignalOnTheBusIsAChange_data()
{
    addModesAndSources();
}

void DBusConfigurationChangeSignalHandlingTest::aSignalOnTheBusIsAChange()
{
    QFETCH(const bool, polling);
    QFETCH(const Type, type);
    const QStringList source = settings()[type];
    ConfiguredHandling handling(polling);
    LogCapture log;
    QCOMPARE(subscribe(handling, type), Definitions::Connected);
    QVERIFY(m_service->announce(type));
    // Only delivered signals need the event loop.
    QCOMPARE(handling.pollChangeFlags(), polling);
    QVERIFY(hasChanged(handling));
    QCOMPARE(handling.getConfigurationChangeMap(), (Changes{{type, source.at(2)}}));

    // One signal counts as one change.
    QVERIFY(handling.pollChangeFlags());
    QCOMPARE(log.takeTexts().size(), 1);
    handling.resetCachedObjects();
    QVERIFY(!handling.pollChangeFlags());
}

void DBusConfigurationChangeSignalHandlingTest::aSignalOfAnotherConfigurationIsIgnored_data()
{
    addModesAndSources();
}

void DBusConfigurationChangeSignalHandlingTest::aSignalOfAnotherConfigurationIsIgnored()
{
    QFETCH(const bool, polling);
    QFETCH(const Type, type);
    const QStringList source = settings()[type];
    Settings otherNames = settings();
    otherNames[type][2] = QStringLiteral("Test/Other");
    ConfiguredHandling handling(polling);
    ConfiguredHandling witness(polling, otherNames);
    LogCapture log;
    QCOMPARE(subscribe(handling, type), Definitions::Connected);
    QCOMPARE(subscribe(witness, type), Definitions::Connected);

    QVERIFY(m_service->announceWith(source.at(1), {"Test/Other"}));
    QVERIFY(hasChanged(witness));
    QVERIFY(!hasChanged(handling));
    QCOMPARE(handling.getConfigurationChangeMap(), Changes());
    QCOMPARE(log.takeTexts().size(), 1);
}

void DBusConfigurationChangeSignalHandlingTest::aSignalWithFurtherArgumentsIsOnlyPolled_data()
{
    addModesAndSources();
}

void DBusConfigurationChangeSignalHandlingTest::aSignalWithFurtherArgumentsIsOnlyPolled()
{
    QFETCH(const bool, polling);
    QFETCH(const Type, type);
    const QStringList source = settings()[type];
    ConfiguredHandling handling(polling);
    ConfiguredHandling witness(true);
    LogCapture log;
    QCOMPARE(subscribe(handling, type), Definitions::Connected);
    QCOMPARE(subscribe(witness, type), Definitions::Connected);

    QVERIFY(m_service->announceWith(source.at(1), {source.at(2), "more"}));
    QVERIFY(hasChanged(witness));
    QCOMPARE(hasChanged(handling), polling);
    QCOMPARE(handling.getConfigurationChangeMap().value(type), polling ? source.at(2) : QString());

    // The subscription remains.
    handling.resetCachedObjects();
    QVERIFY(m_service->announce(type));
    QVERIFY(hasChanged(handling));
}

void DBusConfigurationChangeSignalHandlingTest::aSignalWithoutAStringIsNoChange_data()
{
    QTest::addColumn<bool>("polling");
    QTest::addColumn<QVariantList>("arguments");
    const QVariantList map{QVariantMap{{"UnitManager/UnitType", "UnitManager/UnitType"}}};
    QTest::newRow("map, signals delivered") << false << map;
    QTest::newRow("map, signals polled") << true << map;
    QTest::newRow("no argument, signals delivered") << false << QVariantList();
    QTest::newRow("no argument, signals polled") << true << QVariantList();
}

void DBusConfigurationChangeSignalHandlingTest::aSignalWithoutAStringIsNoChange()
{
    QFETCH(const bool, polling);
    QFETCH(const QVariantList, arguments);
    ConfiguredHandling handling(polling);
    LogCapture log;
    QCOMPARE(handling.connectUnitSwitchChangeFlag(), Definitions::Connected);
    QVERIFY(m_service->announceWith(TestSource::unitSwitchObject, arguments));
    QVERIFY(!hasChanged(handling));
    QCOMPARE(log.takeTexts(), QStringList());

    QVERIFY(m_service->announce(TestSource::units));
    QVERIFY(hasChanged(handling));
}

void DBusConfigurationChangeSignalHandlingTest::aSignalOfAnyInterfaceCounts()
{
    m_service->stop();
    QDBusConnection sender = QDBusConnection::connectToBus(m_service->bus().address(), "sender");
    QVERIFY(sender.registerService("org.measuringdevice.DeviceManager"));
    ConfiguredHandling handling(false);
    LogCapture log;
    QCOMPARE(handling.connectUnitSwitchChangeFlag(), Definitions::Connected);
    QDBusMessage signal = QDBusMessage::createSignal("/" + TestSource::unitSwitchObject, "org.example.Any",
                                                     "configurationChanged");
    signal << TestSource::unitSwitchName;
    // The reply shows that the bus has processed the subscription.
    QVERIFY(DBusConnection::getQDBusConnection().interface()->isServiceRegistered(sender.baseService()));
    QVERIFY(sender.send(signal));
    QTRY_VERIFY_WITH_TIMEOUT(handling.pollChangeFlags(), waitLimit);
    QDBusConnection::disconnectFromBus("sender");
}

void DBusConfigurationChangeSignalHandlingTest::aSignalOfAnotherObjectOrServiceDoesNotCount_data()
{
    QTest::addColumn<QString>("module");
    QTest::addColumn<QString>("object");
    QTest::newRow("another object") << TestSource::module << TestSource::defaultUnitObject;
    QTest::newRow("an object below") << TestSource::module << TestSource::unitSwitchObject + "/Below";
    QTest::newRow("another service") << "Other" << TestSource::unitSwitchObject;
}

void DBusConfigurationChangeSignalHandlingTest::aSignalOfAnotherObjectOrServiceDoesNotCount()
{
    QFETCH(const QString, module);
    QFETCH(const QString, object);
    const QString otherService = QStringLiteral("org.measuringdevice.Other");
    const FakeBusService other(m_service->bus().address(), otherService, FakeBusService::withoutValue());
    QVERIFY(other.isRunning());
    Settings elsewhere = settings();
    elsewhere[Definitions::UnitSwitch] = QStringList{module, object, TestSource::unitSwitchName};
    ConfiguredHandling handling(false);
    ConfiguredHandling witness(false, elsewhere);
    LogCapture log;
    QCOMPARE(handling.connectUnitSwitchChangeFlag(), Definitions::Connected);
    QCOMPARE(witness.connectUnitSwitchChangeFlag(), Definitions::Connected);

    if (module == TestSource::module)
        QVERIFY(m_service->announceWith(object, {TestSource::unitSwitchName}));
    else
        QVERIFY(ConfigurationService::settle(otherService) &&
                other.sendSignal("/" + object, "configurationChanged", {TestSource::unitSwitchName}) &&
                ConfigurationService::settle(otherService));
    QVERIFY(hasChanged(witness));
    QVERIFY(!hasChanged(handling));
}

static const TestClass<DBusConfigurationChangeSignalHandlingTest> testClass;
#include "DBusConfigurationChangeSignalHandlingTest.moc"
