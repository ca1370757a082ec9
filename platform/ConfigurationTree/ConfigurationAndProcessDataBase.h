#pragma once

#include <QtCore/QHash>
#include <QtCore/QSharedPointer>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include "ConfigurationTreeExport.h"

class ConfigurationAndProcessDataBase;

/// Handle to a node of a configuration tree; null means that there is no node.
using BaseClassSharedPointer = QSharedPointer<ConfigurationAndProcessDataBase>;

/// A node of a configuration tree: children by key, and properties by property key.
///
/// Nodes are created by ConfigurationAndProcessDataParser, or by a library that derives its own node class.
/// The property keys and type names are those of ConfigurationAndProcessDataDefinitions.
///
/// A write returns a status: 0 the stored value changed, 1 the value was already equal and nothing was
/// written, 2 the node refused the value and nothing was written.
///
/// A node takes no locks: access to a tree, including reading, must be limited to one thread at a time.
class CONFIGURATIONTREE_EXPORT ConfigurationAndProcessDataBase
{
public:
    virtual ~ConfigurationAndProcessDataBase();
    ConfigurationAndProcessDataBase(const ConfigurationAndProcessDataBase&) = delete;
    ConfigurationAndProcessDataBase& operator=(const ConfigurationAndProcessDataBase&) = delete;

    // The order of these five is part of the binary interface; add new virtual functions after them.

    /// @return the child under @p key; null when there is none, or when the child itself is null.
    virtual BaseClassSharedPointer getChild(const QString& key) const = 0;
    /// @return the property's value; an invalid variant when the node has no such property.
    virtual QVariant getProperty(const QString& propertyKey) const = 0;
    /// @return whether the node has the property.
    virtual bool hasProperty(const QString& propertyKey) const = 0;
    /// Writes an existing property. @return the status of the write; 2 also when the node has no such
    /// property.
    virtual int changeProperty(const QString& propertyKey, const QVariant& value) = 0;
    /// Writes a property, or adds it if it does not exist. @return the status of the write.
    virtual int setProperty(const QString& propertyKey, const QVariant& value) = 0;

    /// @return the children by key, including null children; valid until the node is destroyed or gets a new
    /// child.
    const QHash<QString, BaseClassSharedPointer>& getChildMap() const;
    /// @return whether the node has the number type and holds a number or the no-input marker.
    bool isNumberType() const;
    /// @return whether the node has the number type and holds the no-input marker.
    bool isNumberNoInput() const;

protected:
    ConfigurationAndProcessDataBase() = default;

    /// Implementation of getChildMap(). Returns an empty map unless overridden.
    virtual const QHash<QString, BaseClassSharedPointer>& childMap() const;
    /// Implementation of isNumberType(). Reads the value and type properties; a derived class may override it
    /// with a faster test.
    virtual bool isNumber() const;
};
