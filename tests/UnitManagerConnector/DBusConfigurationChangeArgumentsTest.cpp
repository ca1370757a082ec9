#include "UnitManagerConnector/DBusConfigurationChangeSignalHandling.h"

#include <QtDBus/QDBusConnection>
#include <QtTest/QTest>

#include "ChangeSources.h"
#include "ConfigurationService.h"
#include "TestProgram.h"

using namespace ChangeSources;

namespace {

QStringList& calls()
{
    static QStringList list;
    return list;
}

QStringList takeCalls()
{
    QStringList taken;
    taken.swap(calls());
    return taken;
}

QString quoted(const QString& text)
{
    return text.isNull() ? QStringLiteral("null") : '"' + text + '"';
}

QString callText(const char* operation, const QStringList& texts, const char* slot)
{
    QStringList arguments;
    for (const QString& text : texts)
        arguments.append(quoted(text));
    return QStringLiteral("%1 %2 %3").arg(operation, arguments.join(' '), slot);
}

/// The calls that subscribe to each source, or unsubscribe from it, in the order of the sources.
QStringList callsOf(const char* operation)
{
    const QStringList slotNames{"1unitSwitchConfigurationFileChange(QString)",
                                "1dependencyFileChanged(QString)", "1defaultUnitFileChange(QString)"};
    QStringList texts;
    for (int i = 0; i < slotNames.size(); ++i)
        texts.append(callText(operation,
                              {"org.measuringdevice.DeviceManager", '/' + settings()[all[i]].at(1), "",
                               "configurationChanged", "s"},
                              slotNames.at(i).toLatin1().constData()));
    return texts;
}

} // namespace

// These replace Qt's functions.

bool QDBusConnection::connect(const QString& service, const QString& path, const QString& interface,
                              const QString& name, const QString& signature, QObject* /*receiver*/,
                              const char* slot)
{
    calls().append(callText("connect", {service, path, interface, name, signature}, slot));
    return true;
}

bool QDBusConnection::disconnect(const QString& service, const QString& path, const QString& interface,
                                 const QString& name, const QString& signature, QObject* /*receiver*/,
                                 const char* slot)
{
    calls().append(callText("disconnect", {service, path, interface, name, signature}, slot));
    return true;
}

/// The arguments with which the handling subscribes to delivered signals.
class DBusConfigurationChangeArgumentsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void closingUsesTheArgumentsOfTheSubscription();
};

void DBusConfigurationChangeArgumentsTest::initTestCase()
{
    useNoBus();
}

void DBusConfigurationChangeArgumentsTest::closingUsesTheArgumentsOfTheSubscription()
{
    ConfiguredHandling handling(false);
    takeCalls();
    QVERIFY(subscribeAll(handling));
    QCOMPARE(takeCalls(), callsOf("connect"));
    QVERIFY(handling.closeDbusConnections());
    QCOMPARE(takeCalls(), callsOf("disconnect"));
}

static const TestClass<DBusConfigurationChangeArgumentsTest> testClass;
#include "DBusConfigurationChangeArgumentsTest.moc"
