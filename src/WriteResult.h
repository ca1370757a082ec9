#pragma once

/// The status that a node returns for a property write. Every value above WriteResult::unchanged means
/// failure.
namespace WriteResult {

constexpr int changed = 0;   ///< written, and different from the previous value
constexpr int unchanged = 1; ///< written, but equal to the previous value
constexpr int failed = 2;    ///< not written

/// Whether a write with this status stored the value.
constexpr bool isSuccess(int status)
{
    return status <= unchanged;
}

} // namespace WriteResult
