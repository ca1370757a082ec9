#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <vector>

#include "DocumentChecker.h"
#include "Result.h"

class QCommandLineParser;

/// The documents that the verb "check" examines, with their names and texts.
class CheckedDocuments
{
public:
    /// Declares --units, --default-units, --dependencies and --max-size.
    static void addOptions(QCommandLineParser& parser);
    /// Reads the documents that the options name, or the shipped ones. Prints an error for each that cannot
    /// be read.
    ///
    /// @return a failure if the options are wrong
    static Result<CheckedDocuments> read(const QCommandLineParser& options);

    /// Whether a document could not be read.
    bool hasUnreadable() const;
    /// The findings, by document and place.
    std::vector<Finding> check(const DocumentChecker::Options& options) const;

    /// The name for messages: the path of the file, or for example "active units".
    QString name(DocumentKind kind) const;
    /// The text in UTF-8, without byte order mark.
    const QByteArray& text(DocumentKind kind) const;

private:
    struct Document
    {
        DocumentKind kind;
        QString name;
        QByteArray text;
    };

    static Result<CheckedDocuments> readFromService(const QCommandLineParser& options);
    void readFile(DocumentKind kind, const QString& path, int maximumSize);
    void reportUnreadable(const QString& reason);
    const Document& document(DocumentKind kind) const;

    std::vector<Document> m_documents;
    bool m_hasUnreadable = false;
};
