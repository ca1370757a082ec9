#pragma once

/// Maximum wait of a test in milliseconds, sufficient for a busy machine.
constexpr int waitLimit = 60000;

/// A time-out in milliseconds that exceeds the time limit of every test program: code that waits for it fails
/// its test.
constexpr int endlessTimeout = 10 * waitLimit;
