#pragma once

#include <QtCore/QString>

class PropertyManagerConst
{
public:
    static const QString& getUnitTypeNamePrefix();
    static const QString& getConfigFileExtension();
    static const QString& getDBusPrefix();
};
