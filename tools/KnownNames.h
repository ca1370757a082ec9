#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include "Result.h"

/// Words the failure of a look-up by name.
namespace KnownNames {

/// "unknown KIND 'NAME'CONTEXT; known: A, B, C; did you mean C?", the last part for a near miss only.
///
/// @param context what stands behind the name, such as " of Pressure"; may be empty
Failure unknown(const QString& kind, const QString& name, const QString& context, QStringList known);

/// "known: A, B, C", or "known: none".
QString list(QStringList known);

} // namespace KnownNames
