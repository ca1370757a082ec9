#pragma once

#include <QtCore/QHash>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include <memory>

#include "ChildTable.h"
#include "ConfigurationAndProcessDataBase.h"
#include "PropertyList.h"

/// The node class that the parser creates.
///
/// The type is the type property if set, otherwise it is derived from the value; writing another value
/// does not change it. A write is refused when the node is read-only, when the type does not accept a value
/// of that kind, and when a new type does not accept the present value. Numbers are stored as `double`.
///
/// A tree may have hundreds of thousands of nodes, so nodes are kept small: the value is a separate member,
/// and lists replace hashes.
class ConfigurationDataNode : public ConfigurationAndProcessDataBase
{
public:
    BaseClassSharedPointer getChild(const QString& key) const override;
    QVariant getProperty(const QString& propertyKey) const override;
    bool hasProperty(const QString& propertyKey) const override;
    int changeProperty(const QString& propertyKey, const QVariant& value) override;
    int setProperty(const QString& propertyKey, const QVariant& value) override;

    /// Adds a child. An existing child with the same key is replaced.
    void insertChild(const QString& key, const BaseClassSharedPointer& child);
    /// Stores a property without checking it against the type; an invalid value removes it.
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
