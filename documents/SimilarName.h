#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

/// Suggestions for misspelt names.
namespace SimilarName {

/// The number of characters that are wrong in @p name if @p meant is meant, regardless of case.
///
/// @return no value if it is a different name: for more than two wrong characters, or if no character of one
/// of the names would be right, and for very long names
std::optional<int> slips(const QString& name, const QString& meant);

/// The name of the list with the fewest slips; the first one if several have.
///
/// @return empty if there is none, or if more than 1000 names are known
QString of(const QString& name, const QStringList& known);

} // namespace SimilarName
