#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <optional>
#include <utility>

#include "DocumentFile.h"
#include "DocumentState.h"
#include "JsonDocument.h"

/// A document and its last valid text. If the file is missing, incomplete or invalid, the last valid text
/// stays active. Each loaded or refused content of the file is logged once.
class ConfigurationDocument
{
public:
    /// @return whether a document is valid; if not, @p problem says why.
    using Rule = bool (*)(const JsonDocument& document, DocumentProblem& problem);

    /// Does not read the file yet.
    ///
    /// @param name name of the document on the bus
    /// @param path path of its file, which must be a regular file
    /// @param maximumSize the largest file that is read, in bytes
    ConfigurationDocument(const QString& name, const QString& path, Rule rule,
                          int maximumSize = DocumentFile::defaultLimit);

    const QString& name() const;
    const QString& path() const;
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
    QString m_path;
    Rule m_rule;
    int m_maximumSize;
    std::optional<Content> m_content;
    DocumentState m_state;
};
