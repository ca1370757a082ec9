#include "UnitManagerConnector/UnitManagerConnectorStateBase.h"

#include <QtTest/QTest>

#include <type_traits>

#include "ConfigurationService.h"
#include "LogCapture.h"
#include "ObjectSlots.h"
#include "RecordingWrapper.h"
#include "StateMachineStateBase.h"
#include "TestProgram.h"
#include "UnitConversion/Factory.h"
#include "UnitManagerConnector/UnitManagerConnectorStateError.h"
#include "UnitManagerConnector/UnitManagerConnectorStateIdle.h"
#include "UnitManagerConnector/UnitManagerConnectorStateInitial.h"
#include "UnitManagerConnector/UnitManagerConnectorStateReadConfigurationASynchron.h"
#include "UnitManagerConnector/UnitManagerConnectorStateReadConfigurationSynchron.h"
#include "UnitManagerConnector/UnitManagerConnectorStateUpdate.h"
#include "UnitManagerConnector/UnitManagerConnectorStateWaitForReply.h"

using Base = UnitManagerConnectorStateBase;
using StateFactory = VESKFactories::Factory<StateMachineStateBase, QObject*>;

namespace {

/// The abstract base with its own constructor.
class PlainState : public Base
{
public:
    using Base::Base;
    void postEvent(const StateMachineEvent& /*event*/) override {}
};

static_assert(std::is_convertible_v<QObject*, PlainState>);
static_assert(std::is_convertible_v<QObject*, UnitManagerConnectorStateInitial>);
static_assert(std::is_convertible_v<QObject*, UnitManagerConnectorStateReadConfigurationASynchron>);
static_assert(std::is_convertible_v<QObject*, UnitManagerConnectorStateReadConfigurationSynchron>);
static_assert(std::is_convertible_v<QObject*, UnitManagerConnectorStateError>);
static_assert(std::is_convertible_v<QObject*, UnitManagerConnectorStateIdle>);
static_assert(std::is_convertible_v<QObject*, UnitManagerConnectorStateUpdate>);
static_assert(std::is_convertible_v<QObject*, UnitManagerConnectorStateWaitForReply>);

} // namespace

/// The common behaviour of the seven states.
class UnitManagerConnectorStateBaseTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void theBaseAddsNoMethods();
    void theVirtualFunctionsFollowThoseOfAnObject();
    void statesAreRegisteredWhenTheLibraryIsLoaded_data();
    void statesAreRegisteredWhenTheLibraryIsLoaded();
    void aStateUsesItsWrapper_data();
    void aStateUsesItsWrapper();
    void aStateWithoutWrapperIsCalledValid_data();
    void aStateWithoutWrapperIsCalledValid();
    void enteringAStateDoesNothing_data();
    void enteringAStateDoesNothing();
    void aStateWithoutWrapperIsInert_data();
    void aStateWithoutWrapperIsInert();
};

namespace {

struct Registered
{
    const char* name;
    QString key;
};

template <typename State>
Registered registered()
{
    return {State::staticMetaObject.className(), VESKFactories::createFactoryKey<State>()};
}

void addStates()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("name");
    const Registered states[] = {registered<UnitManagerConnectorStateInitial>(),
                                 registered<UnitManagerConnectorStateReadConfigurationASynchron>(),
                                 registered<UnitManagerConnectorStateReadConfigurationSynchron>(),
                                 registered<UnitManagerConnectorStateError>(),
                                 registered<UnitManagerConnectorStateIdle>(),
                                 registered<UnitManagerConnectorStateUpdate>(),
                                 registered<UnitManagerConnectorStateWaitForReply>()};
    const char* const names[] = {"UnitManagerConnectorStateInitial",
                                 "UnitManagerConnectorStateReadConfigurationASynchron",
                                 "UnitManagerConnectorStateReadConfigurationSynchron",
                                 "UnitManagerConnectorStateError",
                                 "UnitManagerConnectorStateIdle",
                                 "UnitManagerConnectorStateUpdate",
                                 "UnitManagerConnectorStateWaitForReply"};
    for (int index = 0; index < 7; ++index)
        QTest::newRow(names[index]) << states[index].key << QString::fromLatin1(names[index]);
}

std::unique_ptr<StateMachineStateBase> create(const QString& key, QObject* parent)
{
    return std::unique_ptr<StateMachineStateBase>(StateFactory::instance().create(key, parent));
}

/// A state that gives access to its wrapper, a protected member that states of a device use.
class VisibleState : public UnitManagerConnectorStateBase
{
public:
    using UnitManagerConnectorStateBase::m_wrapper;
    using UnitManagerConnectorStateBase::UnitManagerConnectorStateBase;

    void postEvent(const StateMachineEvent& /*event*/) override {}
};

} // namespace

void UnitManagerConnectorStateBaseTest::initTestCase()
{
    useNoBus();
}

