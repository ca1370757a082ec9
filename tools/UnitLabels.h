#pragma once

#include <QtCore/QHash>
#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include "JsonDocument.h"

/// What the library does not keep of the document of units: display positions, and the labels by language.
///
/// Unit types are named without prefix.
class UnitDocument
{
public:
    UnitDocument() = default;
    explicit UnitDocument(const JsonDocument& document);

    /// The display position; infinity for a unit without one.
    double displayPosition(const QString& type, const QString& unit) const;
    /// The unit's labels by language. The language of a label that is a plain text is "*", which means all.
    QMap<QString, QString> labels(const QString& type, const QString& unit) const;
    /// The languages of all labels, "en" first, then by name.
    QStringList languages() const;

private:
    struct Unit
    {
        double displayPosition = 0;
        QMap<QString, QString> labels;
    };

    /// By "TYPE/UNIT".
    QHash<QString, Unit> m_units;
};
