#pragma once

/// Decides what becomes of the library's log messages. The program words its own errors, so they are dropped
/// unless the user asks for them. One thread.
namespace MessageFilter {

/// From now on messages go through the filter.
void install();
/// From now on they are printed on standard error, "unitmanager: " before each.
void setVerbose();

} // namespace MessageFilter
