#include "JsonReader.h"

#include <QtCore/QStringList>

#include <algorithm>
#include <cmath>
#include <deque>

#include "JsonString.h"
#include "Utf8.h"

namespace {

const int longestSurelyFinite = 300;
const char* const notANumber = "NaN and infinity are not numbers in JSON";

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

bool isLetter(char character)
{
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

bool isHighSurrogate(int codeUnit)
{
    return codeUnit >= 0xD800 && codeUnit < 0xDC00;
}

bool isLowSurrogate(int codeUnit)
{
    return codeUnit >= 0xDC00 && codeUnit < 0xE000;
}

} // namespace

JsonReader::JsonReader(const QByteArray& bytes)
    : m_tree{bytes, {}},
      m_begin(m_tree.bytes.constData()),
      m_end(m_begin + m_tree.bytes.size()),
      m_at(m_begin)
{}

bool JsonReader::read()
{
    const int invalid = Utf8::firstInvalidByte(m_tree.bytes);
    if (invalid >= 0)
        return fail(m_begin + invalid, "not UTF-8; save the document in that encoding", Kind::Encoding);
    // Every value but the root follows a comma or an opening bracket.
    const auto most =
        std::count_if(m_begin, m_end, [](char byte) { return byte == ',' || byte == '{' || byte == '['; });
    m_tree.nodes.reserve(static_cast<std::size_t>(most) + 1);

    skipBlanks();
    if (isAtEnd()) {
        m_problem = {"is empty", {}, Kind::Empty};
        return false;
    }
    if (*m_at != '{')
        return failExpecting("\"{\" at the start of the document");
    open(JsonType::Object, JsonTree::noName);
    while (!m_open.empty()) {
        if (!readItem())
            return false;
    }
    skipBlanks();
    return isAtEnd() || failExpecting("the end of the document");
}

JsonTree JsonReader::takeTree()
{
    return std::move(m_tree);
}

const DocumentProblem& JsonReader::problem() const
{
    return m_problem;
}

/// Reads the next member or element of the innermost open object or array, or its closing bracket.
bool JsonReader::readItem()
{
    const quint32 container = m_open.back();
    const bool isObject = m_tree.nodes[container].type == JsonType::Object;
    const bool isFirst = container + 1 == m_tree.nodes.size();
    const char closing = isObject ? '}' : ']';
    skipBlanks();
    if (*m_at == closing)
        return close();
    if (!isFirst) {
        if (*m_at != ',')
            return failExpecting(isObject ? R"("," or "}")" : R"("," or "]")");
        const char* const comma = m_at++;
        skipBlanks();
        if (*m_at == closing)
            return fail(comma, QStringLiteral("remove the comma before \"%1\"").arg(QLatin1Char(closing)));
    }
    quint32 name = JsonTree::noName;
    return (!isObject || readName(name)) && readValue(name);
}

bool JsonReader::readName(quint32& name)
{
    if (*m_at != '"')
        return failExpecting("a name in double quotes");
    name = offset();
    if (!readString())
        return false;
    skipBlanks();
    if (*m_at != ':')
        return failExpecting("\":\" after the name");
    ++m_at;
    skipBlanks();
    return true;
}

bool JsonReader::readValue(quint32 name)
{
    switch (*m_at) {
    case '{':
        return open(JsonType::Object, name);
    case '[':
        return open(JsonType::Array, name);
    case '"':
        add(JsonType::String, name);
        return readString();
    case '.':
        return fail(m_at, "write a digit before the decimal point, as in 0.5");
    case '+':
        return fail(m_at, "remove the \"+\"");
    default:
        break;
    }
    if (isLetter(*m_at))
        return readWord(name);
    if (*m_at != '-' && !isDigit(*m_at))
        return failExpecting("a value");
    add(JsonType::Number, name);
    return readNumber();
}

