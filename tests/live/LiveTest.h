#pragma once

#include <QtCore/QList>
#include <QtCore/QObject>

#include "PrivateBus.h"
#include "Scenario.h"

/// Base of the tests that run the whole library on a private bus: each scenario in each of its modes.
///
/// Two properties of the mode are the same for the whole process, so that a process that polls changes never
/// runs an event loop. The environment sets them: LIVE_CHANGES is "Delivered" or "Polled", LIVE_ENTRY is
/// "Immediate" or "Deferred". Deferred entry needs the state machine of the folder `machine` instead of the
/// platform's.
class LiveTest : public QObject
{
    Q_OBJECT

protected:
    virtual QList<Scenario> scenarios() const = 0;

private Q_SLOTS:
    void initTestCase();
    void scenario_data();
    void scenario();
    void cleanupTestCase();

private:
    PrivateBus m_bus;
    int m_eventLoopRuns = 0;
};
