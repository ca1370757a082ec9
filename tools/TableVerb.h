#pragma once

#include "CatalogueVerb.h"

/// Shows one value in every unit of its type.
class TableVerb : public CatalogueVerb
{
public:
    TableVerb();

protected:
    void addOptions(QCommandLineParser& parser) const override;
    Result<ExitCode> answer(const UnitCatalogue& catalogue, const QCommandLineParser& options,
                            const QStringList& arguments) override;
};
