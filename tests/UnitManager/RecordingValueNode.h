#pragma once

#include <QtCore/QHash>
#include <QtCore/QStringList>

#include "ConfigurationAndProcessDataBase.h"

/// A node with given properties and at most one child. It records every call of its virtual operations, as in
/// "getProperty @value", and answers every write with a given status.
class RecordingValueNode : public ConfigurationAndProcessDataBase
{
public:
    /// A node of the number type; an invalid value or unit type leaves that property out.
    static QSharedPointer<RecordingValueNode> number(const QVariant& value,
                                                     const QVariant& unitType = QVariant());
    /// A node of the text type, whatever its value is.
    static QSharedPointer<RecordingValueNode> text(const QVariant& value,
                                                   const QVariant& unitType = QVariant());
    /// A node without properties whose only child has the key "Value".
    static QSharedPointer<RecordingValueNode> parentOf(const BaseClassSharedPointer& child);

    BaseClassSharedPointer getChild(const QString& key) const override;
    QVariant getProperty(const QString& propertyKey) const override;
    bool hasProperty(const QString& propertyKey) const override;
    int changeProperty(const QString& propertyKey, const QVariant& value) override;
    int setProperty(const QString& propertyKey, const QVariant& value) override;

    /// What every write is answered with.
    void setWriteStatus(int status);
    /// What the value property holds; not recorded.
    QVariant value() const;
    /// The calls so far.
    QStringList calls() const;

private:
    static QSharedPointer<RecordingValueNode> leaf(const QString& type, const QVariant& value,
                                                   const QVariant& unitType);

    QHash<QString, QVariant> m_properties;
    BaseClassSharedPointer m_child;
    int m_writeStatus = 0;
    mutable QStringList m_calls;
};
