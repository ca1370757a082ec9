#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>
#include <utility>

#include "DocumentChecker.h"
#include "DocumentFile.h"
#include "DocumentState.h"

/// A document and its last valid text. The document is read from the first of several paths that exists; the
/// last path is the fall-back. If the file is missing, incomplete or invalid, the last valid text stays
/// active. Each loaded or refused content of the file is logged once, with the mistakes found in it.
class ConfigurationDocument
{
public:
    /// Does not read the file yet.
    ///
    /// @param name name of the document on the bus
    /// @param kind decides which rules apply
    /// @param paths possible paths of its file, which must be a regular file; at least one
    /// @param maximumSize the largest file that is read, in bytes
    ConfigurationDocument(const QString& name, DocumentKind kind, const QStringList& paths,
                          int maximumSize = DocumentFile::defaultLimit);

    const QString& name() const;
    /// The path that was read last.
    const QString& path() const;
    const QStringList& paths() const;
    DocumentKind kind() const;
    const DocumentState& state() const;

    /// Reads the file. @return whether state() has changed.
    bool update();

private:
    /// The bytes of the file, or the reason why it could not be read.
    using Content = std::pair<std::optional<QByteArray>, QString>;

    QString existingPath() const;
    std::optional<JsonDocument> check(const QByteArray& bytes, DocumentProblem& problem) const;
    bool accept(const QString& text);
    bool refuse(const DocumentProblem& problem);

    QString m_name;
    DocumentKind m_kind;
    QStringList m_paths;
    QString m_path;
    int m_maximumSize;
    std::optional<Content> m_content;
    DocumentState m_state;
};
