#pragma once

#include <QtCore/QString>

#include "ConfigurationAndProcessDataBase.h"

/// Reads a document into a tree.
class ConfigurationAndProcessDataParser
{
public:
    /// @return the root; null for anything else than one JSON object, and for another file extension.
    BaseClassSharedPointer parseFromJson(const QString& json, const QString& fileExtension) const;
};
