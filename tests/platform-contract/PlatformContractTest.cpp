#include <QtCore/QFile>
#include <QtTest/QTest>

#include "ChildProcess.h"
#include "PrivateBus.h"
#include "TestProgram.h"
#include "WaitLimit.h"

/// The contract program finds no fault on the platform of the build, and every planted one.
class PlatformContractTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void platformHasNoFaults();
    void plantedFaultsAreFound();
    void everyOperationOfThePlatformIsChecked();
    void unknownArgumentsAreRefused();

private:
    PrivateBus m_bus;
};

namespace {

struct Outcome
{
    int exitCode = -1;
    QStringList lines;
};

/// Runs a program on the bus until it ends.
Outcome run(const PrivateBus& bus, const QString& program, const QStringList& arguments)
{
    ChildProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), bus.address());
    environment.insert(QStringLiteral("DEVICE_BUS"), QStringLiteral("session"));
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    if (!process.waitForFinished(waitLimit))
        return {};
    const QString output = QString::fromUtf8(process.readAllStandardOutput());
    return {process.exitCode(), output.split(QLatin1Char('\n'), Qt::SkipEmptyParts)};
}

/// The names of the checks with a result.
QStringList checksWith(const QString& result, const QStringList& lines)
{
    QStringList names;
    for (const QString& line : lines) {
        if (line.startsWith(result))
            names.append(line.mid(result.size()).trimmed());
    }
    return names;
}

const QString ok = QStringLiteral("ok ");
const QString fault = QStringLiteral("FAULT ");

} // namespace

void PlatformContractTest::initTestCase()
{
    QVERIFY(m_bus.start());
}

void PlatformContractTest::platformHasNoFaults()
{
    const Outcome outcome = run(m_bus, QStringLiteral(PLATFORM_CONTRACT), {});

    QVERIFY2(outcome.exitCode == 0, qPrintable(outcome.lines.join(QLatin1Char('\n'))));
    QCOMPARE(checksWith(fault, outcome.lines), QStringList());
    QCOMPARE(checksWith(ok, outcome.lines).size(), 42);
    QCOMPARE(outcome.lines.last(), QStringLiteral("42 checks, 0 with faults"));
}

void PlatformContractTest::plantedFaultsAreFound()
{
    const Outcome outcome = run(m_bus, QStringLiteral(PLATFORM_CONTRACT_FAULTY), {});

    QCOMPARE(outcome.exitCode, 1);
    QCOMPARE(checksWith(fault, outcome.lines),
             (QStringList{"tree: writes without a node fail", "tree: the last handle releases the tree",
                          "marker: it is the same throughout the process", "table: parts of rows are read",
                          "rounding: values are rounded", "texts: missing languages fall back",
                          "hash: it is stable", "source: without one, answers are immediate",
                          "source: an empty reply is an error",
                          "source: signals are queued without an event loop"}));
    QCOMPARE(checksWith(ok, outcome.lines).size(), 32);
    QCOMPARE(outcome.lines.last(), QStringLiteral("42 checks, 10 with faults"));
}

void PlatformContractTest::everyOperationOfThePlatformIsChecked()
{
    QFile list(QStringLiteral(UNITMANAGER_SOURCE_DIR "/tests/structure/data/platform-symbols.txt"));
    QVERIFY(list.open(QIODevice::ReadOnly));
    const Outcome outcome = run(m_bus, QStringLiteral(PLATFORM_CONTRACT), {QStringLiteral("--operations")});

    QCOMPARE(outcome.exitCode, 0);
    QVERIFY(outcome.lines.size() > 1);
    QCOMPARE(outcome.lines, QString::fromUtf8(list.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts));
}

void PlatformContractTest::unknownArgumentsAreRefused()
{
    const Outcome outcome = run(m_bus, QStringLiteral(PLATFORM_CONTRACT), {QStringLiteral("--help")});

    QCOMPARE(outcome.exitCode, 2);
    QCOMPARE(outcome.lines, QStringList());
}

static const TestClass<PlatformContractTest> testClass;

#include "PlatformContractTest.moc"
