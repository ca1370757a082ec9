#include "UnitManagerConnector/UnitManagerConnectorStateIdle.h"

#include <QtTest/QTest>

#include "ChangeSources.h"
#include "LogCapture.h"
#include "RecordingWrapper.h"
#include "ServiceFixture.h"
#include "TestProgram.h"

using Definitions = UnitManagerConnectorDefinitions;
using namespace ChangeSources;

class UnitManagerConnectorStateIdleTest : public ServiceFixture
{
    Q_OBJECT

private Q_SLOTS:
    void withoutChangeTheStateStays_data();
    void withoutChangeTheStateStays();
    void theChangedSourcesAreRead_data();
    void theChangedSourcesAreRead();
    void aChangeWithoutNameGivesAnEmptyList();
    void theChangesStayRecorded();
};

void UnitManagerConnectorStateIdleTest::withoutChangeTheStateStays_data()
{
    addModes();
}

void UnitManagerConnectorStateIdleTest::withoutChangeTheStateStays()
{
    QFETCH(const bool, polling);
    LogCapture log;
    RecordingWrapper wrapper(polling);
    QVERIFY(wrapper.openAll());
    UnitManagerConnectorStateIdle state(&wrapper);
    QVERIFY(m_service->announceWith(TestSource::unitSwitchObject, {"Test/Other"}));
    QCoreApplication::processEvents();
    for (int step = 0; step < 3; ++step)
        state.postEvent(readTrigger({Definitions::UnitSwitch}));
    QCOMPARE(wrapper.takeTransitions(), QStringList());
    QCOMPARE(m_service->takeCalls(), QStringList());
    QCOMPARE(log.takeTexts(), QStringList());
}

void UnitManagerConnectorStateIdleTest::theChangedSourcesAreRead_data()
{
    QTest::addColumn<bool>("asynchron");
    QTest::addColumn<QList<Type>>("changed");
    QTest::addColumn<QString>("list");
    for (const bool asynchron : {false, true}) {
        const char* const mode = asynchron ? "asynchronous" : "blocking";
        QTest::addRow("default unit, %s", mode)
            << asynchron << QList<Type>{Definitions::DefaultUnit} << "[2]";
        QTest::addRow("unit switch, %s", mode) << asynchron << QList<Type>{Definitions::UnitSwitch} << "[0]";
        QTest::addRow("two, in ascending order, %s", mode)
            << asynchron << QList<Type>{Definitions::DefaultUnit, Definitions::DependencyFile} << "[1 2]";
        QTest::addRow("all, in ascending order, %s", mode)
            << asynchron
            << QList<Type>{Definitions::DefaultUnit, Definitions::UnitSwitch, Definitions::DependencyFile}
            << "[0 1 2]";
    }
}

void UnitManagerConnectorStateIdleTest::theChangedSourcesAreRead()
{
    QFETCH(const bool, asynchron);
    QFETCH(const QList<Type>, changed);
    QFETCH(const QString, list);
    for (const bool polling : {false, true}) {
        LogCapture log;
        RecordingWrapper wrapper(polling, asynchron);
        QVERIFY(wrapper.openAll());
        UnitManagerConnectorStateIdle state(&wrapper);
        for (const Type type : changed)
            QVERIFY(m_service->announce(type));
        QCoreApplication::processEvents();
        state.postEvent(StateMachineEvent("other", QVariant("data")));
        QCOMPARE(wrapper.takeTransitions(),
                 QStringList{QStringLiteral("UnitManagerConnectorStateReadConfiguration%1 ReadTrigger(%2)")
                                 .arg(asynchron ? "ASynchron" : "Synchron", list)});
    }
}

void UnitManagerConnectorStateIdleTest::aChangeWithoutNameGivesAnEmptyList()
{
    LogCapture log;
    RecordingWrapper wrapper;
    QVERIFY(wrapper.data().init(false, TestSource::module, TestSource::dependencyObject, "", "", "", ""));
    // The name in the signal is empty and so is the entry in the settings: this counts as a change, but names
    // no source.
    wrapper.data().connectorSettings()[Definitions::DependencyFile][2] = QStringLiteral("any");
    QCOMPARE(wrapper.data().openConnector(Definitions::DependencyFile), Definitions::Connected);
    QVERIFY(m_service->announceWith(TestSource::dependencyObject, {""}));
    UnitManagerConnectorStateIdle state(&wrapper);
    state.postEvent(StateMachineEvent());
    QCOMPARE(wrapper.data().getConfigurationChangeMap(),
             (Changes{{Definitions::DependencyFile, QString("")}}));
    QCOMPARE(wrapper.takeTransitions(),
             QStringList{"UnitManagerConnectorStateReadConfigurationSynchron ReadTrigger([])"});
}

void UnitManagerConnectorStateIdleTest::theChangesStayRecorded()
{
    LogCapture log;
    RecordingWrapper wrapper;
    QVERIFY(wrapper.openAll());
    UnitManagerConnectorStateIdle state(&wrapper);
    QVERIFY(m_service->announce(TestSource::defaults));
    for (int step = 0; step < 2; ++step) {
        state.postEvent(StateMachineEvent());
        QCOMPARE(wrapper.takeTransitions(),
                 QStringList{"UnitManagerConnectorStateReadConfigurationSynchron ReadTrigger([2])"});
    }
    QCOMPARE(wrapper.data().getConfigurationChangeMap(),
             (Changes{{Definitions::DefaultUnit, TestSource::defaultUnitName}}));
}

static const TestClass<UnitManagerConnectorStateIdleTest> testClass;
#include "UnitManagerConnectorStateIdleTest.moc"
