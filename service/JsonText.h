#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QJsonObject>
#include <QtCore/QString>

/// A JSON text whose root is an object, or why bytes are none.
struct JsonText
{
    /// Without byte order mark.
    QString text;
    QJsonObject root;
    /// Empty when the text is good; with line and column (characters, from 1) where there is such a place.
    QString problem;

    /// Reads UTF-8 bytes, as strictly as the parser of the configuration tree does.
    static JsonText fromBytes(const QByteArray& bytes);
};
