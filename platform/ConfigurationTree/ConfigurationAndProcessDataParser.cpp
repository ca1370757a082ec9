#include "ConfigurationAndProcessDataParser.h"

#include "ConfigurationAndProcessDataDefinitions.h"
#include "ConfigurationAndProcessDataTools.h"
#include "ConfigurationDataNode.h"
#include "JsonCursor.h"
#include "JsonValueReader.h"

// Qt's own JSON document would take three times the memory of the nodes while they are made, and accepts
// texts that are no JSON. Here the text is checked as a whole first; the nodes are then read off it without a
// structure in between.

namespace {

using Definitions = ConfigurationAndProcessDataDefinitions;
using NodePointer = QSharedPointer<ConfigurationDataNode>;

bool isObject(QStringView text)
{
    JsonCursor cursor(text);
    return cursor.peek() == QLatin1Char('{') && cursor.skipValue() && cursor.isAtEnd();
}

bool isNull(JsonValueReader& reader)
{
    return reader.cursor().peek() == QLatin1Char('n');
}

BaseClassSharedPointer readChild(JsonValueReader& reader);

void readValue(JsonValueReader& reader, ConfigurationDataNode& node)
{
    if (reader.cursor().peek() == QLatin1Char('['))
        node.storeArrayText(reader.cursor().readRaw().toUtf8());
    else
        node.storeProperty(Definitions::getKeyDataPropertyValue(), reader.readValue());
}

QString readKey(JsonValueReader& reader)
{
    const QString key = reader.readString();
    reader.cursor().take(':');
    return key;
}

void readMember(JsonValueReader& reader, const QString& key, ConfigurationDataNode& node)
{
    if (!key.startsWith(QLatin1Char('@')))
        node.insertChild(key, readChild(reader));
    else if (key == Definitions::getKeyDataPropertyValue())
        readValue(reader, node);
    else
        node.storeProperty(key, reader.readValue());
}

bool isOfNumberType(const ConfigurationDataNode& node)
{
    return node.getProperty(Definitions::getKeyDataPropertyType()).toString() ==
           Definitions::getKeyDataTypeNumber();
}

NodePointer readNode(JsonValueReader& reader)
{
    const NodePointer node = NodePointer::create();
    bool isValueNull = false;
    reader.cursor().take('{');
    while (!reader.cursor().take('}')) {
        const QString key = readKey(reader);
        if (key == Definitions::getKeyDataPropertyValue())
            isValueNull = isNull(reader);
        readMember(reader, key, *node);
        reader.cursor().take(',');
    }
    // Only now: the type may stand behind the value.
    if (isValueNull && isOfNumberType(*node))
        node->storeProperty(Definitions::getKeyDataPropertyValue(),
                            ConfigurationAndProcessDataTools::getNoInputValueIndicator());
    return node;
}

BaseClassSharedPointer readChild(JsonValueReader& reader)
{
    if (reader.cursor().peek() == QLatin1Char('{'))
        return readNode(reader);
    if (isNull(reader)) {
        reader.readValue();
        return {};
    }
    const NodePointer leaf = NodePointer::create();
    readValue(reader, *leaf);
    return leaf;
}

} // namespace

BaseClassSharedPointer ConfigurationAndProcessDataParser::parseFromJson(const QString& json,
                                                                        const QString& fileExtension) const
{
    QStringView text(json);
    if (text.startsWith(QChar::ByteOrderMark))
        text = text.mid(1);
    if (fileExtension != QLatin1String("json") || !isObject(text))
        return {};
    JsonValueReader reader(text);
    return readNode(reader);
}
