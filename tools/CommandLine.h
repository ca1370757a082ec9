#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <memory>
#include <vector>

#include "KnownNames.h"
#include "Verb.h"

/// Selects and runs the program's verbs.
class CommandLine
{
public:
    CommandLine();

    /// Executes the command line @p words, given without the program's name.
    ///
    /// @return the exit code; its reason has been printed
    ExitCode run(const QStringList& words) const;

private:
    Verb* findVerb(const QString& name) const;
    QVector<KnownName> verbs() const;
    QString helpText() const;

    std::vector<std::unique_ptr<Verb>> m_verbs;
};
