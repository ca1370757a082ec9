#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>
#include <vector>

#include "DocumentChecker.h"

/// A document of the corpus of faulty documents.
struct CorpusFile
{
    DocumentKind kind;
    QString path;

    /// @return no value, and @p finding, if the document cannot be read
    std::optional<JsonDocument> read(Finding& finding) const;
};

/// A document that is checked alone, or the documents of a device, which are checked together.
struct CorpusEntry
{
    /// The path in the corpus, such as "units/sound.json" or "devices/sound".
    QString name;
    std::vector<CorpusFile> files;
    /// The expected findings, such as "4:5 error inverse-missing Pressure/HectoPascal"; with the file's name
    /// in front for a device.
    QStringList findings;
    /// What the service does: "refuses", "warns" or "accepts".
    QString service;

    bool isDevice() const;
};

/// The documents in tests/documents/corpus, each with one fault, and the findings that are expected.
namespace Corpus {

/// The entries of expected.json; ends the program if they cannot be read.
std::vector<CorpusEntry> entries();
/// The paths of all documents in the folder, sorted.
QStringList paths();
/// "LINE:COLUMN SEVERITY RULE PATH".
QString textOf(const Finding& finding);

} // namespace Corpus
