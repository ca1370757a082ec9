#pragma once

#include <QtCore/QString>

#include <array>
#include <istream>

/// Reads text line by line in a fixed amount of memory, however long the text or a line of it is.
class LineReader
{
public:
    /// @param source must outlive the reader
    explicit LineReader(std::istream& source);

    /// Goes to the next line. May block. @return false when there is none or the input cannot be read
    bool next();
    /// Whether next() may block: nothing of the input is at hand.
    bool mayBlock() const;
    /// Whether reading ended with an error of the input, not with its end.
    bool hasFailed() const;
    /// The line without blanks around it, carriage return included. A line of 4096 bytes or more comes cut,
    /// with "..." at its end.
    QString text() const;
    /// The line's number, from 1; every line counts.
    qint64 number() const;

private:
    std::istream& input;
    std::array<char, 4096> buffer{};
    qint64 lineNumber = 0;
    int length = 0;
    bool isCut = false;
};
