#pragma once

#include <QtCore/QString>

class DeviceManagerDefinitions
{
public:
    static const QString& getModuleName();
    static const QString& getObjectNameUnitManagerConfiguration();
};
