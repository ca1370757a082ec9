#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

/// Reasons of failures that concern unknown names.
namespace KnownNames {

/// "unknown KIND 'NAME'CONTEXT; known: A, B, C; did you mean C?"; the last part only if a name is similar.
///
/// @param context text after the name, such as " of Pressure"; may be empty
QString unknown(const QString& kind, const QString& name, const QString& context, QStringList known);

/// "known: A, B, C", or "known: none".
QString list(QStringList known);

} // namespace KnownNames
