#include "ErrorContainer.h"

#include <QtTest/QTest>

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

QTEST_GUILESS_MAIN(ErrorContainerTest)
#include "ErrorContainerTest.moc"
