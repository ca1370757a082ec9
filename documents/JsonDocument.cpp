#include "JsonDocument.h"

#include <QtCore/QStringList>

#include <charconv>
#include <utility>

#include "JsonReader.h"
#include "JsonString.h"
#include "Utf8.h"

JsonValue::JsonValue(const JsonTree& tree, quint32 index) : m_tree(&tree), m_index(index) {}

JsonType JsonValue::type() const
{
    return node().type;
}

bool JsonValue::boolean() const
{
    return type() == JsonType::Boolean && *begin() == 't';
}

double JsonValue::number() const
{
    if (type() != JsonType::Number)
        return 0.0;
    // The number has been checked: it is valid and finite, or too small for a double.
    double value = 0.0;
    std::from_chars(begin(), m_tree->bytes.end(), value);
    return value;
}

QString JsonValue::string() const
{
    return type() == JsonType::String ? JsonString::decoded(begin()) : QString();
}

std::vector<JsonValue> JsonValue::children() const
{
    std::vector<JsonValue> result;
    std::size_t count = 0;
    for (quint32 child = m_index + 1; child != node().next; child = m_tree->nodes[child].next)
        ++count;
    result.reserve(count);
    for (quint32 child = m_index + 1; child != node().next; child = m_tree->nodes[child].next)
        result.push_back({*m_tree, child});
    return result;
}

std::optional<JsonValue> JsonValue::member(const QString& name) const
{
    if (type() != JsonType::Object)
        return {};
    const QByteArray utf8 = name.toUtf8();
    for (quint32 child = m_index + 1; child != node().next; child = m_tree->nodes[child].next) {
        const JsonValue value(*m_tree, child);
        if (value.isNamed(utf8))
            return value;
    }
    return {};
}

QString JsonValue::name() const
{
    return node().name == JsonTree::noName ? QString()
                                           : JsonString::decoded(m_tree->bytes.constData() + node().name);
}

bool JsonValue::isNamed(const QByteArray& utf8) const
{
    return node().name != JsonTree::noName &&
           JsonString::equals(m_tree->bytes.constData() + node().name, utf8);
}

TextPlace JsonValue::namePlace() const
{
    return Utf8::placeOf(m_tree->bytes, nameOffset());
}

TextPlace JsonValue::place() const
{
    return Utf8::placeOf(m_tree->bytes, offset());
}

int JsonValue::nameOffset() const
{
    return node().name == JsonTree::noName ? offset() : static_cast<int>(node().name);
}

int JsonValue::offset() const
{
    return static_cast<int>(node().value);
}

QString JsonValue::path() const
{
    QStringList sections;
    quint32 at = 0;
    while (at != m_index) {
        // Descends into the child that contains this value.
        quint32 child = at + 1;
        int position = 0;
        for (; m_tree->nodes[child].next <= m_index; child = m_tree->nodes[child].next)
            ++position;
        at = child;
        const JsonValue value(*m_tree, at);
        sections.append(value.node().name == JsonTree::noName ? QString::number(position) : value.name());
    }
    return sections.join(QLatin1Char('/'));
}

const JsonTree::Node& JsonValue::node() const
{
    return m_tree->nodes[m_index];
}

const char* JsonValue::begin() const
{
    return m_tree->bytes.constData() + node().value;
}

JsonDocument::JsonDocument(JsonTree tree) : m_tree(std::make_shared<const JsonTree>(std::move(tree))) {}

std::optional<JsonDocument> JsonDocument::read(const QByteArray& bytes, DocumentProblem& problem)
{
    JsonReader reader(Utf8::withoutByteOrderMark(bytes));
    if (reader.read())
        return JsonDocument(reader.takeTree());
    problem = reader.problem();
    return {};
}

JsonValue JsonDocument::root() const
{
    return {*m_tree, 0};
}

QString JsonDocument::text() const
{
    return QString::fromUtf8(m_tree->bytes);
}

const QByteArray& JsonDocument::bytes() const
{
    return m_tree->bytes;
}
