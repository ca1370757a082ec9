#include "NodeStorage.h"

#include <algorithm>

#include "ConfigurationAndProcessDataDefinitions.h"
#include "ConfigurationAndProcessDataTools.h"

namespace {

using Definitions = ConfigurationAndProcessDataDefinitions;

/// All numbers are stored as `double`, also inside lists and maps.
QVariant asStored(const QVariant& value)
{
    if (ConfigurationAndProcessDataTools::isVariantNumber(value))
        return value.toDouble();
    if (value.userType() == QMetaType::QVariantList) {
        QVariantList list = value.toList();
        std::transform(list.cbegin(), list.cend(), list.begin(), asStored);
        return QVariant(list);
    }
    if (value.userType() == QMetaType::QVariantMap) {
        QVariantMap map = value.toMap();
        for (QVariant& entry : map)
            entry = asStored(entry);
        return map;
    }
    return value;
}

/// The type of a node whose document does not name one.
QString typeOf(const QVariant& value)
{
    if (!value.isValid())
        return Definitions::getKeyDataTypeTreeNode();
    return ConfigurationAndProcessDataTools::isVariantNumber(value) ? Definitions::getKeyDataTypeNumber()
                                                                    : QString::fromLatin1(value.typeName());
}

} // namespace

NodeStorage::NodeStorage() = default;

int NodeStorage::addNode(int parent, const QString& key)
{
    const QWriteLocker guard(&m_lock);
    m_entries.append({parent, key, m_nodeCount});
    return m_nodeCount++;
}

void NodeStorage::addEmptyEntry(int parent, const QString& key)
{
    const QWriteLocker guard(&m_lock);
    m_entries.append({parent, key, none});
}

void NodeStorage::put(int node, const QString& property, const QVariant& value)
{
    const QWriteLocker guard(&m_lock);
    m_properties.append({node, property, asStored(value)});
}

QVector<NodeStorage::Child> NodeStorage::children(int node) const
{
    const QReadLocker guard(&m_lock);
    QVector<Child> children;
    for (const Entry& entry : m_entries) {
        if (entry.parent == node)
            children.append({entry.key, entry.node});
    }
    return children;
}

int NodeStorage::child(int node, const QString& key) const
{
    const QReadLocker guard(&m_lock);
    const auto entry = std::find_if(m_entries.begin(), m_entries.end(), [&](const Entry& candidate) {
        return candidate.parent == node && candidate.key == key;
    });
    return entry == m_entries.end() ? none : entry->node;
}

QVariant NodeStorage::property(int node, const QString& property) const
{
    const QReadLocker guard(&m_lock);
    return read(node, property);
}

int NodeStorage::write(int node, const QString& property, const QVariant& value, bool mayAdd)
{
    const QWriteLocker guard(&m_lock);
    if (read(node, QStringLiteral("@readOnly")).toBool())
        return 2;
    const QVariant stored = asStored(value);
    const bool isNumber =
        read(node, Definitions::getKeyDataPropertyType()).toString() == Definitions::getKeyDataTypeNumber();
    if (property == Definitions::getKeyDataPropertyValue() && isNumber &&
        !ConfigurationAndProcessDataTools::isVariantNumber(stored))
        return 2;
    const int index = find(node, property);
    if (index == none) {
        if (!mayAdd || !stored.isValid())
            return 2;
        m_properties.append({node, property, stored});
        return 0;
    }
    QVariant& present = m_properties[index].value;
    if (present.userType() == stored.userType() && present == stored)
        return 1;
    present = stored;
    return 0;
}

int NodeStorage::find(int node, const QString& property) const
{
    const auto found = std::find_if(m_properties.begin(), m_properties.end(), [&](const Property& candidate) {
        return candidate.node == node && candidate.key == property;
    });
    return found == m_properties.end() ? none : static_cast<int>(found - m_properties.begin());
}

QVariant NodeStorage::read(int node, const QString& property) const
{
    const int index = find(node, property);
    if (index != none)
        return m_properties.at(index).value;
    return property == Definitions::getKeyDataPropertyType()
               ? QVariant(typeOf(read(node, Definitions::getKeyDataPropertyValue())))
               : QVariant();
}
