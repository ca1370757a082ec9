#pragma once

#include <QtCore/QHash>
#include <QtCore/QSharedPointer>
#include <QtCore/QString>

#include "UnitManagerExport.h"

class UnitManager;

/// Maps the identifiers of unit types and fixed units to 32-bit numbers and back, for places where only a
/// number fits. The numbers are the same on every device and in every run. Without state; may be called from
/// any thread.
class UNITMANAGER_EXPORT UnitManagerUnitTypeStringHandling
{
public:
    /// Stores the number of an identifier, known or not.
    ///
    /// @return true.
    static bool mapUnitTypeStringToHashValue(const QString& unitType, unsigned int& hashValue);

    /// Stores the identifier that @p map holds for a number.
    ///
    /// @return false, with @p unitType untouched, when there is none.
    static bool mapHashValueToUnitTypeString(const QHash<unsigned int, QString>& map,
                                             const unsigned int& hashValue, QString& unitType);

    /// Replaces @p map by the numbers of all unit types and fixed units that @p unitManager knows. Of two
    /// identifiers with one number the later is kept. A null manager leaves the map as it is.
    static void updateUnitTypeHashMap(QHash<unsigned int, QString>& map,
                                      const QSharedPointer<UnitManager>& unitManager);
};
