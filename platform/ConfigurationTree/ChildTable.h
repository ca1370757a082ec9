#pragma once

#include "ConfigurationAndProcessDataBase.h"

#include <QtCore/QHash>
#include <QtCore/QString>
#include <QtCore/QVector>

/// The children of a node by key.
///
/// Most nodes have a few children that are only looked up one by one: those stand in a plain list, which
/// takes a third of the memory of a hash. The hash is made when there are many children, or when somebody
/// asks for it.
class ChildTable
{
public:
    /// Adds a child, replacing one of the same key.
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

    // All entries stand in one of the two, the other one is empty.
    mutable QVector<Entry> m_list;
    mutable QHash<QString, BaseClassSharedPointer> m_map;
};
