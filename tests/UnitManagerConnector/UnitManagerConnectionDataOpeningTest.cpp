#include "UnitManagerConnector/UnitManagerConnectionData.h"

#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include "BusMonitor.h"
#include "ChangeSources.h"
#include "ConfigurationFileHandlerDBusConnector.h"
#include "DBusConnection.h"
#include "LogCapture.h"
#include "Row.h"
#include "ServiceFixture.h"
#include "TestDocuments.h"
#include "TestProgram.h"
#include "WaitLimit.h"
#include "WaitUntil.h"

using Data = UnitManagerConnectionData;
using Definitions = UnitManagerConnectorDefinitions;
using Connector = ConfigurationFileHandlerDBusConnector;
using namespace ChangeSources;
using namespace TestSource;

/// Connectors and change signals of the connection data, on a bus.
class UnitManagerConnectionDataOpeningTest : public ServiceFixture
{
    Q_OBJECT

private Q_SLOTS:
    void aSourceIsOpenedAndItsChangesAreDetected_data();
    void aSourceIsOpenedAndItsChangesAreDetected();
    void unusableSettingsDiscardTheConnector_data();
    void unusableSettingsDiscardTheConnector();
    void unusableSettingsDoNotUseTheBus();
    void anAbsentServiceDiscardsTheConnector();
    void theEarlierConnectorIsDisconnectedAndReplaced();
    void aConnectorWithoutSubscriptionIsKept();
    void aTypeWithoutChangeSignalIsNotConfigured();
    void everyConfiguredSourceMustBeConnected_data();
    void everyConfiguredSourceMustBeConnected();
    void anEndedServiceIsNotConnected();
    void closedConnectionsDetectNoChanges_data();
    void closedConnectionsDetectNoChanges();
    void anUpdateClearsTheRecordedChanges_data();
    void anUpdateClearsTheRecordedChanges();
    void resetsClearTheRecordedChanges_data();
    void resetsClearTheRecordedChanges();
    void resetObjectDiscardsInOrder();
};

namespace {

class ConfiguredData : public Data
{
public:
    explicit ConfiguredData(bool useSignalPolling)
        : Data(nullptr, useSignalPolling, false, false, module, dependencyObject, dependencyName, module,
               defaultUnitObject, defaultUnitName)
    {}
};

} // namespace

void UnitManagerConnectionDataOpeningTest::aSourceIsOpenedAndItsChangesAreDetected_data()
{
    addModesAndSources();
}

void UnitManagerConnectionDataOpeningTest::aSourceIsOpenedAndItsChangesAreDetected()
{
    QFETCH(const bool, polling);
    QFETCH(const Type, type);
    const QStringList source = settings()[type];
    LogCapture log;
    ConfiguredData data(polling);
    QCOMPARE(data.openConnector(type), Definitions::Connected);
    QCOMPARE(data.connectors().keys(), QList<Type>{type});
    QVERIFY(data.connectors().value(type)->isDBusInterfaceValid());
    QCOMPARE(log.takeTexts(), QStringList());
    QVERIFY(!hasChanged(data));

    // Changes of other objects are ignored.
    for (const Type other : all) {
        if (other != type)
            QVERIFY(m_service->announce(other));
    }
    QVERIFY(!hasChanged(data));
    QVERIFY(m_service->announce(type));
    QVERIFY(hasChanged(data));
    QCOMPARE(data.getConfigurationChangeMap(), (Changes{{type, source.at(2)}}));
}

void UnitManagerConnectionDataOpeningTest::unusableSettingsDiscardTheConnector_data()
{
    QTest::addColumn<QStringList>("newSettings");
    const QString kind = Definitions::getKeyConfigurationFile();
    QTest::newRow("no settings") << QStringList();
    QTest::newRow("no service") << QStringList{"", defaultUnitObject, defaultUnitName, kind, "optional"};
    QTest::newRow("no object") << QStringList{module, "", defaultUnitName, kind, "optional"};
    QTest::newRow("no configuration") << QStringList{module, defaultUnitObject, "", kind, "optional"};
    QTest::newRow("two entries only") << QStringList{module, defaultUnitObject};
}

