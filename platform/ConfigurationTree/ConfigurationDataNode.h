#pragma once

#include "ChildTable.h"
#include "ConfigurationAndProcessDataBase.h"
#include "PropertyList.h"

#include <QtCore/QHash>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include <memory>

/// The node that the parser makes.
///
/// The type is the type property where it is set, else it follows from the value; a later value does not
/// change it. A write is refused when the node is read-only, when the type does not take a value of that
/// kind, and when a type is written that does not take the present value. Numbers are stored as `double`.
///
/// A tree may have hundreds of thousands of nodes, so a node is small: the value has a place of its own, and
/// lists stand where hashes would do.
class ConfigurationDataNode : public ConfigurationAndProcessDataBase
{
public:
    BaseClassSharedPointer getChild(const QString& key) const override;
    QVariant getProperty(const QString& propertyKey) const override;
    bool hasProperty(const QString& propertyKey) const override;
    int changeProperty(const QString& propertyKey, const QVariant& value) override;
    int setProperty(const QString& propertyKey, const QVariant& value) override;

    /// Adds a child, replacing one of the same key.
    void insertChild(const QString& key, const BaseClassSharedPointer& child);
    /// Stores a property as it is, whatever the type takes; an invalid value removes it.
    void storeProperty(const QString& propertyKey, const QVariant& value);

protected:
    const QHash<QString, BaseClassSharedPointer>& childMap() const override;
    bool isNumber() const override;

private:
    const QString& type() const;
    bool isReadOnly() const;
    bool takes(const QString& propertyKey, const QVariant& value) const;

    QVariant m_value;
    PropertyList m_properties;
    std::unique_ptr<ChildTable> m_children;
};
