#pragma once

#include <QtCore/QSharedPointer>
#include <QtCore/QString>

#include "ConfigurationAndProcessDataBase.h"
#include "DependencyWalkerExport.h"

/// The operation that a DependencyWalker applies to each node that it reaches.
class DEPENDENCYWALKER_EXPORT UnitManipulatorBase
{
public:
    UnitManipulatorBase();
    virtual ~UnitManipulatorBase();
    UnitManipulatorBase(const UnitManipulatorBase&) = delete;
    UnitManipulatorBase& operator=(const UnitManipulatorBase&) = delete;

    /// Edits one node.
    /// @param unitType the node's unit type; empty when it has none.
    /// @param handled set to true when the manipulator applies to the node, else unchanged.
    /// @param changed set to true when the node was modified, else unchanged.
    virtual void manipulate(const QSharedPointer<ConfigurationAndProcessDataBase>& node,
                            const QString& unitType, bool& handled, bool& changed) = 0;
};
