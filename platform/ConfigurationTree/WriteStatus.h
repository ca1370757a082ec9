#pragma once

/// The status of a write to a node.
namespace WriteStatus {

constexpr int changed = 0;
constexpr int unchanged = 1;
constexpr int refused = 2;

} // namespace WriteStatus
