#pragma once

#include <QtCore/QHash>
#include <QtCore/QSharedPointer>
#include <QtCore/QString>

#include "UnitManagerExport.h"

class UnitManager;

/// Maps the identifiers of unit types and fixed units to 32-bit numbers and back, for interfaces that carry
/// only numbers. The numbers are the same on every device and in every run. Stateless; may be called from any
/// thread.
class UNITMANAGER_EXPORT UnitManagerUnitTypeStringHandling
{
public:
    /// Stores the number of an identifier, whether known or not.
    ///
    /// @return true.
    static bool mapUnitTypeStringToHashValue(const QString& unitType, unsigned int& hashValue);

    /// Stores the identifier that @p map holds for a number.
    ///
    /// @return false, with @p unitType unchanged, when there is none.
    static bool mapHashValueToUnitTypeString(const QHash<unsigned int, QString>& map,
                                             const unsigned int& hashValue, QString& unitType);

    /// Replaces the content of @p map by the numbers of all unit types and fixed units that @p unitManager
    /// knows. If two identifiers have the same number, the later one is kept. A null manager leaves the map
    /// unchanged.
    static void updateUnitTypeHashMap(QHash<unsigned int, QString>& map,
                                      const QSharedPointer<UnitManager>& unitManager);
};
