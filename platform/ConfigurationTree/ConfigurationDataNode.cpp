#include "ConfigurationDataNode.h"

#include "ConfigurationAndProcessDataDefinitions.h"
#include "NodeValue.h"
#include "WriteStatus.h"

namespace {

using Definitions = ConfigurationAndProcessDataDefinitions;

bool isType(const QVariant& value)
{
    return value.userType() == QMetaType::QString && !value.toString().isEmpty();
}

} // namespace

BaseClassSharedPointer ConfigurationDataNode::getChild(const QString& key) const
{
    return m_children ? m_children->value(key) : BaseClassSharedPointer();
}

QVariant ConfigurationDataNode::getProperty(const QString& propertyKey) const
{
    if (propertyKey == Definitions::getKeyDataPropertyValue())
        return m_value;
    if (propertyKey == Definitions::getKeyDataPropertyType())
        return type();
    const int index = findProperty(propertyKey);
    return index < 0 ? QVariant() : m_properties.at(index).value;
}

bool ConfigurationDataNode::hasProperty(const QString& propertyKey) const
{
    if (propertyKey == Definitions::getKeyDataPropertyValue())
        return m_value.isValid();
    return propertyKey == Definitions::getKeyDataPropertyType() || findProperty(propertyKey) >= 0;
}

int ConfigurationDataNode::changeProperty(const QString& propertyKey, const QVariant& value)
{
    return hasProperty(propertyKey) ? setProperty(propertyKey, value) : WriteStatus::refused;
}

int ConfigurationDataNode::setProperty(const QString& propertyKey, const QVariant& value)
{
    if (isReadOnly() || !takes(propertyKey, value))
        return WriteStatus::refused;
    const QVariant stored = NodeValue::asStored(value);
    if (NodeValue::isEqual(getProperty(propertyKey), stored))
        return WriteStatus::equalAlready;
    const QString typeBefore = type();
    storeProperty(propertyKey, stored);
    if (propertyKey == Definitions::getKeyDataPropertyValue() && type() != typeBefore)
        storeProperty(Definitions::getKeyDataPropertyType(), typeBefore);
    return WriteStatus::changed;
}

void ConfigurationDataNode::insertChild(const QString& key, const BaseClassSharedPointer& child)
{
    if (!m_children)
        m_children = std::make_unique<ChildTable>();
    m_children->insert(key, child);
}

void ConfigurationDataNode::storeProperty(const QString& propertyKey, const QVariant& value)
{
    if (propertyKey == Definitions::getKeyDataPropertyValue()) {
        m_value = value;
        return;
    }
    const int index = findProperty(propertyKey);
    if (index >= 0)
        m_properties.remove(index);
    if (value.isValid())
        m_properties.append({propertyKey, value});
}

const QHash<QString, BaseClassSharedPointer>& ConfigurationDataNode::childMap() const
{
    return m_children ? m_children->map() : ConfigurationAndProcessDataBase::childMap();
}

int ConfigurationDataNode::findProperty(const QString& propertyKey) const
{
    for (int index = 0; index < m_properties.size(); ++index) {
        if (m_properties.at(index).key == propertyKey)
            return index;
    }
    return -1;
}

QString ConfigurationDataNode::type() const
{
    const int index = findProperty(Definitions::getKeyDataPropertyType());
    if (index >= 0 && isType(m_properties.at(index).value))
        return m_properties.at(index).value.toString();
    return NodeValue::typeOf(NodeValue::kindOf(m_value));
}

bool ConfigurationDataNode::isReadOnly() const
{
    const int index = findProperty(Definitions::getKeyDataPropertyReadOnly());
    if (index < 0 || m_properties.at(index).value.userType() != QMetaType::Bool)
        return false;
    return m_properties.at(index).value.toBool();
}

bool ConfigurationDataNode::takes(const QString& propertyKey, const QVariant& value) const
{
    if (propertyKey == Definitions::getKeyDataPropertyValue())
        return NodeValue::isTakenBy(type(), NodeValue::kindOf(value));
    if (propertyKey == Definitions::getKeyDataPropertyType())
        return isType(value) &&
               (!m_value.isValid() || NodeValue::isTakenBy(value.toString(), NodeValue::kindOf(m_value)));
    return value.isValid();
}
