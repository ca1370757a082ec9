#pragma once

#include <QtCore/QObject>

#include "StateMachineBase.h"
#include "UnitManagerExport.h"

/// The connector's state machine.
class UNITMANAGER_EXPORT UnitManagerConnectorStateMachine : public StateMachineBase
{
    Q_OBJECT

public:
    /// @param parent the wrapper, which is passed to every state
    UnitManagerConnectorStateMachine(QObject* parent);
};
