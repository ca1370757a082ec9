#include "Utf8.h"

#include <algorithm>

namespace {

bool isContinuationByte(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// The length of the valid character at @p begin, in bytes; 0 if it is invalid or incomplete.
int characterLength(const char* begin, const char* end)
{
    const auto first = static_cast<unsigned char>(*begin);
    if (first < 0x80U)
        return 1;
    // No valid character begins with a continuation byte, with 0xC0 or 0xC1 (which only encode characters of
    // one byte), or with a byte above 0xF4 (beyond the last character).
    if (first < 0xC2U || first > 0xF4U)
        return 0;
    const int length = first < 0xE0U ? 2 : (first < 0xF0U ? 3 : 4);
    if (end - begin < length || !std::all_of(begin + 1, begin + length, isContinuationByte))
        return 0;
    const auto second = static_cast<unsigned char>(begin[1]);
    const bool isOverlong = (first == 0xE0U && second < 0xA0U) || (first == 0xF0U && second < 0x90U);
    const bool isSurrogate = first == 0xEDU && second >= 0xA0U;
    const bool isBeyondLast = first == 0xF4U && second >= 0x90U;
    return isOverlong || isSurrogate || isBeyondLast ? 0 : length;
}

} // namespace

QByteArray Utf8::withoutByteOrderMark(const QByteArray& bytes)
{
    return bytes.startsWith("\xEF\xBB\xBF") ? bytes.mid(3) : bytes;
}

int Utf8::firstInvalidByte(const QByteArray& bytes)
{
    const char* at = bytes.begin();
    while (at != bytes.end()) {
        const int length = characterLength(at, bytes.end());
        if (length == 0)
            return static_cast<int>(at - bytes.begin());
        at += length;
    }
    return -1;
}

TextPlace Utf8::placeOf(const QByteArray& bytes, int offset)
{
    const char* const at = bytes.begin() + offset;
    const auto lines = std::count(bytes.begin(), at, '\n');
    const char* const lineStart =
        std::find(std::make_reverse_iterator(at), std::make_reverse_iterator(bytes.begin()), '\n').base();
    const auto characters = std::count_if(lineStart, at, [](char byte) { return !isContinuationByte(byte); });
    return {static_cast<int>(lines) + 1, static_cast<int>(characters) + 1};
}
