#include "UnitManagerConnector/UnitManagerStateMachineWrapper.h"

#include <QtTest/QTest>

#include <type_traits>
#include <utility>

#include "ConfigurationFileHandlerDBusConnector.h"
#include "ConfigurationService.h"
#include "DependencyWalker.h"
#include "LogCapture.h"
#include "ObjectSlots.h"
#include "RecordingWrapper.h"
#include "TestDocuments.h"
#include "TestProgram.h"
#include "UnitConversion/Factory.h"
#include "UnitManagerConnector/UnitManagerConnectorStateBase.h"
#include "UnitManagerConnector/UnitManagerConnectorStateIdle.h"
#include "UnitManagerConnector/UnitManagerConnectorStateInitial.h"
#include "UnitManagerDevice/UnitManagerDevice.h"

using Definitions = UnitManagerConnectorDefinitions;
using Wrapper = UnitManagerStateMachineWrapper;
using StateFactory = VESKFactories::Factory<StateMachineStateBase, QObject*>;

static_assert(std::is_same_v<decltype(std::declval<Wrapper&>().postEvent()),
                             decltype(std::declval<StateMachineBase&>().postEvent(StateMachineEvent()))>);

namespace {

/// The events that the probing state received, oldest first.
QStringList& events()
{
    static QStringList list;
    return list;
}

QString initialKey()
{
    return VESKFactories::createFactoryKey<UnitManagerConnectorStateInitial>();
}

} // namespace

/// Replaces the initial state. On an event named "next" it selects itself again with the same event.
class ProbingState : public UnitManagerConnectorStateBase
{
    Q_OBJECT

public:
    explicit ProbingState(QObject* parent) : UnitManagerConnectorStateBase(parent) {}

    void postInitialEvent(const StateMachineEvent& event) override
    {
        events().append(transitionText("enter", event));
    }

    void postEvent(const StateMachineEvent& event) override
    {
        events().append(transitionText("step", event));
        if (event.getName() == QLatin1String("next"))
            m_wrapper->moveToNextState(initialKey(), event);
    }
};

class UnitManagerStateMachineWrapperTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void theMetaObjectHasNoMethodsOfItsOwn();
    void theVirtualFunctionsAreInOrder();
    void onlyTheStateMachineHasItAsParent();
    void theConnectionDataIsItsOwn();
    void initAppliesSettingsAndStartsAgain();
    void theInitialStateIsEnteredTwice();
    void theFirstStepDeliversAnEmptyEvent();
    void aTransitionKeepsItsEventForTheNextSteps();
    void aStateMayPassOnItsOwnEvent();
    void anUnknownStateKeepsItsEventToo();
    void resetKeepsThePendingEvent();
    void resetDiscardsConnectorsAndTextsOnly();
    void theBuiltObjectsAreShared();

private:
    static void probeInitialState();
};

void UnitManagerStateMachineWrapperTest::initTestCase()
{
    useNoBus();
}

void UnitManagerStateMachineWrapperTest::init()
{
    events().clear();
}

void UnitManagerStateMachineWrapperTest::cleanup()
{
    StateFactory::instance().registerClass<UnitManagerConnectorStateInitial>(initialKey());
}

void UnitManagerStateMachineWrapperTest::probeInitialState()
{
    StateFactory::instance().registerClass<ProbingState>(initialKey());
}

void UnitManagerStateMachineWrapperTest::theMetaObjectHasNoMethodsOfItsOwn()
{
    const QMetaObject& metaObject = Wrapper::staticMetaObject;
    QCOMPARE(metaObject.className(), "UnitManagerStateMachineWrapper");
    QCOMPARE(metaObject.superClass(), &QObject::staticMetaObject);
    QCOMPARE(metaObject.methodCount(), metaObject.methodOffset());
}

void UnitManagerStateMachineWrapperTest::theVirtualFunctionsAreInOrder()
{
    // Part of the binary interface: callers use the position in the virtual table.
    QCOMPARE(virtualSlot(&Wrapper::moveToNextState), firstSlotAfterObject());
    QCOMPARE(virtualSlot(&Wrapper::initializeDependencyWalker), firstSlotAfterObject() + 1);
    QCOMPARE(virtualSlot(&Wrapper::initializeUnitManager), firstSlotAfterObject() + 2);
}

