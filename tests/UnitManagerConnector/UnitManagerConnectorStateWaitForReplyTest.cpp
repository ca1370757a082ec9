#include "UnitManagerConnector/UnitManagerConnectorStateWaitForReply.h"

#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusPendingCall>
#include <QtTest/QTest>

#include "ConfigurationFileHandlerDBusConnector.h"
#include "DBusPendingReply.h"
#include "LogCapture.h"
#include "RecordingWrapper.h"
#include "ServiceFixture.h"
#include "TestProgram.h"
#include "WaitUntil.h"

using Type = UnitManagerConnectorDefinitions::ConnectorType;
using ReplyPointer = QSharedPointer<DBusPendingReply>;
using State = UnitManagerConnectorStateWaitForReply;
using Texts = QMap<Type, QString>;
using namespace TestSource;

Q_DECLARE_METATYPE(ReplyPointer)

class UnitManagerConnectorStateWaitForReplyTest : public ServiceFixture
{
    Q_OBJECT

private Q_SLOTS:
    void aReplyIsChecked_data();
    void aReplyIsChecked();
    void anOutstandingReplyIsKept();
    void withoutListTheStateStays_data();
    void withoutListTheStateStays();
    void repliesAreCollectedAsTheyArrive();
    void theFirstOutstandingReplyHidesTheLaterOnes_data();
    void theFirstOutstandingReplyHidesTheLaterOnes();
    void aFailureEndsTheWaitAtOnce();
    void aCallThatFailsLaterEndsTheWait();
    void aReplyThatIsNotATextCostsOneStep();
    void anEmptyTextIsASuccess();
    void sourcesWithoutReplyAreSkipped_data();
    void sourcesWithoutReplyAreSkipped();
    void repliesThatAreNotListedAreIgnored();

private:
    ReplyPointer outstanding() const;
};

namespace {

QDBusMessage call()
{
    return QDBusMessage::createMethodCall("org.example", "/object", "org.example", "method");
}

ReplyPointer finished(const QDBusMessage& answer)
{
    return ReplyPointer::create(QDBusPendingCall::fromCompletedCall(answer));
}

ReplyPointer arrived(const QVariant& value)
{
    return finished(call().createReply(value));
}

ReplyPointer failed()
{
    return finished(call().createErrorReply("org.example.Error", "as requested"));
}

QString transition(const char* state, const char* list)
{
    return QStringLiteral("UnitManagerConnectorState%1 any name(%2)").arg(state, list);
}

} // namespace

/// A call without an answer until the service disconnects or the call times out.
ReplyPointer UnitManagerConnectorStateWaitForReplyTest::outstanding() const
{
    m_service->setAnswer("never", FakeBusService::never());
    const auto connector = ConfigurationFileHandlerDBusConnector::createAndConnect(module, unitSwitchObject);
    return connector ? connector->getConfigurationAsynchron("never", "module", QString()) : ReplyPointer();
}

void UnitManagerConnectorStateWaitForReplyTest::aReplyIsChecked_data()
{
    QTest::addColumn<ReplyPointer>("reply");
    QTest::addColumn<int>("result");
    QTest::addColumn<QString>("text");
    QTest::newRow("no reply") << ReplyPointer() << 1 << "earlier";
    QTest::newRow("a text") << arrived("text") << 0 << "text";
    QTest::newRow("an empty text") << arrived("") << 0 << "";
    QTest::newRow("a number, which can be a text") << arrived(7) << 0 << "7";
    QTest::newRow("a dictionary, which cannot") << arrived(QVariantMap{{"a", 1}}) << 1 << "earlier";
    QTest::newRow("no value") << finished(call().createReply()) << 1 << "earlier";
    QTest::newRow("an error") << failed() << 2 << "earlier";
}

void UnitManagerConnectorStateWaitForReplyTest::aReplyIsChecked()
{
    QFETCH(ReplyPointer, reply);
    QFETCH(const int, result);
    QFETCH(const QString, text);
    LogCapture log;
    State state(nullptr);
    QString stored = QStringLiteral("earlier");
    QCOMPARE(state.checkReplyState(reply, stored), result);
    QVERIFY(reply.isNull());
    QCOMPARE(stored, text);
    // The reply has been released: it cannot be read a second time.
    QCOMPARE(state.checkReplyState(reply, stored), 1);
    QCOMPARE(stored, text);
    QCOMPARE(log.takeTexts(), QStringList());
}

