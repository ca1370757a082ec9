#pragma once

#include <QtCore/QList>
#include <QtCore/QObject>

#include "Mode.h"
#include "PrivateBus.h"
#include "Situation.h"

/// The frame of the tests that play situations on a bus of their own: each situation in every mode that it is
/// meant for.
///
/// How changes are heard of and when states are entered is fixed for a process, so that where changes are
/// polled no event loop has ever run in it. The environment names both: LIVE_CHANGES is "Delivered" or
/// "Polled", LIVE_ENTRY is "Immediate" or "Deferred". Deferred entry needs the state machine that does so in
/// place of the platform's.
class LiveTest : public QObject
{
    Q_OBJECT

protected:
    virtual QList<Situation> situations() const = 0;

private Q_SLOTS:
    void initTestCase();
    void situation_data();
    void situation();
    void cleanupTestCase();

private:
    PrivateBus m_bus;
    PrivateBus m_neverStartedBus;
    int m_eventLoopRuns = 0;
};
