#pragma once

#include <QtCore/QHash>
#include <QtCore/QSharedPointer>
#include <QtCore/QString>
#include <QtCore/QVariant>

class ConfigurationAndProcessDataBase;
using BaseClassSharedPointer = QSharedPointer<ConfigurationAndProcessDataBase>;

/// A node. The order of the five pure virtual functions is fixed. A write returns 0 (changed), 1 (already
/// equal) or 2 (refused).
class ConfigurationAndProcessDataBase
{
public:
    virtual ~ConfigurationAndProcessDataBase();

    virtual BaseClassSharedPointer getChild(const QString& key) const = 0;
    virtual QVariant getProperty(const QString& propertyKey) const = 0;
    virtual bool hasProperty(const QString& propertyKey) const = 0;
    virtual int changeProperty(const QString& propertyKey, const QVariant& value) = 0;
    virtual int setProperty(const QString& propertyKey, const QVariant& value) = 0;

    const QHash<QString, BaseClassSharedPointer>& getChildMap() const;
    bool isNumberType() const;
    bool isNumberNoInput() const;

protected:
    /// Implementation of getChildMap(). The library does not need it, but the nodes of its tests override it.
    virtual const QHash<QString, BaseClassSharedPointer>& childMap() const;
};
