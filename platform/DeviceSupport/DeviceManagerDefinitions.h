#pragma once

#include <QtCore/QString>

#include "DeviceSupportExport.h"

/// Names of the device-manager module. Every getter returns the same object on each call.
class DEVICESUPPORT_EXPORT DeviceManagerDefinitions
{
public:
    DeviceManagerDefinitions() = delete;

    /// The module's name. Its bus name is the prefix of PropertyManagerConst, "." and this name.
    static const QString& getModuleName();
    /// The name of the object that serves the unit-switch document. Its path is "/" and this name.
    static const QString& getObjectNameUnitManagerConfiguration();
};
