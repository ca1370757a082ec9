#include "DBusConnectionSignalPollingHandler.h"

#include <QtDBus/QDBusArgument>
#include <QtTest/QTest>

#include <memory>
#include <thread>

#include "DeviceBusEnvironment.h"
#include "FakeBusService.h"
#include "Row.h"
#include "TestProgram.h"
#include "WaitLimit.h"
#include "WaitUntil.h"

class DBusConnectionSignalPollingHandlerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void nothingHasOccurredAtFirst();
    void aSignalIsRecordedUntilItIsReset();
    void aSignalIsRecordedInAThreadWithoutEventLoop();
    void aSignalIsRecordedWithARunningEventLoop();
    void theSignatureMayBeGivenByItsNumber();
    void theLastOfABurstIsRecorded();
    void aSignalThatWasNotReadSurvivesAReset();
    void theParameterIsTheFirstArgument_data();
    void theParameterIsTheFirstArgument();
    void aDictionaryIsReturned();
    void otherSignalsAreNotRecorded_data();
    void otherSignalsAreNotRecorded();
    void onlyItsOwnCallsAreDelivered();
    void signalsOfANewOwnerAreRecorded();
    void signalsOfABusThatCameBackAreRecorded();
    void signalsOfABusThatStartsLateAreRecorded();

private:
    void startService();
    bool send(const QVariant& argument);

    std::unique_ptr<PrivateBus> m_bus;
    std::unique_ptr<FakeBusService> m_service;
};

namespace {

const QString changed = QStringLiteral("configurationChanged");

// A handler for the signal that the tests send.
class Handler : public DBusConnectionSignalPollingHandler
{
public:
    explicit Handler(const QString& object = QStringLiteral("Object"))
        : DBusConnectionSignalPollingHandler("Files", object, changed, SlotSignatureString)
    {}

    // Polls until the last signal had this parameter.
    bool hasReceived(const QVariant& parameter)
    {
        return waitUntil([&] { return isSignalOccured() && getSignalParameter() == parameter; });
    }
};

} // namespace

void DBusConnectionSignalPollingHandlerTest::init()
{
    m_bus = std::make_unique<PrivateBus>();
    QVERIFY(startDeviceBus(*m_bus));
    startService();
}

void DBusConnectionSignalPollingHandlerTest::cleanup()
{
    m_service.reset();
    m_bus.reset();
}

void DBusConnectionSignalPollingHandlerTest::startService()
{
    m_service = std::make_unique<FakeBusService>(m_bus->address(), "org.measuringdevice.Files",
                                                 FakeBusService::never());
    QVERIFY(m_service->isRunning());
}

bool DBusConnectionSignalPollingHandlerTest::send(const QVariant& argument)
{
    return m_service->sendSignal("/Object", changed, {argument});
}

void DBusConnectionSignalPollingHandlerTest::nothingHasOccurredAtFirst()
{
    Handler handler;
    QVERIFY(!handler.isSignalOccured());
    QVERIFY(!handler.getSignalParameter().isValid());
    handler.resetLastSignal();
    QVERIFY(!handler.isSignalOccured());
}

void DBusConnectionSignalPollingHandlerTest::aSignalIsRecordedUntilItIsReset()
{
    Handler handler;
    QVERIFY(send("units"));
    QVERIFY(handler.hasReceived("units"));
    QVERIFY(handler.isSignalOccured());
    QCOMPARE(handler.getSignalParameter(), QVariant("units"));

    handler.resetLastSignal();
    QVERIFY(!handler.isSignalOccured());
    QVERIFY(!handler.getSignalParameter().isValid());
    QVERIFY(send("units"));
    QVERIFY(handler.hasReceived("units"));
}

void DBusConnectionSignalPollingHandlerTest::aSignalIsRecordedInAThreadWithoutEventLoop()
{
    bool received = false;
    std::thread thread([this, &received] {
        Handler handler;
        received = send("units") && handler.hasReceived("units");
    });
    thread.join();
    QVERIFY(received);
}

void DBusConnectionSignalPollingHandlerTest::aSignalIsRecordedWithARunningEventLoop()
{
    Handler handler;
    QVERIFY(send("units"));
    QTRY_VERIFY_WITH_TIMEOUT(handler.isSignalOccured(), waitLimit);
    QCOMPARE(handler.getSignalParameter(), QVariant("units"));
}

void DBusConnectionSignalPollingHandlerTest::theSignatureMayBeGivenByItsNumber()
{
    const auto handler =
        QSharedPointer<DBusConnectionSignalPollingHandler>::create("Files", "Object", changed, 3);
    QCOMPARE(static_cast<int>(DBusConnectionSignalPollingHandler::SlotSignatureString), 3);
    QVERIFY(send("units"));
    QVERIFY(waitUntil([&handler] { return handler->isSignalOccured(); }));
    QCOMPARE(handler->getSignalParameter(), QVariant("units"));
}

void DBusConnectionSignalPollingHandlerTest::theLastOfABurstIsRecorded()
{
    constexpr int count = 10000;
    Handler handler;
    for (int number = 1; number <= count; ++number)
        QVERIFY(send(number));

    // No signal is left after the last one was read.
    QVERIFY(handler.hasReceived(count));
    handler.resetLastSignal();
    QVERIFY(!handler.isSignalOccured());
}

