#pragma once

#include "CatalogueVerb.h"

/// Lists the labels of units in every language, or those units that lack a language.
class LabelsVerb : public CatalogueVerb
{
public:
    LabelsVerb();

protected:
    void addOptions(QCommandLineParser& parser) const override;
    Result<ExitCode> answer(const UnitCatalogue& catalogue, const QCommandLineParser& options,
                            const QStringList& arguments) override;
};
