#pragma once

#include <QtCore/QFileInfo>
#include <QtCore/QString>

/// Reads documents from files.
class ConfigurationDataAndProcessDescriptionAccess
{
public:
    /// @return the whole text; empty when the file cannot be read.
    QString getConfiguration(const QFileInfo& file) const;
};
