#include <QtCore/QDateTime>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtTest/QTest>

#include <csignal>

#include "FakeBusService.h"
#include "PrivateBus.h"
#include "ServedDirectory.h"
#include "ServiceDocuments.h"
#include "TestFiles.h"
#include "TestProgram.h"
#include "WaitLimit.h"
#include "Watcher.h"

namespace {

const QByteArray adoption = "waiting: reading\nready\nadopted; unit types: 1, units: 1\n";

QByteArray noService(const PrivateBus& bus)
{
    return "waiting: no configuration service on the bus " + bus.address().toUtf8() + '\n';
}

/// The next JSON object, without its time; empty if the line is not an object or its time is not between
/// @p start and now.
QJsonObject nextEvent(Watcher& watcher, const QDateTime& start)
{
    QJsonObject event = QJsonDocument::fromJson(watcher.nextLine()).object();
    const QString text = event.take("time").toString();
    const QDateTime time = QDateTime::fromString(text, Qt::ISODateWithMs);
    const bool isTime = text.size() == QString("2000-01-01T00:00:00.000Z").size() && text.endsWith('Z') &&
                        time >= start && time <= QDateTime::currentDateTimeUtc();
    return isTime ? event : QJsonObject();
}

} // namespace

/// The reasons and events that "unitmanager watch" prints.
class ToolWatchEventsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void unreachableBusAndMissingServiceAreReasons();
    void missingDocumentIsAReason();
    void silentServiceIsAReason();
    void serviceWithoutPropertiesIsRead();
    void reasonIsPrintedOnce();
    void eventsArePrintedAsJson();
    void differencesFollowEveryAdoption();
};

void ToolWatchEventsTest::unreachableBusAndMissingServiceAreReasons()
{
    ServedDirectory served;
    const QByteArray address = served.bus().address().toUtf8();
    const QByteArray socket = address.mid(address.indexOf('=') + 1);
    Watcher watcher({"--bus", served.bus().address()});
    QVERIFY(watcher.start());
    QVERIFY(watcher.prints("waiting: cannot reach the bus " + address + ": Failed to connect to socket " +
                           socket + ": No such file or directory\n"));

    QVERIFY(served.bus().start());
    QVERIFY(watcher.prints(noService(served.bus())));

    QVERIFY(served.start());
    QVERIFY(watcher.prints(adoption));
    QCOMPARE(watcher.end(SIGTERM), 0);
}

void ToolWatchEventsTest::missingDocumentIsAReason()
{
    ServedDirectory served;
    const QString units = served.path("units.json");
    QVERIFY(TestFiles::write(units, "{a"));
    QVERIFY(served.start());
    Watcher watcher({"--bus", served.bus().address()});
    QVERIFY(watcher.start());
    const QByteArray beginning =
        "waiting: the configuration service has no valid document \"units\" yet: " + units.toUtf8();
    QVERIFY(watcher.prints(beginning + ":1:2: expected a name in double quotes\n"));

    QVERIFY(TestFiles::replace(units, "{\n\"Pressure\": {},\n}"));
    QVERIFY(watcher.prints(beginning + ":2:15: remove the comma before \"}\"\n"));

    QVERIFY(TestFiles::replace(units, ServiceDocuments::units("first")));
    QVERIFY(watcher.prints(adoption));
    QCOMPARE(watcher.end(SIGTERM), 0);
}

void ToolWatchEventsTest::silentServiceIsAReason()
{
    PrivateBus bus;
    QVERIFY(bus.start());
    const FakeBusService service(bus.address(), "org.measuringdevice.DeviceManager", FakeBusService::never());
    QVERIFY(service.isRunning());
    Watcher watcher({"--bus", bus.address()});
    watcher.setVariable("DEVICE_BUS_TIMEOUT_MS", "100");
    QVERIFY(watcher.start());
    const QByteArray line = watcher.nextLine();
    QVERIFY2(line.startsWith("waiting: the configuration service does not answer: "), line.constData());
    QCOMPARE(watcher.end(SIGTERM), 0);
}