void UnitManagerStateMachineWrapperTest::onlyTheStateMachineHasItAsParent()
{
    QObject parent;
    Wrapper wrapper(&parent, false, false, "", "", "", "", "", "");
    QCOMPARE(wrapper.parent(), nullptr);
    QVERIFY(parent.children().isEmpty());
    // The state machine passes its parent, the wrapper, to every state.
    QCOMPARE(wrapper.children().size(), 1);
    QCOMPARE(wrapper.children().first()->metaObject()->className(), "UnitManagerConnectorStateMachine");
    QCOMPARE(wrapper.getConnectionDataObject()->parent(), nullptr);
}

void UnitManagerStateMachineWrapperTest::theConnectionDataIsItsOwn()
{
    LogCapture log;
    Wrapper wrapper(nullptr, false, true, "s1", "s2", "s3", "s4", "s5", "s6");
    UnitManagerConnectionData* const data = wrapper.getConnectionDataObject();
    QVERIFY(data);
    QCOMPARE(wrapper.getConnectionDataObject(), data);
    QVERIFY(data->useAsynchronInterface());
    QCOMPARE(data->connectorSettings().value(Definitions::DependencyFile).mid(0, 3),
             (QStringList{"s1", "s2", "s3"}));
    QCOMPARE(data->connectorSettings().value(Definitions::DefaultUnit).mid(0, 3),
             (QStringList{"s4", "s5", "s6"}));
    QCOMPARE(wrapper.getCurrentStateIdentifier(), QStringLiteral("UnitManagerConnectorStateInitial"));
    QCOMPARE(log.takeTexts(), QStringList());
}

void UnitManagerStateMachineWrapperTest::initAppliesSettingsAndStartsAgain()
{
    Wrapper wrapper(nullptr, false, true, "s1", "s2", "s3", "s4", "s5", "s6");
    wrapper.moveToNextState(VESKFactories::createFactoryKey<UnitManagerConnectorStateIdle>(),
                            StateMachineEvent());
    QCOMPARE(wrapper.getCurrentStateIdentifier(), QStringLiteral("UnitManagerConnectorStateIdle"));
    wrapper.getConnectionDataObject()->configurations()[Definitions::UnitSwitch] = QStringLiteral("text");

    QVERIFY(wrapper.init(false, "a", "b", "c", "d", "e", "f"));
    QCOMPARE(wrapper.getCurrentStateIdentifier(), QStringLiteral("UnitManagerConnectorStateInitial"));
    UnitManagerConnectionData& data = *wrapper.getConnectionDataObject();
    QVERIFY(!data.useAsynchronInterface());
    QCOMPARE(data.connectorSettings().value(Definitions::DependencyFile).mid(0, 3),
             (QStringList{"a", "b", "c"}));
    QCOMPARE(data.connectorSettings().value(Definitions::DefaultUnit).mid(0, 3),
             (QStringList{"d", "e", "f"}));
    QVERIFY(data.configurations().value(Definitions::UnitSwitch).isNull());
}

void UnitManagerStateMachineWrapperTest::theInitialStateIsEnteredTwice()
{
    // A device may register its own initial state, which sees both.
    probeInitialState();
    const Wrapper wrapper(nullptr, false, false, "", "", "", "", "", "");
    QCOMPARE(events(), (QStringList{"enter initialEvent()", "enter initialEvent()"}));
}

void UnitManagerStateMachineWrapperTest::theFirstStepDeliversAnEmptyEvent()
{
    probeInitialState();
    Wrapper wrapper(nullptr, false, false, "", "", "", "", "", "");
    events().clear();
    QVERIFY(wrapper.postEvent());
    QCOMPARE(events(), QStringList{"step ()"});
    QVERIFY(wrapper.reset());
    QVERIFY(wrapper.postEvent());
    QCOMPARE(events(), (QStringList{"step ()", "enter initialEvent()", "step ()"}));
}

void UnitManagerStateMachineWrapperTest::aTransitionKeepsItsEventForTheNextSteps()
{
    probeInitialState();
    Wrapper wrapper(nullptr, false, false, "", "", "", "", "", "");
    events().clear();
    QVERIFY(wrapper.moveToNextState(initialKey(), readTrigger({Definitions::DefaultUnit}, "first")));
    QVERIFY(wrapper.postEvent());
    QVERIFY(wrapper.postEvent());
    // Selecting the current state again also passes on the event.
    QVERIFY(wrapper.moveToNextState(initialKey(), StateMachineEvent("second", QVariant(7))));
    QVERIFY(wrapper.postEvent());
    QCOMPARE(events(), (QStringList{"enter first([2])", "step first([2])", "step first([2])",
                                    "enter second(7)", "step second(7)"}));
}