bool JsonReader::readWord(quint32 name)
{
    const char* const end = std::find_if_not(
        m_at, m_end, [](char byte) { return isLetter(byte) || isDigit(byte) || byte == '_'; });
    const QString word = QString::fromLatin1(m_at, static_cast<int>(end - m_at));
    const QString lowerCase = word.toLower();
    const bool isBoolean = lowerCase == QLatin1String("true") || lowerCase == QLatin1String("false");
    if (isBoolean || lowerCase == QLatin1String("null")) {
        if (word != lowerCase)
            return fail(m_at, "write " + DocumentProblem::quoted(lowerCase) + " in lower case");
        add(isBoolean ? JsonType::Boolean : JsonType::Null, name);
        m_at = end;
        return true;
    }
    if (QStringList{"nan", "inf", "infinity"}.contains(lowerCase))
        return fail(m_at, notANumber);
    return fail(m_at, "unknown word " + DocumentProblem::quoted(word) + "; write text in double quotes");
}

bool JsonReader::readNumber()
{
    const char* const start = m_at;
    if (*m_at == '-')
        ++m_at;
    if (isLetter(*m_at))
        return fail(start, notANumber);
    if (*m_at == '.')
        return fail(m_at, "write a digit before the decimal point, as in 0.5");
    if (*m_at == '0' && isDigit(m_at[1]))
        return fail(m_at, "remove the leading zero");
    if (!skipDigits())
        return fail(m_at, "write a digit after \"-\"");

    const char* const point = m_at;
    if (*m_at == '.' && !(++m_at, skipDigits()))
        return fail(point, "write a digit after the decimal point, as in 1.0");
    const bool hasExponent = *m_at == 'e' || *m_at == 'E';
    if (hasExponent) {
        ++m_at;
        if (*m_at == '+' || *m_at == '-')
            ++m_at;
        if (!skipDigits())
            return fail(m_at, "write a digit in the exponent, as in 1e3");
    }
    // Without exponent, only a very long number can be too large.
    const bool mayBeTooLarge = hasExponent || m_at - start > longestSurelyFinite;
    if (mayBeTooLarge &&
        std::isinf(QByteArray::fromRawData(start, static_cast<int>(m_at - start)).toDouble()))
        return fail(start, "too large for a number of double precision, whose limit is about 1.8e308",
                    Kind::NumberOverflow);
    return true;
}

bool JsonReader::readString()
{
    const char* const start = m_at++;
    while (m_at != m_end && *m_at != '"') {
        const auto byte = static_cast<unsigned char>(*m_at);
        if (byte == '\n' || byte == '\r')
            return fail(m_at, "close the string before the end of the line; write a line break in it as \\n");
        if (byte == '\t')
            return fail(m_at, "write a tab in a string as \\t");
        if (byte < 0x20U)
            return fail(m_at, QStringLiteral("write a control character in a string as \\u%1")
                                  .arg(byte, 4, 16, QLatin1Char('0')));
        if (byte != '\\')
            ++m_at;
        else if (!readEscape())
            return false;
    }
    if (isAtEnd())
        return fail(start, "the string is not closed");
    ++m_at;
    return true;
}

bool JsonReader::readEscape()
{
    if (m_at[1] == 'u')
        return readCodeUnits();
    if (m_at[1] == '\0' || std::string_view("\"\\/bfnrt").find(m_at[1]) == std::string_view::npos)
        return fail(m_at, "unknown escape sequence; write a backslash in a string as \\\\");
    m_at += 2;
    return true;
}

/// Reads one "\uXXXX", or two that form a surrogate pair.
bool JsonReader::readCodeUnits()
{
    const char* const start = m_at;
    const int unit = JsonString::codeUnit(start + 2, m_end);
    m_at += 6;
    if (unit < 0)
        return fail(start, "write four hexadecimal digits after \\u");
    if (!isHighSurrogate(unit) && !isLowSurrogate(unit))
        return true;
    const bool isPair = isHighSurrogate(unit) && m_end - m_at > 2 && m_at[0] == '\\' && m_at[1] == 'u' &&
                        isLowSurrogate(JsonString::codeUnit(m_at + 2, m_end));
    if (!isPair)
        return fail(start, "half of a surrogate pair; write both halves");
    m_at += 6;
    return true;
}

