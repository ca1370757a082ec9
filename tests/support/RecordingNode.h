#pragma once

#include <QtCore/QHash>
#include <QtCore/QSharedPointer>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

#include "ConfigurationAndProcessDataBase.h"

/// Parses a configuration document. @return a null pointer if it is invalid
BaseClassSharedPointer nodeFromJson(const QString& json);

/// A node that forwards every query to the wrapped node and records it as one line: the node's path ("unit",
/// its child "unit/Polynomial") and the call, as in "unit.getChild(Polynomial)".
class RecordingNode : public ConfigurationAndProcessDataBase
{
public:
    using Calls = QSharedPointer<QStringList>;

    /// Wraps a tree, including its children.
    ///
    /// @param path path of the root in the recorded lines
    /// @param calls receives the lines of all nodes of the tree
    RecordingNode(const BaseClassSharedPointer& node, const QString& path, const Calls& calls);
    ~RecordingNode() override;

    /// Replaces the value of a property by @p value, without recording a line; an invalid value makes the
    /// property absent.
    void replaceProperty(const QString& propertyKey, const QVariant& value);
    /// Sets a child, which may be null, under @p key, without recording a line.
    void insertChild(const QString& key, const BaseClassSharedPointer& child);

    BaseClassSharedPointer getChild(const QString& key) const override;
    QVariant getProperty(const QString& propertyKey) const override;
    bool hasProperty(const QString& propertyKey) const override;
    int changeProperty(const QString& propertyKey, const QVariant& value) override;
    int setProperty(const QString& propertyKey, const QVariant& value) override;

protected:
    const QHash<QString, BaseClassSharedPointer>& childMap() const override;

private:
    void write(const char* call, const QString& argument) const;

    BaseClassSharedPointer m_node;
    QString m_path;
    Calls m_calls;
    QHash<QString, BaseClassSharedPointer> m_children;
    QHash<QString, QVariant> m_replaced;
};

/// A recording tree of a configuration document, see RecordingNode.
QSharedPointer<RecordingNode> recordingNodeFromJson(const QString& json, const QString& path,
                                                    const RecordingNode::Calls& calls);

/// The lines recorded by the node at @p path, without its children's, oldest first; clears @p calls.
QStringList takeCallsOf(const QString& path, const RecordingNode::Calls& calls);
