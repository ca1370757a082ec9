#pragma once

#include <QtCore/QString>

/// A place in a text: line and column count from 1, columns in characters (code points).
struct TextPlace
{
    int line = 0;
    int column = 0;
};

/// The reason why a document cannot be used, and where in the document.
struct DocumentProblem
{
    enum class Kind
    {
        /// The file cannot be read.
        File,
        /// The file has no text.
        Empty,
        Syntax,
        Encoding,
        Nesting,
        DuplicateName,
        NumberOverflow
    };

    /// One line without full stop, which continues "PATH: ", such as "is a directory".
    QString reason;
    /// Line 0 if the problem concerns the whole document.
    TextPlace place;
    Kind kind = Kind::File;

    /// "PATH:LINE:COLUMN: REASON", or "PATH: REASON" without place; made safe by PrintableText.
    QString inFile(const QString& path) const;
    /// "line LINE, column COLUMN: REASON", or "REASON" without place; made safe by PrintableText.
    QString withPlace() const;

    /// Formats external text for a reason: in double quotes, made safe by PrintableText, long text truncated.
    static QString quoted(const QString& text);
};
