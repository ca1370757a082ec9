#pragma once

#include <QtCore/QMetaType>
#include <QtCore/QString>

/// What the service publishes about one document.
struct DocumentState
{
    /// The active text; null until a valid one was read.
    QString text;
    /// SHA-256 of the active text in UTF-8, in hexadecimal; empty without a text.
    QString checksum;
    /// Why the file's present content is not served, "PATH:LINE:COLUMN: REASON" or "PATH: REASON"; empty if
    /// it is served.
    QString refusal;
};

Q_DECLARE_METATYPE(DocumentState)
