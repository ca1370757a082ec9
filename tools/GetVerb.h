#pragma once

#include "Verb.h"

/// Prints an active document of the running service, or its state.
class GetVerb : public Verb
{
public:
    GetVerb();

protected:
    void addOptions(QCommandLineParser& parser) const override;
    Result<ExitCode> run(const QCommandLineParser& options, const QStringList& arguments) override;
};
