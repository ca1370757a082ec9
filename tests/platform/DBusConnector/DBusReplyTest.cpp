#include "DBusReply.h"

#include <QtDBus/QDBusMessage>
#include <QtTest/QTest>

#include "TestProgram.h"

class DBusReplyTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDefaultReplyIsAnError();
    void theFirstArgumentIsTheValue_data();
    void theFirstArgumentIsTheValue();
    void aReplyWithoutArgumentsIsNotAnError();
    void anErrorMessageIsAnError();
    void messageOtherThanAReplyIsAnError_data();
    void messageOtherThanAReplyIsAnError();
};

namespace {

QDBusMessage call()
{
    return QDBusMessage::createMethodCall("org.example", "/object", "org.example", "method");
}

} // namespace

void DBusReplyTest::aDefaultReplyIsAnError()
{
    const DBusReply reply;
    QVERIFY(reply.isError());
    QVERIFY(!reply.getValue().isValid());
    QCOMPARE(reply.getError().getName(), QStringLiteral("org.freedesktop.DBus.Error.NoReply"));
}

void DBusReplyTest::theFirstArgumentIsTheValue_data()
{
    QTest::addColumn<QVariantList>("arguments");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("a text") << QVariantList{"text"} << QVariant("text");
    QTest::newRow("an empty text") << QVariantList{""} << QVariant("");
    QTest::newRow("a number") << QVariantList{42} << QVariant(42);
    QTest::newRow("a truth value") << QVariantList{false} << QVariant(false);
    QTest::newRow("a map") << QVariantList{QVariantMap{{"a", 1}}} << QVariant(QVariantMap{{"a", 1}});
    QTest::newRow("several arguments") << QVariantList{"first", "second"} << QVariant("first");
}

void DBusReplyTest::theFirstArgumentIsTheValue()
{
    QFETCH(const QVariantList, arguments);
    QFETCH(const QVariant, value);
    const DBusReply reply(call().createReply(arguments));
    QVERIFY(!reply.isError());
    QVERIFY(!reply.getError().isError());
    QCOMPARE(reply.getValue().userType(), value.userType());
    QCOMPARE(reply.getValue(), value);
}

void DBusReplyTest::aReplyWithoutArgumentsIsNotAnError()
{
    const DBusReply reply(call().createReply());
    QVERIFY(!reply.isError());
    QVERIFY(!reply.getValue().isValid());
}

void DBusReplyTest::anErrorMessageIsAnError()
{
    const DBusReply reply(call().createErrorReply("org.example.Error", "as asked"));
    QVERIFY(reply.isError());
    QVERIFY(!reply.getValue().isValid());
    QCOMPARE(reply.getError().getName(), QStringLiteral("org.example.Error"));
    QCOMPARE(reply.getError().getMessage(), QStringLiteral("as asked"));
}

void DBusReplyTest::messageOtherThanAReplyIsAnError_data()
{
    QTest::addColumn<QDBusMessage>("message");
    QTest::newRow("no message") << QDBusMessage();
    QTest::newRow("a call") << call();
    QTest::newRow("a signal") << QDBusMessage::createSignal("/object", "org.example", "changed");
}

void DBusReplyTest::messageOtherThanAReplyIsAnError()
{
    QFETCH(const QDBusMessage, message);
    const DBusReply reply(message);
    QVERIFY(reply.isError());
    QVERIFY(!reply.getValue().isValid());
}

static const TestClass<DBusReplyTest> testClass;
#include "DBusReplyTest.moc"
