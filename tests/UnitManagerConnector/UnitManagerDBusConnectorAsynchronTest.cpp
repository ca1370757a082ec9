#include "UnitManagerConnector/UnitManagerDBusConnector.h"

#include <QtTest/QTest>

#include "LogCapture.h"
#include "ObservedConnector.h"
#include "ServiceFixture.h"
#include "TestDocuments.h"
#include "TestProgram.h"
#include "WaitUntil.h"

Q_DECLARE_METATYPE(FakeBusService::Answer)

/// The steps of a connector that reads without blocking.
class UnitManagerDBusConnectorAsynchronTest : public ServiceFixture
{
    Q_OBJECT

private Q_SLOTS:
    void anAsynchronousCallIsOneStep();
    void anAsynchronousCallDoesNotWait();
    void asynchronousCallsContinueAfterAnError();
    void aReplyWithoutTextEndsInIdleOrError_data();
    void aReplyWithoutTextEndsInIdleOrError();
    void initKeepsTheChangeAndSetsTheMode();
    void aChangeBeforeTheUpdate_data();
    void aChangeBeforeTheUpdate();
};

void UnitManagerDBusConnectorAsynchronTest::anAsynchronousCallIsOneStep()
{
    LogCapture log;
    ObservedConnector connector(true, true);
    QVERIFY(!connector.isUnitManagerInitialized()); // opens
    QVERIFY(m_service->settle());
    QCOMPARE(m_service->takeCalls(), QStringList());
    QVERIFY(!connector.isUnitManagerInitialized()); // starts to read
    QVERIFY(m_service->settle());
    QCOMPARE(m_service->takeCalls().size(), 3);
    QVERIFY(!connector.isUnitManagerInitialized()); // collects the replies
    QCOMPARE(connector.takeSignals(), QStringList());
    QVERIFY(!connector.hasConfigurationChanged());
    QVERIFY(connector.unitManager().isNull());

    QVERIFY(connector.isUnitManagerInitialized()); // builds
    QCOMPARE(connector.takeSignals(), changedAndInitialized);
    QVERIFY(connector.hasConfigurationChanged());
    QVERIFY(connector.unitManager()->isValid());
    QVERIFY(connector.isUnitManagerInitialized()); // idles
    QCOMPARE(connector.takeSignals(), QStringList{"initialized"});
    QVERIFY(!connector.hasConfigurationChanged());
    QCOMPARE(log.takeTexts(), QStringList());
}

void UnitManagerDBusConnectorAsynchronTest::anAsynchronousCallDoesNotWait()
{
    m_service->setAnswer(TestSource::defaultUnitName, FakeBusService::never());
    LogCapture log;
    ObservedConnector connector(true, true);
    for (int call = 0; call < 50; ++call)
        QVERIFY(!connector.isUnitManagerInitialized());
    // A call that waited for the outstanding reply would end with its time-out, and everything would be read
    // again.
    QCOMPARE(m_service->takeCalls().size(), 3);
    QCOMPARE(connector.takeSignals(), QStringList());
    QCOMPARE(log.takeTexts(), QStringList());
}

void UnitManagerDBusConnectorAsynchronTest::asynchronousCallsContinueAfterAnError()
{
    m_service->setAnswer(TestSource::unitSwitchName, FakeBusService::withError("org.example.Error"));
    LogCapture log;
    ObservedConnector connector(true, true);
    QVERIFY(!connector.isUnitManagerInitialized()); // opens
    QVERIFY(!connector.isUnitManagerInitialized()); // starts to read
    QVERIFY(m_service->settle());
    QVERIFY(!connector.isUnitManagerInitialized()); // detects the failure
    m_service->setDocument(TestSource::unitSwitchName, TestDocuments::units());
    QVERIFY(!connector.isUnitManagerInitialized()); // restarts
    QVERIFY(!connector.isUnitManagerInitialized()); // opens
    QVERIFY(!connector.isUnitManagerInitialized()); // starts to read
    QVERIFY(m_service->settle());
    QVERIFY(!connector.isUnitManagerInitialized()); // collects the replies
    QCOMPARE(connector.takeSignals(), QStringList());
    QVERIFY(connector.isUnitManagerInitialized());
    QCOMPARE(connector.takeSignals(), changedAndInitialized);
    QCOMPARE(m_service->takeCalls().size(), 6);
    QCOMPARE(log.takeTexts(), QStringList());
}

