#include "StateMachineStateBase.h"

#include <QtCore/QPointer>
#include <QtTest/QTest>

#include <type_traits>

#include "TestProgram.h"

class StateThatCounts : public StateMachineStateBase
{
    Q_OBJECT

public:
    using StateMachineStateBase::StateMachineStateBase;

    void postEvent(const StateMachineEvent& /*event*/) override
    {
        ++steps;
    }

    int steps = 0;
};

static_assert(std::is_convertible_v<QObject*, StateThatCounts>);

class StateMachineStateBaseTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theParentOwnsTheState();
    void enteringIsNotAStep();
};

void StateMachineStateBaseTest::theParentOwnsTheState()
{
    QPointer<StateMachineStateBase> state;
    {
        QObject parent;
        state = new StateThatCounts(&parent);
        QCOMPARE(state->parent(), &parent);
    }
    QVERIFY(state.isNull());
    QCOMPARE(StateThatCounts(nullptr).parent(), nullptr);
}

void StateMachineStateBaseTest::enteringIsNotAStep()
{
    StateThatCounts counting(nullptr);
    StateMachineStateBase& state = counting;
    state.postInitialEvent(StateMachineEvent("initialEvent"));
    QCOMPARE(counting.steps, 0);
    state.postEvent(StateMachineEvent());
    QCOMPARE(counting.steps, 1);
}

static const TestClass<StateMachineStateBaseTest> testClass;
#include "StateMachineStateBaseTest.moc"
