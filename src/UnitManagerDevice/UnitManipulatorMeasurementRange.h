#pragma once

#include <QtCore/QSharedPointer>
#include <QtCore/QString>

#include "ConfigurationAndProcessDataBase.h"
#include "UnitManagerExport.h"
#include "UnitManipulatorBase.h"

class UnitManagerWrapper;

/// Writes the base unit and the unit texts of a unit type into the measurement-range attributes of the nodes
/// that a DependencyWalker reaches.
///
/// Must be used from the thread of its wrapper.
class UNITMANAGER_EXPORT UnitManipulatorMeasurementRange : public UnitManipulatorBase
{
public:
    /// @param wrapper must outlive the manipulator
    UnitManipulatorMeasurementRange(UnitManagerWrapper& wrapper);
    ~UnitManipulatorMeasurementRange() override;

    /// Writes base unit and unit texts of @p unitType into the first measurement range of @p node. Advances
    /// the wrapper's connector first.
    ///
    /// Logs a warning, and changes nothing, while the wrapper is not initialised. A null node and a node
    /// without measurement-range attributes stay unchanged.
    ///
    /// @param node the node to write to
    /// @param unitType unit type with its prefix, or a fixed unit
    /// @param handled set to true when the node was written; never set to false
    /// @param changed set to true when that changed the node; never set to false
    void manipulate(const QSharedPointer<ConfigurationAndProcessDataBase>& node, const QString& unitType,
                    bool& handled, bool& changed) override;

private:
    UnitManagerWrapper& m_wrapper;
};
