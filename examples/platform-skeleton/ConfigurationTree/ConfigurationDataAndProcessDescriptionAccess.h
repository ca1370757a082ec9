#pragma once

#include <QtCore/QFileInfo>
#include <QtCore/QString>

class ConfigurationDataAndProcessDescriptionAccess
{
public:
    QString getConfiguration(const QFileInfo& file) const;
};
