#include <QtCore/QCryptographicHash>
#include <QtCore/QFile>
#include <QtDBus/QDBusVariant>
#include <QtTest/QTest>

#include <csignal>

#include "ConfigurationFileService.h"
#include "Row.h"
#include "ServedDirectory.h"
#include "ServiceDocuments.h"
#include "TestFiles.h"
#include "TestProgram.h"
#include "WaitLimit.h"

namespace {

const QString interfaceName = "org.measuringdevice.ConfigurationFileHandler";
const QString propertiesInterface = "org.freedesktop.DBus.Properties";

QString checksum(const QByteArray& text)
{
    return QCryptographicHash::hash(text, QCryptographicHash::Sha256).toHex();
}

/// All properties of an object.
QVariantMap allProperties(const QString& state, const QString& checksum, const QString& refusal)
{
    return {
        {"version", UNITMANAGER_VERSION}, {"state", state}, {"checksum", checksum}, {"lastRefusal", refusal}};
}

QDBusMessage callProperties(ServedDirectory& served, const QString& method, const QVariantList& arguments)
{
    return served.client().call(ConfigurationFileService::name(), '/' + ServiceObject::units,
                                propertiesInterface, method, QVariantList{interfaceName} + arguments);
}

} // namespace

/// The state of the documents, which the program shows as properties on the bus.
class ServiceStateTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void everyObjectShowsItsState_data();
    void everyObjectShowsItsState();
    void singlePropertyIsRead_data();
    void singlePropertyIsRead();
    void unknownPropertyIsAnError();
    void propertyCannotBeWritten_data();
    void propertyCannotBeWritten();
    void interfaceDescribesTheProperties();
    void checksumIsThatOfTheServedText();
    void startIsNotAnnounced();
    void loadIsAnnounced();
    void refusalIsAnnounced_data();
    void refusalIsAnnounced();
    void sameRefusalIsNotAnnouncedAgain();
    void otherRefusalIsAnnounced();
    void repairIsAnnounced();
    void repairWithAnotherTextIsAnnounced();
    void firstDocumentIsAnnounced();
    void changesPrecedeEveryAnnouncement();

private:
    /// Waits until earlier file changes are processed. @return the changes of the units since the last call
    QList<QVariantMap> takeUnitsChanges(ServedDirectory& served);

    int m_known = 0;
};

void ServiceStateTest::init()
{
    m_known = 0;
}

QList<QVariantMap> ServiceStateTest::takeUnitsChanges(ServedDirectory& served)
{
    served.settledAnnouncements();
    const QList<ServiceClient::PropertyChange> changes = served.client().propertyChanges();
    QList<QVariantMap> news;
    for (; m_known < changes.size(); ++m_known) {
        if (changes[m_known].object == ServiceObject::units)
            news.append(changes[m_known].values);
    }
    return news;
}

void ServiceStateTest::everyObjectShowsItsState_data()
{
    QTest::addColumn<QString>("object");
    QTest::addColumn<QByteArray>("text");

    row("units", ServiceObject::units, ServiceDocuments::units("first"));
    row("default units", ServiceObject::defaultUnits, ServiceDocuments::defaultUnits("first"));
    row("dependencies", ServiceObject::dependencies, ServiceDocuments::dependencies("first"));
}

void ServiceStateTest::everyObjectShowsItsState()
{
    QFETCH(QString, object);
    QFETCH(QByteArray, text);
    ServedDirectory served;
    QVERIFY(served.start());
    QCOMPARE(served.client().state(object), allProperties("active", checksum(text), ""));
}

void ServiceStateTest::singlePropertyIsRead_data()
{
    QTest::addColumn<QString>("value");

    row("version", QString(UNITMANAGER_VERSION));
    row("state", QString("active"));
    row("checksum", checksum(ServiceDocuments::units("first")));
    row("lastRefusal", QString());
}

void ServiceStateTest::singlePropertyIsRead()
{
    QFETCH(QString, value);
    ServedDirectory served;
    QVERIFY(served.start());
    const QDBusMessage reply = callProperties(served, "Get", {QTest::currentDataTag()});
    QCOMPARE(reply.signature(), "v");
    QCOMPARE(reply.arguments()[0].value<QDBusVariant>().variant(), QVariant(value));
}

