#pragma once

#include <QtCore/QJsonObject>
#include <QtCore/QJsonValue>
#include <QtCore/QString>
#include <QtCore/QVector>

#include <optional>

#include "DocumentChecker.h"
#include "JsonDocument.h"

/// A difference in meaning between two documents of one kind.
struct Difference
{
    /// Names from the root, such as "Pressure/Torr/Polynomial".
    QString path;
    /// The values; undefined if the document does not have the entry.
    QJsonValue before;
    QJsonValue after;
    /// One line for the user, such as "Pressure/Torr: DecimalPlaces changed: 1 -> 2".
    QString text;

    /// "added", "removed" or "changed".
    QString change() const;
    /// The members document, path, change, before and after; null in place of a missing value.
    QJsonObject toJson(const QString& document) const;
};

/// Compares documents by meaning: numbers as doubles, members in any order, `{"@value": x}` as x. Members of
/// the root whose names begin with "$" are ignored.
namespace DocumentDifferences {

/// The kind of a document, detected from its content: lists are dependencies, objects with "@type" or
/// "@value" are default units, other objects of objects are units.
///
/// @return no value for a document without entries, or with entries of several kinds
std::optional<DocumentKind> kindOf(const JsonDocument& document);

/// The differences, sorted by path.
QVector<Difference> between(const JsonDocument& before, const JsonDocument& after, DocumentKind kind);

} // namespace DocumentDifferences
