#include "LineReader.h"

#include <limits>

LineReader::LineReader(std::istream& source) : input(source) {}

bool LineReader::next()
{
    input.getline(buffer.data(), static_cast<std::streamsize>(buffer.size()));
    const bool isEnd = input.eof();
    if (input.bad() || (input.fail() && isEnd))
        return false;

    ++lineNumber;
    isCut = input.fail();
    // gcount() includes the line feed, which is not stored.
    length = static_cast<int>(input.gcount()) - (isEnd || isCut ? 0 : 1);
    if (isCut) {
        input.clear();
        input.ignore(std::numeric_limits<std::streamsize>::max(), '\n');
    }
    return true;
}

bool LineReader::mayBlock() const
{
    return input.rdbuf()->in_avail() <= 0;
}

bool LineReader::hasFailed() const
{
    return input.bad();
}

QString LineReader::text() const
{
    const QString line = QString::fromUtf8(buffer.data(), length).trimmed();
    return isCut ? line + "..." : line;
}

qint64 LineReader::number() const
{
    return lineNumber;
}
