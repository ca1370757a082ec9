#pragma once

#include <QtCore/QString>

#include <vector>

#include "DocumentChecker.h"

class CheckedDocuments;

/// Findings for other programs.
namespace SarifLog {

/// A log in the Static Analysis Results Interchange Format, version 2.1.0.
QString text(const std::vector<Finding>& findings, const CheckedDocuments& documents);

} // namespace SarifLog
