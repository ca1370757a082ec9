#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

/// The parsed command line.
struct CommandLine
{
    enum class Request
    {
        /// Serve the documents.
        Serve,
        /// Print the text and exit.
        Print,
        /// The command line is invalid; the text is the error message.
        Reject
    };

    /// Parses the arguments. The first one is the program's name.
    static CommandLine read(const QStringList& arguments);

    Request request = Request::Serve;
    /// The help, the version, or an error message; ends with a line break.
    QString text;
    /// The directories of the documents, as given on the command line.
    QStringList directories;
    /// "session", "system", or the address of a bus.
    QString bus;
    /// The largest document that is read, in bytes.
    int maximumSize = 0;
};
