#pragma once

#include <QtCore/QReadWriteLock>
#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtCore/QVector>

/// All nodes of a document in three flat tables. Every operation takes the storage's lock, also to read.
class NodeStorage
{
public:
    static constexpr int root = 0;
    static constexpr int none = -1;

    struct Child
    {
        QString key;
        int node; ///< none for an entry without a node
    };

    NodeStorage();

    int addNode(int parent, const QString& key);
    void addEmptyEntry(int parent, const QString& key);
    /// Stores a property without a check.
    void put(int node, const QString& property, const QVariant& value);

    QVector<Child> children(int node) const;
    int child(int node, const QString& key) const;
    /// @return an invalid variant if the node does not have the property.
    QVariant property(int node, const QString& property) const;
    /// Writes a property. @return 0 changed, 1 already equal, 2 refused.
    int write(int node, const QString& property, const QVariant& value, bool mayAdd);

private:
    struct Entry
    {
        int parent;
        QString key;
        int node;
    };
    struct Property
    {
        int node;
        QString key;
        QVariant value;
    };

    int find(int node, const QString& property) const;
    QVariant read(int node, const QString& property) const;

    mutable QReadWriteLock m_lock;
    int m_nodeCount = 1;
    QVector<Entry> m_entries;
    QVector<Property> m_properties;
};
