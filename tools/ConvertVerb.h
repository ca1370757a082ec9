#pragma once

#include "CatalogueVerb.h"

/// Converts one value, or the values on standard input, from one unit to another.
class ConvertVerb : public CatalogueVerb
{
public:
    ConvertVerb();

protected:
    void addOptions(QCommandLineParser& parser) const override;
    Result<ExitCode> answer(const UnitCatalogue& catalogue, const QCommandLineParser& options,
                            const QStringList& arguments) override;
};
