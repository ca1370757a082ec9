#pragma once

#include <QtCore/QString>

#include "PrivateBus.h"
#include "WaitLimit.h"

// The environment variables that select the device's bus for this process. They remain set, so that no test
// ever falls back to the user's bus.

/// Sets the device's bus to a D-Bus address, and the time-out of its calls to @p callTimeout milliseconds.
void useDeviceBus(const QString& address, int callTimeout = waitLimit);

/// Makes a private bus the device's bus, see useDeviceBus(), and starts it.
/// @return false if it does not start within a minute
bool startDeviceBus(PrivateBus& bus, int callTimeout = waitLimit);

/// Sets the time-out, in milliseconds, of later calls and of opening the bus.
void setCallTimeout(int milliseconds);
