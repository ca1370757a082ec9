#pragma once

#include "JsonCursor.h"

#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtCore/QVector>

/// Turns JSON values into variants. Equal short strings of one text share their memory.
///
/// The text must be valid JSON and outlive the reader.
class JsonValueReader
{
public:
    explicit JsonValueReader(QStringView text);

    /// The place of the next value.
    JsonCursor& cursor();
    /// Reads a string.
    QString readString();
    /// Reads a value: `double`, `bool`, `QString`, `QVariantList`, `QVariantMap`; invalid for null.
    QVariant readValue();

private:
    QVariantList readArray();
    QVariantMap readObject();

    JsonCursor m_cursor;
    QVector<QString> m_recentStrings;
};
