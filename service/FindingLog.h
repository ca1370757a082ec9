#pragma once

#include "DocumentChecker.h"

/// Findings in the service's log.
namespace FindingLog {

/// Logs a warning as "NAME: PATH:LINE:COLUMN: TEXT [RULE]". Ignores findings that are not warnings.
///
/// @param name name of the document on the bus
/// @param path path of its file
void writeWarning(const QString& name, const QString& path, const Finding& finding);

} // namespace FindingLog
