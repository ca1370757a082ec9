#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVector>

#include <optional>

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
        bool isOptional = false;
        /// Whether it may be repeated; only the last one may.
        bool isList = false;
    };
    struct Description
    {
        QString name;
        /// Describes the verb in one sentence.
        QString summary;
        /// The arguments, in the order of the command line.
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

    /// Declares the verb's options and arguments, and reads @p words, the command line after the verb. Words
    /// that are not understood are skipped.
    ///
    /// @return false if there are such words
    bool parse(QCommandLineParser& parser, const QStringList& words) const;
    /// The arguments that parse() has read.
    static QStringList argumentsOf(const QCommandLineParser& parser);

    /// Executes the verb with @p words, the command line after the verb. Handles --help and --version.
    ///
    /// @return the exit code; a failure has already been printed
    ExitCode execute(const QStringList& words);

protected:
    explicit Verb(const Description& description);

    /// Declares the verb's own options, in addition to --help, --version and --verbose.
    virtual void addOptions(QCommandLineParser& parser) const = 0;
    /// Executes the verb.
    ///
    /// @param arguments as many as the description permits
    /// @return the exit code of a verb that has printed its answer; a failure is still to be printed
    virtual Result<ExitCode> run(const QCommandLineParser& options, const QStringList& arguments) = 0;

private:
    void declare(QCommandLineParser& parser) const;
    Result<ExitCode> answer(const QStringList& words);
    std::optional<Failure> wrongCount(const QStringList& arguments) const;
    QString usageLine() const;
    QString helpText(const QCommandLineParser& parser) const;

    Description m_description;
};
