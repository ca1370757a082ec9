#include "Checks.h"
#include "StateMachineBase.h"
#include "StateMachineEvent.h"
#include "StateMachineStateBase.h"
#include "UnitConversion/Factory.h"

namespace {

using Factory = VESKFactories::Factory<StateMachineStateBase, QObject*>;

/// What the states have seen.
struct Trace
{
    QStringList calls;
    int living = 0;
    bool isRunningDestroyed = false;
    QObject* parent = nullptr;
    StateMachineBase* machine = nullptr;
};

Trace trace;

} // namespace

class ContractFirstState : public StateMachineStateBase
{
    Q_OBJECT

public:
    explicit ContractFirstState(QObject* parent) : StateMachineStateBase(nullptr)
    {
        ++trace.living;
        trace.parent = parent;
    }
    ~ContractFirstState() override
    {
        --trace.living;
        trace.isRunningDestroyed = trace.isRunningDestroyed || m_isRunning;
    }
    void postInitialEvent(const StateMachineEvent& event) override
    {
        trace.calls.append("first enters with " + event.getData().toString());
    }
    void postEvent(const StateMachineEvent& event) override
    {
        m_isRunning = true;
        trace.calls.append("first steps with " + event.getData().toString());
        trace.machine->setNextState("ContractSecondState", StateMachineEvent("select", "two"));
        m_isRunning = false;
    }

private:
    bool m_isRunning = false;
};

/// Does not override postInitialEvent().
class ContractSecondState : public StateMachineStateBase
{
    Q_OBJECT

public:
    explicit ContractSecondState(QObject* /*parent*/) : StateMachineStateBase(nullptr)
    {
        ++trace.living;
    }
    ~ContractSecondState() override
    {
        --trace.living;
    }
    void postEvent(const StateMachineEvent& event) override
    {
        trace.calls.append("second steps with " + event.getData().toString());
    }
};

class ContractMachine : public StateMachineBase
{
    Q_OBJECT

public:
    explicit ContractMachine(QObject* parent) : StateMachineBase(parent, true) {}
};

namespace {

void prepare()
{
    trace = Trace();
    Factory::instance().registerClass<ContractFirstState>("ContractFirstState");
    Factory::instance().registerClass<ContractSecondState>("ContractSecondState");
}

void eventsCarryData(Faults& faults)
{
    StateMachineEvent event("name", 1);
    faults.expect(event.getData() == QVariant(1), "an event has the data given");
    event.setData("other");
    faults.expect(event.getData() == QVariant("other"), "data is replaced");
    const StateMachineEvent copy = event;
    faults.expect(copy.getData() == QVariant("other"), "a copy has the same data");
    faults.expect(!StateMachineEvent().getData().isValid(), "an event without data is empty");
}

void statesAreEntered(Faults& faults)
{
    prepare();
    QObject parent;
    ContractMachine machine(&parent);
    trace.machine = &machine;
    machine.setInitialState("ContractFirstState", StateMachineEvent("select", "one"));
    faults.expect(trace.living <= 1, "selecting a state creates at most one object");
    machine.postEvent(StateMachineEvent("step", "a"));
    machine.postEvent(StateMachineEvent("step", "b"));

    // Entering at once and at the next step are both allowed; then these are the calls.
    faults.expect(trace.calls ==
                      QStringList({"first enters with one", "first steps with a", "second steps with b"}),
                  "a selected state is entered once, with the event that selected it, and then gets the "
                  "steps; seen: " +
                      trace.calls.join(", "));
    faults.expect(machine.getCurrentStateIdentifier() == "ContractSecondState",
                  "the identifier is the class name of the current state");
    faults.expect(trace.parent == &parent, "states are created with the machine's parent");
}

void statesAreOwnedByTheMachine(Faults& faults)
{
    prepare();
    {
        ContractMachine machine(nullptr);
        trace.machine = &machine;
        machine.setInitialState("ContractFirstState", StateMachineEvent());
        machine.postEvent(StateMachineEvent());
        faults.expect(!trace.isRunningDestroyed, "a state outlives the step in which it selects another one");
        machine.postEvent(StateMachineEvent());
        faults.expect(trace.living == 1, "the machine keeps the current state only");
    }
    faults.expect(trace.living == 0, "states are destroyed with the machine");
}

void stepsWithoutAStateAreIgnored(Faults& faults)
{
    prepare();
    ContractMachine machine(nullptr);
    faults.expect(machine.getCurrentStateIdentifier().isEmpty(), "a new machine has no state");
    machine.postEvent(StateMachineEvent());
    faults.expect(trace.calls.isEmpty(), "a step without a state does nothing");
}

void classesAreKnownToQt(Faults& faults)
{
    ContractMachine machine(nullptr);
    faults.expect(qobject_cast<StateMachineBase*>(static_cast<QObject*>(&machine)) == &machine,
                  "a machine is cast from QObject");
    prepare();
    ContractFirstState state(nullptr);
    faults.expect(qobject_cast<StateMachineStateBase*>(static_cast<QObject*>(&state)) == &state,
                  "a state is cast from QObject");
}

} // namespace

QList<Check> stateMachineChecks()
{
    const QString logEntry =
        "StateMachineBase::doLogEntryStateChanged(QSharedPointer<StateMachineStateBase>, "
        "QSharedPointer<StateMachineStateBase>)";
    return {
        {"states: events carry data",
         {"StateMachineEvent::StateMachineEvent()",
          "StateMachineEvent::StateMachineEvent(QString const&, QVariant const&)",
          "StateMachineEvent::getData() const", "StateMachineEvent::setData(QVariant const&)"},
         eventsCarryData},
        {"states: selected states are entered",
         {"StateMachineBase::StateMachineBase(QObject*, bool)", logEntry,
          "StateMachineBase::doLogEntryStateInitialized(QSharedPointer<StateMachineStateBase>)",
          "StateMachineBase::getCurrentStateIdentifier() const",
          "StateMachineBase::postEvent(StateMachineEvent const&)",
          "StateMachineBase::setInitialState(QString const&, StateMachineEvent const&)",
          "StateMachineBase::setNextState(QString const&, StateMachineEvent const&)",
          "StateMachineStateBase::StateMachineStateBase(QObject*)",
          "StateMachineStateBase::postInitialEvent(StateMachineEvent const&)",
          "VESKFactories::Factory<StateMachineStateBase, QObject*>::instance()"},
         statesAreEntered},
        {"states: the machine owns them",
         {"StateMachineBase::postEvent(StateMachineEvent const&)"},
         statesAreOwnedByTheMachine},
        {"states: a machine without a state ignores steps",
         {"StateMachineBase::postEvent(StateMachineEvent const&)"},
         stepsWithoutAStateAreIgnored},
        {"states: Qt knows the classes",
         {"StateMachineBase::qt_metacall(QMetaObject::Call, int, void**)",
          "StateMachineBase::qt_metacast(char const*)", "StateMachineBase::staticMetaObject",
          "StateMachineStateBase::qt_metacall(QMetaObject::Call, int, void**)",
          "StateMachineStateBase::qt_metacast(char const*)", "StateMachineStateBase::staticMetaObject"},
         classesAreKnownToQt},
    };
}

#include "StateMachineChecks.moc"
