#pragma once

#include <QtCore/QString>

/// Names that all libraries of the device share.
class PropertyManagerConst
{
public:
    static const QString& getUnitTypeNamePrefix();
    static const QString& getConfigFileExtension();
    static const QString& getDBusPrefix();
};
