#include "UnitManagerConnector/UnitManagerConnectorStateReadConfigurationASynchron.h"

#include <QtTest/QTest>

#include "DBusPendingReply.h"
#include "LogCapture.h"
#include "ReadStateTest.h"
#include "TestProgram.h"
#include "WaitUntil.h"

using ASynchronState = UnitManagerConnectorStateReadConfigurationASynchron;
using namespace TestSource;

class UnitManagerConnectorStateReadConfigurationASynchronTest : public ReadStateTest
{
    Q_OBJECT

public:
    UnitManagerConnectorStateReadConfigurationASynchronTest();

private Q_SLOTS:
    void startingDoesNotWait();
    void anEarlierTextIsClearedButNoneCreated();
    void anEarlierReplyIsReleased();
    void anUnknownKindWithAnEarlierReplyIsASuccess();
    void aFailureDoesNotStopTheOtherStarts();

private:
    std::unique_ptr<State> createState(QObject* wrapper) const override;
    bool read(State& state, Type type) const override;
    QMap<Type, QVariant> deliveredValues(RecordingWrapper& wrapper) const override;
};

UnitManagerConnectorStateReadConfigurationASynchronTest::
    UnitManagerConnectorStateReadConfigurationASynchronTest()
    : ReadStateTest({"UnitManagerConnectorStateReadConfigurationASynchron", "startConfigurationRead",
                     "UnitManagerConnectorStateWaitForReply", false})
{}

std::unique_ptr<ReadStateTest::State>
UnitManagerConnectorStateReadConfigurationASynchronTest::createState(QObject* wrapper) const
{
    return std::make_unique<ASynchronState>(wrapper);
}

bool UnitManagerConnectorStateReadConfigurationASynchronTest::read(State& state, Type type) const
{
    return static_cast<ASynchronState&>(state).startConfigurationRead(type);
}

QMap<ReadStateTest::Type, QVariant>
UnitManagerConnectorStateReadConfigurationASynchronTest::deliveredValues(RecordingWrapper& wrapper) const
{
    QMap<Type, QVariant> values;
    const auto& replies = wrapper.data().pendingReplies();
    for (auto reply = replies.begin(); reply != replies.end(); ++reply) {
        ErrorContainer error;
        waitUntil([&] { return reply.value()->isFinished(error) != DBusPendingReply::Outstanding; });
        values.insert(reply.key(), reply.value()->getReply());
    }
    return values;
}

void UnitManagerConnectorStateReadConfigurationASynchronTest::startingDoesNotWait()
{
    m_service->setAnswer(unitSwitchName, FakeBusService::never());
    RecordingWrapper wrapper;
    QVERIFY(wrapper.openAll());
    ASynchronState state(&wrapper);
    QVERIFY(state.startConfigurationRead(units));
    ErrorContainer error;
    QCOMPARE(wrapper.data().pendingReplies().value(units)->isFinished(error), 2);
}

void UnitManagerConnectorStateReadConfigurationASynchronTest::anEarlierTextIsClearedButNoneCreated()
{
    RecordingWrapper wrapper;
    QVERIFY(wrapper.openAll());
    wrapper.data().configurations()[units] = QStringLiteral("earlier");
    ASynchronState state(&wrapper);
    QVERIFY(state.startConfigurationRead(units));
    QVERIFY(state.startConfigurationRead(defaults));
    QCOMPARE(wrapper.data().configurations().keys(), QList<Type>{units});
    QVERIFY(wrapper.data().configurations().value(units).isNull());
}

void UnitManagerConnectorStateReadConfigurationASynchronTest::anEarlierReplyIsReleased()
{
    RecordingWrapper wrapper;
    QVERIFY(wrapper.openAll());
    ASynchronState state(&wrapper);
    QVERIFY(state.startConfigurationRead(units));
    const QWeakPointer<DBusPendingReply> earlier = wrapper.data().pendingReplies().value(units);
    QVERIFY(earlier);
    QVERIFY(state.startConfigurationRead(units));
    QVERIFY(earlier.isNull());
    QVERIFY(wrapper.data().pendingReplies().value(units));
}

void UnitManagerConnectorStateReadConfigurationASynchronTest::anUnknownKindWithAnEarlierReplyIsASuccess()
{
    RecordingWrapper wrapper;
    QVERIFY(wrapper.openAll());
    ASynchronState state(&wrapper);
    QVERIFY(state.startConfigurationRead(units));
    const QSharedPointer<DBusPendingReply> earlier = wrapper.data().pendingReplies().value(units);
    QCOMPARE(m_service->takeCalls().size(), 1);

    wrapper.data().connectorSettings()[units][3] = QStringLiteral("file");
    LogCapture log;
    QVERIFY(state.startConfigurationRead(units));
    QCOMPARE(log.takeTexts(), QStringList{"Unknown Filetype given \"file\""});
    QCOMPARE(wrapper.data().pendingReplies().value(units), earlier);
    QCOMPARE(m_service->takeCalls(), QStringList());
}

void UnitManagerConnectorStateReadConfigurationASynchronTest::aFailureDoesNotStopTheOtherStarts()
{
    RecordingWrapper wrapper;
    QVERIFY(wrapper.openAll());
    wrapper.data().connectorSettings()[units][3] = QStringLiteral("file");
    ASynchronState state(&wrapper);
    LogCapture log;
    state.postEvent(readTrigger({units, dependencies, defaults}));
    QCOMPARE(wrapper.takeTransitions(), QStringList{"UnitManagerConnectorStateError ReadTrigger([0 1 2])"});
    QVERIFY(wrapper.data().pendingReplies().value(units).isNull());
    QCOMPARE(m_service->takeCalls(), (QStringList{TestCall::dependencies, TestCall::defaults}));
}

static const TestClass<UnitManagerConnectorStateReadConfigurationASynchronTest> testClass;
#include "UnitManagerConnectorStateReadConfigurationASynchronTest.moc"
