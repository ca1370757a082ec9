#include "UnitManagerConnector/UnitManagerConnectorStateError.h"

#include <QtDBus/QDBusError>
#include <QtDBus/QDBusPendingCall>
#include <QtTest/QTest>

#include "ConfigurationFileHandlerDBusConnector.h"
#include "ConfigurationService.h"
#include "DBusPendingReply.h"
#include "LogCapture.h"
#include "RecordingWrapper.h"
#include "TestDocuments.h"
#include "TestProgram.h"
#include "UnitManagerDevice/UnitManagerDevice.h"

using Definitions = UnitManagerConnectorDefinitions;

class UnitManagerConnectorStateErrorTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everythingIsDiscardedBeforeTheRestart();
    void theEventIsPassedOnUnchanged();
};

void UnitManagerConnectorStateErrorTest::everythingIsDiscardedBeforeTheRestart()
{
    const auto units = Definitions::UnitSwitch;
    ConfigurationService service;
    QVERIFY(service.start());
    LogCapture log;
    RecordingWrapper wrapper;
    UnitManagerConnectionData& data = wrapper.data();
    QCOMPARE(data.openConnector(units), Definitions::Connected);
    data.configurations()[units] = TestDocuments::units();
    QVERIFY(data.updateObjects());
    data.pendingReplies()[units] = QSharedPointer<DBusPendingReply>::create(
        QDBusPendingCall::fromError(QDBusError(QDBusError::Failed, "as requested")));

    bool wasDiscarded = false;
    wrapper.setObserver([&] {
        wasDiscarded = data.connectors().value(units).isNull() &&
                       data.pendingReplies().value(units).isNull() &&
                       data.configurations().value(units).isNull();
    });
    UnitManagerConnectorStateError state(&wrapper);
    state.postEvent(readTrigger({units}));
    QCOMPARE(wrapper.takeTransitions(), QStringList{"UnitManagerConnectorStateInitial ReadTrigger([0])"});
    QVERIFY(wasDiscarded);
    QVERIFY(data.connectors().contains(units) && data.pendingReplies().contains(units) &&
            data.configurations().contains(units));

    // The subscription is closed, and the objects that were built remain.
    QVERIFY(service.announce(TestSource::units));
    QVERIFY(!data.pollChangeFlags());
    QSharedPointer<UnitManagerDevice> manager;
    QVERIFY(wrapper.initializeUnitManager(manager));
    QVERIFY(manager->isValid());
    QCOMPARE(log.takeTexts(), QStringList());
}

void UnitManagerConnectorStateErrorTest::theEventIsPassedOnUnchanged()
{
    RecordingWrapper wrapper;
    UnitManagerConnectorStateError state(&wrapper);
    state.postEvent(StateMachineEvent("any name", QVariant("any data")));
    QCOMPARE(wrapper.takeTransitions(), QStringList{"UnitManagerConnectorStateInitial any name(any data)"});
}

static const TestClass<UnitManagerConnectorStateErrorTest> testClass;
#include "UnitManagerConnectorStateErrorTest.moc"
