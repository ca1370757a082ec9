#pragma once

#include "ConfigurationAndProcessDataBase.h"
#include "NodeStorage.h"

/// A handle to a node of a storage. Each look-up creates a new one; all of them keep the storage alive.
class StoredNode : public ConfigurationAndProcessDataBase
{
public:
    StoredNode(const QSharedPointer<NodeStorage>& storage, int index);
    ~StoredNode() override;

    BaseClassSharedPointer getChild(const QString& key) const override;
    QVariant getProperty(const QString& propertyKey) const override;
    bool hasProperty(const QString& propertyKey) const override;
    int changeProperty(const QString& propertyKey, const QVariant& value) override;
    int setProperty(const QString& propertyKey, const QVariant& value) override;

protected:
    const QHash<QString, BaseClassSharedPointer>& childMap() const override;

private:
    BaseClassSharedPointer handle(int index) const;

    const QSharedPointer<NodeStorage> m_storage;
    const int m_index;
    mutable QHash<QString, BaseClassSharedPointer> m_children;
};
