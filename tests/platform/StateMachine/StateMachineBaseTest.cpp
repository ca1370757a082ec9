#include "StateMachineBase.h"

#include <QtCore/QLoggingCategory>
#include <QtTest/QTest>

#include "LogCapture.h"
#include "TestProgram.h"
#include "UnitConversion/Factory.h"

using StateFactory = VESKFactories::Factory<StateMachineStateBase, QObject*>;
using StatePointer = QSharedPointer<StateMachineStateBase>;

namespace {

const QString keyFirst = QStringLiteral("first");
const QString keySecond = QStringLiteral("second");
const QString keyHasty = QStringLiteral("hasty");

// The events in order, recorded by the states, the hooks and the destructors.
QStringList& events()
{
    static QStringList list;
    return list;
}

} // namespace

class Machine : public StateMachineBase
{
    Q_OBJECT

public:
    using StateMachineBase::StateMachineBase;

protected:
    void doLogEntryStateInitialized(StatePointer state) override
    {
        events() << QStringLiteral("initialized ") + state->metaObject()->className();
    }

    void doLogEntryStateChanged(StatePointer previous, StatePointer current) override
    {
        const QString from = previous ? previous->metaObject()->className() : "none";
        events() << QStringLiteral("changed %1 to %2").arg(from, current->metaObject()->className());
    }
};

// Contains a machine as a member and is its parent, as the owners of machines do.
class MachineOwner : public QObject
{
    Q_OBJECT

public:
    explicit MachineOwner(bool logStates = true) : machine(this, logStates) {}

    Machine machine;
};

class StateFirst : public StateMachineStateBase
{
    Q_OBJECT

public:
    explicit StateFirst(QObject* parent)
        : StateMachineStateBase(nullptr), m_owner(qobject_cast<MachineOwner*>(parent))
    {
        events() << (m_owner ? "StateFirst created with its owner" : "StateFirst created without owner");
    }

    ~StateFirst() override
    {
        events() << "StateFirst destroyed";
    }

    void postInitialEvent(const StateMachineEvent& event) override
    {
        events() << QStringLiteral("StateFirst entered with ") + event.getName();
    }

    // "go" makes a transition within a step; the state is still used afterwards.
    void postEvent(const StateMachineEvent& event) override
    {
        events() << QStringLiteral("StateFirst step ") + event.getName();
        if (event.getName() != QLatin1String("go"))
            return;
        m_owner->machine.setNextState(keySecond, StateMachineEvent("from first"));
        events() << QStringLiteral("%1 left, current is %2")
                        .arg(metaObject()->className(), m_owner->machine.getCurrentStateIdentifier());
    }

private:
    MachineOwner* m_owner;
};

class StateSecond : public StateMachineStateBase
{
    Q_OBJECT

public:
    explicit StateSecond(QObject* /*parent*/) : StateMachineStateBase(nullptr) {}

    ~StateSecond() override
    {
        events() << "StateSecond destroyed";
    }

    void postEvent(const StateMachineEvent& event) override
    {
        events() << QStringLiteral("StateSecond step ") + event.getName();
    }
};

// Selects the next state as soon as it is entered.
class StateHasty : public StateMachineStateBase
{
    Q_OBJECT

public:
    explicit StateHasty(QObject* parent)
        : StateMachineStateBase(nullptr), m_owner(qobject_cast<MachineOwner*>(parent))
    {}

    ~StateHasty() override
    {
        events() << "StateHasty destroyed";
    }

    void postInitialEvent(const StateMachineEvent& event) override
    {
        m_owner->machine.setNextState(keySecond, event);
        events() << QStringLiteral("%1 entered").arg(metaObject()->className());
    }

    void postEvent(const StateMachineEvent& /*event*/) override
    {
        events() << "StateHasty step";
    }

private:
    MachineOwner* m_owner;
};

class StateMachineBaseTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void aMachineWithoutStateDoesNothing();
    void theInitialStateIsCurrentAtOnce();
    void aStateIsCreatedWithTheParentOfTheMachine();
    void aStepRunsTheStateThatIsCurrentWhenItBegins();
    void aStateLeftFromInsideLivesUntilItsStepEnds();
    void aStateMaySelectAnotherWhileItIsEntered();
    void theSameStateCanBeEnteredAgain();
    void theNextStateMayBeTheFirst();
    void anUnknownKeyChangesNothing_data();
    void anUnknownKeyChangesNothing();
    void statesAreDestroyedWithTheirMachine();
    void theHooksCanBeSwitchedOff();
    void theHooksLogNothingByDefault();
    void theHooksLogWhenTheirCategoryIsOn();
};

void StateMachineBaseTest::initTestCase()
{
    StateFactory& factory = StateFactory::instance();
    factory.registerClass<StateFirst>(keyFirst);
    factory.registerClass<StateSecond>(keySecond);
    factory.registerClass<StateHasty>(keyHasty);
}

void StateMachineBaseTest::init()
{
    events().clear();
}

void StateMachineBaseTest::aMachineWithoutStateDoesNothing()
{
    MachineOwner owner;
    QVERIFY(!owner.machine.postEvent(StateMachineEvent("go")));
    QCOMPARE(owner.machine.getCurrentStateIdentifier(), QString());
    QCOMPARE(events(), QStringList());
}

void StateMachineBaseTest::theInitialStateIsCurrentAtOnce()
{
    MachineOwner owner;
    QVERIFY(owner.machine.setInitialState(keyFirst, StateMachineEvent("initialEvent")));
    QCOMPARE(owner.machine.getCurrentStateIdentifier(), QStringLiteral("StateFirst"));
    const QStringList expected{"StateFirst created with its owner", "initialized StateFirst",
                               "StateFirst entered with initialEvent"};
    QCOMPARE(events(), expected);
}

void StateMachineBaseTest::aStateIsCreatedWithTheParentOfTheMachine()
{
    Machine orphan(nullptr, false);
    QVERIFY(orphan.setInitialState(keyFirst, StateMachineEvent()));
    QCOMPARE(events().value(0), QStringLiteral("StateFirst created without owner"));
}

void StateMachineBaseTest::aStepRunsTheStateThatIsCurrentWhenItBegins()
{
    MachineOwner owner;
    owner.machine.setInitialState(keyFirst, StateMachineEvent());
    events().clear();

    QVERIFY(owner.machine.postEvent(StateMachineEvent("one")));
    QCOMPARE(events(), QStringList{"StateFirst step one"});
    QVERIFY(owner.machine.setNextState(keySecond, StateMachineEvent()));
    QVERIFY(owner.machine.postEvent(StateMachineEvent("two")));
    QCOMPARE(events().last(), QStringLiteral("StateSecond step two"));
}

void StateMachineBaseTest::aStateLeftFromInsideLivesUntilItsStepEnds()
{
    MachineOwner owner;
    owner.machine.setInitialState(keyFirst, StateMachineEvent());
    events().clear();

    QVERIFY(owner.machine.postEvent(StateMachineEvent("go")));
    const QStringList expected{"StateFirst step go", "changed StateFirst to StateSecond",
                               "StateFirst left, current is StateSecond", "StateFirst destroyed"};
    QCOMPARE(events(), expected);
    QCOMPARE(owner.machine.getCurrentStateIdentifier(), QStringLiteral("StateSecond"));
}

void StateMachineBaseTest::aStateMaySelectAnotherWhileItIsEntered()
{
    MachineOwner owner;
    QVERIFY(owner.machine.setInitialState(keyHasty, StateMachineEvent()));
    const QStringList expected{"initialized StateHasty", "changed StateHasty to StateSecond",
                               "StateHasty entered", "StateHasty destroyed"};
    QCOMPARE(events(), expected);
    QCOMPARE(owner.machine.getCurrentStateIdentifier(), QStringLiteral("StateSecond"));
}

