#pragma once

#include <QtCore/QString>

#include "DeviceSupportExport.h"

/// Names that all libraries of the device share. Every getter returns the same object on each call.
class DEVICESUPPORT_EXPORT PropertyManagerConst
{
public:
    PropertyManagerConst() = delete;

    /// The prefix of the full name of every unit type, including the "/" at its end.
    static const QString& getUnitTypeNamePrefix();
    /// The file extension of configuration documents, without the dot.
    static const QString& getConfigFileExtension();
    /// The prefix of the bus name of every module of the device, without the "." at its end.
    static const QString& getDBusPrefix();
};
