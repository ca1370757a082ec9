#pragma once

#include "Verb.h"

/// Finds the mistakes in unit, default-unit and dependency documents.
class CheckVerb : public Verb
{
public:
    CheckVerb();

protected:
    void addOptions(QCommandLineParser& parser) const override;
    Result<ExitCode> run(const QCommandLineParser& options, const QStringList& arguments) override;
};
