#pragma once

#include "ConfigurationTreeExport.h"

#include <QtCore/QHash>
#include <QtCore/QSharedPointer>
#include <QtCore/QString>
#include <QtCore/QVariant>

class ConfigurationAndProcessDataBase;

/// Handle of a node of a configuration tree; null means that there is no node.
using BaseClassSharedPointer = QSharedPointer<ConfigurationAndProcessDataBase>;

/// A node of a configuration tree: children by key, and properties by property key.
///
/// Nodes are made by ConfigurationAndProcessDataParser, or by a library that derives its own kind of node.
/// The property keys and type names are those of ConfigurationAndProcessDataDefinitions.
///
/// A write is answered with a status: 0 the stored value changed, 1 it was equal already and nothing was
/// written, 2 the node refuses and nothing was written.
///
/// A node takes no locks: one thread at a time uses a tree, also for reading.
class CONFIGURATIONTREE_EXPORT ConfigurationAndProcessDataBase
{
public:
    virtual ~ConfigurationAndProcessDataBase();
    ConfigurationAndProcessDataBase(const ConfigurationAndProcessDataBase&) = delete;
    ConfigurationAndProcessDataBase& operator=(const ConfigurationAndProcessDataBase&) = delete;

    // The order of these five is part of the binary interface; new virtual functions go behind them.

    /// @return the child under @p key; null when there is none, or when the child itself is null.
    virtual BaseClassSharedPointer getChild(const QString& key) const = 0;
    /// @return the property's value; an invalid variant when the node has no such property.
    virtual QVariant getProperty(const QString& propertyKey) const = 0;
    /// @return whether the node has the property.
    virtual bool hasProperty(const QString& propertyKey) const = 0;
    /// Writes a property that the node has already. @return the status of the write; 2 also when the node has
    /// no such property.
    virtual int changeProperty(const QString& propertyKey, const QVariant& value) = 0;
    /// Writes a property, adding it when the node has none under that key. @return the status of the write.
    virtual int setProperty(const QString& propertyKey, const QVariant& value) = 0;

    /// @return the children by key, null children included; valid while the node lives and gets no new child.
    const QHash<QString, BaseClassSharedPointer>& getChildMap() const;
    /// @return whether the node is of the number type and holds a number, be it the no-input marker.
    bool isNumberType() const;
    /// @return whether the node is of the number type and holds the no-input marker.
    bool isNumberNoInput() const;

protected:
    ConfigurationAndProcessDataBase() = default;

    /// What getChildMap() answers with; an empty map unless a derived class says otherwise.
    virtual const QHash<QString, BaseClassSharedPointer>& childMap() const;
    /// What isNumberType() answers with; reads the value and type properties unless a derived class knows a
    /// faster way.
    virtual bool isNumber() const;
};
