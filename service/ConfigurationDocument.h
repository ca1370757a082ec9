#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <optional>
#include <utility>

#include "DocumentChecker.h"
#include "DocumentFile.h"
#include "DocumentState.h"

/// A document and its last valid text. If the file is missing, incomplete or invalid, the last valid text
/// stays active. Each loaded or refused content of the file is logged once, with the mistakes found in it.
class ConfigurationDocument
{
public:
    /// Does not read the file yet.
    ///
    /// @param name name of the document on the bus
    /// @param kind decides which rules apply
    /// @param path path of its file, which must be a regular file
    /// @param maximumSize the largest file that is read, in bytes
    ConfigurationDocument(const QString& name, DocumentKind kind, const QString& path,
                          int maximumSize = DocumentFile::defaultLimit);

    const QString& name() const;
    const QString& path() const;
    DocumentKind kind() const;
    const DocumentState& state() const;

    /// Reads the file. @return whether state() has changed.
    bool update();

private:
    /// The bytes of the file, or the reason why it could not be read.
    using Content = std::pair<std::optional<QByteArray>, QString>;

    std::optional<JsonDocument> check(const QByteArray& bytes, DocumentProblem& problem) const;
    bool accept(const QString& text);
    bool refuse(const DocumentProblem& problem);

    QString m_name;
    DocumentKind m_kind;
    QString m_path;
    int m_maximumSize;
    std::optional<Content> m_content;
    DocumentState m_state;
};
