#include "UnitManagerUnitTypeStringHandling.h"

#include <QtCore/QStringList>
#include <QtCore/QVariant>

#include "FixedUnit.h"
#include "UnitManager.h"
#include "hashFromString.h"

namespace {

void insertIdentifier(QHash<unsigned int, QString>& map, const QString& identifier)
{
    map.insert(hashFromString(QVariant(identifier)), identifier);
}

} // namespace

bool UnitManagerUnitTypeStringHandling::mapUnitTypeStringToHashValue(const QString& unitType,
                                                                     unsigned int& hashValue)
{
    hashValue = hashFromString(QVariant(unitType));
    return true;
}

bool UnitManagerUnitTypeStringHandling::mapHashValueToUnitTypeString(const QHash<unsigned int, QString>& map,
                                                                     const unsigned int& hashValue,
                                                                     QString& unitType)
{
    const auto identifier = map.constFind(hashValue);
    if (identifier == map.constEnd())
        return false;
    unitType = *identifier;
    return true;
}

void UnitManagerUnitTypeStringHandling::updateUnitTypeHashMap(QHash<unsigned int, QString>& map,
                                                              const QSharedPointer<UnitManager>& unitManager)
{
    if (!unitManager)
        return;
    const QStringList unitTypes = unitManager->getListofUnitTypes();
    map.clear();
    for (const QString& unitType : unitTypes) {
        insertIdentifier(map, unitType);
        const QStringList units = unitManager->getListofUnits(unitType);
        for (const QString& unit : units)
            insertIdentifier(map, FixedUnit::join(unitType, unit));
    }
}
