#include "ErrorContainer.h"

#include <QtTest/QtTest>

class TestErrorContainer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDefaultOneHoldsNoError();
    void anErrorHasANameAndAMessage();
};

void TestErrorContainer::aDefaultOneHoldsNoError()
{
    const ErrorContainer error;
    QVERIFY(!error.isError());
    QCOMPARE(error.getName(), QString());
    QCOMPARE(error.getMessage(), QString());
}

void TestErrorContainer::anErrorHasANameAndAMessage()
{
    const ErrorContainer error("org.freedesktop.DBus.Error.NoReply", "nobody answered");
    QVERIFY(error.isError());
    QCOMPARE(error.getName(), QStringLiteral("org.freedesktop.DBus.Error.NoReply"));
    QCOMPARE(error.getMessage(), QStringLiteral("nobody answered"));
}

QTEST_GUILESS_MAIN(TestErrorContainer)
#include "TestErrorContainer.moc"