void UnitManagerConnectorStateBaseTest::theBaseAddsNoMethods()
{
    const QMetaObject& metaObject = Base::staticMetaObject;
    QCOMPARE(metaObject.className(), "UnitManagerConnectorStateBase");
    QCOMPARE(metaObject.superClass(), &StateMachineStateBase::staticMetaObject);
    QCOMPARE(metaObject.methodCount(), metaObject.methodOffset());
    QVERIFY(std::is_abstract_v<Base>);
}

void UnitManagerConnectorStateBaseTest::theVirtualFunctionsFollowThoseOfAnObject()
{
    // Part of the binary interface: callers use the position in the virtual table.
    QCOMPARE(virtualSlot(&Base::postInitialEvent), firstSlotAfterObject());
    QCOMPARE(virtualSlot(&Base::postEvent), firstSlotAfterObject() + 1);
}

void UnitManagerConnectorStateBaseTest::statesAreRegisteredWhenTheLibraryIsLoaded_data()
{
    addStates();
}

void UnitManagerConnectorStateBaseTest::statesAreRegisteredWhenTheLibraryIsLoaded()
{
    QFETCH(const QString, key);
    QFETCH(const QString, name);
    QCOMPARE(StateFactory::instance().creators.size(), std::size_t(7));
    QCOMPARE(StateFactory::instance().creators.count(key), std::size_t(1));
    const auto state = create(key, nullptr);
    QVERIFY(state);
    QCOMPARE(QString::fromLatin1(state->metaObject()->className()), name);
    QCOMPARE(state->metaObject()->superClass(), &Base::staticMetaObject);
    QCOMPARE(state->metaObject()->methodCount(), state->metaObject()->methodOffset());
}

void UnitManagerConnectorStateBaseTest::aStateUsesItsWrapper_data()
{
    addStates();
}

void UnitManagerConnectorStateBaseTest::aStateUsesItsWrapper()
{
    QFETCH(const QString, key);
    RecordingWrapper wrapper;
    const int children = wrapper.children().size();
    const auto state = create(key, &wrapper);
    auto* const connectorState = qobject_cast<Base*>(state.get());
    QVERIFY(connectorState);
    QVERIFY(!connectorState->isValid());
    QVERIFY(!static_cast<bool>(*connectorState));
    // The wrapper does not become its parent.
    QCOMPARE(state->parent(), nullptr);
    QCOMPARE(wrapper.children().size(), children);

    const VisibleState visible(&wrapper);
    QCOMPARE(visible.m_wrapper, &wrapper);
}

void UnitManagerConnectorStateBaseTest::aStateWithoutWrapperIsCalledValid_data()
{
    addStates();
}

void UnitManagerConnectorStateBaseTest::aStateWithoutWrapperIsCalledValid()
{
    QFETCH(const QString, key);
    QObject other;
    for (QObject* parent : {static_cast<QObject*>(nullptr), &other}) {
        const auto state = create(key, parent);
        auto* const connectorState = qobject_cast<Base*>(state.get());
        QVERIFY(connectorState);
        QVERIFY(connectorState->isValid());
        QVERIFY(static_cast<bool>(*connectorState));
        QCOMPARE(state->parent(), nullptr);
        const VisibleState visible(parent);
        QCOMPARE(visible.m_wrapper, nullptr);
    }
}

void UnitManagerConnectorStateBaseTest::enteringAStateDoesNothing_data()
{
    addStates();
}

void UnitManagerConnectorStateBaseTest::enteringAStateDoesNothing()
{
    QFETCH(const QString, key);
    LogCapture log;
    RecordingWrapper wrapper;
    wrapper.data().configurations()[UnitManagerConnectorDefinitions::UnitSwitch] = QStringLiteral("text");
    const auto state = create(key, &wrapper);
    state->postInitialEvent(StateMachineEvent("initialEvent"));
    state->postInitialEvent(readTrigger({UnitManagerConnectorDefinitions::UnitSwitch}));
    QCOMPARE(wrapper.takeTransitions(), QStringList());
    QCOMPARE(wrapper.data().configurations().size(), 1);
    QCOMPARE(wrapper.data().configurations().first(), QStringLiteral("text"));
    QVERIFY(wrapper.data().connectors().isEmpty());
    QCOMPARE(log.takeTexts(), QStringList());
}

void UnitManagerConnectorStateBaseTest::aStateWithoutWrapperIsInert_data()
{
    QTest::addColumn<QString>("key");
    QTest::newRow("initial") << registered<UnitManagerConnectorStateInitial>().key;
    QTest::newRow("idle") << registered<UnitManagerConnectorStateIdle>().key;
}

void UnitManagerConnectorStateBaseTest::aStateWithoutWrapperIsInert()
{
    QFETCH(const QString, key);
    LogCapture log;
    const auto state = create(key, nullptr);
    state->postEvent(readTrigger({UnitManagerConnectorDefinitions::UnitSwitch}));
    QCOMPARE(log.takeTexts(), QStringList());
}

static const TestClass<UnitManagerConnectorStateBaseTest> testClass;
#include "UnitManagerConnectorStateBaseTest.moc"
