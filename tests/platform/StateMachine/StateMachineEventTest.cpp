#include "StateMachineEvent.h"

#include <QtTest/QTest>

#include <type_traits>

#include "TestProgram.h"

static_assert(std::is_convertible_v<QString, StateMachineEvent>);

class StateMachineEventTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDefaultEventHasNeitherNameNorData();
    void anEventKeepsItsNameAndData();
    void aCopyIsIndependent();
};

void StateMachineEventTest::aDefaultEventHasNeitherNameNorData()
{
    const StateMachineEvent event;
    QCOMPARE(event.getName(), QString());
    QVERIFY(!event.getData().isValid());
}

void StateMachineEventTest::anEventKeepsItsNameAndData()
{
    StateMachineEvent event("ReadTrigger");
    QCOMPARE(event.getName(), QStringLiteral("ReadTrigger"));
    QVERIFY(!event.getData().isValid());

    event.setData(QStringList{"a", "b"});
    event.setName("Retry");
    QCOMPARE(event.getName(), QStringLiteral("Retry"));
    QCOMPARE(event.getData(), QVariant(QStringList{"a", "b"}));
    QCOMPARE(StateMachineEvent("Read", 7).getData(), QVariant(7));
}

void StateMachineEventTest::aCopyIsIndependent()
{
    StateMachineEvent event("ReadTrigger", 1);
    const StateMachineEvent copy = event;
    event.setName("Retry");
    event.setData(2);
    QCOMPARE(copy.getName(), QStringLiteral("ReadTrigger"));
    QCOMPARE(copy.getData(), QVariant(1));
}

static const TestClass<StateMachineEventTest> testClass;
#include "StateMachineEventTest.moc"