void UnitManagerConnectorStateWaitForReplyTest::anOutstandingReplyIsKept()
{
    State state(nullptr);
    ReplyPointer reply = outstanding();
    QVERIFY(reply);
    const ReplyPointer before = reply;
    QString text = QStringLiteral("earlier");
    for (int check = 0; check < 3; ++check)
        QCOMPARE(state.checkReplyState(reply, text), 1);
    QCOMPARE(reply, before);
    QCOMPARE(text, QStringLiteral("earlier"));
}

void UnitManagerConnectorStateWaitForReplyTest::withoutListTheStateStays_data()
{
    QTest::addColumn<QVariant>("data");
    QTest::newRow("no data") << QVariant();
    QTest::newRow("an empty list") << QVariant::fromValue(QList<Type>());
    QTest::newRow("a text") << QVariant("0");
}

void UnitManagerConnectorStateWaitForReplyTest::withoutListTheStateStays()
{
    QFETCH(const QVariant, data);
    LogCapture log;
    RecordingWrapper wrapper;
    wrapper.data().pendingReplies()[units] = arrived("text");
    State state(&wrapper);
    for (int step = 0; step < 5; ++step)
        state.postEvent(StateMachineEvent("any name", data));
    QCOMPARE(wrapper.takeTransitions(), QStringList());
    QVERIFY(wrapper.data().pendingReplies().value(units));
    QVERIFY(wrapper.data().configurations().isEmpty());
    QCOMPARE(log.takeTexts(), QStringList());
}

void UnitManagerConnectorStateWaitForReplyTest::repliesAreCollectedAsTheyArrive()
{
    const QList<Type> types{units, dependencies, defaults};
    const Texts texts{{units, "first"}, {dependencies, "second"}, {defaults, "third"}};
    RecordingWrapper wrapper;
    State state(&wrapper);
    for (const Type type : types)
        wrapper.data().pendingReplies()[type] = outstanding();

    for (const Type type : types) {
        state.postEvent(readTrigger(types, "any name"));
        QCOMPARE(wrapper.takeTransitions(), QStringList());
        QVERIFY(wrapper.data().pendingReplies().value(type));
        wrapper.data().pendingReplies()[type] = arrived(texts.value(type));
    }
    state.postEvent(readTrigger(types, "any name"));
    QCOMPARE(wrapper.takeTransitions(), QStringList{transition("Update", "[0 1 2]")});
    QCOMPARE(wrapper.data().configurations(), texts);
    for (const ReplyPointer& reply : wrapper.data().pendingReplies())
        QVERIFY(reply.isNull());
}

void UnitManagerConnectorStateWaitForReplyTest::theFirstOutstandingReplyHidesTheLaterOnes_data()
{
    QTest::addColumn<bool>("fails");
    QTest::newRow("one that has arrived") << false;
    QTest::newRow("one that has failed") << true;
}

void UnitManagerConnectorStateWaitForReplyTest::theFirstOutstandingReplyHidesTheLaterOnes()
{
    QFETCH(const bool, fails);
    const QList<Type> types{units, defaults};
    RecordingWrapper wrapper;
    State state(&wrapper);
    wrapper.data().pendingReplies()[units] = outstanding();
    wrapper.data().pendingReplies()[defaults] = fails ? failed() : arrived("text");
    state.postEvent(readTrigger(types, "any name"));
    QCOMPARE(wrapper.takeTransitions(), QStringList());
    QVERIFY(wrapper.data().pendingReplies().value(units));
    QVERIFY(wrapper.data().pendingReplies().value(defaults));
    QVERIFY(wrapper.data().configurations().value(defaults).isNull());

    wrapper.data().pendingReplies()[units] = arrived("first");
    state.postEvent(readTrigger(types, "any name"));
    QCOMPARE(wrapper.takeTransitions(), QStringList{transition(fails ? "Error" : "Update", "[0 2]")});
    QCOMPARE(wrapper.data().configurations().value(units), QStringLiteral("first"));
    QVERIFY(wrapper.data().pendingReplies().value(defaults).isNull());
}

void UnitManagerConnectorStateWaitForReplyTest::aFailureEndsTheWaitAtOnce()
{
    RecordingWrapper wrapper;
    State state(&wrapper);
    wrapper.data().pendingReplies()[units] = failed();
    wrapper.data().pendingReplies()[dependencies] = outstanding();
    wrapper.data().pendingReplies()[defaults] = arrived("text");
    state.postEvent(readTrigger({units, dependencies, defaults}, "any name"));
    QCOMPARE(wrapper.takeTransitions(), QStringList{transition("Error", "[0 1 2]")});
    QVERIFY(wrapper.data().pendingReplies().value(units).isNull());
    // The other replies are not checked.
    QVERIFY(wrapper.data().pendingReplies().value(dependencies));
    QVERIFY(wrapper.data().pendingReplies().value(defaults));
    QVERIFY(wrapper.data().configurations().value(defaults).isNull());
}