void UnitManagerConnectionDataOpeningTest::unusableSettingsDiscardTheConnector()
{
    QFETCH(const QStringList, newSettings);
    LogCapture log;
    ConfiguredData data(true);
    QCOMPARE(data.openConnector(Definitions::DefaultUnit), Definitions::Connected);
    const QWeakPointer<Connector> connector = data.connectors().value(Definitions::DefaultUnit);
    data.connectorSettings()[Definitions::DefaultUnit] = newSettings;
    QCOMPARE(data.openConnector(Definitions::DefaultUnit), Definitions::NotConfigured);
    QVERIFY(connector.isNull());
    QCOMPARE(data.connectors().keys(), QList<Type>{Definitions::DefaultUnit});
    QVERIFY(data.connectors().value(Definitions::DefaultUnit).isNull());
    QCOMPARE(log.takeTexts(), QStringList());
}

void UnitManagerConnectionDataOpeningTest::unusableSettingsDoNotUseTheBus()
{
    BusMonitor monitor(m_service->bus().address());
    QVERIFY(monitor.start());
    monitor.takeCalls(DBusConnection::getQDBusConnection());
    LogCapture log;
    Data data(nullptr, false, false, false, "", "", "", "", "", "");
    QCOMPARE(data.openConnector(Definitions::DependencyFile), Definitions::NotConfigured);
    QCOMPARE(data.openConnector(Definitions::DefaultUnit), Definitions::NotConfigured);
    data.connectorSettings().clear();
    QCOMPARE(data.openConnector(Definitions::UnitSwitch), Definitions::NotConfigured);
    QCOMPARE(monitor.takeCalls(DBusConnection::getQDBusConnection()), QStringList());
    QCOMPARE(data.connectors().size(), 3);
    QCOMPARE(log.takeTexts(), QStringList());
}

void UnitManagerConnectionDataOpeningTest::anAbsentServiceDiscardsTheConnector()
{
    LogCapture log;
    ConfiguredData data(true);
    QCOMPARE(data.openConnector(Definitions::UnitSwitch), Definitions::Connected);
    const QWeakPointer<Connector> connector = data.connectors().value(Definitions::UnitSwitch);
    m_service->stop();
    // The bus reports it asynchronously.
    QVERIFY(waitUntil([&connector] { return !connector.toStrongRef()->isDBusInterfaceValid(); }));
    QCOMPARE(data.openConnector(Definitions::UnitSwitch), Definitions::ConnectionFailed);
    QVERIFY(connector.isNull());
    QCOMPARE(data.connectors().keys(), QList<Type>{Definitions::UnitSwitch});
    QVERIFY(data.connectors().value(Definitions::UnitSwitch).isNull());
    QCOMPARE(log.takeTexts(), QStringList());
}

void UnitManagerConnectionDataOpeningTest::theEarlierConnectorIsDisconnectedAndReplaced()
{
    ConfiguredData data(true);
    QCOMPARE(data.openConnector(Definitions::UnitSwitch), Definitions::Connected);
    const QSharedPointer<Connector> earlier = data.connectors().value(Definitions::UnitSwitch);
    QSignalSpy spy(earlier.data(), &QObject::objectNameChanged);
    earlier->setObjectName("observed");
    QCOMPARE(spy.size(), 1);

    QCOMPARE(data.openConnector(Definitions::UnitSwitch), Definitions::Connected);
    QVERIFY(data.connectors().value(Definitions::UnitSwitch));
    QVERIFY(data.connectors().value(Definitions::UnitSwitch) != earlier);
    earlier->setObjectName("not observed");
    QCOMPARE(spy.size(), 1);
}

