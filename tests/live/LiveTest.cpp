#include "LiveTest.h"

#include <QtCore/QAbstractEventDispatcher>
#include <QtTest/QTest>

#include "Stage.h"

namespace {

bool isPolledProcess()
{
    return qgetenv("LIVE_CHANGES") == "Polled";
}

bool isDeferredProcess()
{
    return qgetenv("LIVE_ENTRY") == "Deferred";
}

/// The modes of this process.
QList<Mode> modes()
{
    QList<Mode> list;
    for (const bool isBlocking : {true, false}) {
        for (const Mode::Level level : {Mode::Wrapper, Mode::Connector, Mode::Machine})
            list.append({isBlocking, isPolledProcess(), level, isDeferredProcess()});
    }
    return list;
}

/// Runs a scenario up to its first failure.
/// @return the message of the failure; empty if there is none.
QString run(const Scenario& scenario, const Mode& mode, const QString& address)
{
    try {
        Stage stage(mode, address);
        scenario.run(stage, mode);
        return stage.isFinished() ? QString() : QStringLiteral("the scenario does not call finish()");
    } catch (const ScenarioFailure& failure) {
        // One message per line, because QtTest truncates long ones.
        for (const QString& line : failure.difference)
            qWarning("%s", qPrintable(line));
        return failure.step + QLatin1String(": lines differ (- expected, + seen)");
    }
}

} // namespace

void LiveTest::initTestCase()
{
    QVERIFY(m_bus.start());
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake, this,
            [this] { ++m_eventLoopRuns; });
}

void LiveTest::scenario_data()
{
    QTest::addColumn<Scenario>("scenario");
    QTest::addColumn<Mode>("mode");
    for (const Scenario& scenario : scenarios()) {
        for (const Mode& mode : modes()) {
            if (scenario.runsIn(mode))
                QTest::addRow("%s, %s", qPrintable(scenario.name), qPrintable(mode.name()))
                    << scenario << mode;
        }
    }
}

void LiveTest::scenario()
{
    QFETCH(Scenario, scenario);
    QFETCH(Mode, mode);
    const QString failure = run(scenario, mode, m_bus.address());
    QVERIFY2(failure.isEmpty(), qPrintable(failure));
}

void LiveTest::cleanupTestCase()
{
    // The processes that do run an event loop show that the count works.
    QCOMPARE(m_eventLoopRuns > 0, !isPolledProcess());
}
