#include "JsonValueReader.h"

#include <QtCore/QHash>

namespace {

// Keys, languages and units repeat throughout a document. The table's size bounds what is kept for sharing,
// so that a document full of different strings costs nothing.
const uint sharedStringCount = 512;
const qsizetype longestSharedString = 64;

} // namespace

JsonValueReader::JsonValueReader(QStringView text) : m_cursor(text) {}

JsonCursor& JsonValueReader::cursor()
{
    return m_cursor;
}

QString JsonValueReader::readString()
{
    const QStringView raw = m_cursor.readRawString();
    if (raw.contains(QLatin1Char('\\')))
        return JsonCursor::unescaped(raw);
    if (raw.size() > longestSharedString)
        return raw.toString();
    if (m_recentStrings.isEmpty())
        m_recentStrings.resize(sharedStringCount);
    QString& recent = m_recentStrings[static_cast<int>(qHash(raw, 0) % sharedStringCount)];
    if (recent != raw)
        recent = raw.toString();
    return recent;
}

QVariant JsonValueReader::readValue()
{
    switch (m_cursor.peek().unicode()) {
    case '{':
        return readObject();
    case '[':
        return QVariant(readArray());
    case '"':
        return readString();
    case 't':
    case 'f':
        return m_cursor.readBoolean();
    case 'n':
        m_cursor.skipValue();
        return {};
    default:
        return m_cursor.readNumber();
    }
}

QVariantList JsonValueReader::readArray()
{
    QVariantList values;
    m_cursor.take('[');
    while (!m_cursor.take(']')) {
        values.append(readValue());
        m_cursor.take(',');
    }
    return values;
}

QVariantMap JsonValueReader::readObject()
{
    QVariantMap values;
    m_cursor.take('{');
    while (!m_cursor.take('}')) {
        const QString key = readString();
        m_cursor.take(':');
        values.insert(key, readValue());
        m_cursor.take(',');
    }
    return values;
}
