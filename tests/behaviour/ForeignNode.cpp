#include "ForeignNode.h"

#include "RecordedCalls.h"

namespace {

QString writeText(const char* operation, const QString& propertyKey, const QVariant& value)
{
    return QLatin1String(operation) + QLatin1Char(' ') + propertyKey + QLatin1String(" = ") +
           RecordedCalls::exactBits(value);
}

} // namespace

ForeignNode::ForeignNode(const QHash<QString, QVariant>& properties, int writeStatus)
    : m_properties(properties), m_writeStatus(writeStatus)
{}

BaseClassSharedPointer ForeignNode::parentOf(const BaseClassSharedPointer& child)
{
    const auto parent = QSharedPointer<ForeignNode>::create(QHash<QString, QVariant>(), 2);
    parent->m_child = child;
    return parent;
}

BaseClassSharedPointer ForeignNode::getChild(const QString& key) const
{
    RecordedCalls::add(QStringLiteral("getChild ") + key);
    return key == QLatin1String("Value") ? m_child : BaseClassSharedPointer();
}

QVariant ForeignNode::getProperty(const QString& propertyKey) const
{
    RecordedCalls::add(QStringLiteral("getProperty ") + propertyKey);
    return m_properties.value(propertyKey);
}

bool ForeignNode::hasProperty(const QString& propertyKey) const
{
    RecordedCalls::add(QStringLiteral("hasProperty ") + propertyKey);
    return m_properties.contains(propertyKey);
}

int ForeignNode::changeProperty(const QString& propertyKey, const QVariant& value)
{
    RecordedCalls::add(writeText("changeProperty", propertyKey, value));
    return m_writeStatus;
}

int ForeignNode::setProperty(const QString& propertyKey, const QVariant& value)
{
    RecordedCalls::add(writeText("setProperty", propertyKey, value));
    return m_writeStatus;
}