void UnitManagerConnectionDataOpeningTest::aConnectorWithoutSubscriptionIsKept()
{
    LogCapture log;
    ConfiguredData data(false);
    QCOMPARE(data.openConnector(Definitions::UnitSwitch), Definitions::Connected);
    const QSharedPointer<Connector> earlier = data.connectors().value(Definitions::UnitSwitch);
    QCOMPARE(log.takeTexts(), QStringList());

    // The bus rejects a duplicate subscription.
    QCOMPARE(data.openConnector(Definitions::UnitSwitch), Definitions::ConnectionFailed);
    const QSharedPointer<Connector> kept = data.connectors().value(Definitions::UnitSwitch);
    QVERIFY(kept);
    QVERIFY(kept != earlier);
    QVERIFY(kept->isDBusInterfaceValid());
    QCOMPARE(log.takeTexts(),
             QStringList{"Error cannot connect to module \"DeviceManager\" \"UnitManagerConfiguration\""});
}

void UnitManagerConnectionDataOpeningTest::aTypeWithoutChangeSignalIsNotConfigured()
{
    const Type other = static_cast<Type>(3);
    ConfiguredData data(true);
    data.connectorSettings()[other] = settings()[Definitions::UnitSwitch];
    QCOMPARE(data.openConnector(other), Definitions::NotConfigured);
    QVERIFY(data.connectors().value(other));
}

void UnitManagerConnectionDataOpeningTest::everyConfiguredSourceMustBeConnected_data()
{
    QTest::addColumn<QList<Type>>("configured");
    QTest::addColumn<QList<Type>>("opened");
    QTest::addColumn<bool>("isConnected");
    const QList<Type> none;
    const QList<Type> both{dependencies, defaults};
    row("nothing is open", both, none, false);
    row("all are open", both, QList<Type>{units, dependencies, defaults}, true);
    row("the unit switch is missing", both, both, false);
    row("the dependency file is missing", both, QList<Type>{units, defaults}, false);
    row("the default unit is missing", both, QList<Type>{units, dependencies}, false);
    row("the dependency file is not configured", QList<Type>{defaults}, QList<Type>{units, defaults}, true);
    row("the default unit is not configured", QList<Type>{dependencies}, QList<Type>{units, dependencies},
        true);
    row("neither is configured", none, QList<Type>{units}, true);
}

void UnitManagerConnectionDataOpeningTest::everyConfiguredSourceMustBeConnected()
{
    QFETCH(const QList<Type>, configured);
    QFETCH(const QList<Type>, opened);
    QFETCH(const bool, isConnected);
    ConfiguredData data(true);
    for (const Type type : {Definitions::DependencyFile, Definitions::DefaultUnit}) {
        if (!configured.contains(type))
            data.connectorSettings()[type][2].clear();
    }
    for (const Type type : opened)
        QCOMPARE(data.openConnector(type), Definitions::Connected);
    QCOMPARE(data.isConnectedToDBus(), isConnected);
    QCOMPARE(data.connectors().size(), opened.size());

    // A null connector counts as missing.
    for (const Type type : opened) {
        const QSharedPointer<Connector> connector = data.connectors().value(type);
        data.connectors()[type].reset();
        QVERIFY(!data.isConnectedToDBus());
        data.connectors()[type] = connector;
    }
    QCOMPARE(data.isConnectedToDBus(), isConnected);
}

void UnitManagerConnectionDataOpeningTest::anEndedServiceIsNotConnected()
{
    ConfiguredData data(true);
    for (const Type type : all)
        QCOMPARE(data.openConnector(type), Definitions::Connected);
    QVERIFY(data.isConnectedToDBus());
    m_service->stop();
    QVERIFY(waitUntil([&data] { return !data.isConnectedToDBus(); }));
    QVERIFY(data.connectors().value(Definitions::UnitSwitch));
}

void UnitManagerConnectionDataOpeningTest::closedConnectionsDetectNoChanges_data()
{
    addModes();
}

void UnitManagerConnectionDataOpeningTest::closedConnectionsDetectNoChanges()
{
    QFETCH(const bool, polling);
    LogCapture log;
    ConfiguredData data(polling);
    for (const Type type : all)
        QCOMPARE(data.openConnector(type), Definitions::Connected);
    QVERIFY(data.closeConnections());
    QVERIFY(m_service->announce(units));
    QVERIFY(!hasChanged(data));
    // The connectors remain.
    QVERIFY(data.isConnectedToDBus());
    QCOMPARE(log.takeTexts(), QStringList());
}

