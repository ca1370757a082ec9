#include "RecordingNode.h"

#include "ConfigurationAndProcessDataParser.h"
#include "PropertyManagerConst.h"

BaseClassSharedPointer nodeFromJson(const QString& json)
{
    return ConfigurationAndProcessDataParser().parseFromJson(json,
                                                             PropertyManagerConst::getConfigFileExtension());
}

RecordingNode::RecordingNode(const BaseClassSharedPointer& node, const QString& path, const Calls& calls)
    : m_node(node), m_path(path), m_calls(calls)
{
    const QHash<QString, BaseClassSharedPointer>& children = node->getChildMap();
    for (auto child = children.begin(); child != children.end(); ++child) {
        BaseClassSharedPointer wrapped;
        if (child.value())
            wrapped = QSharedPointer<RecordingNode>::create(child.value(),
                                                            path + QLatin1Char('/') + child.key(), calls);
        m_children.insert(child.key(), wrapped);
    }
}

RecordingNode::~RecordingNode() = default;

void RecordingNode::replaceProperty(const QString& propertyKey, const QVariant& value)
{
    m_replaced.insert(propertyKey, value);
}

void RecordingNode::insertChild(const QString& key, const BaseClassSharedPointer& child)
{
    m_children.insert(key, child);
}

BaseClassSharedPointer RecordingNode::getChild(const QString& key) const
{
    write("getChild", key);
    return m_children.value(key);
}

QVariant RecordingNode::getProperty(const QString& propertyKey) const
{
    write("getProperty", propertyKey);
    return m_replaced.contains(propertyKey) ? m_replaced.value(propertyKey)
                                            : m_node->getProperty(propertyKey);
}

bool RecordingNode::hasProperty(const QString& propertyKey) const
{
    write("hasProperty", propertyKey);
    return m_replaced.contains(propertyKey) ? m_replaced.value(propertyKey).isValid()
                                            : m_node->hasProperty(propertyKey);
}

int RecordingNode::changeProperty(const QString& propertyKey, const QVariant& value)
{
    write("changeProperty", propertyKey);
    return m_node->changeProperty(propertyKey, value);
}

int RecordingNode::setProperty(const QString& propertyKey, const QVariant& value)
{
    write("setProperty", propertyKey);
    return m_node->setProperty(propertyKey, value);
}

const QHash<QString, BaseClassSharedPointer>& RecordingNode::childMap() const
{
    write("getChildMap", QString());
    return m_children;
}

void RecordingNode::write(const char* call, const QString& argument) const
{
    m_calls->append(m_path + QLatin1Char('.') + QLatin1String(call) + QLatin1Char('(') + argument +
                    QLatin1Char(')'));
}

QSharedPointer<RecordingNode> recordingNodeFromJson(const QString& json, const QString& path,
                                                    const RecordingNode::Calls& calls)
{
    return QSharedPointer<RecordingNode>::create(nodeFromJson(json), path, calls);
}

QStringList takeCallsOf(const QString& path, const RecordingNode::Calls& calls)
{
    QStringList taken;
    for (const QString& call : qAsConst(*calls)) {
        if (call.startsWith(path + QLatin1Char('.')))
            taken.append(call);
    }
    calls->clear();
    return taken;
}
