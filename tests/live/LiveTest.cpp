#include "LiveTest.h"

#include <QtCore/QAbstractEventDispatcher>
#include <QtTest/QTest>

#include <algorithm>

#include "Stage.h"

namespace {

Mode::Changes changesOfProcess()
{
    return qgetenv("LIVE_CHANGES") == "Polled" ? Mode::Polled : Mode::Delivered;
}

Mode::Entry entryOfProcess()
{
    return qgetenv("LIVE_ENTRY") == "Deferred" ? Mode::Deferred : Mode::Immediate;
}

/// The modes of this process.
QList<Mode> modes()
{
    QList<Mode> list;
    for (const Mode::Reading reading : {Mode::Blocking, Mode::Asynchronous}) {
        for (const Mode::Level level : {Mode::Wrapper, Mode::Connector, Mode::Machine})
            list.append({reading, changesOfProcess(), level, entryOfProcess()});
    }
    return list;
}

bool isPlayedIn(const Situation& situation, const Mode& mode)
{
    return std::any_of(situation.modes.begin(), situation.modes.end(),
                       [&mode](const QString& condition) { return mode.fulfils(condition); });
}

/// Both records in full; nothing when they are the same.
QStringList difference(const QStringList& actual, const QStringList& expected)
{
    if (actual == expected)
        return {};
    QStringList text;
    const int lineCount = std::max(actual.size(), expected.size());
    for (int i = 0; i < lineCount; ++i) {
        if (actual.value(i) == expected.value(i)) {
            text.append(QLatin1String("    ") + actual.at(i));
            continue;
        }
        if (i < expected.size())
            text.append(QLatin1String("  - ") + expected.at(i));
        if (i < actual.size())
            text.append(QLatin1String("  + ") + actual.at(i));
    }
    return text;
}

} // namespace

void LiveTest::initTestCase()
{
    QVERIFY(m_bus.start());
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake, this,
            [this] { ++m_eventLoopRuns; });
}

void LiveTest::situation_data()
{
    QTest::addColumn<Situation>("situation");
    QTest::addColumn<Mode>("mode");
    for (const Situation& situation : situations()) {
        for (const Mode& mode : modes()) {
            if (isPlayedIn(situation, mode))
                QTest::addRow("%s, %s", qPrintable(situation.name),
                              qPrintable(mode.words().join(QLatin1Char(' '))))
                    << situation << mode;
        }
    }
}

void LiveTest::situation()
{
    QFETCH(Situation, situation);
    QFETCH(Mode, mode);

    QStringList record;
    {
        const PrivateBus& bus = situation.world.hasBus ? m_bus : m_neverStartedBus;
        Stage stage(mode, bus.address(), situation.world);
        for (const Step& step : qAsConst(situation.script))
            step(stage);
        record = stage.takeRecord();
    }
    const QStringList lines = difference(record, mode.expected(situation.record));
    // Line by line, because the message of a failure is cut.
    for (const QString& line : lines)
        qWarning("%s", qPrintable(line));
    QVERIFY2(lines.isEmpty(), "the record differs (- expected, + seen)");
}

void LiveTest::cleanupTestCase()
{
    // That event loops are noticed is shown by the processes in which they run.
    QCOMPARE(m_eventLoopRuns > 0, changesOfProcess() == Mode::Delivered);
}
