#pragma once

#include "Verb.h"

class UnitCatalogue;

/// A verb that answers from the unit documents: the shipped ones, those named by --units and --default-units,
/// or the active ones of the service on the bus named by --bus.
class CatalogueVerb : public Verb
{
public:
    /// Loads the documents that the options name. @param options those of a verb that declares addOptions()
    static Result<UnitCatalogue> loadCatalogue(const QCommandLineParser& options);

protected:
    using Verb::Verb;

    void addOptions(QCommandLineParser& parser) const override;
    /// Executes the verb with the documents loaded; see run().
    virtual Result<ExitCode> answer(const UnitCatalogue& catalogue, const QCommandLineParser& options,
                                    const QStringList& arguments) = 0;

private:
    Result<ExitCode> run(const QCommandLineParser& options, const QStringList& arguments) final;
};
