#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include "ChildProcess.h"
#include "ConfigurationStore.h"
#include "LogCapture.h"
#include "TestDocuments.h"
#include "TestFiles.h"
#include "TestProgram.h"
#include "UnitManagerDevice/UnitManagerWrapper.h"
#include "WaitUntil.h"

/// The library on a platform without a bus, whose state machine enters a selected state at the next step.
class ForeignPlatformTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void changesAreFollowed_data();
    void changesAreFollowed();
    void brokenDocumentIsReadAgain_data();
    void brokenDocumentIsReadAgain();
    void nothingIsAvailableWithoutDocuments_data();
    void nothingIsAvailableWithoutDocuments();
    void deliveredChangesNeedABus();
    void exampleApplicationFollowsFiles();
};

namespace {

namespace T = TestUnitType;

const QString module = QStringLiteral("DeviceManager");
const QString unitsObject = QStringLiteral("UnitCatalogue");
const QString unitsName = QStringLiteral("UnitManager/UnitType");
const QString defaultsObject = QStringLiteral("DefaultUnitConfiguration");
const QString defaultsName = QStringLiteral("UnitManager/DefaultUnit");

const bool polled = true;

void addReadings()
{
    QTest::addColumn<bool>("isAsynchronous");
    QTest::newRow("blocking") << false;
    QTest::newRow("asynchronous") << true;
}

void publish(const QString& object, const QString& configuration, const QString& text)
{
    ConfigurationStore::instance().setText(object, configuration, text);
    ConfigurationStore::instance().announce(object, configuration);
}

bool waitForUnits(UnitManagerWrapper& wrapper)
{
    return waitUntil([&wrapper] { return wrapper.checkInitialized(); });
}

/// Waits for one change, and for the units that follow it.
bool waitForChange(UnitManagerWrapper& wrapper)
{
    return waitUntil(
        [&wrapper] { return wrapper.checkInitialized() && wrapper.hasUnitManagerConfigurationChanged(); });
}

QByteArray shippedDocument(const char* name)
{
    QFile file(QStringLiteral(UNITMANAGER_SOURCE_DIR "/config/") + QLatin1String(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

void ForeignPlatformTest::init()
{
    ConfigurationStore& store = ConfigurationStore::instance();
    store.clear();
    store.setText(unitsObject, unitsName, TestDocuments::units());
    store.setText(defaultsObject, defaultsName, TestDocuments::defaultUnits());
}

void ForeignPlatformTest::changesAreFollowed_data()
{
    addReadings();
}

void ForeignPlatformTest::changesAreFollowed()
{
    QFETCH(bool, isAsynchronous);
    UnitManagerWrapper wrapper(module, defaultsObject, defaultsName, isAsynchronous, polled);
    QVERIFY(waitForChange(wrapper));
    QCOMPARE(wrapper.getValue(1.5, T::pressure, QString()), QVariant(1500.0));
    QVERIFY(!wrapper.hasUnitManagerConfigurationChanged());

    publish(defaultsObject, defaultsName,
            QStringLiteral(R"({ "Pressure": { "@type": "Selection", "@value": "Bar" } })"));
    QVERIFY(waitForChange(wrapper));
    QCOMPARE(wrapper.getValue(1.5, T::pressure, QString()), QVariant(1.5));
}

void ForeignPlatformTest::brokenDocumentIsReadAgain_data()
{
    addReadings();
}

void ForeignPlatformTest::brokenDocumentIsReadAgain()
{
    QFETCH(bool, isAsynchronous);
    LogCapture silence;
    UnitManagerWrapper wrapper(module, defaultsObject, defaultsName, isAsynchronous, polled);
    QVERIFY(waitForChange(wrapper));

    publish(unitsObject, unitsName, QStringLiteral("{"));
    QVERIFY(waitUntil([&wrapper] { return !wrapper.checkInitialized(); }));
    publish(unitsObject, unitsName, TestDocuments::units());
    QVERIFY(waitForUnits(wrapper));
    QVERIFY(wrapper);
    QCOMPARE(wrapper.getValue(1.5, T::pressure, QString()), QVariant(1500.0));
}

void ForeignPlatformTest::nothingIsAvailableWithoutDocuments_data()
{
    addReadings();
}

void ForeignPlatformTest::nothingIsAvailableWithoutDocuments()
{
    QFETCH(bool, isAsynchronous);
    ConfigurationStore::instance().clear();
    LogCapture log;
    UnitManagerWrapper wrapper(module, defaultsObject, defaultsName, isAsynchronous, polled);

    QVERIFY(!wrapper.checkInitialized());
    QVERIFY(!wrapper);
    QCOMPARE(wrapper.getValue(1.5, T::pressure, QString()), QVariant(1.5));
    QVERIFY(log.takeTexts().contains(R"(Unable to connect to mandantory file type "UnitManager/UnitType")"));

    init();
    QVERIFY(waitForUnits(wrapper));
    QVERIFY(wrapper);
}

void ForeignPlatformTest::deliveredChangesNeedABus()
{
    LogCapture log;
    UnitManagerWrapper wrapper(module, defaultsObject, defaultsName, false, !polled);

    QVERIFY(!wrapper.checkInitialized());
    QVERIFY(log.takeTexts().contains(R"(Error cannot connect to module "DeviceManager" "UnitCatalogue")"));
}

void ForeignPlatformTest::exampleApplicationFollowsFiles()
{
    const QTemporaryDir folder;
    const QByteArray defaults = shippedDocument("default-units.json");
    QVERIFY(TestFiles::write(folder.filePath("units.json"), shippedDocument("units.json")));
    QVERIFY(TestFiles::write(folder.filePath("default-units.json"), defaults));
    QVERIFY(TestFiles::write(folder.filePath("dependencies.json"), shippedDocument("dependencies.json")));
    QVERIFY(defaults.contains("HectoPascal"));

    ChildProcess device;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DEVICE_DOCUMENTS"), folder.path());
    device.setProcessEnvironment(environment);
    device.start(QStringLiteral(MEASURING_DEVICE), {"--language", "de", "--changes", "1"});
    QByteArray output;
    while (!output.contains("pressure range is in Device/Quantity/Pressure/Bar, labelled \"bar\"\n")) {
        QVERIFY2(device.waitForReadyRead(waitLimit), output);
        output += device.readAllStandardOutput();
    }

    QVERIFY(TestFiles::replace(folder.filePath("default-units.json"),
                               QByteArray(defaults).replace("HectoPascal", "KiloPascal")));
    QVERIFY(device.waitForFinished(waitLimit));
    QCOMPARE(device.exitCode(), 0);
    QCOMPARE(QString::fromUtf8(device.readAllStandardOutput()),
             QStringLiteral("configuration changed\n  line pressure   1013.3 hPa -> 101.33 kPa\n"));
}

static const TestClass<ForeignPlatformTest> testClass;

#include "ForeignPlatformTest.moc"
