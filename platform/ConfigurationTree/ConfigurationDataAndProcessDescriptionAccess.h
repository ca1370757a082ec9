#pragma once

#include "ConfigurationTreeExport.h"

#include <QtCore/QFileInfo>
#include <QtCore/QString>

/// Reads configuration documents from files.
class CONFIGURATIONTREE_EXPORT ConfigurationDataAndProcessDescriptionAccess
{
public:
    /// The size of the largest file that is read: 64 MiB.
    static qint64 getMaximumFileSize();

    /// Reads a whole file as UTF-8; a byte order mark at its start is dropped.
    ///
    /// @return the text. An empty file gives an empty text silently. A file that cannot be read (missing, no
    /// regular file, no permission, larger than getMaximumFileSize(), invalid UTF-8) gives an empty text, and
    /// one warning names the file and the reason.
    QString getConfiguration(const QFileInfo& file) const;
};
