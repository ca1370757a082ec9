#include <QtCore/QCryptographicHash>
#include <QtCore/QFile>
#include <QtTest/QTest>

#include "Row.h"
#include "ServedDirectory.h"
#include "ServiceDocuments.h"
#include "TestFiles.h"
#include "TestProgram.h"
#include "ToolProcess.h"

/// The verb that prints the active documents of the service and their state.
class ToolGetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void documentIsPrintedAsServed_data();
    void documentIsPrintedAsServed();
    void terminalReceivesNoControlCharacters();
    void busOfTheVariableIsTheDefault();
    void refusedContentIsNotPrinted();
    void missingDocumentIsReported();
    void stateIsPrinted_data();
    void stateIsPrinted();
    void missingServiceIsReported_data();
    void missingServiceIsReported();
    void rejectsWrongUsage_data();
    void rejectsWrongUsage();
};

namespace {

QByteArray checksum(const QByteArray& text)
{
    return QCryptographicHash::hash(text, QCryptographicHash::Sha256).toHex();
}

ToolRun get(ServedDirectory& served, const QStringList& arguments)
{
    return ToolProcess::run(QStringList("get") + arguments + QStringList{"--bus", served.bus().address()});
}

} // namespace

void ToolGetTest::documentIsPrintedAsServed_data()
{
    QTest::addColumn<QString>("document");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("output");

    const QByteArray units = ServiceDocuments::units("µ \xF0\x9F\x93\x81 \xC2\x85");
    row("units", "units", units, units + '\n');
    row("default units", "default-units", ServiceDocuments::defaultUnits("x"),
        ServiceDocuments::defaultUnits("x") + '\n');
    row("dependencies", "dependencies", ServiceDocuments::dependencies("x"),
        ServiceDocuments::dependencies("x") + '\n');
    row("line break at the end", "units", units + '\n', units + '\n');
    row("line breaks at the end", "units", units + "\n\n", units + "\n\n");
    row("other line breaks", "units", "\t" + units + "\r\n", "\t" + units + "\r\n");
}

void ToolGetTest::documentIsPrintedAsServed()
{
    QFETCH(QString, document);
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, output);
    ServedDirectory served;
    QVERIFY(TestFiles::write(served.path(document + ".json"), text));
    QVERIFY(served.start());
    const ToolRun run = get(served, {document});
    QCOMPARE(run.standardOutput, output);
    QCOMPARE(run.standardError, QByteArray());
    QCOMPARE(run.exitCode, 0);
}

void ToolGetTest::terminalReceivesNoControlCharacters()
{
    ServedDirectory served;
    QVERIFY(TestFiles::write(served.path("dependencies.json"), "{\"A\":\t[\"\xC2\x9B"
                                                               "31m\"]}\r\n"));
    QVERIFY(served.start());
    const QString command = ToolProcess::path() + " get dependencies --bus " + served.bus().address();
    const ToolRun run = ToolProcess::runProgram("script", {"-qec", command, "/dev/null"});
    // The terminal adds the carriage return.
    QCOMPARE(run.standardOutput, QByteArray("{\"A\":\t[\"?31m\"]}\r\n"));
    QCOMPARE(run.exitCode, 0);
}

void ToolGetTest::busOfTheVariableIsTheDefault()
{
    ServedDirectory served;
    QVERIFY(served.start());
    QProcessEnvironment environment = ToolProcess::plainEnvironment();
    environment.insert("DEVICE_BUS", served.bus().address());
    const ToolRun run = ToolProcess::run({"get", "units"}, {}, environment);
    QCOMPARE(run.standardOutput, ServiceDocuments::units("first") + '\n');
    QCOMPARE(run.exitCode, 0);
}

void ToolGetTest::refusedContentIsNotPrinted()
{
    ServedDirectory served;
    QVERIFY(served.start());
    QVERIFY(TestFiles::replace(served.path("units.json"), "{"));
    QCOMPARE(served.settledAnnouncements(), QStringList());
    const ToolRun run = get(served, {"units"});
    QCOMPARE(run.standardOutput, ServiceDocuments::units("first") + '\n');
    QCOMPARE(run.standardError, QByteArray());
    QCOMPARE(run.exitCode, 0);
}

