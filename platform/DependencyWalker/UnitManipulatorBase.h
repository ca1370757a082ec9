#pragma once

#include "ConfigurationAndProcessDataBase.h"
#include "DependencyWalkerExport.h"

#include <QtCore/QSharedPointer>
#include <QtCore/QString>

/// What a DependencyWalker does to each node that it reaches.
class DEPENDENCYWALKER_EXPORT UnitManipulatorBase
{
public:
    UnitManipulatorBase();
    virtual ~UnitManipulatorBase();
    UnitManipulatorBase(const UnitManipulatorBase&) = delete;
    UnitManipulatorBase& operator=(const UnitManipulatorBase&) = delete;

    /// Edits one node.
    /// @param unitType the node's unit type; empty when it has none.
    /// @param handled set to true when the node was one for this manipulator, else left as it is.
    /// @param changed set to true when the node is different afterwards, else left as it is.
    virtual void manipulate(const QSharedPointer<ConfigurationAndProcessDataBase>& node,
                            const QString& unitType, bool& handled, bool& changed) = 0;
};
