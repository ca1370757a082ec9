#pragma once

#include <QtCore/QString>

#include <array>
#include <istream>

/// Reads text line by line in a fixed amount of memory, regardless of the length of the text or its lines.
class LineReader
{
public:
    /// @param source must outlive the reader
    explicit LineReader(std::istream& source);

    /// Reads the next line. May block. @return false at the end of the input or if it cannot be read
    bool next();
    /// Whether next() may block because no input is available yet.
    bool mayBlock() const;
    /// Whether reading ended because of an error rather than the end of the input.
    bool hasFailed() const;
    /// The line without surrounding blanks and carriage return. A line of 4096 bytes or more is truncated and
    /// ends with "...".
    QString text() const;
    /// The line's number, from 1; empty lines count.
    qint64 number() const;

private:
    std::istream& m_input;
    std::array<char, 4096> m_buffer{};
    qint64 m_lineNumber = 0;
    int m_length = 0;
    bool m_isCut = false;
};
