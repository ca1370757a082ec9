#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <memory>
#include <optional>
#include <vector>

#include "DocumentProblem.h"
#include "JsonTree.h"

/// A value in a JSON document: a small reference, valid as long as the document or a copy of it exists.
class JsonValue
{
public:
    JsonType type() const;

    /// The value of a boolean; false for another type.
    bool boolean() const;
    /// The value of a number, rounded to the nearest double; 0 for another type.
    double number() const;
    /// The value of a string; empty for another type.
    QString string() const;

    /// The members of an object or the elements of an array, in document order; none for another type.
    std::vector<JsonValue> children() const;
    /// The member of an object under a name; no value if there is none.
    std::optional<JsonValue> member(const QString& name) const;

    /// The name of a member; empty for an element and for the root.
    QString name() const;
    /// Whether the name of a member is @p utf8. Faster than to compare name().
    bool isNamed(const QByteArray& utf8) const;
    /// Where the name begins, with its quote; the value's place for an element and for the root.
    TextPlace namePlace() const;
    /// Where the value begins.
    TextPlace place() const;
    /// The offsets of namePlace() and place() in the text, in bytes; see TextPlaces.
    int nameOffset() const;
    int offset() const;
    /// Names and indices (from 0) from the root to this value, such as "Pressure/Bar/Polynomial/0"; empty for
    /// the root.
    QString path() const;

private:
    friend class JsonDocument;

    JsonValue(const JsonTree& tree, quint32 index);
    const JsonTree::Node& node() const;
    const char* begin() const;

    const JsonTree* m_tree;
    quint32 m_index;
};

/// A JSON document whose root is an object and whose objects have no duplicate names: RFC 8259 in UTF-8, with
/// or without byte order mark, with at most 1024 levels, without numbers that exceed the range of double.
///
/// Immutable; copies share the content.
class JsonDocument
{
public:
    /// Reads a document. @return no value, and @p problem with its place, if it is not valid
    static std::optional<JsonDocument> read(const QByteArray& bytes, DocumentProblem& problem);

    JsonValue root() const;
    /// The whole text, without byte order mark.
    QString text() const;
    /// The same in UTF-8.
    const QByteArray& bytes() const;

private:
    explicit JsonDocument(JsonTree tree);

    std::shared_ptr<const JsonTree> m_tree;
};
