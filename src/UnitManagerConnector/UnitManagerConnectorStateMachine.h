#pragma once

#include <QtCore/QObject>

#include "StateMachineBase.h"
#include "UnitManagerExport.h"

/// The connector's state machine.
class UNITMANAGER_EXPORT UnitManagerConnectorStateMachine : public StateMachineBase
{
    Q_OBJECT

public:
    /// @param parent the wrapper, which every state is made with
    UnitManagerConnectorStateMachine(QObject* parent);
};
