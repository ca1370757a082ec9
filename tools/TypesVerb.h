#pragma once

#include "CatalogueVerb.h"

/// Lists the unit types.
class TypesVerb : public CatalogueVerb
{
public:
    TypesVerb();

protected:
    void addOptions(QCommandLineParser& parser) const override;
    Result<ExitCode> answer(const UnitCatalogue& catalogue, const QCommandLineParser& options,
                            const QStringList& arguments) override;
};