void UnitManagerConnectionDataOpeningTest::anUpdateClearsTheRecordedChanges_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("result");
    QTest::newRow("nothing to build") << QString() << true;
    QTest::newRow("the text loads") << TestDocuments::units() << true;
    QTest::newRow("the text does not load") << TestDocument::broken() << false;
}

void UnitManagerConnectionDataOpeningTest::anUpdateClearsTheRecordedChanges()
{
    QFETCH(const QString, text);
    QFETCH(const bool, result);
    LogCapture log;
    ConfiguredData data(true);
    QCOMPARE(data.openConnector(Definitions::UnitSwitch), Definitions::Connected);
    QVERIFY(m_service->announce(units));
    QVERIFY(hasChanged(data));
    data.configurations()[Definitions::UnitSwitch] = text;
    QCOMPARE(data.updateObjects(), result);
    QVERIFY(!hasChanged(data));
    QCOMPARE(data.getConfigurationChangeMap(), (Changes{{Definitions::UnitSwitch, QString()}}));
    QCOMPARE(data.configurations().value(Definitions::UnitSwitch), text);

    // The subscription remains.
    QVERIFY(m_service->announce(units));
    QVERIFY(hasChanged(data));
}

void UnitManagerConnectionDataOpeningTest::resetsClearTheRecordedChanges_data()
{
    QTest::addColumn<bool>("everything");
    QTest::newRow("of the cached objects, which keeps connector and subscription") << false;
    QTest::newRow("of everything") << true;
}

void UnitManagerConnectionDataOpeningTest::resetsClearTheRecordedChanges()
{
    QFETCH(const bool, everything);
    LogCapture log;
    ConfiguredData data(true);
    QCOMPARE(data.openConnector(Definitions::UnitSwitch), Definitions::Connected);
    const QWeakPointer<Connector> connector = data.connectors().value(Definitions::UnitSwitch);
    QVERIFY(m_service->announce(units));
    QVERIFY(hasChanged(data));

    QVERIFY(everything ? data.resetObject() : data.resetCachedObjects());
    QVERIFY(!hasChanged(data));
    QCOMPARE(data.getConfigurationChangeMap(), (Changes{{Definitions::UnitSwitch, QString()}}));
    QCOMPARE(data.connectors().keys(), QList<Type>{Definitions::UnitSwitch});
    QCOMPARE(connector.isNull(), everything);
    QVERIFY(m_service->announce(units));
    QCOMPARE(hasChanged(data), !everything);
}

void UnitManagerConnectionDataOpeningTest::resetObjectDiscardsInOrder()
{
    // The order is visible: closing logs a warning, and a destroyed connector notifies its observers.
    LogCapture log;
    ConfiguredData data(false);
    QCOMPARE(data.openConnector(Definitions::UnitSwitch), Definitions::Connected);
    data.configurations()[Definitions::UnitSwitch] = QStringLiteral("text");
    m_service->stop();
    m_service->bus().stop();
    QTRY_VERIFY_WITH_TIMEOUT(!DBusConnection::getQDBusConnection().isConnected(), waitLimit);
    log.take();

    QStringList loggedBefore;
    QString textBefore;
    QObject::connect(data.connectors().value(Definitions::UnitSwitch).data(), &QObject::destroyed, &data,
                     [&] {
                         loggedBefore = log.takeTexts();
                         textBefore = data.configurations().value(Definitions::UnitSwitch);
                     });
    QVERIFY(data.resetObject());
    QCOMPARE(loggedBefore, QStringList{"Unable to disconnect connection \"UnitManagerConfiguration\""});
    QCOMPARE(textBefore, QStringLiteral("text"));
    QVERIFY(data.configurations().value(Definitions::UnitSwitch).isNull());
    QCOMPARE(log.takeTexts(), QStringList());
}

static const TestClass<UnitManagerConnectionDataOpeningTest> testClass;
#include "UnitManagerConnectionDataOpeningTest.moc"