void UnitManagerDBusConnectorAsynchronTest::aReplyWithoutTextEndsInIdleOrError_data()
{
    QTest::addColumn<FakeBusService::Answer>("answer");
    QTest::addColumn<bool>("asynchron");
    QTest::addColumn<bool>("idles");
    const auto empty = FakeBusService::withValue("");
    const auto dictionary = FakeBusService::withValue(QVariantMap{{"a", 1}});
    QTest::newRow("an empty text, asynchronous") << empty << true << true;
    QTest::newRow("not a text, asynchronous") << dictionary << true << true;
    QTest::newRow("an empty text, blocking") << empty << false << false;
    QTest::newRow("not a text, blocking") << dictionary << false << false;
}

void UnitManagerDBusConnectorAsynchronTest::aReplyWithoutTextEndsInIdleOrError()
{
    QFETCH(const FakeBusService::Answer, answer);
    QFETCH(const bool, asynchron);
    QFETCH(const bool, idles);
    m_service->setAnswer(TestSource::unitSwitchName, answer);
    LogCapture log;
    ObservedConnector connector(asynchron);
    if (asynchron)
        QVERIFY(waitUntil([&connector] { return connector.isUnitManagerInitialized(); }));
    else
        QVERIFY(!connector.isUnitManagerInitialized());
    QCOMPARE(connector.takeSignals(), idles ? changedAndInitialized : QStringList());
    QCOMPARE(connector.hasConfigurationChanged(), idles);
    QVERIFY(connector.unitManager().isNull());
    QCOMPARE(log.takeTexts().size(), idles ? 0 : 1);
}

void UnitManagerDBusConnectorAsynchronTest::initKeepsTheChangeAndSetsTheMode()
{
    ObservedConnector connector(true, false);
    QVERIFY(connector.isUnitManagerInitialized());
    m_service->takeCalls();

    QVERIFY(connector.init(true, "", "", "", "", "", ""));
    QVERIFY(connector.hasConfigurationChanged());
    QVERIFY(connector.unitManager());
    QVERIFY(!connector.isUnitManagerInitialized());
    QVERIFY(m_service->settle());
    QCOMPARE(m_service->takeCalls(), QStringList());
    QVERIFY(!connector.isUnitManagerInitialized());
    QVERIFY(m_service->settle());
    // Only the units are configured now.
    QCOMPARE(m_service->takeCalls().size(), 1);

    QVERIFY(connector.init(false, "", "", "", "", "", ""));
    QVERIFY(connector.isUnitManagerInitialized());
}

void UnitManagerDBusConnectorAsynchronTest::aChangeBeforeTheUpdate_data()
{
    QTest::addColumn<bool>("polling");
    QTest::addColumn<bool>("isLoaded");
    QTest::newRow("a delivered signal is cleared by the update") << false << false;
    QTest::newRow("a signal that was not polled yet is kept") << true << true;
}

void UnitManagerDBusConnectorAsynchronTest::aChangeBeforeTheUpdate()
{
    QFETCH(const bool, polling);
    QFETCH(const bool, isLoaded);
    LogCapture log;
    ObservedConnector connector(polling, true);
    for (int step = 0; step < 2; ++step)
        QVERIFY(!connector.isUnitManagerInitialized());
    QVERIFY(m_service->settle());
    m_service->takeCalls();
    QVERIFY(m_service->announce(TestSource::units));
    QCoreApplication::processEvents();
    QVERIFY(!connector.isUnitManagerInitialized()); // collects the replies
    QVERIFY(connector.isUnitManagerInitialized());  // builds
    QCOMPARE(connector.isUnitManagerInitialized(), !isLoaded);
}

static const TestClass<UnitManagerDBusConnectorAsynchronTest> testClass;
#include "UnitManagerDBusConnectorAsynchronTest.moc"