void ToolWatchEventsTest::serviceWithoutPropertiesIsRead()
{
    PrivateBus bus;
    QVERIFY(bus.start());
    const FakeBusService service(bus.address(), "org.measuringdevice.DeviceManager",
                                 FakeBusService::withError("org.freedesktop.DBus.Error.UnknownInterface"));
    QVERIFY(service.isRunning());
    Watcher watcher({"--bus", bus.address()});
    QVERIFY(watcher.start());
    QVERIFY(watcher.prints("waiting: reading\n"));
    QCOMPARE(watcher.end(SIGTERM), 0);
}

void ToolWatchEventsTest::reasonIsPrintedOnce()
{
    PrivateBus bus;
    QVERIFY(bus.start());
    Watcher watcher({"--bus", bus.address(), "--verbose"});
    QVERIFY(watcher.start());
    QVERIFY(watcher.prints(noService(bus)));
    // The tool has asked for the reason several times when it has tried this often to open the documents.
    QTRY_VERIFY_WITH_TIMEOUT(watcher.errors().count("Unable to connect to mandantory file type") > 50,
                             waitLimit);
    QVERIFY(watcher.prints(""));
    QCOMPARE(watcher.end(SIGTERM), 0);
}

void ToolWatchEventsTest::eventsArePrintedAsJson()
{
    const QDateTime start = QDateTime::currentDateTimeUtc();
    ServedDirectory served;
    QVERIFY(served.bus().start());
    Watcher watcher({"--json", "--bus", served.bus().address()});
    QVERIFY(watcher.start());
    const QString reason = "no configuration service on the bus " + served.bus().address();
    QCOMPARE(nextEvent(watcher, start), (QJsonObject{{"event", "waiting"}, {"reason", reason}}));

    QVERIFY(served.start());
    QCOMPARE(nextEvent(watcher, start), (QJsonObject{{"event", "waiting"}, {"reason", "reading"}}));
    QCOMPARE(nextEvent(watcher, start), (QJsonObject{{"event", "ready"}}));
    QCOMPARE(nextEvent(watcher, start),
             (QJsonObject{
                 {"event", "adopted"}, {"unitTypes", 1}, {"units", 1}, {"differences", QJsonValue::Null}}));
    QCOMPARE(watcher.end(SIGTERM), 0);
    QCOMPARE(watcher.errors(), QByteArray());
}

void ToolWatchEventsTest::differencesFollowEveryAdoption()
{
    const QDateTime start = QDateTime::currentDateTimeUtc();
    ServedDirectory served;
    QVERIFY(served.start());
    Watcher watcher({"--json", "--bus", served.bus().address()});
    QVERIFY(watcher.start());
    for (const char* event : {"waiting", "ready", "adopted"})
        QCOMPARE(nextEvent(watcher, start).value("event"), QJsonValue(event));

    for (const char* label : {"second", "third"}) {
        QVERIFY(TestFiles::replace(served.path("units.json"), ServiceDocuments::units(label)));
        QCOMPARE(nextEvent(watcher, start).value("event"), QJsonValue("waiting"));
        QCOMPARE(nextEvent(watcher, start).value("event"), QJsonValue("ready"));
        const QString before = label == QString("second") ? "first" : "second";
        const QJsonObject difference{{"document", "units"},
                                     {"path", "Pressure/Bar/UnitLabel/en"},
                                     {"change", "changed"},
                                     {"before", before},
                                     {"after", label}};
        QCOMPARE(nextEvent(watcher, start).value("differences"), QJsonValue(QJsonArray{difference}));
    }
    QCOMPARE(watcher.end(SIGTERM), 0);
}

static const TestClass<ToolWatchEventsTest> testClass;
#include "ToolWatchEventsTest.moc"
