#pragma once

#include "CatalogueVerb.h"

/// Shows the label of a unit.
class LabelVerb : public CatalogueVerb
{
public:
    LabelVerb();

protected:
    void addOptions(QCommandLineParser& parser) const override;
    Result<ExitCode> answer(const UnitCatalogue& catalogue, const QCommandLineParser& options,
                            const QStringList& arguments) override;
};
