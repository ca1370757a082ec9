#pragma once

#include <QtCore/QHash>
#include <QtCore/QString>
#include <QtCore/QVector>

#include "ConfigurationAndProcessDataBase.h"

/// The children of a node by key.
///
/// Most nodes have a few children that are only looked up one by one. They are stored in a plain list, which
/// takes a third of the memory of a hash. The hash is built when there are many children, or on the first
/// call of map().
class ChildTable
{
public:
    /// Adds a child. An existing child with the same key is replaced.
    void insert(const QString& key, const BaseClassSharedPointer& child);
    /// @return the child; null when there is none.
    BaseClassSharedPointer value(const QString& key) const;
    /// @return all children; valid until the next insert().
    const QHash<QString, BaseClassSharedPointer>& map() const;

private:
    struct Entry
    {
        QString key;
        BaseClassSharedPointer child;
    };

    // One of the two holds all entries, the other one is empty.
    mutable QVector<Entry> m_list;
    mutable QHash<QString, BaseClassSharedPointer> m_map;
};