bool JsonReader::open(JsonType type, quint32 name)
{
    if (m_open.size() == maxDepth)
        return fail(m_at, QStringLiteral("nested too deeply; the limit is %1 levels").arg(maxDepth),
                    Kind::Nesting);
    m_open.push_back(static_cast<quint32>(m_tree.nodes.size()));
    add(type, name);
    ++m_at;
    return true;
}

bool JsonReader::close()
{
    JsonTree::Node& container = m_tree.nodes[m_open.back()];
    container.next = static_cast<quint32>(m_tree.nodes.size());
    if (container.type == JsonType::Object && !checkNames(m_open.back()))
        return false;
    m_open.pop_back();
    ++m_at;
    return true;
}

/// Fails at the first name that the object has had before.
bool JsonReader::checkNames(quint32 object)
{
    const std::vector<JsonTree::Node>& nodes = m_tree.nodes;
    std::deque<QByteArray> unescaped;
    m_names.clear();
    for (quint32 node = object + 1; node != nodes[object].next; node = nodes[node].next) {
        QByteArray name = JsonString::encoded(m_begin + nodes[node].name);
        if (name.contains('\\'))
            name = unescaped.emplace_back(JsonString::decoded(m_begin + nodes[node].name).toUtf8());
        m_names.emplace_back(std::string_view(name.constData(), static_cast<std::size_t>(name.size())), node);
    }
    std::sort(m_names.begin(), m_names.end());

    const auto hasSameName = [](const auto& left, const auto& right) {
        return left.first == right.first;
    };
    quint32 first = 0;
    quint32 second = nodes[object].next;
    for (auto pair = std::adjacent_find(m_names.begin(), m_names.end(), hasSameName); pair != m_names.end();
         pair = std::adjacent_find(pair + 1, m_names.end(), hasSameName)) {
        if (pair[1].second < second) {
            first = pair[0].second;
            second = pair[1].second;
        }
    }
    if (first == 0)
        return true;
    const TextPlace place = placeOf(m_begin + nodes[first].name);
    const char* const duplicate = m_begin + nodes[second].name;
    return fail(duplicate,
                "duplicate name " + DocumentProblem::quoted(JsonString::decoded(duplicate)) +
                    QStringLiteral("; first at line %1, column %2").arg(place.line).arg(place.column),
                Kind::DuplicateName);
}

void JsonReader::add(JsonType type, quint32 name)
{
    const auto index = static_cast<quint32>(m_tree.nodes.size());
    m_tree.nodes.push_back({name, offset(), index + 1, type});
}

void JsonReader::skipBlanks()
{
    while (*m_at == ' ' || *m_at == '\n' || *m_at == '\r' || *m_at == '\t')
        ++m_at;
}

/// @return whether there was a digit
bool JsonReader::skipDigits()
{
    const char* const start = m_at;
    while (isDigit(*m_at))
        ++m_at;
    return m_at != start;
}

bool JsonReader::isAtEnd() const
{
    return m_at == m_end;
}

quint32 JsonReader::offset() const
{
    return static_cast<quint32>(m_at - m_begin);
}

bool JsonReader::fail(const char* at, const QString& reason, Kind kind)
{
    m_problem = {reason, placeOf(at), kind};
    return false;
}

/// Fails at the next character, which the syntax does not allow there.
bool JsonReader::failExpecting(const char* expected)
{
    if (isAtEnd() && !m_open.empty()) {
        const TextPlace place = placeOf(m_begin + m_tree.nodes[m_open.back()].value);
        return fail(m_at, QStringLiteral("unexpected end; the \"%1\" at line %2, column %3 is not closed")
                              .arg(QLatin1Char(m_begin[m_tree.nodes[m_open.back()].value]))
                              .arg(place.line)
                              .arg(place.column));
    }
    const bool isSlashComment = *m_at == '/' && (m_at[1] == '/' || m_at[1] == '*');
    if (isSlashComment || *m_at == '#')
        return fail(m_at, "remove the comment; JSON has none");
    if (*m_at == '\'')
        return fail(m_at, "write double quotes instead of single quotes");
    return fail(m_at, QStringLiteral("expected ") + expected);
}

TextPlace JsonReader::placeOf(const char* at) const
{
    return Utf8::placeOf(m_tree.bytes, static_cast<int>(at - m_begin));
}
