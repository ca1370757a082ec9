#pragma once

#include "ConfigurationAndProcessDataBase.h"

class UnitManipulatorBase
{
public:
    UnitManipulatorBase();
    virtual ~UnitManipulatorBase();

    virtual void manipulate(const QSharedPointer<ConfigurationAndProcessDataBase>& node,
                            const QString& unitType, bool& handled, bool& changed) = 0;
};
