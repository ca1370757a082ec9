#pragma once

#include <vector>

#include "DocumentChecker.h"

class CheckedDocuments;

/// Findings for people.
namespace FindingText {

/// Prints every finding as "FILE:LINE:COLUMN: SEVERITY: MESSAGE [RULE]" with the line of the document and a
/// caret below the place, and finally the number of findings. Severities have colors; see
/// Console::setColor().
void print(const std::vector<Finding>& findings, const CheckedDocuments& documents);

} // namespace FindingText
