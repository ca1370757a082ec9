#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

/// Suggestions for misspelt names.
namespace SimilarName {

/// The name of the list that differs from @p name in at most two characters, regardless of case; the first
/// one if several do.
///
/// @return empty if there is none, or if more than 1000 names are known
QString of(const QString& name, const QStringList& known);

} // namespace SimilarName
