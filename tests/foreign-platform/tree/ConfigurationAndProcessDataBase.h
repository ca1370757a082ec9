#pragma once

#include <QtCore/QHash>
#include <QtCore/QSharedPointer>
#include <QtCore/QString>
#include <QtCore/QVariant>

class ConfigurationAndProcessDataBase;

/// Handle to a node; null means that there is no node.
using BaseClassSharedPointer = QSharedPointer<ConfigurationAndProcessDataBase>;

/// A node of a tree. A write returns 0 (changed), 1 (already equal) or 2 (refused).
class ConfigurationAndProcessDataBase
{
public:
    ConfigurationAndProcessDataBase() = default;
    ConfigurationAndProcessDataBase(const ConfigurationAndProcessDataBase&) = delete;
    ConfigurationAndProcessDataBase& operator=(const ConfigurationAndProcessDataBase&) = delete;
    virtual ~ConfigurationAndProcessDataBase();

    virtual BaseClassSharedPointer getChild(const QString& key) const = 0;
    virtual QVariant getProperty(const QString& propertyKey) const = 0;
    virtual bool hasProperty(const QString& propertyKey) const = 0;
    virtual int changeProperty(const QString& propertyKey, const QVariant& value) = 0;
    virtual int setProperty(const QString& propertyKey, const QVariant& value) = 0;

    /// @return the children by key; valid until this handle is destroyed.
    const QHash<QString, BaseClassSharedPointer>& getChildMap() const
    {
        return childMap();
    }
    /// Whether the node is of the number type and holds a number, which may be the marker.
    bool isNumberType() const;
    /// Whether the node is of the number type and holds the marker.
    bool isNumberNoInput() const;

protected:
    /// Implementation of getChildMap(). Returns no children unless overridden.
    virtual const QHash<QString, BaseClassSharedPointer>& childMap() const;
};
