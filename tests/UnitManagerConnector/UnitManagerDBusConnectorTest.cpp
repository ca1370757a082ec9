#include "UnitManagerConnector/UnitManagerDBusConnector.h"

#include <QtTest/QTest>

#include "ChangeSources.h"
#include "DependencyWalker.h"
#include "LogCapture.h"
#include "ObjectSlots.h"
#include "ObservedConnector.h"
#include "ServiceFixture.h"
#include "TestDocuments.h"
#include "TestProgram.h"

using Connector = UnitManagerDBusConnector;

class UnitManagerDBusConnectorTest : public ServiceFixture
{
    Q_OBJECT

private Q_SLOTS:
    void theMetaObjectListsTheSignalsInOrder();
    void theVirtualFunctionsAreInOrder();
    void theParentIsNotPassedOn();
    void nothingHappensBetweenCalls();
    void aBlockingCallContinuesToIdle();
    void everySuccessIsSignalled();
    void anAbsentServiceIsTriedAHundredTimes();
    void aFailedReadEndsABlockingCall();
    void aFailedUpdateIsSignalledToo();
    void resetClearsTheChangeAndStartsAgain();
    void aChangeIsLoaded_data();
    void aChangeIsLoaded();
};

namespace {

using TestUnitType::pressure;

} // namespace

void UnitManagerDBusConnectorTest::theMetaObjectListsTheSignalsInOrder()
{
    // Part of the binary interface: connections use the index of the method.
    const QMetaObject& metaObject = Connector::staticMetaObject;
    QCOMPARE(metaObject.className(), "UnitManagerDBusConnector");
    QCOMPARE(metaObject.superClass(), &QObject::staticMetaObject);
    QCOMPARE(ownMethods(metaObject, QMetaMethod::Signal),
             (QByteArrayList{"unitManagerConfigurationChanged()", "unitManagerIsInitialized()"}));
    QCOMPARE(metaObject.methodCount() - metaObject.methodOffset(), 2);
}

void UnitManagerDBusConnectorTest::theVirtualFunctionsAreInOrder()
{
    // Part of the binary interface: callers use the position in the virtual table.
    const std::size_t places[] = {
        virtualSlot(&Connector::init),
        virtualSlot(&Connector::initializeDependencyWalker),
        virtualSlot(&Connector::initializeUnitManager),
        virtualSlot(&Connector::isUnitManagerInitialized),
        virtualSlot(&Connector::hasConfigurationChanged),
        virtualSlot(&Connector::reset),
    };
    std::size_t expected = firstSlotAfterObject();
    for (const std::size_t place : places)
        QCOMPARE(place, expected++);
}

void UnitManagerDBusConnectorTest::theParentIsNotPassedOn()
{
    QObject parent;
    const Connector connector(&parent, false, false, "", "", "", "", "", "");
    QCOMPARE(connector.parent(), nullptr);
    QVERIFY(parent.children().isEmpty());
}

void UnitManagerDBusConnectorTest::nothingHappensBetweenCalls()
{
    LogCapture log;
    ObservedConnector connector(false, false);
    QVERIFY(m_service->settle());
    QCoreApplication::processEvents();
    QVERIFY(!connector.hasConfigurationChanged());
    QVERIFY(connector.unitManager().isNull());
    QSharedPointer<DependencyWalker> walker;
    QVERIFY(!connector.initializeDependencyWalker(walker));
    QVERIFY(walker.isNull());
    QCOMPARE(connector.takeSignals(), QStringList());
    QCOMPARE(m_service->takeCalls(), QStringList());
    QCOMPARE(log.takeTexts(), QStringList());
}

void UnitManagerDBusConnectorTest::aBlockingCallContinuesToIdle()
{
    LogCapture log;
    ObservedConnector connector(true, false);
    QVERIFY(connector.isUnitManagerInitialized());
    QCOMPARE(connector.takeSignals(), changedAndInitialized);
    QCOMPARE(m_service->takeCalls().size(), 3);
    QVERIFY(connector.hasConfigurationChanged());
    QVERIFY(!connector.hasConfigurationChanged());

    const QSharedPointer<UnitManagerDevice> manager = connector.unitManager();
    QVERIFY(manager);
    QVERIFY(manager->isValid());
    QCOMPARE(manager->getDefaultUnit(pressure), QStringLiteral("HectoPascal"));
    QCOMPARE(connector.unitManager(), manager);
    QSharedPointer<DependencyWalker> walker;
    QVERIFY(connector.initializeDependencyWalker(walker));
    QVERIFY(walker);
    QCOMPARE(log.takeTexts(), QStringList());
}

void UnitManagerDBusConnectorTest::everySuccessIsSignalled()
{
    ObservedConnector connector(true, false);
    QVERIFY(connector.isUnitManagerInitialized());
    connector.hasConfigurationChanged();
    connector.takeSignals();
    m_service->takeCalls();
    const QSharedPointer<UnitManagerDevice> manager = connector.unitManager();
    for (int call = 0; call < 3; ++call)
        QVERIFY(connector.isUnitManagerInitialized());
    QCOMPARE(connector.takeSignals(), (QStringList{"initialized", "initialized", "initialized"}));
    QVERIFY(!connector.hasConfigurationChanged());
    QCOMPARE(connector.unitManager(), manager);
    QCOMPARE(m_service->takeCalls(), QStringList());
}

