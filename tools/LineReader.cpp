#include "LineReader.h"

#include <limits>

LineReader::LineReader(std::istream& source) : m_input(source) {}

bool LineReader::next()
{
    m_input.getline(m_buffer.data(), static_cast<std::streamsize>(m_buffer.size()));
    const bool isEnd = m_input.eof();
    if (m_input.bad() || (m_input.fail() && isEnd))
        return false;

    ++m_lineNumber;
    m_isCut = m_input.fail();
    // gcount() includes the line feed, which is not stored.
    m_length = static_cast<int>(m_input.gcount()) - (isEnd || m_isCut ? 0 : 1);
    if (m_isCut) {
        m_input.clear();
        m_input.ignore(std::numeric_limits<std::streamsize>::max(), '\n');
    }
    return true;
}

bool LineReader::mayBlock() const
{
    return m_input.rdbuf()->in_avail() <= 0;
}

bool LineReader::hasFailed() const
{
    return m_input.bad();
}

QString LineReader::text() const
{
    const QString line = QString::fromUtf8(m_buffer.data(), m_length).trimmed();
    return m_isCut ? line + "..." : line;
}

qint64 LineReader::number() const
{
    return m_lineNumber;
}
