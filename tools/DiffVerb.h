#pragma once

#include "Verb.h"

/// Compares files with the active documents of the running service.
class DiffVerb : public Verb
{
public:
    DiffVerb();

protected:
    void addOptions(QCommandLineParser& parser) const override;
    Result<ExitCode> run(const QCommandLineParser& options, const QStringList& arguments) override;
};