void UnitManagerConnectorStateWaitForReplyTest::aCallThatFailsLaterEndsTheWait()
{
    RecordingWrapper wrapper;
    State state(&wrapper);
    wrapper.data().pendingReplies()[units] = outstanding();
    state.postEvent(readTrigger({units}, "any name"));
    QCOMPARE(wrapper.takeTransitions(), QStringList());
    m_service->stop();
    QStringList transitions;
    QVERIFY(waitUntil([&] {
        state.postEvent(readTrigger({units}, "any name"));
        transitions = wrapper.takeTransitions();
        return !transitions.isEmpty();
    }));
    QCOMPARE(transitions, QStringList{transition("Error", "[0]")});
    QVERIFY(wrapper.data().pendingReplies().value(units).isNull());
}

void UnitManagerConnectorStateWaitForReplyTest::aReplyThatIsNotATextCostsOneStep()
{
    RecordingWrapper wrapper;
    State state(&wrapper);
    wrapper.data().pendingReplies()[units] = arrived(QVariantMap{{"a", 1}});
    wrapper.data().pendingReplies()[defaults] = arrived("text");
    state.postEvent(readTrigger({units, defaults}, "any name"));
    QCOMPARE(wrapper.takeTransitions(), QStringList());
    QVERIFY(wrapper.data().pendingReplies().value(units).isNull());
    QVERIFY(wrapper.data().pendingReplies().value(defaults));

    state.postEvent(readTrigger({units, defaults}, "any name"));
    QCOMPARE(wrapper.takeTransitions(), QStringList{transition("Update", "[0 2]")});
    QVERIFY(wrapper.data().configurations().value(units).isEmpty());
    QCOMPARE(wrapper.data().configurations().value(defaults), QStringLiteral("text"));
}

void UnitManagerConnectorStateWaitForReplyTest::anEmptyTextIsASuccess()
{
    LogCapture log;
    RecordingWrapper wrapper;
    State state(&wrapper);
    wrapper.data().pendingReplies()[units] = arrived("");
    state.postEvent(readTrigger({units}, "any name"));
    QCOMPARE(wrapper.takeTransitions(), QStringList{transition("Update", "[0]")});
    QVERIFY(wrapper.data().configurations().contains(units));
    QVERIFY(wrapper.data().configurations().value(units).isEmpty());
    QCOMPARE(log.takeTexts(), QStringList());
}

void UnitManagerConnectorStateWaitForReplyTest::sourcesWithoutReplyAreSkipped_data()
{
    QTest::addColumn<bool>("hasEntry");
    QTest::newRow("collected already") << true;
    QTest::newRow("never started") << false;
}

void UnitManagerConnectorStateWaitForReplyTest::sourcesWithoutReplyAreSkipped()
{
    QFETCH(const bool, hasEntry);
    RecordingWrapper wrapper;
    State state(&wrapper);
    if (hasEntry)
        wrapper.data().pendingReplies()[units] = ReplyPointer();
    wrapper.data().configurations()[units] = QStringLiteral("collected");
    wrapper.data().pendingReplies()[defaults] = arrived("text");
    state.postEvent(readTrigger({units, defaults}, "any name"));
    QCOMPARE(wrapper.takeTransitions(), QStringList{transition("Update", "[0 2]")});
    QCOMPARE(wrapper.data().configurations(), (Texts{{units, "collected"}, {defaults, "text"}}));
}

void UnitManagerConnectorStateWaitForReplyTest::repliesThatAreNotListedAreIgnored()
{
    RecordingWrapper wrapper;
    State state(&wrapper);
    wrapper.data().pendingReplies()[units] = arrived("text");
    wrapper.data().pendingReplies()[dependencies] = failed();
    state.postEvent(readTrigger({units}, "any name"));
    QCOMPARE(wrapper.takeTransitions(), QStringList{transition("Update", "[0]")});
    QVERIFY(wrapper.data().pendingReplies().value(dependencies));
}

static const TestClass<UnitManagerConnectorStateWaitForReplyTest> testClass;
#include "UnitManagerConnectorStateWaitForReplyTest.moc"
