#pragma once

#include <QtCore/QDeadlineTimer>
#include <QtCore/QThread>

#include "WaitLimit.h"

/// Waits until `condition()` is true, without an event loop. @return false if it is not within a minute.
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