void UnitManagerStateMachineWrapperTest::aStateMayPassOnItsOwnEvent()
{
    probeInitialState();
    Wrapper wrapper(nullptr, false, false, "", "", "", "", "", "");
    events().clear();
    wrapper.moveToNextState(initialKey(), readTrigger({Definitions::UnitSwitch}, "next"));
    QVERIFY(wrapper.postEvent());
    QVERIFY(wrapper.postEvent());
    QCOMPARE(events(), (QStringList{"enter next([0])", "step next([0])", "enter next([0])", "step next([0])",
                                    "enter next([0])"}));
}

void UnitManagerStateMachineWrapperTest::anUnknownStateKeepsItsEventToo()
{
    probeInitialState();
    LogCapture log;
    Wrapper wrapper(nullptr, false, false, "", "", "", "", "", "");
    events().clear();
    QVERIFY(wrapper.moveToNextState("unknown", StateMachineEvent("kept")));
    QVERIFY(wrapper.postEvent());
    QCOMPARE(events(), QStringList{"step kept()"});
}

void UnitManagerStateMachineWrapperTest::resetKeepsThePendingEvent()
{
    probeInitialState();
    Wrapper wrapper(nullptr, false, false, "", "", "", "", "", "");
    wrapper.moveToNextState(initialKey(), StateMachineEvent("kept", QVariant(7)));
    events().clear();
    QVERIFY(wrapper.reset());
    QVERIFY(wrapper.postEvent());
    QVERIFY(wrapper.init(true, "", "", "", "", "", ""));
    QVERIFY(wrapper.postEvent());
    QCOMPARE(events(),
             (QStringList{"enter initialEvent()", "step kept(7)", "enter initialEvent()", "step kept(7)"}));
}

void UnitManagerStateMachineWrapperTest::resetDiscardsConnectorsAndTextsOnly()
{
    ConfigurationService service;
    QVERIFY(service.start());
    LogCapture log;
    Wrapper wrapper(nullptr, true, false, "", "", "", "", "", "");
    UnitManagerConnectionData& data = *wrapper.getConnectionDataObject();
    QVERIFY(wrapper.postEvent());
    QVERIFY(wrapper.postEvent());
    QCOMPARE(wrapper.getCurrentStateIdentifier(), QStringLiteral("UnitManagerConnectorStateUpdate"));
    QVERIFY(wrapper.postEvent());
    QCOMPARE(wrapper.getCurrentStateIdentifier(), QStringLiteral("UnitManagerConnectorStateIdle"));
    QSharedPointer<UnitManagerDevice> before;
    QVERIFY(wrapper.initializeUnitManager(before));

    QVERIFY(wrapper.reset());
    QCOMPARE(wrapper.getCurrentStateIdentifier(), QStringLiteral("UnitManagerConnectorStateInitial"));
    QVERIFY(data.connectors().value(Definitions::UnitSwitch).isNull());
    QVERIFY(data.configurations().value(Definitions::UnitSwitch).isNull());
    QSharedPointer<UnitManagerDevice> after;
    QVERIFY(wrapper.initializeUnitManager(after));
    QCOMPARE(after, before);
    QCOMPARE(log.takeTexts(), QStringList());
}

void UnitManagerStateMachineWrapperTest::theBuiltObjectsAreShared()
{
    LogCapture log;
    Wrapper wrapper(nullptr, false, false, "", "", "", "", "", "");
    UnitManagerConnectionData& data = *wrapper.getConnectionDataObject();
    QSharedPointer<UnitManagerDevice> manager;
    QSharedPointer<DependencyWalker> walker;
    QVERIFY(!wrapper.initializeUnitManager(manager));
    QVERIFY(!wrapper.initializeDependencyWalker(walker));
    QVERIFY(manager.isNull() && walker.isNull());

    data.configurations()[Definitions::UnitSwitch] = TestDocuments::units();
    data.configurations()[Definitions::DependencyFile] = TestDocument::dependencies();
    QVERIFY(data.updateObjects());
    QVERIFY(wrapper.initializeUnitManager(manager));
    QVERIFY(wrapper.initializeDependencyWalker(walker));
    QSharedPointer<UnitManagerDevice> dataManager;
    QSharedPointer<DependencyWalker> dataWalker;
    QVERIFY(data.initializeUnitManager(dataManager));
    QVERIFY(data.initializeDependencyWalker(dataWalker));
    QCOMPARE(manager, dataManager);
    QCOMPARE(walker, dataWalker);
}

static const TestClass<UnitManagerStateMachineWrapperTest> testClass;
#include "UnitManagerStateMachineWrapperTest.moc"
