#pragma once

#include <QtCore/QFileInfo>
#include <QtCore/QString>

#include "ConfigurationTreeExport.h"

/// Reads configuration documents from files.
class CONFIGURATIONTREE_EXPORT ConfigurationDataAndProcessDescriptionAccess
{
public:
    /// Maximum size of a file that can be read: 64 MiB.
    static qint64 getMaximumFileSize();

    /// Reads a whole file as UTF-8; a byte order mark at its start is dropped.
    ///
    /// @return the text. An empty file returns an empty text, and nothing is logged. A file that cannot be
    /// read (missing, not a regular file, no permission, larger than getMaximumFileSize(), invalid UTF-8)
    /// returns an empty text, and one warning gives the file and the reason.
    QString getConfiguration(const QFileInfo& file) const;
};
