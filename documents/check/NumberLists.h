#pragma once

#include "Findings.h"

/// Checks lists of numbers: the coefficients of polynomials and the rows of tables.
namespace NumberLists {

/// Checks a list of rows, and reports its first mistake.
///
/// @param columns the numbers of a row: 1 or 2
/// @return whether the list is valid
bool check(const JsonValue& list, const QString& path, std::size_t columns, Findings& findings);

/// Reports a value that is not a number. @return whether it is one
bool checkNumber(const JsonValue& value, const QString& path, Findings& findings);

} // namespace NumberLists
