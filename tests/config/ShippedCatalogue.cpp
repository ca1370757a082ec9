#include "ShippedCatalogue.h"

#include "UnitTypes.h"

ShippedCatalogue::ShippedCatalogue()
    : m_loaded(m_manager.initByJsonFile(QStringLiteral(UNITMANAGER_SOURCE_DIR "/config/units.json"),
                                        QStringLiteral(UNITMANAGER_SOURCE_DIR "/config/default-units.json")))
{}

bool ShippedCatalogue::isLoaded() const
{
    return m_loaded;
}

const UnitManager& ShippedCatalogue::manager() const
{
    return m_manager;
}

QString ShippedCatalogue::unitTypeName(const QString& key)
{
    return typeNamed("") + key;
}

QVariant ShippedCatalogue::convert(double value, const QString& typeKey, const QString& from,
                                   const QString& to) const
{
    const QString unitType = unitTypeName(typeKey);
    return m_manager.fromBaseUnitRaw(m_manager.toBaseUnitRaw(value, unitType, from), unitType, to);
}
