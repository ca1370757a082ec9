#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>
#include <vector>

#include "JsonDocument.h"
#include "Rule.h"

/// The kinds of documents.
enum class DocumentKind
{
    Units,
    DefaultUnits,
    Dependencies
};

/// A violation of a rule in a document.
struct Finding
{
    DocumentKind document;
    Rule rule;
    /// Line 1, column 1 if the finding concerns the whole document.
    TextPlace place;
    /// Names and indices from the root, such as "Pressure/Bar/Polynomial/0"; empty for the root.
    QString path;
    /// What is wrong; one line without full stop.
    QString message;
    /// What to write instead, such as "did you mean \"Polynomial\"?"; may be empty.
    QString advice;

    /// Message and advice as one line, without place.
    QString text() const;
};

/// The documents of one device. Those without value are not checked, and neither is what concerns them
/// together with others.
struct DocumentSet
{
    std::optional<JsonDocument> units;
    std::optional<JsonDocument> defaultUnits;
    std::optional<JsonDocument> dependencies;

    std::optional<JsonDocument>& of(DocumentKind kind);
};

/// Finds the mistakes in documents.
///
/// The library itself decides which units it accepts, the base unit and the labels; its messages are logged
/// as usual.
namespace DocumentChecker {

struct Options
{
    /// Languages that every label must have; if empty, those that the document uses.
    QStringList languages;
    /// The values of base units between which polynomials of degree 2 and higher are examined.
    double lowest = 0;
    double highest = 100;
};

/// The finding for a text that JsonDocument::read() refused.
Finding readingFinding(DocumentKind document, const DocumentProblem& problem);

/// Checks the documents. @return the findings by document, then by place
std::vector<Finding> check(const DocumentSet& documents, const Options& options);

} // namespace DocumentChecker
