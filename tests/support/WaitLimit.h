#pragma once

/// How long a test waits at most for what must happen, in milliseconds: enough for a machine that is busy
/// with more.
constexpr int waitLimit = 60000;