void ServiceStateTest::unknownPropertyIsAnError()
{
    ServedDirectory served;
    QVERIFY(served.start());
    const QDBusMessage reply = callProperties(served, "Get", {"text"});
    QCOMPARE(reply.errorName(), "org.freedesktop.DBus.Error.UnknownProperty");
}

void ServiceStateTest::propertyCannotBeWritten_data()
{
    QTest::addColumn<QString>("property");

    for (const char* property : {"version", "state", "checksum", "lastRefusal"})
        row(property, property);
}

void ServiceStateTest::propertyCannotBeWritten()
{
    QFETCH(QString, property);
    ServedDirectory served;
    QVERIFY(served.start());
    const QVariant value = QVariant::fromValue(QDBusVariant("other"));
    const QDBusMessage reply = callProperties(served, "Set", {property, value});
    QCOMPARE(reply.errorName(), "org.freedesktop.DBus.Error.PropertyReadOnly");
    QCOMPARE(served.client().state(ServiceObject::units),
             allProperties("active", checksum(ServiceDocuments::units("first")), ""));
}

void ServiceStateTest::interfaceDescribesTheProperties()
{
    ServedDirectory served;
    QVERIFY(served.start());
    const QDBusMessage reply =
        served.client().call(ConfigurationFileService::name(), '/' + ServiceObject::units,
                             "org.freedesktop.DBus.Introspectable", "Introspect");
    const QString description = reply.arguments().value(0).toString();
    for (const char* property : {"version", "state", "checksum", "lastRefusal"}) {
        const QString element = QStringLiteral("<property access=\"read\" type=\"s\" name=\"%1\"");
        QVERIFY2(description.contains(element.arg(property)), qPrintable(description));
    }
}

void ServiceStateTest::checksumIsThatOfTheServedText()
{
    ServedDirectory served;
    const QByteArray text = ServiceDocuments::units("µ \xF0\x9F\x93\x81") + "\r\n";
    QVERIFY(TestFiles::write(served.path("units.json"), "\xEF\xBB\xBF" + text));
    QVERIFY(served.start());
    QCOMPARE(served.client().text(ServiceObject::units), QString(text));
    QCOMPARE(served.client().state(ServiceObject::units), allProperties("active", checksum(text), ""));
}

void ServiceStateTest::startIsNotAnnounced()
{
    ServedDirectory served;
    QVERIFY(served.start());
    QCOMPARE(takeUnitsChanges(served), QList<QVariantMap>());
}

void ServiceStateTest::loadIsAnnounced()
{
    ServedDirectory served;
    QVERIFY(served.start());
    const QByteArray text = ServiceDocuments::units("next");
    QVERIFY(TestFiles::replace(served.path("units.json"), text));
    QCOMPARE(takeUnitsChanges(served), (QList<QVariantMap>{{{"checksum", checksum(text)}}}));
    QCOMPARE(served.client().state(ServiceObject::units), allProperties("active", checksum(text), ""));
}

void ServiceStateTest::refusalIsAnnounced_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("refusal");

    row("with place", QByteArray("{\n  \"Pressure\": {},\n}"),
        "units.json:2:17: remove the comma before \"}\"");
    row("without place", QByteArray(), "units.json: is empty");
}

void ServiceStateTest::refusalIsAnnounced()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, refusal);
    ServedDirectory served;
    QVERIFY(served.start());

    QVERIFY(TestFiles::replace(served.path("units.json"), text));
    refusal.prepend(served.directory() + '/');
    QCOMPARE(takeUnitsChanges(served),
             (QList<QVariantMap>{{{"state", "refused"}, {"lastRefusal", refusal}}}));
    QCOMPARE(served.client().announcements().count(ServiceAnnouncement::units), 0);
    QCOMPARE(served.client().state(ServiceObject::units),
             allProperties("refused", checksum(ServiceDocuments::units("first")), refusal));
}

void ServiceStateTest::sameRefusalIsNotAnnouncedAgain()
{
    ServedDirectory served;
    QVERIFY(served.start());
    QVERIFY(TestFiles::replace(served.path("units.json"), "{a"));
    QCOMPARE(takeUnitsChanges(served).size(), 1);

    QVERIFY(TestFiles::replace(served.path("units.json"), "{b"));
    QCOMPARE(takeUnitsChanges(served), QList<QVariantMap>());
    QTRY_COMPARE_WITH_TIMEOUT(served.service().log().count("units.json: line 1, column 2: "), 2, waitLimit);
}