void DBusConnectionSignalPollingHandlerTest::aSignalThatWasNotReadSurvivesAReset()
{
    Handler handler;
    Handler other("Other");
    QVERIFY(send("first"));
    QVERIFY(handler.hasReceived("first"));

    // Signals arrive in order: once the other object's signal is here, the second one is waiting in its
    // handler.
    QVERIFY(send("second"));
    QVERIFY(m_service->sendSignal("/Other", changed, {"later"}));
    QVERIFY(other.hasReceived("later"));
    QCOMPARE(handler.getSignalParameter(), QVariant("first"));
    handler.resetLastSignal();
    QVERIFY(handler.isSignalOccured());
    QCOMPARE(handler.getSignalParameter(), QVariant("second"));
}

void DBusConnectionSignalPollingHandlerTest::theParameterIsTheFirstArgument_data()
{
    QTest::addColumn<QVariantList>("arguments");
    QTest::addColumn<QVariant>("parameter");
    QTest::newRow("a text") << QVariantList{"units"} << QVariant("units");
    QTest::newRow("an empty text") << QVariantList{""} << QVariant("");
    QTest::newRow("a number") << QVariantList{7} << QVariant(7);
    QTest::newRow("texts") << QVariantList{QStringList{"a", "b"}} << QVariant(QStringList{"a", "b"});
    QTest::newRow("two texts") << QVariantList{"first", "second"} << QVariant("first");
    QTest::newRow("nothing") << QVariantList{} << QVariant();
}

void DBusConnectionSignalPollingHandlerTest::theParameterIsTheFirstArgument()
{
    QFETCH(const QVariantList, arguments);
    QFETCH(const QVariant, parameter);
    Handler handler;
    QVERIFY(m_service->sendSignal("/Object", changed, arguments));
    QVERIFY(waitUntil([&handler] { return handler.isSignalOccured(); }));
    QCOMPARE(handler.getSignalParameter().userType(), parameter.userType());
    QCOMPARE(handler.getSignalParameter(), parameter);
}

void DBusConnectionSignalPollingHandlerTest::aDictionaryIsReturned()
{
    const QVariantMap map{{"number", 1}};
    Handler handler;
    QVERIFY(send(map));
    QVERIFY(waitUntil([&handler] { return handler.isSignalOccured(); }));
    QVERIFY(!handler.getSignalParameter().canConvert<QString>());
    QCOMPARE(qdbus_cast<QVariantMap>(handler.getSignalParameter()), map);
}

void DBusConnectionSignalPollingHandlerTest::otherSignalsAreNotRecorded_data()
{
    QTest::addColumn<QString>("service");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("signalName");
    row("of another service", "org.measuringdevice.Others", "/Object", changed);
    row("of another object", "org.measuringdevice.Files", "/Object/Child", changed);
    row("of another name", "org.measuringdevice.Files", "/Object", "started");
}

void DBusConnectionSignalPollingHandlerTest::otherSignalsAreNotRecorded()
{
    QFETCH(const QString, service);
    QFETCH(const QString, path);
    QFETCH(const QString, signalName);
    m_service.reset();
    m_service = std::make_unique<FakeBusService>(m_bus->address(), service, FakeBusService::never());
    QVERIFY(m_service->isRunning());

    Handler handler;
    DBusConnectionSignalPollingHandler witness(service.section('.', -1), path.mid(1), signalName,
                                               DBusConnectionSignalPollingHandler::SlotSignatureString);
    QVERIFY(m_service->sendSignal(path, signalName, {"foreign"}));
    QVERIFY(waitUntil([&witness] { return witness.isSignalOccured(); }));
    QVERIFY(!handler.isSignalOccured());
}

void DBusConnectionSignalPollingHandlerTest::onlyItsOwnCallsAreDelivered()
{
    Handler handler;
    QObject bystander;
    bool delivered = false;
    QMetaObject::invokeMethod(
        &bystander, [&delivered] { delivered = true; }, Qt::QueuedConnection);
    QVERIFY(send("units"));
    QVERIFY(handler.hasReceived("units"));
    QVERIFY(!delivered);
    QCoreApplication::sendPostedEvents(&bystander);
    QVERIFY(delivered);
}

void DBusConnectionSignalPollingHandlerTest::signalsOfANewOwnerAreRecorded()
{
    Handler handler;
    QVERIFY(send("first"));
    QVERIFY(handler.hasReceived("first"));
    m_service.reset();
    startService();
    QVERIFY(send("second"));
    QVERIFY(handler.hasReceived("second"));
}

void DBusConnectionSignalPollingHandlerTest::signalsOfABusThatCameBackAreRecorded()
{
    Handler handler;
    QVERIFY(send("first"));
    QVERIFY(handler.hasReceived("first"));
    handler.resetLastSignal();
    m_service.reset();
    m_bus->stop();
    QVERIFY(!handler.isSignalOccured());

    QVERIFY(m_bus->start());
    startService();
    // Signals sent before the handler is connected again are lost, so send until one is received.
    QVERIFY(waitUntil([&] { return send("second") && handler.isSignalOccured(); }));
    QCOMPARE(handler.getSignalParameter(), QVariant("second"));
}

void DBusConnectionSignalPollingHandlerTest::signalsOfABusThatStartsLateAreRecorded()
{
    m_service.reset();
    m_bus->stop();
    Handler handler;
    QVERIFY(!handler.isSignalOccured());
    QVERIFY(m_bus->start());
    startService();
    QVERIFY(waitUntil([&] { return send("units") && handler.isSignalOccured(); }));
}

static const TestClass<DBusConnectionSignalPollingHandlerTest> testClass;
#include "DBusConnectionSignalPollingHandlerTest.moc"
