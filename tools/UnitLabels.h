#pragma once

#include <QtCore/QHash>
#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include "JsonDocument.h"

/// The labels of a unit document by language. The library shows one label at a time, and does not tell in
/// which language it is.
///
/// Unit types are named without prefix.
class UnitLabels
{
public:
    UnitLabels() = default;
    explicit UnitLabels(const JsonDocument& document);

    /// The labels of a unit by language. The language of a label that is a plain text is "*", which means
    /// all.
    QMap<QString, QString> labels(const QString& type, const QString& unit) const;
    /// The languages of all labels, "en" first, then by name.
    QStringList languages() const;

private:
    /// By "TYPE/UNIT".
    QHash<QString, QMap<QString, QString>> m_labels;
};
