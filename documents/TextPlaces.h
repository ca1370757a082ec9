#pragma once

#include <QtCore/QByteArray>

#include <vector>

#include "DocumentProblem.h"

/// Finds the line and column of many offsets of one text. Every look-up takes the same short time, no matter
/// how long the text or its lines are.
class TextPlaces
{
public:
    /// @param utf8 valid UTF-8; shared, not copied
    explicit TextPlaces(const QByteArray& utf8);

    /// @param offset of a character or of the end of the text, in bytes
    TextPlace of(int offset) const;

private:
    const QByteArray m_text;
    /// The places of the first byte of every block.
    std::vector<TextPlace> m_blocks;
};
