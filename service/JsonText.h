#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QJsonObject>
#include <QtCore/QString>

/// A JSON text whose root is an object, or the reason why the bytes are not such a text.
struct JsonText
{
    /// Without byte order mark.
    QString text;
    QJsonObject root;
    /// Empty if the text is valid. Includes line and column (characters, from 1) if the problem has a
    /// position.
    QString problem;

    /// Reads UTF-8 bytes, as strictly as the parser of the configuration tree.
    static JsonText fromBytes(const QByteArray& bytes);
};
