#pragma once

/// Filters the library's log messages. The program prints its own errors, so log messages are dropped unless
/// the user requests them. For one thread only.
namespace MessageFilter {

/// Installs the filter as message handler.
void install();
/// From now on messages are printed to standard error, each after "unitmanager: ".
void setVerbose();

} // namespace MessageFilter
