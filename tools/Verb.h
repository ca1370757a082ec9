#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVector>

#include "Result.h"

class QCommandLineParser;

/// A command of the program, with its own arguments, options and help.
///
/// To add a verb, derive from this class, or from CatalogueVerb if it needs the documents, and add it to the
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
        /// Describes the verb in one sentence.
        QString summary;
        /// The arguments as shown in the first line of the help, such as "TYPE [UNIT]".
        QString usage;
        int leastArguments;
        /// All arguments, including optional ones.
        QVector<Argument> arguments;
        /// The end of the help: rules and an example.
        QString details;
    };

    virtual ~Verb();
    Verb(const Verb&) = delete;
    Verb& operator=(const Verb&) = delete;

    /// The program's name and version.
    static QString versionText();

    const Description& about() const;

    /// Executes the verb with @p words, the command line after the verb. Handles --help and --version.
    ///
    /// @return an ExitCode; a failure has already been printed
    int execute(const QStringList& words);

protected:
    explicit Verb(const Description& description);

    /// Declares the verb's own options, in addition to --help, --version and --verbose.
    virtual void addOptions(QCommandLineParser& parser) const = 0;
    /// Executes the verb.
    ///
    /// @param arguments as many as the description permits
    /// @return an ExitCode
    virtual int run(const QCommandLineParser& options, const QStringList& arguments) = 0;

    /// Prints an error in the command line and the correct usage. @return WrongUsage
    int usageError(const QString& reason) const;
    /// Prints the failure's reason. @return Failed
    static int fail(const Failure& failure);

private:
    QString usageLine() const;
    QString helpText(const QCommandLineParser& parser) const;

    Description m_description;
};
