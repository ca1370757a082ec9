#pragma once

#include <QtCore/QString>

/// Names of the source of the documents.
class DeviceManagerDefinitions
{
public:
    static const QString& getModuleName();
    static const QString& getObjectNameUnitManagerConfiguration();
};
