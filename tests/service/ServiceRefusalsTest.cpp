#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtTest/QTest>

#include "DocumentFile.h"
#include "Row.h"
#include "ServedDirectory.h"
#include "ServiceDocuments.h"
#include "TestFiles.h"
#include "TestProgram.h"
#include "WaitLimit.h"

namespace {

const QString noDocument = "error: org.measuringdevice.ConfigurationFileHandler.Error.NoConfiguration";

} // namespace

/// How the program handles a document that it cannot serve.
class ServiceRefusalsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void badTextIsRefused_data();
    void badTextIsRefused();
    void largestDocumentIsServed();
    void removedDocumentStaysActive();
    void eachRefusalIsLoggedOnce();
    void disagreementOfDocumentsIsLogged();
    void documentMayComeLater_data();
    void documentMayComeLater();
};

void ServiceRefusalsTest::badTextIsRefused_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("reason");

    row("half written", QByteArray("{\n  \"Pressure\": {\n    \"Bar\": {"),
        "line 3, column 13: unexpected end; the \"{\" at line 3, column 12 is not closed");
    row("superfluous comma", QByteArray("{\n  \"Pressure\": {},\n}"),
        "line 2, column 17: remove the comma before \"}\"");
    row("invalid UTF-8", QByteArray("{\n  \"Pressure\": \"\xFF\"}"),
        "line 2, column 16: not UTF-8; save the document in that encoding");
    row("too large", QByteArray(DocumentFile::defaultLimit + 1, ' '),
        "is larger than the limit of 1048576 bytes; see --max-size");
    row("empty", QByteArray(), "is empty");
    row("list", QByteArray("[]"), "line 1, column 1: expected \"{\" at the start of the document");
    row("no unit type", QByteArray("{}"), "line 1, column 1: the document has no unit types");
    row("wrong content", ServiceDocuments::units("first").replace("[1]", "[\"1,5\"]"),
        "line 1, column 87: this is not a number; write 1.5 without quotes (and one more error)");
}

void ServiceRefusalsTest::badTextIsRefused()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, reason);
    ServedDirectory served;
    QVERIFY(served.start());

    QVERIFY(TestFiles::replace(served.path("units.json"), text));
    QCOMPARE(served.settledAnnouncements(), QStringList());
    QCOMPARE(served.client().text(ServiceObject::units), QString(ServiceDocuments::units("first")));
    const QString message = "configuration-file-service: warning: UnitManager/UnitType: cannot use " +
                            served.path("units.json") + ": " + reason + "; keeping the last valid document\n";
    QTRY_VERIFY2_WITH_TIMEOUT(served.service().log().contains(message), qPrintable(served.service().log()),
                              waitLimit);

    QVERIFY(TestFiles::replace(served.path("units.json"), ServiceDocuments::units("first")));
    QCOMPARE(served.settledAnnouncements(), QStringList());
    QVERIFY(TestFiles::replace(served.path("units.json"), ServiceDocuments::units("next")));
    QCOMPARE(served.settledAnnouncements(), QStringList{ServiceAnnouncement::units});
    QCOMPARE(served.client().text(ServiceObject::units), QString(ServiceDocuments::units("next")));
}

void ServiceRefusalsTest::largestDocumentIsServed()
{
    ServedDirectory served;
    QVERIFY(served.start());

    const QByteArray text = ServiceDocuments::units("next").leftJustified(DocumentFile::defaultLimit);
    QVERIFY(TestFiles::replace(served.path("units.json"), text));
    QCOMPARE(served.settledAnnouncements(), QStringList{ServiceAnnouncement::units});
    QCOMPARE(served.client().text(ServiceObject::units), QString(text));
}

void ServiceRefusalsTest::removedDocumentStaysActive()
{
    ServedDirectory served;
    QVERIFY(served.start());

    QVERIFY(QFile::remove(served.path("units.json")));
    QCOMPARE(served.settledAnnouncements(), QStringList());
    QCOMPARE(served.settledAnnouncements(), QStringList());
    QCOMPARE(served.client().text(ServiceObject::units), QString(ServiceDocuments::units("first")));
    const QString message = "units.json: no such file; keeping the last valid document\n";
    QTRY_COMPARE_WITH_TIMEOUT(served.service().log().count(message), 1, waitLimit);

    QVERIFY(TestFiles::write(served.path("units.json"), ServiceDocuments::units("first")));
    QCOMPARE(served.settledAnnouncements(), QStringList());
    QVERIFY(QFile::remove(served.path("units.json")));
    QCOMPARE(served.settledAnnouncements(), QStringList());
    QTRY_COMPARE_WITH_TIMEOUT(served.service().log().count(message), 2, waitLimit);
}

