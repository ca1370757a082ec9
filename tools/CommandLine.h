#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <memory>
#include <vector>

#include "Verb.h"

/// The program's verbs, and the choice among them.
class CommandLine
{
public:
    CommandLine();

    /// Does what the words of the command line, without the program's name, ask for.
    ///
    /// @return an ExitCode; its reason has been printed
    int run(const QStringList& words) const;

private:
    Verb* findVerb(const QString& name) const;
    QString helpText() const;

    std::vector<std::unique_ptr<Verb>> verbs;
};