void ServiceStateTest::otherRefusalIsAnnounced()
{
    ServedDirectory served;
    QVERIFY(served.start());
    QVERIFY(TestFiles::replace(served.path("units.json"), "{"));
    QCOMPARE(takeUnitsChanges(served).size(), 1);

    QVERIFY(QFile::remove(served.path("units.json")));
    const QString refusal = served.path("units.json") + ": no such file";
    QCOMPARE(takeUnitsChanges(served), (QList<QVariantMap>{{{"lastRefusal", refusal}}}));
}

void ServiceStateTest::repairIsAnnounced()
{
    ServedDirectory served;
    QVERIFY(served.start());
    QVERIFY(TestFiles::replace(served.path("units.json"), "{"));
    QCOMPARE(takeUnitsChanges(served).size(), 1);

    QVERIFY(TestFiles::replace(served.path("units.json"), ServiceDocuments::units("first")));
    QCOMPARE(takeUnitsChanges(served), (QList<QVariantMap>{{{"state", "active"}, {"lastRefusal", ""}}}));
    QCOMPARE(served.client().announcements().count(ServiceAnnouncement::units), 0);
}

void ServiceStateTest::repairWithAnotherTextIsAnnounced()
{
    ServedDirectory served;
    QVERIFY(served.start());
    QVERIFY(TestFiles::replace(served.path("units.json"), "{"));
    QCOMPARE(takeUnitsChanges(served).size(), 1);

    const QByteArray text = ServiceDocuments::units("next");
    QVERIFY(TestFiles::replace(served.path("units.json"), text));
    QCOMPARE(takeUnitsChanges(served),
             (QList<QVariantMap>{{{"state", "active"}, {"checksum", checksum(text)}, {"lastRefusal", ""}}}));
    QCOMPARE(served.client().announcements().count(ServiceAnnouncement::units), 1);
}

void ServiceStateTest::firstDocumentIsAnnounced()
{
    ServedDirectory served;
    QVERIFY(QFile::remove(served.path("units.json")));
    QVERIFY(served.start());
    QCOMPARE(served.client().state(ServiceObject::units),
             allProperties("missing", "", served.path("units.json") + ": no such file"));

    const QByteArray text = ServiceDocuments::units("late");
    QVERIFY(TestFiles::write(served.path("units.json") + ".new", text));
    QVERIFY(QFile::rename(served.path("units.json") + ".new", served.path("units.json")));
    QCOMPARE(takeUnitsChanges(served),
             (QList<QVariantMap>{{{"state", "active"}, {"checksum", checksum(text)}, {"lastRefusal", ""}}}));
    QCOMPARE(served.client().announcements().count(ServiceAnnouncement::units), 1);
}

void ServiceStateTest::changesPrecedeEveryAnnouncement()
{
    ServedDirectory served;
    QVERIFY(served.start());
    // Stop the service, so that it receives all changes at once even if the machine is busy.
    QVERIFY(served.service().send(SIGSTOP));
    QVERIFY(TestFiles::replace(served.path("units.json"), ServiceDocuments::units("next")));
    QVERIFY(TestFiles::replace(served.path("default-units.json"), ServiceDocuments::defaultUnits("next")));
    QVERIFY(TestFiles::replace(served.path("dependencies.json"), ServiceDocuments::dependencies("next")));
    QVERIFY(served.service().send(SIGCONT));

    QTRY_COMPARE_WITH_TIMEOUT(served.client().announcements(),
                              (QStringList{ServiceAnnouncement::units, ServiceAnnouncement::defaultUnits,
                                           ServiceAnnouncement::dependencies}),
                              waitLimit);
    const QList<ServiceClient::PropertyChange> changes = served.client().propertyChanges();
    QCOMPARE(changes.size(), 3);
    QCOMPARE(changes[0].object, ServiceObject::units);
    QCOMPARE(changes[1].object, ServiceObject::defaultUnits);
    QCOMPARE(changes[2].object, ServiceObject::dependencies);
    for (const ServiceClient::PropertyChange& change : changes)
        QCOMPARE(change.announcementsBefore, 0);
}

static const TestClass<ServiceStateTest> testClass;
#include "ServiceStateTest.moc"