void ServiceRefusalsTest::eachRefusalIsLoggedOnce()
{
    ServedDirectory served;
    QVERIFY(served.start());

    const QString message =
        "line 1, column 2: expected a name in double quotes; keeping the last valid document\n";
    QVERIFY(TestFiles::replace(served.path("units.json"), "{a"));
    QCOMPARE(served.settledAnnouncements(), QStringList());
    QCOMPARE(served.settledAnnouncements(), QStringList());
    QTRY_COMPARE_WITH_TIMEOUT(served.service().log().count(message), 1, waitLimit);

    QVERIFY(TestFiles::replace(served.path("units.json"), "{b"));
    QCOMPARE(served.settledAnnouncements(), QStringList());
    QTRY_COMPARE_WITH_TIMEOUT(served.service().log().count(message), 2, waitLimit);
}

void ServiceRefusalsTest::disagreementOfDocumentsIsLogged()
{
    ServedDirectory served;
    QVERIFY(served.start());

    const QByteArray text = R"({"Pressure": {"@type": "Selection", "@value": "Bra"}})";
    QVERIFY(TestFiles::replace(served.path("default-units.json"), text));
    QCOMPARE(served.settledAnnouncements(), QStringList{ServiceAnnouncement::defaultUnits});
    QCOMPARE(served.client().text(ServiceObject::defaultUnits), QString(text));
    const QString message =
        "configuration-file-service: warning: UnitManager/DefaultUnit: " + served.path("default-units.json") +
        R"(:1:2: "Bra" is not a unit of "Pressure"; did you mean "Bar"? [default-unit-unknown])"
        "\n";
    QTRY_COMPARE_WITH_TIMEOUT(served.service().log().count(message), 1, waitLimit);

    // It is not logged again with the next change of another document.
    QVERIFY(TestFiles::replace(served.path("units.json"), ServiceDocuments::units("next")));
    QCOMPARE(served.settledAnnouncements(), QStringList{ServiceAnnouncement::units});
    // Settled again, because disagreements are logged after the announcement.
    QCOMPARE(served.settledAnnouncements(), QStringList());
    QCOMPARE(served.service().log().count(message), 1);
}

void ServiceRefusalsTest::documentMayComeLater_data()
{
    QTest::addColumn<QString>("broken");
    QTest::addColumn<bool>("isDirectoryThere");

    QTest::newRow("broken at the start") << "{" << true;
    QTest::newRow("missing at the start") << QString() << true;
    QTest::newRow("directory missing at the start") << QString() << false;
}

void ServiceRefusalsTest::documentMayComeLater()
{
    QFETCH(QString, broken);
    QFETCH(bool, isDirectoryThere);
    ServedDirectory served;
    QVERIFY(QDir(served.directory()).removeRecursively());
    if (isDirectoryThere)
        QVERIFY(QDir().mkpath(served.directory()));
    if (!broken.isEmpty())
        QVERIFY(TestFiles::write(served.path("units.json"), broken.toUtf8()));
    QVERIFY(served.start());
    QCOMPARE(served.client().text(ServiceObject::units), noDocument);
    QTRY_COMPARE_WITH_TIMEOUT(served.service().log().count("; no document to serve\n"), 3, waitLimit);

    QVERIFY(QDir().mkpath(served.directory()));
    QVERIFY(TestFiles::write(served.path("units.json"), ServiceDocuments::units("first")));
    QTRY_COMPARE_WITH_TIMEOUT(served.client().text(ServiceObject::units),
                              QString(ServiceDocuments::units("first")), waitLimit);
    QCOMPARE(served.settledAnnouncements(), QStringList{ServiceAnnouncement::units});
}

static const TestClass<ServiceRefusalsTest> testClass;
#include "ServiceRefusalsTest.moc"
