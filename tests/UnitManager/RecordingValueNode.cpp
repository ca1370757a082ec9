#include "RecordingValueNode.h"

#include "ConfigurationAndProcessDataDefinitions.h"

using Definitions = ConfigurationAndProcessDataDefinitions;

QSharedPointer<RecordingValueNode> RecordingValueNode::number(const QVariant& value, const QVariant& unitType)
{
    return leaf(Definitions::getKeyDataTypeNumber(), value, unitType);
}

QSharedPointer<RecordingValueNode> RecordingValueNode::text(const QVariant& value, const QVariant& unitType)
{
    return leaf(Definitions::getKeyDataTypeSelection(), value, unitType);
}

QSharedPointer<RecordingValueNode> RecordingValueNode::parentOf(const BaseClassSharedPointer& child)
{
    auto node = QSharedPointer<RecordingValueNode>::create();
    node->m_child = child;
    return node;
}

QSharedPointer<RecordingValueNode> RecordingValueNode::leaf(const QString& type, const QVariant& value,
                                                            const QVariant& unitType)
{
    auto node = QSharedPointer<RecordingValueNode>::create();
    node->m_properties.insert(Definitions::getKeyDataPropertyType(), type);
    if (value.isValid())
        node->m_properties.insert(Definitions::getKeyDataPropertyValue(), value);
    if (unitType.isValid())
        node->m_properties.insert(Definitions::getKeyDataPropertyUnitType(), unitType);
    return node;
}

BaseClassSharedPointer RecordingValueNode::getChild(const QString& key) const
{
    m_calls.append(QStringLiteral("getChild ") + key);
    return key == QLatin1String("Value") ? m_child : BaseClassSharedPointer();
}

QVariant RecordingValueNode::getProperty(const QString& propertyKey) const
{
    m_calls.append(QStringLiteral("getProperty ") + propertyKey);
    return m_properties.value(propertyKey);
}

bool RecordingValueNode::hasProperty(const QString& propertyKey) const
{
    m_calls.append(QStringLiteral("hasProperty ") + propertyKey);
    return m_properties.contains(propertyKey);
}

int RecordingValueNode::changeProperty(const QString& propertyKey, const QVariant& value)
{
    m_calls.append(QStringLiteral("changeProperty ") + propertyKey);
    m_properties.insert(propertyKey, value);
    return m_writeStatus;
}

int RecordingValueNode::setProperty(const QString& propertyKey, const QVariant& value)
{
    m_calls.append(QStringLiteral("setProperty ") + propertyKey);
    m_properties.insert(propertyKey, value);
    return m_writeStatus;
}

void RecordingValueNode::setWriteStatus(int status)
{
    m_writeStatus = status;
}

QVariant RecordingValueNode::value() const
{
    return m_properties.value(Definitions::getKeyDataPropertyValue());
}

QStringList RecordingValueNode::calls() const
{
    return m_calls;
}
