#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVector>

#include "Result.h"

class QCommandLineParser;

/// One thing that the program can do, with its own arguments, options and help.
///
/// A new verb derives from this class, or from CatalogueVerb when it needs the documents, and is added to the
/// list in CommandLine.cpp.
class Verb
{
public:
    struct Argument
    {
        QString name;
        QString description;
    };
    struct Description
    {
        QString name;
        /// What the verb does, in one sentence.
        QString summary;
        /// The arguments as the help's first line shows them, such as "TYPE [UNIT]".
        QString usage;
        int leastArguments;
        /// All arguments that the verb takes at most.
        QVector<Argument> arguments;
        /// The end of the help: rules and an example.
        QString details;
    };

    virtual ~Verb();
    Verb(const Verb&) = delete;
    Verb& operator=(const Verb&) = delete;

    /// The name and version of the program.
    static QString versionText();

    const Description& about() const;

    /// Does what @p words, the command line behind the verb, asks for, --help and --version included.
    ///
    /// @return an ExitCode; its reason has been printed
    int execute(const QStringList& words);

protected:
    explicit Verb(const Description& givenDescription);

    /// Declares the verb's own options, besides --help, --version and --verbose.
    virtual void addOptions(QCommandLineParser& parser) const = 0;
    /// Does the work.
    ///
    /// @param arguments as many as the description allows
    /// @return an ExitCode
    virtual int run(const QCommandLineParser& options, const QStringList& arguments) = 0;

    /// Prints why the command line is wrong and how it should look. @return WrongUsage
    int usageError(const QString& reason) const;
    /// Prints the failure's reason. @return Failed
    static int fail(const Failure& failure);

private:
    QString usageLine() const;
    QString helpText(const QCommandLineParser& parser) const;

    Description description;
};
