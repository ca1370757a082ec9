#include "ErrorContainer.h"

#include <QtTest/QTest>

#include "TestProgram.h"

class ErrorContainerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDefaultOneHoldsNoError();
    void anErrorHasANameAndAMessage();
};

void ErrorContainerTest::aDefaultOneHoldsNoError()
{
    const ErrorContainer error;
    QVERIFY(!error.isError());
    QCOMPARE(error.getName(), QString());
    QCOMPARE(error.getMessage(), QString());
}

void ErrorContainerTest::anErrorHasANameAndAMessage()
{
    const ErrorContainer error("org.freedesktop.DBus.Error.NoReply", "nobody answered");
    QVERIFY(error.isError());
    QCOMPARE(error.getName(), QStringLiteral("org.freedesktop.DBus.Error.NoReply"));
    QCOMPARE(error.getMessage(), QStringLiteral("nobody answered"));
}

static const TestClass<ErrorContainerTest> testClass;
#include "ErrorContainerTest.moc"
