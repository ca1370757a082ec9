#pragma once

#include <QtCore/QString>
#include <QtCore/QVariant>

#include "UnitManager.h"

/// A unit manager with the shipped documents, and unit types identified by their plain keys.
class ShippedCatalogue
{
public:
    /// Loads both documents; isLoaded() returns whether that succeeded.
    ShippedCatalogue();

    bool isLoaded() const;
    const UnitManager& manager() const;

    static QString unitTypeName(const QString& key);
    /// Converts without rounding, through the base unit.
    QVariant convert(double value, const QString& typeKey, const QString& from, const QString& to) const;

private:
    UnitManager m_manager;
    bool m_loaded = false;
};
