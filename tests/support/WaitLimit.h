#pragma once

/// Maximum wait of a test in milliseconds, sufficient for a busy machine.
constexpr int waitLimit = 60000;
