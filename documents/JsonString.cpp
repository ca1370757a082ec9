#include "JsonString.h"

#include <algorithm>

namespace {

/// The character that an escape sequence encodes, given the character after its backslash. Quote, slash and
/// backslash encode themselves.
QChar unescaped(char letter)
{
    switch (letter) {
    case 'b':
        return QChar('\b');
    case 'f':
        return QChar('\f');
    case 'n':
        return QChar('\n');
    case 'r':
        return QChar('\r');
    case 't':
        return QChar('\t');
    default:
        return QChar(letter);
    }
}

/// The value of a hexadecimal digit; -1 for another character.
int valueOf(char digit)
{
    if (digit >= '0' && digit <= '9')
        return digit - '0';
    const char letter = static_cast<char>(digit | 0x20);
    return letter >= 'a' && letter <= 'f' ? letter - 'a' + 10 : -1;
}

} // namespace

QByteArray JsonString::encoded(const char* quote)
{
    const char* end = quote + 1;
    while (*end != '"')
        end += *end == '\\' ? 2 : 1;
    // The caller may need the bytes no longer than the text: nothing is copied.
    return QByteArray::fromRawData(quote + 1, static_cast<int>(end - quote) - 1);
}

QString JsonString::decoded(const char* quote)
{
    const QByteArray bytes = encoded(quote);
    QString text;
    const char* at = bytes.begin();
    while (true) {
        const char* const escape = std::find(at, bytes.end(), '\\');
        text += QString::fromUtf8(at, static_cast<int>(escape - at));
        if (escape == bytes.end())
            return text;
        const bool isCodeUnit = escape[1] == 'u';
        text += isCodeUnit ? QChar(codeUnit(escape + 2, bytes.end())) : unescaped(escape[1]);
        at = escape + (isCodeUnit ? 6 : 2);
    }
}

bool JsonString::equals(const char* quote, const QByteArray& utf8)
{
    const char* at = quote + 1;
    for (const char byte : utf8) {
        // The quote at the end ends the comparison, too.
        if (*at == '\\')
            return decoded(quote).toUtf8() == utf8;
        if (*at != byte || byte == '"')
            return false;
        ++at;
    }
    return *at == '"' || (*at == '\\' && decoded(quote).toUtf8() == utf8);
}

int JsonString::codeUnit(const char* digits, const char* end)
{
    const int length = 4;
    if (end - digits < length)
        return -1;
    int unit = 0;
    for (const char* digit = digits; digit != digits + length; ++digit) {
        const int value = valueOf(*digit);
        if (value < 0)
            return -1;
        unit = unit * 16 + value;
    }
    return unit;
}
