#include "UnitManagerConnector/UnitManagerConnectorStateMachine.h"

#include <QtTest/QTest>

#include <type_traits>

#include "ObjectSlots.h"
#include "StateMachineStateBase.h"
#include "TestProgram.h"
#include "UnitConversion/Factory.h"
#include "UnitManagerConnector/UnitManagerConnectorStateError.h"
#include "UnitManagerConnector/UnitManagerConnectorStateInitial.h"

using StatePointer = QSharedPointer<StateMachineStateBase>;

static_assert(std::is_convertible_v<QObject*, UnitManagerConnectorStateMachine>);

namespace {

/// Records the calls of the logging hooks.
class Machine : public UnitManagerConnectorStateMachine
{
public:
    using UnitManagerConnectorStateMachine::UnitManagerConnectorStateMachine;

    QStringList logged;

protected:
    void doLogEntryStateInitialized(StatePointer state) override
    {
        logged.append(QStringLiteral("initialized ") + state->metaObject()->className());
    }

    void doLogEntryStateChanged(StatePointer previous, StatePointer current) override
    {
        logged.append(QStringLiteral("changed %1 to %2")
                          .arg(previous->metaObject()->className(), current->metaObject()->className()));
    }
};

/// The hooks as implemented by the class.
class Hooks : public UnitManagerConnectorStateMachine
{
public:
    using UnitManagerConnectorStateMachine::doLogEntryStateChanged;
    using UnitManagerConnectorStateMachine::doLogEntryStateInitialized;
};

} // namespace

class UnitManagerConnectorStateMachineTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itAddsNoMethods();
    void theHooksFollowTheFunctionsOfAnObject();
    void theParentIsPassedOn();
    void statesAreLogged();
};

void UnitManagerConnectorStateMachineTest::itAddsNoMethods()
{
    const QMetaObject& metaObject = UnitManagerConnectorStateMachine::staticMetaObject;
    QCOMPARE(metaObject.className(), "UnitManagerConnectorStateMachine");
    QCOMPARE(metaObject.superClass(), &StateMachineBase::staticMetaObject);
    QCOMPARE(metaObject.methodCount(), metaObject.methodOffset());
}

void UnitManagerConnectorStateMachineTest::theHooksFollowTheFunctionsOfAnObject()
{
    // Part of the binary interface: callers use the position in the virtual table.
    QCOMPARE(virtualSlot(&Hooks::doLogEntryStateInitialized), firstSlotAfterObject());
    QCOMPARE(virtualSlot(&Hooks::doLogEntryStateChanged), firstSlotAfterObject() + 1);
}

void UnitManagerConnectorStateMachineTest::theParentIsPassedOn()
{
    QObject parent;
    auto* const machine = new UnitManagerConnectorStateMachine(&parent);
    QCOMPARE(machine->parent(), &parent);
    QCOMPARE(parent.children(), QObjectList{machine});
}

void UnitManagerConnectorStateMachineTest::statesAreLogged()
{
    Machine machine(nullptr);
    machine.setInitialState(VESKFactories::createFactoryKey<UnitManagerConnectorStateInitial>(),
                            StateMachineEvent());
    machine.setNextState(VESKFactories::createFactoryKey<UnitManagerConnectorStateError>(),
                         StateMachineEvent());
    QCOMPARE(machine.logged,
             (QStringList{"initialized UnitManagerConnectorStateInitial",
                          "changed UnitManagerConnectorStateInitial to UnitManagerConnectorStateError"}));
    QCOMPARE(machine.getCurrentStateIdentifier(), QStringLiteral("UnitManagerConnectorStateError"));
}

static const TestClass<UnitManagerConnectorStateMachineTest> testClass;
#include "UnitManagerConnectorStateMachineTest.moc"