void ToolGetTest::missingDocumentIsReported()
{
    ServedDirectory served;
    QVERIFY(QFile::remove(served.path("dependencies.json")));
    QVERIFY(served.start());
    const ToolRun run = get(served, {"dependencies"});
    QCOMPARE(run.standardError,
             "unitmanager: the configuration service has no valid document \"dependencies\" yet: " +
                 served.path("dependencies.json").toUtf8() + ": no such file\n");
    QCOMPARE(run.standardOutput, QByteArray());
    QCOMPARE(run.exitCode, 1);
}

void ToolGetTest::stateIsPrinted_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<QByteArray>("state");
    QTest::addColumn<QByteArray>("activeChecksum");
    QTest::addColumn<QByteArray>("refusal");

    const QByteArray valid = ServiceDocuments::units("x");
    row("active", valid, valid, QByteArray("active"), checksum(valid), QByteArray());
    row("refused", valid, QByteArray("{}"), QByteArray("refused"), checksum(valid),
        QByteArray(":1:1: the document has no unit types"));
    row("missing", QByteArray("{}"), QByteArray("{}"), QByteArray("missing"), QByteArray(),
        QByteArray(":1:1: the document has no unit types"));
}

void ToolGetTest::stateIsPrinted()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    QFETCH(QByteArray, state);
    QFETCH(QByteArray, activeChecksum);
    QFETCH(QByteArray, refusal);
    ServedDirectory served;
    QVERIFY(TestFiles::write(served.path("units.json"), before));
    QVERIFY(served.start());
    QVERIFY(TestFiles::replace(served.path("units.json"), after));
    served.settledAnnouncements();
    if (!refusal.isEmpty())
        refusal.prepend(served.path("units.json").toUtf8());

    const auto orNone = [](const QByteArray& value) {
        return value.isEmpty() ? "none" : value;
    };
    const ToolRun lines = get(served, {"units", "--state"});
    QCOMPARE(lines.standardOutput, "version: " UNITMANAGER_VERSION "\nstate: " + state + "\nchecksum: " +
                                       orNone(activeChecksum) + "\nlast refusal: " + orNone(refusal) + '\n');
    QCOMPARE(lines.exitCode, 0);

    const auto orNull = [](const QByteArray& value) {
        return value.isEmpty() ? "null" : '"' + value + '"';
    };
    const ToolRun json = get(served, {"units", "--state", "--json"});
    QCOMPARE(json.standardOutput, "{\"checksum\":" + orNull(activeChecksum) +
                                      ",\"lastRefusal\":" + orNull(refusal) + ",\"state\":\"" + state +
                                      "\",\"version\":\"" UNITMANAGER_VERSION "\"}\n");
    QCOMPARE(json.exitCode, 0);
}

void ToolGetTest::missingServiceIsReported_data()
{
    QTest::addColumn<QStringList>("options");

    row("document", QStringList());
    row("state", QStringList("--state"));
}

void ToolGetTest::missingServiceIsReported()
{
    QFETCH(QStringList, options);
    ServedDirectory served;
    QVERIFY(served.bus().start());
    const ToolRun run = get(served, QStringList("units") + options);
    QCOMPARE(run.standardError,
             "unitmanager: no configuration service on the bus " + served.bus().address().toUtf8() + '\n');
    QCOMPARE(run.standardOutput, QByteArray());
    QCOMPARE(run.exitCode, 1);
}

void ToolGetTest::rejectsWrongUsage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("message");

    row("no document", QStringList(), QByteArray("DOCUMENT is missing"));
    row("unknown document", QStringList{"unit"},
        QByteArray("unknown document \"unit\"; known: units, default-units, dependencies; "
                   "did you mean units?"));
    row("two documents", QStringList{"units", "dependencies"},
        QByteArray("too many arguments: \"dependencies\""));
    row("JSON without state", QStringList{"units", "--json"}, QByteArray("--json needs --state"));
    row("not a bus", QStringList{"units", "--bus", "x"},
        QByteArray("\"x\" is not a valid bus: expected session, system or a D-Bus address"));
}

void ToolGetTest::rejectsWrongUsage()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, message);
    const ToolRun run = ToolProcess::run(QStringList("get") + arguments);
    QCOMPARE(run.standardError,
             "unitmanager: " + message +
                 "\nunitmanager: usage: unitmanager get [options] DOCUMENT; more with --help\n");
    QCOMPARE(run.standardOutput, QByteArray());
    QCOMPARE(run.exitCode, 2);
}

static const TestClass<ToolGetTest> testClass;
#include "ToolGetTest.moc"
