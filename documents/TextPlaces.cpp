#include "TextPlaces.h"

#include <algorithm>

namespace {

const int blockSize = 1024;

/// The place after @p count bytes, when the first of them is at @p place.
TextPlace advanced(TextPlace place, const char* bytes, int count)
{
    for (const char* at = bytes; at != bytes + count; ++at) {
        const bool isContinuation = (static_cast<unsigned char>(*at) & 0xC0U) == 0x80U;
        if (*at == '\n')
            place = {place.line + 1, 1};
        else if (!isContinuation)
            ++place.column;
    }
    return place;
}

} // namespace

TextPlaces::TextPlaces(const QByteArray& utf8) : m_text(utf8)
{
    m_blocks.reserve(static_cast<std::size_t>(m_text.size() / blockSize) + 1);
    TextPlace place{1, 1};
    for (int offset = 0; offset <= m_text.size(); offset += blockSize) {
        m_blocks.push_back(place);
        place = advanced(place, m_text.constData() + offset, std::min(blockSize, m_text.size() - offset));
    }
}

TextPlace TextPlaces::of(int offset) const
{
    const int block = offset / blockSize;
    const int start = block * blockSize;
    return advanced(m_blocks[static_cast<std::size_t>(block)], m_text.constData() + start, offset - start);
}
