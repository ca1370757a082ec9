#pragma once

#include "Verb.h"

/// Follows the running configuration service as a device application does, until it is interrupted.
class WatchVerb : public Verb
{
public:
    WatchVerb();

protected:
    void addOptions(QCommandLineParser& parser) const override;
    Result<ExitCode> run(const QCommandLineParser& options, const QStringList& arguments) override;
};
