#include "JsonCursor.h"

#include <QtCore/QVarLengthArray>

#include <charconv>
#include <cmath>
#include <system_error>

namespace {

const int deepestNesting = 1024;

bool isDigit(QChar character)
{
    return character >= QLatin1Char('0') && character <= QLatin1Char('9');
}

bool isHexDigit(QChar character)
{
    return isDigit(character) || (character >= QLatin1Char('a') && character <= QLatin1Char('f')) ||
           (character >= QLatin1Char('A') && character <= QLatin1Char('F'));
}

bool isBlank(QChar character)
{
    return character == QLatin1Char(' ') || character == QLatin1Char('\n') ||
           character == QLatin1Char('\r') || character == QLatin1Char('\t');
}

bool isNumberCharacter(QChar character)
{
    return isDigit(character) || character == QLatin1Char('-') || character == QLatin1Char('+') ||
           character == QLatin1Char('.') || character == QLatin1Char('e') || character == QLatin1Char('E');
}

bool toDouble(QStringView digits, double& number)
{
    QVarLengthArray<char, 64> text;
    for (const QChar character : digits)
        text.append(character.toLatin1());
    const std::from_chars_result result = std::from_chars(text.begin(), text.end(), number);
    return result.ec == std::errc() && std::isfinite(number);
}

/// The character that an escape other than "u" stands for; a null character for no escape.
QChar escapedCharacter(QChar escape)
{
    switch (escape.unicode()) {
    case '"':
    case '\\':
    case '/':
        return escape;
    case 'b':
        return QLatin1Char('\b');
    case 'f':
        return QLatin1Char('\f');
    case 'n':
        return QLatin1Char('\n');
    case 'r':
        return QLatin1Char('\r');
    case 't':
        return QLatin1Char('\t');
    default:
        return {};
    }
}

} // namespace

JsonCursor::JsonCursor(QStringView text) : m_at(text.begin()), m_end(text.end()) {}

bool JsonCursor::isAtEnd()
{
    while (m_at != m_end && isBlank(*m_at))
        ++m_at;
    return m_at == m_end;
}

QChar JsonCursor::peek()
{
    return isAtEnd() ? QChar() : *m_at;
}

bool JsonCursor::take(char character)
{
    if (peek() != QLatin1Char(character))
        return false;
    ++m_at;
    return true;
}

bool JsonCursor::skipValue()
{
    return skipNested(0);
}

QStringView JsonCursor::readRaw()
{
    isAtEnd();
    const QChar* const start = m_at;
    skipValue();
    return {start, m_at};
}

QStringView JsonCursor::readRawString()
{
    take('"');
    const QChar* const start = m_at;
    skipString();
    return {start, m_at - 1};
}

double JsonCursor::readNumber()
{
    isAtEnd();
    const QChar* const start = m_at;
    while (m_at != m_end && isNumberCharacter(*m_at))
        ++m_at;
    double number = 0.0;
    toDouble({start, m_at}, number);
    return number;
}

bool JsonCursor::readBoolean()
{
    const bool isTrue = peek() == QLatin1Char('t');
    skipWord(isTrue ? u"true" : u"false");
    return isTrue;
}

QString JsonCursor::unescaped(QStringView raw)
{
    QString text;
    text.reserve(raw.length());
    for (qsizetype i = 0; i < raw.size(); ++i) {
        if (raw[i] != QLatin1Char('\\')) {
            text.append(raw[i]);
        } else if (raw[++i] != QLatin1Char('u')) {
            text.append(escapedCharacter(raw[i]));
        } else {
            text.append(QChar(raw.mid(i + 1, 4).toString().toUShort(nullptr, 16)));
            i += 4;
        }
    }
    return text;
}

/// @param depth the number of objects and arrays around the value.
bool JsonCursor::skipNested(int depth)
{
    const QChar first = peek();
    if (first == QLatin1Char('{') || first == QLatin1Char('[')) {
        const bool isObject = first == QLatin1Char('{');
        ++m_at;
        return depth < deepestNesting && skipContent(isObject ? '}' : ']', isObject, depth + 1);
    }
    if (take('"'))
        return skipString();
    if (first == QLatin1Char('t'))
        return skipWord(u"true");
    if (first == QLatin1Char('f'))
        return skipWord(u"false");
    if (first == QLatin1Char('n'))
        return skipWord(u"null");
    return skipNumber();
}

/// Past the members of an object or the elements of an array, and past the bracket that closes it.
bool JsonCursor::skipContent(char closing, bool isObject, int depth)
{
    if (take(closing))
        return true;
    do {
        if ((isObject && !skipMemberName()) || !skipNested(depth))
            return false;
    } while (take(','));
    return take(closing);
}

bool JsonCursor::skipMemberName()
{
    return take('"') && skipString() && take(':');
}

/// Past the rest of a string whose opening quote is passed already.
bool JsonCursor::skipString()
{
    while (m_at != m_end) {
        const QChar character = *m_at++;
        if (character == QLatin1Char('"'))
            return true;
        if (character < QLatin1Char(' '))
            return false;
        if (character == QLatin1Char('\\') && !skipEscape())
            return false;
        if (character.isSurrogate() && !skipSurrogatePair())
            return false;
    }
    return false;
}

/// Past the rest of an escape whose backslash is passed already.
bool JsonCursor::skipEscape()
{
    if (m_at == m_end)
        return false;
    const QChar kind = *m_at++;
    if (kind != QLatin1Char('u'))
        return !escapedCharacter(kind).isNull();
    for (int i = 0; i < 4; ++i) {
        if (m_at == m_end || !isHexDigit(*m_at++))
            return false;
    }
    return true;
}

/// Past the second half of a surrogate pair whose first half is passed already.
bool JsonCursor::skipSurrogatePair()
{
    return m_at[-1].isHighSurrogate() && m_at != m_end && (m_at++)->isLowSurrogate();
}

bool JsonCursor::skipNumber()
{
    const QChar* const start = m_at;
    if (m_at != m_end && *m_at == QLatin1Char('-'))
        ++m_at;
    const bool startsWithZero = m_at != m_end && *m_at == QLatin1Char('0');
    if (startsWithZero)
        ++m_at;
    else if (!skipDigits())
        return false;
    if (m_at != m_end && *m_at == QLatin1Char('.')) {
        ++m_at;
        if (!skipDigits())
            return false;
    }
    if (m_at != m_end && (*m_at == QLatin1Char('e') || *m_at == QLatin1Char('E'))) {
        ++m_at;
        if (m_at != m_end && (*m_at == QLatin1Char('+') || *m_at == QLatin1Char('-')))
            ++m_at;
        if (!skipDigits())
            return false;
    }
    double number = 0.0;
    return toDouble({start, m_at}, number);
}

/// Past one digit or more.
bool JsonCursor::skipDigits()
{
    const QChar* const start = m_at;
    while (m_at != m_end && isDigit(*m_at))
        ++m_at;
    return m_at != start;
}

bool JsonCursor::skipWord(QStringView word)
{
    if (!QStringView(m_at, m_end).startsWith(word))
        return false;
    m_at += word.size();
    return true;
}
