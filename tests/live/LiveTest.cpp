#include "LiveTest.h"

#include <QtCore/QAbstractEventDispatcher>
#include <QtTest/QTest>

#include "PrivateBus.h"

/// Runs the whole library on a private bus: each scenario of the program in each of its modes.
///
/// Two properties of the mode are the same for the whole process, so that a process that polls changes never
/// runs an event loop. The environment sets them: LIVE_CHANGES is "Delivered" or "Polled", LIVE_ENTRY is
/// "Immediate" or "Deferred". Deferred entry needs the state machine of the folder `machine` instead of the
/// platform's.
class LiveTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void scenario_data();
    void scenario();
    void cleanupTestCase();

private:
    PrivateBus m_bus;
    int m_eventLoopRuns = 0;
};

namespace {

bool isPolledProcess()
{
    return qgetenv("LIVE_CHANGES") == "Polled";
}

void addRow(const Scenario& scenario, const Mode& mode)
{
    static const char* const levels[] = {"wrapper", "connector", "machine"};
    QTest::addRow("%s, %s %s %s %s", qPrintable(scenario.name), mode.isBlocking ? "blocking" : "asynchronous",
                  mode.isPolled ? "polled" : "delivered", levels[mode.level],
                  mode.isDeferred ? "deferred" : "immediate")
        << scenario << mode;
}

/// Runs a scenario up to its first failure.
/// @return the message of the failure; empty if there is none.
QString run(const Scenario& scenario, const Mode& mode, const QString& address)
{
    try {
        Stage stage(mode, address);
        scenario.run(stage);
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
    const bool isDeferred = qgetenv("LIVE_ENTRY") == "Deferred";
    for (const Scenario& scenario : scenarios()) {
        for (const bool isBlocking : {true, false}) {
            for (const Mode::Level level : {Mode::Wrapper, Mode::Connector, Mode::Machine}) {
                const Mode mode{isBlocking, isPolledProcess(), level, isDeferred};
                if (scenario.runsIn(mode))
                    addRow(scenario, mode);
            }
        }
    }
}

void LiveTest::scenario()
{
    QFETCH(Scenario, scenario);
    QFETCH(Mode, mode);
    const QString failure = run(scenario, mode, m_bus.address());
    if (!failure.isEmpty())
        QFAIL(qPrintable(failure));
}

void LiveTest::cleanupTestCase()
{
    // The processes that do run an event loop show that the count works.
    QCOMPARE(m_eventLoopRuns > 0, !isPolledProcess());
}

QTEST_GUILESS_MAIN(LiveTest)

#include "LiveTest.moc"
