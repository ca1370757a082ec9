#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <string_view>
#include <utility>
#include <vector>

#include "DocumentProblem.h"
#include "JsonTree.h"

/// Reads a JSON text into a tree. Does not use recursion, so nesting cannot exhaust the stack.
class JsonReader
{
public:
    /// Objects and arrays within each other, the root included.
    static constexpr std::size_t maxDepth = 1024;

    /// @param bytes without byte order mark
    explicit JsonReader(const QByteArray& bytes);

    /// Reads the text once. @return whether it is valid
    bool read();

    /// The tree of a valid text.
    JsonTree takeTree();
    /// The first problem of an invalid text. A duplicate name counts at the end of its object.
    const DocumentProblem& problem() const;

private:
    bool readItem();
    bool readName(quint32& name);
    bool readValue(quint32 name);
    bool readWord(quint32 name);
    bool readNumber();
    bool readString();
    bool readEscape();
    bool readCodeUnits();
    bool open(JsonType type, quint32 name);
    bool close();
    bool checkNames(quint32 object);

    void add(JsonType type, quint32 name);
    void skipBlanks();
    bool skipDigits();
    bool isAtEnd() const;
    quint32 offset() const;

    using Kind = DocumentProblem::Kind;

    bool fail(const char* at, const QString& reason, Kind kind = Kind::Syntax);
    bool failExpecting(const char* expected);
    TextPlace placeOf(const char* at) const;

    JsonTree m_tree;
    const char* const m_begin;
    const char* const m_end;
    const char* m_at;
    /// The nodes of the objects and arrays that are still open.
    std::vector<quint32> m_open;
    /// Names of one object with their nodes; a member only to reuse its memory.
    std::vector<std::pair<std::string_view, quint32>> m_names;
    DocumentProblem m_problem;
};