void UnitManagerDBusConnectorTest::anAbsentServiceIsTriedAHundredTimes()
{
    m_service->stop();
    LogCapture log;
    ObservedConnector connector(true, false);
    QVERIFY(!connector.isUnitManagerInitialized());
    QStringList warnings;
    for (int attempt = 0; attempt < 100; ++attempt)
        warnings.append("Unable to connect to mandantory file type \"UnitManager/UnitType\"");
    QCOMPARE(log.takeTexts(), warnings);
    QCOMPARE(connector.takeSignals(), QStringList());
    QVERIFY(!connector.hasConfigurationChanged());

    QVERIFY(m_service->start());
    QVERIFY(connector.isUnitManagerInitialized());
    QCOMPARE(connector.takeSignals(), changedAndInitialized);
}

void UnitManagerDBusConnectorTest::aFailedReadEndsABlockingCall()
{
    m_service->setAnswer(TestSource::unitSwitchName, FakeBusService::withError("org.example.Error"));
    LogCapture log;
    ObservedConnector connector(true, false);
    for (int call = 0; call < 2; ++call) {
        QVERIFY(!connector.isUnitManagerInitialized());
        // Each source was read once: the call ended in the error state.
        QCOMPARE(m_service->takeCalls().size(), 3);
        QCOMPARE(log.takeTexts().size(), 1);
    }
    QCOMPARE(connector.takeSignals(), QStringList());
    QVERIFY(!connector.hasConfigurationChanged());
    QVERIFY(connector.unitManager().isNull());

    m_service->setDocument(TestSource::unitSwitchName, TestDocuments::units());
    QVERIFY(connector.isUnitManagerInitialized());
    QCOMPARE(connector.takeSignals(), changedAndInitialized);
}

void UnitManagerDBusConnectorTest::aFailedUpdateIsSignalledToo()
{
    m_service->setDocument(TestSource::unitSwitchName, TestDocument::broken());
    LogCapture log;
    ObservedConnector connector(true, false);
    QVERIFY(!connector.isUnitManagerInitialized());
    QCOMPARE(connector.takeSignals(), QStringList{"changed"});
    QVERIFY(connector.hasConfigurationChanged());
    QCOMPARE(m_service->takeCalls().size(), 3);
    // The new object is kept nevertheless.
    QVERIFY(connector.unitManager());
    QVERIFY(!connector.unitManager()->isValid());
}

void UnitManagerDBusConnectorTest::resetClearsTheChangeAndStartsAgain()
{
    ObservedConnector connector(true, false);
    QVERIFY(connector.isUnitManagerInitialized());
    const QSharedPointer<UnitManagerDevice> manager = connector.unitManager();
    m_service->takeCalls();
    connector.takeSignals();

    QVERIFY(connector.reset());
    QVERIFY(!connector.hasConfigurationChanged());
    QCOMPARE(connector.unitManager(), manager);
    QCOMPARE(connector.takeSignals(), QStringList());
    QVERIFY(connector.isUnitManagerInitialized());
    QCOMPARE(m_service->takeCalls().size(), 3);
    QCOMPARE(connector.takeSignals(), changedAndInitialized);
    QVERIFY(connector.unitManager() != manager);
}

void UnitManagerDBusConnectorTest::aChangeIsLoaded_data()
{
    ChangeSources::addModes();
}

void UnitManagerDBusConnectorTest::aChangeIsLoaded()
{
    QFETCH(const bool, polling);
    LogCapture log;
    ObservedConnector connector(polling, false);
    QVERIFY(connector.isUnitManagerInitialized());
    QVERIFY(connector.hasConfigurationChanged());
    const QSharedPointer<UnitManagerDevice> before = connector.unitManager();
    connector.takeSignals();
    m_service->takeCalls();

    const QString bar = QStringLiteral(R"({ "Pressure": { "@type": "Selection", "@value": "Bar" } })");
    m_service->setDocument(TestSource::defaultUnitName, bar);
    QVERIFY(m_service->announce(TestSource::defaults));
    QCoreApplication::processEvents();
    QVERIFY(connector.isUnitManagerInitialized());
    QCOMPARE(connector.takeSignals(), changedAndInitialized);
    QVERIFY(connector.hasConfigurationChanged());
    QCOMPARE(m_service->takeCalls(),
             QStringList{"/DefaultUnitObject getConfiguration(Test/DefaultUnit, UnitManager, )"});
    // Built from the new text and the stored one; owners of the earlier object keep it.
    QVERIFY(connector.unitManager()->isValid());
    QCOMPARE(connector.unitManager()->getDefaultUnit(pressure), QStringLiteral("Bar"));
    QCOMPARE(before->getDefaultUnit(pressure), QStringLiteral("HectoPascal"));
    QCOMPARE(log.takeTexts(), QStringList{"default unit configuration has been changed"});

    QVERIFY(connector.isUnitManagerInitialized());
    QCOMPARE(connector.takeSignals(), QStringList{"initialized"});
    QCOMPARE(m_service->takeCalls(), QStringList());
}

static const TestClass<UnitManagerDBusConnectorTest> testClass;
#include "UnitManagerDBusConnectorTest.moc"
