#pragma once

#include "DeviceSupportExport.h"

#include <QtCore/QString>

/// Names that all libraries of the device share. Every getter returns the same object on each call.
class DEVICESUPPORT_EXPORT PropertyManagerConst
{
public:
    PropertyManagerConst() = delete;

    /// What the full name of every unit type begins with, "/" at the end included.
    static const QString& getUnitTypeNamePrefix();
    /// The file extension of configuration documents, without the point.
    static const QString& getConfigFileExtension();
    /// What the bus name of every module of the device begins with, without "." at the end.
    static const QString& getDBusPrefix();
};
