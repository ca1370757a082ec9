#pragma once

#include <memory>
#include <vector>

#include "Verb.h"

/// Lists the words that may be typed next on a command line of the program, for the completion of shells.
class CompleteVerb : public Verb
{
public:
    using Verbs = std::vector<std::unique_ptr<Verb>>;

    /// @param verbs the verbs of the program; must outlive this one
    explicit CompleteVerb(const Verbs& verbs);

protected:
    void addOptions(QCommandLineParser& parser) const override;
    Result<ExitCode> run(const QCommandLineParser& options, const QStringList& arguments) override;

private:
    const Verbs& m_verbs;
};
