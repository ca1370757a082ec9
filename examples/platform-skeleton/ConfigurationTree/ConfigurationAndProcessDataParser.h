#pragma once

#include "ConfigurationAndProcessDataBase.h"

class ConfigurationAndProcessDataParser
{
public:
    BaseClassSharedPointer parseFromJson(const QString& json, const QString& fileExtension) const;
};
