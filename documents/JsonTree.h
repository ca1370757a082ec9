#pragma once

#include <QtCore/QByteArray>

#include <limits>
#include <vector>

enum class JsonType : quint8
{
    Null,
    Boolean,
    Number,
    String,
    Array,
    Object
};

/// The values of a JSON text in document order, as offsets into the text. Kept small, because a document may
/// have millions of values.
struct JsonTree
{
    static constexpr quint32 noName = std::numeric_limits<quint32>::max();

    struct Node
    {
        /// The opening quote of the name; noName for an element of an array and for the root.
        quint32 name;
        /// The first byte of the value.
        quint32 value;
        /// The index of the node after this one and its descendants.
        quint32 next;
        JsonType type;
    };

    QByteArray bytes;
    std::vector<Node> nodes;
};
