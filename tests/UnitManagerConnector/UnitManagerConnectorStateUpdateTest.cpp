#include "UnitManagerConnector/UnitManagerConnectorStateUpdate.h"

#include <QtTest/QTest>

#include "ConfigurationService.h"
#include "DependencyWalker.h"
#include "LogCapture.h"
#include "RecordingWrapper.h"
#include "Row.h"
#include "TestDocuments.h"
#include "TestProgram.h"
#include "UnitManagerDevice/UnitManagerDevice.h"

using Type = UnitManagerConnectorDefinitions::ConnectorType;
using Texts = QMap<Type, QString>;
using namespace TestSource;

Q_DECLARE_METATYPE(Texts)

class UnitManagerConnectorStateUpdateTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void theResultSelectsTheNextState_data();
    void theResultSelectsTheNextState();
    void theEventIsPassedOnUnchanged_data();
    void theEventIsPassedOnUnchanged();
    void theObjectsExistBeforeTheTransition();
};

void UnitManagerConnectorStateUpdateTest::initTestCase()
{
    useNoBus();
}

void UnitManagerConnectorStateUpdateTest::theResultSelectsTheNextState_data()
{
    QTest::addColumn<Texts>("texts");
    QTest::addColumn<QString>("state");
    const Texts good{{units, TestDocuments::units()},
                     {dependencies, TestDocument::dependencies()},
                     {defaults, TestDocuments::defaultUnits()}};
    row("all texts load", good, "Idle");
    row("no text", Texts(), "Idle");
    row("only the default units", Texts{{defaults, TestDocuments::defaultUnits()}}, "Idle");
    for (const Type type : {units, dependencies, defaults}) {
        Texts texts = good;
        texts[type] = TestDocument::broken();
        QTest::addRow("text %d does not load", static_cast<int>(type)) << texts << "Error";
    }
}

void UnitManagerConnectorStateUpdateTest::theResultSelectsTheNextState()
{
    QFETCH(const Texts, texts);
    QFETCH(const QString, state);
    LogCapture log;
    RecordingWrapper wrapper;
    wrapper.data().configurations() = texts;
    UnitManagerConnectorStateUpdate update(&wrapper);
    update.postEvent(readTrigger({units}));
    QCOMPARE(wrapper.takeTransitions(),
             QStringList{"UnitManagerConnectorState" + state + " ReadTrigger([0])"});
    // The texts are kept for the next update.
    QCOMPARE(wrapper.data().configurations(), texts);
}

void UnitManagerConnectorStateUpdateTest::theEventIsPassedOnUnchanged_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("state");
    QTest::newRow("to the idle state") << TestDocuments::units() << "Idle";
    QTest::newRow("to the error state") << TestDocument::broken() << "Error";
}

void UnitManagerConnectorStateUpdateTest::theEventIsPassedOnUnchanged()
{
    QFETCH(const QString, text);
    QFETCH(const QString, state);
    LogCapture log;
    RecordingWrapper wrapper;
    wrapper.data().configurations()[units] = text;
    UnitManagerConnectorStateUpdate update(&wrapper);
    update.postEvent(StateMachineEvent("any name", QVariant("any data")));
    QCOMPARE(wrapper.takeTransitions(),
             QStringList{"UnitManagerConnectorState" + state + " any name(any data)"});
}

void UnitManagerConnectorStateUpdateTest::theObjectsExistBeforeTheTransition()
{
    LogCapture log;
    RecordingWrapper wrapper;
    wrapper.data().configurations() =
        Texts{{units, TestDocuments::units()}, {dependencies, TestDocument::dependencies()}};
    QSharedPointer<UnitManagerDevice> manager;
    QSharedPointer<DependencyWalker> walker;
    wrapper.setObserver([&] {
        wrapper.initializeUnitManager(manager);
        wrapper.initializeDependencyWalker(walker);
    });
    UnitManagerConnectorStateUpdate update(&wrapper);
    update.postEvent(readTrigger({units, dependencies}));
    QVERIFY(manager);
    QVERIFY(manager->isValid());
    QVERIFY(walker);
}

static const TestClass<UnitManagerConnectorStateUpdateTest> testClass;
#include "UnitManagerConnectorStateUpdateTest.moc"
