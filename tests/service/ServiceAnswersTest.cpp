#include <QtCore/QFile>
#include <QtTest/QTest>

#include "ConfigurationFileService.h"
#include "DeviceManagerDefinitions.h"
#include "Row.h"
#include "ServedDirectory.h"
#include "ServiceDocuments.h"
#include "TestProgram.h"

/// The program's answers on the bus; it must not answer anything else.
class ServiceAnswersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void eachDocumentIsServed_data();
    void eachDocumentIsServed();
    void nothingElseIsServed_data();
    void nothingElseIsServed();
    void callerMakesNoDifference();
    void objectsDescribeTheInterface();
    void startIsNotAnnounced();
    void shippedDocumentsAreServed();

private:
    ServedDirectory m_served;
};

void ServiceAnswersTest::initTestCase()
{
    QVERIFY(m_served.start());
}

void ServiceAnswersTest::eachDocumentIsServed_data()
{
    QTest::addColumn<QString>("object");
    QTest::addColumn<QString>("text");

    row("units", DeviceManagerDefinitions::getObjectNameUnitManagerConfiguration(),
        QString(ServiceDocuments::units("first")));
    row("default units", ServiceObject::defaultUnits, QString(ServiceDocuments::defaultUnits("first")));
    row("dependencies", ServiceObject::dependencies, QString(ServiceDocuments::dependencies("first")));
}

void ServiceAnswersTest::eachDocumentIsServed()
{
    QFETCH(QString, object);
    QFETCH(QString, text);

    QCOMPARE(m_served.client().text(object), text);
}

void ServiceAnswersTest::nothingElseIsServed_data()
{
    QTest::addColumn<QString>("object");
    QTest::addColumn<QString>("method");
    QTest::addColumn<QStringList>("arguments");

    using namespace ServiceObject;
    const QString get = "getConfiguration";
    const QString getDependency = "getConfigurationDependency";
    using Arguments = QStringList;

    row("unknown name", units, get, Arguments{"UnitManager/Unit", "", ""});
    row("no name", units, get, Arguments{"", "", ""});
    row("other case", units, get, Arguments{"unitmanager/unittype", "", ""});
    row("slash at the end", units, get, Arguments{"UnitManager/UnitType/", "", ""});
    row("one unit type", units, get, Arguments{"UnitManager/UnitType/Pressure", "", ""});
    row("another object's name", units, get, Arguments{"UnitManager/DefaultUnit", "", ""});
    row("units as dependencies", units, getDependency, Arguments{"UnitManager/UnitType", ""});
    row("default units as dependencies", defaultUnits, getDependency,
        Arguments{"UnitManager/DefaultUnit", ""});
    row("dependencies as plain configuration", dependencies, get,
        Arguments{"UnitManager/Dependency", "", ""});
    row("a document's file", units, get, Arguments{"units.json", "", ""});
    row("a document's path", units, get, Arguments{m_served.path("units.json"), "", ""});
    row("path upwards", units, get, Arguments{"../../etc/passwd", "", ""});
    row("path upwards after the name", units, get,
        Arguments{"UnitManager/UnitType/../../../../../etc/passwd", "", ""});
    row("absolute path", dependencies, getDependency, Arguments{"/etc/passwd", ""});
    row("a very long name", units, get, Arguments{QString(1000000, 'x'), "", ""});
}

void ServiceAnswersTest::nothingElseIsServed()
{
    QFETCH(QString, object);
    QFETCH(QString, method);
    QFETCH(QStringList, arguments);

    const QDBusMessage reply = m_served.client().call(object, method, arguments);
    QCOMPARE(reply.type(), QDBusMessage::ErrorMessage);
    QCOMPARE(reply.errorName(), "org.measuringdevice.ConfigurationFileHandler.Error.UnknownConfiguration");
    QCOMPARE(reply.errorMessage(),
             "This method of this object serves no configuration '" + arguments[0].left(60) + "'.");
}

void ServiceAnswersTest::callerMakesNoDifference()
{
    const QDBusMessage reply =
        m_served.client().call(ServiceObject::units, "getConfiguration",
                               {"UnitManager/UnitType", "../../etc", m_served.path("default-units.json")});
    QCOMPARE(reply.arguments(), QVariantList{QString(ServiceDocuments::units("first"))});
}

void ServiceAnswersTest::objectsDescribeTheInterface()
{
    const QDBusMessage reply =
        m_served.client().call(ConfigurationFileService::name(), "/DependencyConfiguration",
                               "org.freedesktop.DBus.Introspectable", "Introspect");
    const QString description = reply.arguments().value(0).toString();
    for (const char* part : {"interface name=\"org.measuringdevice.ConfigurationFileHandler\"",
                             "method name=\"getConfiguration\"", "method name=\"getConfigurationDependency\"",
                             "signal name=\"configurationChanged\""})
        QVERIFY2(description.contains(part), part);
}

void ServiceAnswersTest::startIsNotAnnounced()
{
    QCOMPARE(m_served.settledAnnouncements(), QStringList());
}

void ServiceAnswersTest::shippedDocumentsAreServed()
{
    ServedDirectory served;
    for (const char* name : {"units.json", "default-units.json", "dependencies.json"}) {
        QVERIFY(QFile::remove(served.path(name)));
        QVERIFY(QFile::copy(QString(UNITMANAGER_SOURCE_DIR "/config/") + name, served.path(name)));
    }
    QVERIFY(served.start());
    QCOMPARE(served.service().log().count(": loaded "), 3);
    QCOMPARE(served.service().log().count('\n'), 3);
    QVERIFY(served.client().text(ServiceObject::units).contains("\"HectoPascal\""));
}

static const TestClass<ServiceAnswersTest> testClass;
#include "ServiceAnswersTest.moc"
