#include "RecordingNode.h"

#include "ConfigurationAndProcessDataDefinitions.h"

using Definitions = ConfigurationAndProcessDataDefinitions;

QSharedPointer<RecordingNode> RecordingNode::number(const QVariant& value, const QVariant& unitType)
{
    return leaf(Definitions::getKeyDataTypeNumber(), value, unitType);
}

QSharedPointer<RecordingNode> RecordingNode::text(const QVariant& value, const QVariant& unitType)
{
    return leaf(Definitions::getKeyDataTypeText(), value, unitType);
}

QSharedPointer<RecordingNode> RecordingNode::parentOf(const BaseClassSharedPointer& child)
{
    auto node = QSharedPointer<RecordingNode>::create();
    node->m_child = child;
    return node;
}

QSharedPointer<RecordingNode> RecordingNode::leaf(const QString& type, const QVariant& value,
                                                  const QVariant& unitType)
{
    auto node = QSharedPointer<RecordingNode>::create();
    node->m_properties.insert(Definitions::getKeyDataPropertyType(), type);
    if (value.isValid())
        node->m_properties.insert(Definitions::getKeyDataPropertyValue(), value);
    if (unitType.isValid())
        node->m_properties.insert(Definitions::getKeyDataPropertyUnitType(), unitType);
    return node;
}

BaseClassSharedPointer RecordingNode::getChild(const QString& key) const
{
    m_calls.append(QStringLiteral("getChild ") + key);
    return key == QLatin1String("Value") ? m_child : BaseClassSharedPointer();
}

QVariant RecordingNode::getProperty(const QString& propertyKey) const
{
    m_calls.append(QStringLiteral("getProperty ") + propertyKey);
    return m_properties.value(propertyKey);
}

bool RecordingNode::hasProperty(const QString& propertyKey) const
{
    m_calls.append(QStringLiteral("hasProperty ") + propertyKey);
    return m_properties.contains(propertyKey);
}

int RecordingNode::changeProperty(const QString& propertyKey, const QVariant& value)
{
    m_calls.append(QStringLiteral("changeProperty ") + propertyKey);
    m_properties.insert(propertyKey, value);
    return m_writeStatus;
}

int RecordingNode::setProperty(const QString& propertyKey, const QVariant& value)
{
    m_calls.append(QStringLiteral("setProperty ") + propertyKey);
    m_properties.insert(propertyKey, value);
    return m_writeStatus;
}

void RecordingNode::setWriteStatus(int status)
{
    m_writeStatus = status;
}

QVariant RecordingNode::value() const
{
    return m_properties.value(Definitions::getKeyDataPropertyValue());
}

QStringList RecordingNode::calls() const
{
    return m_calls;
}