void StateMachineBaseTest::theSameStateCanBeEnteredAgain()
{
    MachineOwner owner;
    owner.machine.setInitialState(keyFirst, StateMachineEvent());
    events().clear();

    QVERIFY(owner.machine.setNextState(keyFirst, StateMachineEvent("again")));
    const QStringList expected{"StateFirst created with its owner", "changed StateFirst to StateFirst",
                               "StateFirst entered with again", "StateFirst destroyed"};
    QCOMPARE(events(), expected);
}

void StateMachineBaseTest::theNextStateMayBeTheFirst()
{
    MachineOwner owner;
    QVERIFY(owner.machine.setNextState(keySecond, StateMachineEvent()));
    QCOMPARE(events(), QStringList{"changed none to StateSecond"});
}

void StateMachineBaseTest::anUnknownKeyChangesNothing_data()
{
    QTest::addColumn<bool>("initial");
    QTest::newRow("as the initial state") << true;
    QTest::newRow("as the next state") << false;
}

void StateMachineBaseTest::anUnknownKeyChangesNothing()
{
    QFETCH(const bool, initial);
    MachineOwner owner;
    owner.machine.setInitialState(keyFirst, StateMachineEvent());
    events().clear();

    LogCapture log;
    QVERIFY(initial ? !owner.machine.setInitialState("nobody", StateMachineEvent())
                    : !owner.machine.setNextState("nobody", StateMachineEvent()));
    const QList<LoggedMessage> messages = log.take();
    QCOMPARE(messages.size(), 1);
    QCOMPARE(messages.first().type, QtWarningMsg);
    QCOMPARE(messages.first().text, QStringLiteral("No state is registered under the key \"nobody\""));
    QCOMPARE(messages.first().file, QStringLiteral("StateMachineBase"));
    QCOMPARE(messages.first().category, QStringLiteral("default"));
    QCOMPARE(events(), QStringList());
    QCOMPARE(owner.machine.getCurrentStateIdentifier(), QStringLiteral("StateFirst"));
}

void StateMachineBaseTest::statesAreDestroyedWithTheirMachine()
{
    {
        MachineOwner owner;
        owner.machine.setInitialState(keySecond, StateMachineEvent());
        events().clear();
    }
    QCOMPARE(events(), QStringList{"StateSecond destroyed"});
}

void StateMachineBaseTest::theHooksCanBeSwitchedOff()
{
    MachineOwner owner(false);
    owner.machine.setInitialState(keySecond, StateMachineEvent());
    owner.machine.setNextState(keySecond, StateMachineEvent());
    QCOMPARE(events(), QStringList{"StateSecond destroyed"});
}

void StateMachineBaseTest::theHooksLogNothingByDefault()
{
    StateMachineBase machine(nullptr, true);
    LogCapture log;
    machine.setInitialState(keySecond, StateMachineEvent());
    machine.setNextState(keySecond, StateMachineEvent());
    QCOMPARE(log.takeTexts(), QStringList());
}

void StateMachineBaseTest::theHooksLogWhenTheirCategoryIsOn()
{
    StateMachineBase machine(nullptr, true);
    LogCapture log;
    QLoggingCategory::setFilterRules("device.statemachine.debug=true");
    machine.setInitialState(keyFirst, StateMachineEvent());
    machine.setNextState(keySecond, StateMachineEvent());
    QLoggingCategory::setFilterRules(QString());

    const QList<LoggedMessage> messages = log.take();
    QCOMPARE(messages.size(), 2);
    QCOMPARE(messages.at(0).text, QStringLiteral("Initial state \"StateFirst\""));
    QCOMPARE(messages.at(1).text, QStringLiteral("State changed from \"StateFirst\" to \"StateSecond\""));
    for (const LoggedMessage& message : messages) {
        QCOMPARE(message.type, QtDebugMsg);
        QCOMPARE(message.category, QStringLiteral("device.statemachine"));
    }
}

static const TestClass<StateMachineBaseTest> testClass;
#include "StateMachineBaseTest.moc"
