#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <optional>

#include "DocumentProblem.h"

/// Reads the files of documents, with bounded memory.
namespace DocumentFile {

enum class Source
{
    /// Regular files only: opening and reading another kind could wait for its writer.
    RegularFile,
    /// Also pipes and character devices, such as /dev/stdin. Reading waits for their end.
    FileOrStream
};

/// The default limit of a document, in bytes.
constexpr int defaultLimit = 1024 * 1024;
/// The highest limit that limitFromText() accepts: 1 GiB.
constexpr int highestLimit = 1024 * 1024 * 1024;

/// Reads a file as a whole; never reads more than @p limit + 1 bytes.
///
/// @return no value, and @p problem without place, if it cannot be read or is larger than the limit
std::optional<QByteArray> read(const QString& path, Source source, int limit, DocumentProblem& problem);

/// The value of the command-line option --max-size. @return no value for anything but a number of bytes from
/// 1 to the highest limit
std::optional<int> limitFromText(const QString& text);

} // namespace DocumentFile
