#include "ConfigurationAndProcessDataParser.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include "ConfigurationAndProcessDataDefinitions.h"
#include "ConfigurationAndProcessDataTools.h"
#include "NodeStorage.h"
#include "StoredNode.h"

namespace {

const QChar propertySign('@');
const QChar noteSign('$');

void readNode(NodeStorage& storage, int node, const QJsonObject& object);

void readProperty(NodeStorage& storage, int node, const QString& key, const QJsonValue& value)
{
    if (!value.isNull())
        storage.put(node, key, value.toVariant());
    else if (key == ConfigurationAndProcessDataDefinitions::getKeyDataPropertyValue())
        storage.put(node, key, ConfigurationAndProcessDataTools::getNoInputValueIndicator());
}

void readChild(NodeStorage& storage, int parent, const QString& key, const QJsonValue& value)
{
    if (value.isNull()) {
        storage.addEmptyEntry(parent, key);
        return;
    }
    const int node = storage.addNode(parent, key);
    if (value.isObject())
        readNode(storage, node, value.toObject());
    else
        readProperty(storage, node, ConfigurationAndProcessDataDefinitions::getKeyDataPropertyValue(), value);
}

void readNode(NodeStorage& storage, int node, const QJsonObject& object)
{
    for (auto member = object.begin(); member != object.end(); ++member) {
        if (member.key().startsWith(propertySign))
            readProperty(storage, node, member.key(), member.value());
        else if (node != NodeStorage::root || !member.key().startsWith(noteSign))
            readChild(storage, node, member.key(), member.value());
    }
}

} // namespace

BaseClassSharedPointer ConfigurationAndProcessDataParser::parseFromJson(const QString& json,
                                                                        const QString& fileExtension) const
{
    if (fileExtension != QLatin1String("json"))
        return {};
    const QJsonDocument document = QJsonDocument::fromJson(json.toUtf8());
    if (!document.isObject())
        return {};
    const auto storage = QSharedPointer<NodeStorage>::create();
    readNode(*storage, NodeStorage::root, document.object());
    return QSharedPointer<StoredNode>::create(storage, NodeStorage::root);
}
