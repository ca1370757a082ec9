#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <vector>

/// A document that differs from a sound one in a single node.
struct ChangedDocument
{
    /// Such as "Pressure/Bar/Polynomial/1/0 = null" or "Pressure/Bar/UnitLabel removed".
    QString change;
    QByteArray text;
};

namespace DocumentChanges {

/// The document with each of its nodes removed, and replaced by values of every kind. The root stays an
/// object.
std::vector<ChangedDocument> of(const QByteArray& document);

} // namespace DocumentChanges
