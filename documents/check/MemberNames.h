#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include "JsonDocument.h"

/// Suggestions for misspelt members of an object.
namespace MemberNames {

/// "did you mean "NAME"?" with the most similar name of the list; empty if none is similar.
QString suggestion(const QString& name, const QStringList& known);

/// The name of a member that is similar to a missing one; empty if the object has the member, or none
/// similar.
QString misspelling(const JsonValue& object, const QString& missing);

/// What to do about a missing member: to correct a misspelt one if there is one, else @p otherwise.
QString adviceForMissing(const JsonValue& object, const QString& missing, const QString& otherwise);

} // namespace MemberNames
