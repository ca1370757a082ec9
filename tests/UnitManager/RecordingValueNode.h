#pragma once

#include <QtCore/QHash>
#include <QtCore/QStringList>

#include "ConfigurationAndProcessDataBase.h"

/// A node with given properties and at most one child. It records every call of its virtual functions, such
/// as "getProperty @value", and returns a given status from every write.
class RecordingValueNode : public ConfigurationAndProcessDataBase
{
public:
    /// A node of the number type; an invalid value or unit type omits that property.
    static QSharedPointer<RecordingValueNode> number(const QVariant& value,
                                                     const QVariant& unitType = QVariant());
    /// A node of the selection type, which holds texts, regardless of the type of its value.
    static QSharedPointer<RecordingValueNode> text(const QVariant& value,
                                                   const QVariant& unitType = QVariant());
    /// A node without properties whose only child has the key "Value".
    static QSharedPointer<RecordingValueNode> parentOf(const BaseClassSharedPointer& child);

    BaseClassSharedPointer getChild(const QString& key) const override;
    QVariant getProperty(const QString& propertyKey) const override;
    bool hasProperty(const QString& propertyKey) const override;
    int changeProperty(const QString& propertyKey, const QVariant& value) override;
    int setProperty(const QString& propertyKey, const QVariant& value) override;

    /// Sets the result of every write.
    void setWriteStatus(int status);
    /// The value property; the call is not recorded.
    QVariant value() const;
    /// The calls recorded so far.
    QStringList calls() const;

private:
    static QSharedPointer<RecordingValueNode> leaf(const QString& type, const QVariant& value,
                                                   const QVariant& unitType);

    QHash<QString, QVariant> m_properties;
    BaseClassSharedPointer m_child;
    int m_writeStatus = 0;
    mutable QStringList m_calls;
};
