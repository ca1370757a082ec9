#include "DBusPendingReply.h"

#include <QtDBus/QDBusError>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusPendingCall>
#include <QtTest/QTest>

#include "TestProgram.h"

// Uses finished calls only; calls in progress are tested with the connector that makes them.
class DBusPendingReplyTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aReplyHasArrived();
    void aReplyWithoutArgumentsHasArrivedToo();
    void anErrorReplyHasFailed();
    void aCallThatCouldNotBeMadeHasFailed();
};

namespace {

QDBusMessage call()
{
    return QDBusMessage::createMethodCall("org.example", "/object", "org.example", "method");
}

} // namespace

void DBusPendingReplyTest::aReplyHasArrived()
{
    const DBusPendingReply reply(QDBusPendingCall::fromCompletedCall(call().createReply("text")));
    ErrorContainer error("org.example.Earlier", "stays as it is");
    QCOMPARE(reply.isFinished(error), 0);
    QCOMPARE(reply.isFinished(error), 0);
    QCOMPARE(error.getName(), QStringLiteral("org.example.Earlier"));
    QCOMPARE(reply.getReply(), QVariant("text"));
    QCOMPARE(reply.getReply(), QVariant("text"));
}

void DBusPendingReplyTest::aReplyWithoutArgumentsHasArrivedToo()
{
    const DBusPendingReply reply(QDBusPendingCall::fromCompletedCall(call().createReply()));
    ErrorContainer error;
    QCOMPARE(reply.isFinished(error), 0);
    QVERIFY(!error.isError());
    QVERIFY(!reply.getReply().isValid());
}

void DBusPendingReplyTest::anErrorReplyHasFailed()
{
    const QDBusMessage answer = call().createErrorReply("org.example.Error", "as asked");
    const DBusPendingReply reply(QDBusPendingCall::fromCompletedCall(answer));
    ErrorContainer error;
    QCOMPARE(reply.isFinished(error), 1);
    QCOMPARE(error.getName(), QStringLiteral("org.example.Error"));
    QCOMPARE(error.getMessage(), QStringLiteral("as asked"));
    QVERIFY(!reply.getReply().isValid());
}

void DBusPendingReplyTest::aCallThatCouldNotBeMadeHasFailed()
{
    const QDBusError disconnected(QDBusError::Disconnected, "no bus");
    const DBusPendingReply reply(QDBusPendingCall::fromError(disconnected));
    ErrorContainer error;
    QCOMPARE(reply.isFinished(error), 1);
    QCOMPARE(error.getName(), QStringLiteral("org.freedesktop.DBus.Error.Disconnected"));
}

static const TestClass<DBusPendingReplyTest> testClass;
#include "DBusPendingReplyTest.moc"
