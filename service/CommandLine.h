#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

/// What the program was asked to do.
struct CommandLine
{
    enum class Request
    {
        /// Serve the documents.
        Serve,
        /// Print the text and stop.
        Print,
        /// The command line is wrong; the text says how.
        Reject
    };

    /// Reads the arguments, the program's own name first.
    static CommandLine read(const QStringList& arguments);

    Request request = Request::Serve;
    /// A help text, the version, or what is wrong; ends in a line break.
    QString text;
    /// The directory of the documents, as it was given.
    QString directory;
    /// "session", "system", or the address of a bus.
    QString bus;
};
