#pragma once

#include <QtCore/QHash>

#include "ConfigurationAndProcessDataBase.h"

/// A node as another library could have derived it: it has given properties, returns a given status from
/// every write, and records every call.
class ForeignNode : public ConfigurationAndProcessDataBase
{
public:
    ForeignNode(const QHash<QString, QVariant>& properties, int writeStatus);

    /// A node without properties whose only child has the key "Value".
    static BaseClassSharedPointer parentOf(const BaseClassSharedPointer& child);

    BaseClassSharedPointer getChild(const QString& key) const override;
    QVariant getProperty(const QString& propertyKey) const override;
    bool hasProperty(const QString& propertyKey) const override;
    int changeProperty(const QString& propertyKey, const QVariant& value) override;
    int setProperty(const QString& propertyKey, const QVariant& value) override;

private:
    QHash<QString, QVariant> m_properties;
    int m_writeStatus;
    BaseClassSharedPointer m_child;
};
