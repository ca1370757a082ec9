#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVector>

/// A name that the user may mean.
struct KnownName
{
    /// The name as listed, such as "HectoPascal (hPa)".
    QString shown;
    /// What the user may type, such as "HectoPascal" and "hPa".
    QStringList spellings;
};

/// Reasons of failures that concern unknown names.
namespace KnownNames {

/// Names that are listed as they are typed.
QVector<KnownName> plain(const QStringList& names);

/// `unknown KIND "NAME"CONTEXT; known: A, B, C; did you mean C?`; see suggestion().
///
/// @param context text after the name, such as " of Pressure"; may be empty
QString unknown(const QString& kind, const QString& name, const QString& context,
                const QVector<KnownName>& known);

/// "A, B, C", or "none".
QString joined(const QVector<KnownName>& known);
/// "known: A, B, C", or "known: none".
QString list(const QVector<KnownName>& known);

/// "; did you mean A or B?" with the names that are most similar, regardless of case; empty if none is
/// similar.
QString suggestion(const QString& name, const QVector<KnownName>& known);

} // namespace KnownNames
