#include "StoredNode.h"

StoredNode::StoredNode(const QSharedPointer<NodeStorage>& storage, int index)
    : m_storage(storage), m_index(index)
{}

StoredNode::~StoredNode() = default;

BaseClassSharedPointer StoredNode::getChild(const QString& key) const
{
    return handle(m_storage->child(m_index, key));
}

QVariant StoredNode::getProperty(const QString& propertyKey) const
{
    return m_storage->property(m_index, propertyKey);
}

bool StoredNode::hasProperty(const QString& propertyKey) const
{
    return m_storage->property(m_index, propertyKey).isValid();
}

int StoredNode::changeProperty(const QString& propertyKey, const QVariant& value)
{
    return m_storage->write(m_index, propertyKey, value, false);
}

int StoredNode::setProperty(const QString& propertyKey, const QVariant& value)
{
    return m_storage->write(m_index, propertyKey, value, true);
}

const QHash<QString, BaseClassSharedPointer>& StoredNode::childMap() const
{
    if (m_children.isEmpty()) {
        const QVector<NodeStorage::Child> children = m_storage->children(m_index);
        for (const NodeStorage::Child& child : children)
            m_children.insert(child.key, handle(child.node));
    }
    return m_children;
}

BaseClassSharedPointer StoredNode::handle(int index) const
{
    return index == NodeStorage::none ? BaseClassSharedPointer()
                                      : QSharedPointer<StoredNode>::create(m_storage, index);
}
