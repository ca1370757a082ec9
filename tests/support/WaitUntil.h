#pragma once

#include <QtCore/QDeadlineTimer>
#include <QtCore/QThread>

#include "WaitLimit.h"

/// Waits until `condition()` holds, without running an event loop. @return false when it does not within a
/// minute.
template <typename Condition>
bool waitUntil(Condition condition)
{
    const QDeadlineTimer deadline(waitLimit);
    while (!condition()) {
        if (deadline.hasExpired())
            return false;
        QThread::msleep(1);
    }
    return true;
}
