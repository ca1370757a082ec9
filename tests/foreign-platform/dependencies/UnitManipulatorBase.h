#pragma once

#include "ConfigurationAndProcessDataBase.h"

/// Edits the nodes that a DependencyWalker visits.
class UnitManipulatorBase
{
public:
    UnitManipulatorBase();
    virtual ~UnitManipulatorBase();

    /// Sets @p handled when it applies to the node, and @p changed when the node was modified.
    virtual void manipulate(const QSharedPointer<ConfigurationAndProcessDataBase>& node,
                            const QString& unitType, bool& handled, bool& changed) = 0;
};
