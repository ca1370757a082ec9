#include "ConfigurationDataNode.h"

#include "ConfigurationAndProcessDataDefinitions.h"
#include "ConfigurationAndProcessDataTools.h"
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
    if (PropertyList::isSameKey(propertyKey, Definitions::getKeyDataPropertyValue()))
        return m_value;
    if (PropertyList::isSameKey(propertyKey, Definitions::getKeyDataPropertyType()))
        return type();
    return m_properties.value(propertyKey);
}

bool ConfigurationDataNode::hasProperty(const QString& propertyKey) const
{
    if (PropertyList::isSameKey(propertyKey, Definitions::getKeyDataPropertyValue()))
        return m_value.isValid();
    return PropertyList::isSameKey(propertyKey, Definitions::getKeyDataPropertyType()) ||
           m_properties.contains(propertyKey);
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
        return WriteStatus::unchanged;
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
    // The most frequently read key shares its characters with the definition, which makes reads faster.
    const QString& unitTypeKey = Definitions::getKeyDataPropertyUnitType();
    m_properties.set(propertyKey == unitTypeKey ? unitTypeKey : propertyKey, value);
}

const QHash<QString, BaseClassSharedPointer>& ConfigurationDataNode::childMap() const
{
    return m_children ? m_children->map() : ConfigurationAndProcessDataBase::childMap();
}

bool ConfigurationDataNode::isNumber() const
{
    return ConfigurationAndProcessDataTools::isVariantNumber(m_value) &&
           PropertyList::isSameKey(type(), Definitions::getKeyDataTypeNumber());
}

const QString& ConfigurationDataNode::type() const
{
    const QVariant* const stored = m_properties.find(Definitions::getKeyDataPropertyType());
    if (stored && isType(*stored))
        return *static_cast<const QString*>(stored->constData());
    return NodeValue::typeOf(NodeValue::kindOf(m_value));
}

bool ConfigurationDataNode::isReadOnly() const
{
    const QVariant* const isSet = m_properties.find(Definitions::getKeyDataPropertyReadOnly());
    return isSet && isSet->userType() == QMetaType::Bool && isSet->toBool();
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
