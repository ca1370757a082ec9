#pragma once

#include <QtCore/QHash>
#include <QtCore/QSharedPointer>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

#include "ConfigurationAndProcessDataBase.h"

/// Parses a configuration document; a null pointer when it is none.
BaseClassSharedPointer nodeFromJson(const QString& json);

/// A node that answers as the one it wraps does, and writes down every question: one line each, made of the
/// node's path ("unit", its child "unit/Polynomial") and the call, as in "unit.getChild(Polynomial)".
class RecordingNode : public ConfigurationAndProcessDataBase
{
public:
    using Calls = QSharedPointer<QStringList>;

    /// Wraps a tree, its children included.
    ///
    /// @param path path of the root in the lines written
    /// @param calls where all nodes of the tree write
    RecordingNode(const BaseClassSharedPointer& node, const QString& path, const Calls& calls);
    ~RecordingNode() override;

    /// Puts @p value in the place of a property's own, without writing a line; an invalid one makes it
    /// absent.
    void replaceProperty(const QString& propertyKey, const QVariant& value);
    /// Puts a child, which may be null, under @p key, without writing a line.
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

/// A recording tree of a configuration document.
QSharedPointer<RecordingNode> recordingNodeFromJson(const QString& json, const QString& path,
                                                    const RecordingNode::Calls& calls);

/// The lines that the node at @p path wrote, its children's left out, oldest first; @p calls is emptied.
QStringList takeCallsOf(const QString& path, const RecordingNode::Calls& calls);
